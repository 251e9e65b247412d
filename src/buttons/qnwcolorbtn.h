#pragma once
// The colour button without a window of its own: the same picture and
// state machine as TqColorBtn, without focus or default and modal-result
// behaviour; it can be transparent, optionally lightened by a grey glass.

#include "buttons/qcolorbutton.h"

class TqNWColorBtn : public TColorButton<TGraphicControl>
{
    Q_OBJECT
    Q_PROPERTY(int Width READ Width WRITE SetWidth STORED false)
    Q_PROPERTY(int Height READ Height WRITE SetHeight STORED false)
    Q_PROPERTY(bool Flat READ Flat WRITE SetFlat)
    Q_PROPERTY(Buttons::qbHorzAlign HorzAlign READ HorzAlign WRITE SetHorzAlign)
    Q_PROPERTY(bool MultipleLines READ MultipleLines WRITE SetMultipleLines)
    Q_PROPERTY(bool WordWrap READ WordWrap WRITE SetWordWrap)
    Q_PROPERTY(Controls::TAlignment Alignment READ Alignment WRITE SetAlign)
    Q_PROPERTY(bool Cancel READ Cancel WRITE SetCancel)
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
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(bool ParentShowHint READ ParentShowHint WRITE SetParentShowHint)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)
    Q_PROPERTY(bool Transparent READ Transparent WRITE SetTransparent)
    Q_PROPERTY(int GlassValue READ GlassValue WRITE SetGlass)

public:
    explicit TqNWColorBtn(QWidget *parent = nullptr);

    // The face is not filled: what lies under the button shows.
    bool Transparent() const { return FTransparent; }
    void SetTransparent(bool transparent);
    // A grey level (0..255) ORed over the see-through picture; 0 for none.
    int GlassValue() const { return FGlass; }
    void SetGlass(int glass);
    // The grey of a colour's mean, marked palette-relative.
    static TColor Grey(TColor color);

    void SetBounds(int left, int top, int width, int height) override;

signals:
    void OnPaint(QObject *Sender);

protected:
    void DoOnPaint() override { emit OnPaint(this); }
    void PaintFace(TCanvas &canvas) override;
    // What lies beneath changes without telling the button.
    bool FaceKept() const override { return !FTransparent; }
    void Click() override;
    // A transparent button repaints at once on release, a solid one later.
    void AfterRelease() override;

private:
    bool FTransparent = false;
    quint8 FGlass = 0;
};
