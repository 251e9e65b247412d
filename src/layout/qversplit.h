#pragma once
// A panel divided in two by a bar that moves left and right (TqHorSplit:
// up and down). The application puts its controls on either side; when the
// bar moves, by the mouse or through WhereSplit, they move with it by the
// same distance (controls are moved, never resized). WhereSplit is the
// bar's left (top) edge in the panel, between 0 and the panel's extent less
// the bar's thickness.

#include "host/tpanel.h"

class TqSplit;

class TqVerSplit : public TCustomPanel
{
    Q_OBJECT
    Q_PROPERTY(int Width READ Width WRITE SetWidth STORED false)
    Q_PROPERTY(int Height READ Height WRITE SetHeight STORED false)
    Q_PROPERTY(bool PassMouseOn READ PassMouseOn WRITE SetPassMouseOn)
    Q_PROPERTY(bool MoveOnChangeLeft READ MoveOnChangeLeft WRITE SetMoveOnChangeLeft)
    Q_PROPERTY(bool MoveOnChangeRight READ MoveOnChangeRight WRITE SetMoveOnChangeRight)
    Q_PROPERTY(Forms::TFormBorderStyle SplitterStyle READ SplitterStyle WRITE SetSplitterStyle)
    Q_PROPERTY(int SplitterWidth READ SplitterWidth WRITE SetSplitterWidth)
    Q_PROPERTY(Controls::TPanelBevel SplitterInner READ SplitterInner WRITE SetSplitterInner)
    Q_PROPERTY(Controls::TPanelBevel SplitterOuter READ SplitterOuter WRITE SetSplitterOuter)
    Q_PROPERTY(int WhereSplit READ WhereSplit WRITE SetWhereSplit)
    Q_PROPERTY(bool NewLook READ NewLook WRITE SetNewLook)
    Q_PROPERTY(Controls::TAlign Align READ Align WRITE SetAlign)
    Q_PROPERTY(Controls::TAlignment Alignment READ Alignment WRITE SetAlignment)
    Q_PROPERTY(Forms::TFormBorderStyle BorderStyle READ BorderStyle WRITE SetBorderStyle)
    Q_PROPERTY(int DragCursor READ DragCursor WRITE SetDragCursor)
    Q_PROPERTY(TDragMode DragMode READ DragMode WRITE SetDragMode)
    Q_PROPERTY(bool Enabled READ Enabled WRITE SetEnabled)
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(QFont Font READ Font WRITE SetFont)
    Q_PROPERTY(bool ParentFont READ ParentFont WRITE SetParentFont)
    Q_PROPERTY(bool ParentShowHint READ ParentShowHint WRITE SetParentShowHint)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(bool ParentColor READ ParentColor WRITE SetParentColor)

public:
    explicit TqVerSplit(QWidget *parent = nullptr);

    // Reading a width or height below 10 first makes it 10.
    int Width();
    int Height();
    void SetWidth(int width);
    void SetHeight(int height);

    // A left press on the panel (not on the bar) goes to the panel's parent.
    bool PassMouseOn() const { return FPassMouseOn; }
    void SetPassMouseOn(bool pass) { FPassMouseOn = pass; }
    bool MoveOnChangeLeft() const { return FMoveLeft; }
    void SetMoveOnChangeLeft(bool move) { FMoveLeft = move; }
    bool MoveOnChangeRight() const { return FMoveRight; }
    void SetMoveOnChangeRight(bool move) { FMoveRight = move; }
    TFormBorderStyle SplitterStyle() const;
    void SetSplitterStyle(TFormBorderStyle style);
    // The bar's thickness: at least 6, at most half the panel; a change
    // sends the bar back to the start first.
    int SplitterWidth() const;
    void SetSplitterWidth(int width);
    TPanelBevel SplitterInner() const;
    void SetSplitterInner(TPanelBevel bevel);
    TPanelBevel SplitterOuter() const;
    void SetSplitterOuter(TPanelBevel bevel);
    int WhereSplit() const { return FWhereSplit; }
    void SetWhereSplit(int where);
    // The bar as two flat raised strips.
    bool NewLook() const { return FNewLook; }
    void SetNewLook(bool newLook);

    TqSplit *Bar() const { return FBar; }
    bool Vertical() const;

    // A control placed in the left (upper) or right (lower) part.
    void SetLeftTop(QWidget *control);
    void SetRightBottom(QWidget *control);
    void GoMinimum() { SetWhereSplit(0); }
    void GoMaximum();
    void GoMedium();

signals:
    // After every write of WhereSplit, also one that changed nothing.
    void OnSplitChange(QObject *Sender);
    // Once the stored properties are read.
    void OnBeforeShow(QObject *Sender);

protected:
    virtual void DoSplitChange();
    virtual void DoSize();
    void Loaded() override;
    void Paint(TCanvas &canvas) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    // Across the bar: the panel's width for a vertical bar, else its height.
    int across();

    TqSplit *FBar;

private:
    friend class TqSplit;
    int FWhereSplit = 0;
    bool FPassMouseOn = false;
    bool FMoveLeft = true;
    bool FMoveRight = true;
    bool FNewLook = false;
};
