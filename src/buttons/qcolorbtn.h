#pragma once
// The colour button: a push button painted in any face colour, with a
// two-pixel bevel, a caption at nine places, a flat mode that shows the
// bevel only while the mouse is over it; it takes the focus, answers Enter
// as the form's default button and Escape as its cancel button, and sets
// the form's modal result when clicked.

#include "buttons/qcolorbutton.h"

class TqColorBtn : public TColorButton<TCustomControl>
{
    Q_OBJECT
    Q_PROPERTY(int Width READ Width WRITE SetWidth STORED false)
    Q_PROPERTY(int Height READ Height WRITE SetHeight STORED false)
    Q_PROPERTY(int HelpContext READ HelpContext WRITE SetHelpContext)
    Q_PROPERTY(bool Flat READ Flat WRITE SetFlat)
    Q_PROPERTY(Buttons::qbHorzAlign HorzAlign READ HorzAlign WRITE SetHorzAlign)
    Q_PROPERTY(bool MultipleLines READ MultipleLines WRITE SetMultipleLines)
    Q_PROPERTY(bool WordWrap READ WordWrap WRITE SetWordWrap)
    Q_PROPERTY(Controls::TAlignment Alignment READ Alignment WRITE SetAlign)
    Q_PROPERTY(bool Cancel READ Cancel WRITE SetCancel)
    Q_PROPERTY(int ModalResult READ ModalResult WRITE SetModalResult)
    Q_PROPERTY(bool Default READ Default WRITE SetDefault)
    Q_PROPERTY(int DragCursor READ DragCursor WRITE SetDragCursor)
    Q_PROPERTY(TDragMode DragMode READ DragMode WRITE SetDragMode)
    Q_PROPERTY(QFont Font READ Font WRITE SetFont)
    Q_PROPERTY(TColor FontColor READ FontColor WRITE SetFontColor)
    Q_PROPERTY(bool ParentFont READ ParentFont WRITE SetParentFont)
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(bool ParentColor READ ParentColor WRITE SetParentColor)
    Q_PROPERTY(TColor HighLightColor READ HighLightColor WRITE SetHigh)
    Q_PROPERTY(TColor ShadowColor READ ShadowColor WRITE SetShadow)
    Q_PROPERTY(bool TabStop READ TabStop WRITE SetTabStop)
    Q_PROPERTY(bool Enabled READ Enabled WRITE SetEnabled)
    Q_PROPERTY(bool ParentShowHint READ ParentShowHint WRITE SetParentShowHint)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)

public:
    // The framework's modal results.
    enum { mrNone = 0, mrOk = 1, mrCancel = 2, mrAbort = 3, mrRetry = 4, mrIgnore = 5, mrYes = 6, mrNo = 7,
           mrAll = 8, mrNoToAll = 9, mrYesToAll = 10 };

    explicit TqColorBtn(QWidget *parent = nullptr);
    // Hears no more of the focus: the widget's own destructor moves the
    // focus away from a focused button.
    ~TqColorBtn() override;

    int HelpContext() const { return FHelpContext; }
    void SetHelpContext(int context) { FHelpContext = context; }
    // Given to the form when the button is clicked (also 0): a dialog with
    // a result other than 0 closes with it (QDialog::done); any form gets
    // it as its "ModalResult" property.
    int ModalResult() const { return FModalResult; }
    void SetModalResult(int result) { FModalResult = result; }
    // Enter clicks the default button unless another colour button has the
    // focus; its caption is bold.
    bool Default() const { return FDefault; }
    void SetDefault(bool isDefault);
    // The button that Enter clicks now.
    bool Active() const { return FActive; }

signals:
    void OnPaint(QObject *Sender);

protected:
    void DoOnPaint() override { emit OnPaint(this); }
    bool BoldCaption() const override { return hasFocus() || FDefault; }
    bool ShowsFocus() const override { return hasFocus(); }
    void Click() override;
    void KeyDown(quint16 &Key, TShiftState Shift) override;
    void KeyUp(quint16 &Key, TShiftState Shift) override;
    bool DialogKey(QKeyEvent *event) override;
    bool TakesAccelerator() const override { return TColorButton::TakesAccelerator() && focusPolicy() != Qt::NoFocus; }

private:
    // Whether this is the button Enter clicks, now that `focused` has the focus.
    void focusChanged(QWidget *focused);

    int FHelpContext = 0;
    int FModalResult = mrNone;
    bool FDefault = false;
    bool FActive = false;
    QMetaObject::Connection FFocusWatch;
};
