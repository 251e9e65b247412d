#pragma once
// A panel the user drags with the left button to a new place inside its
// parent (a rubber band shows where), and that can stick to an edge of its
// parent: by placement (old style: put at the edge after each move) or by
// alignment (new style: aligned to the edge, kept there on parent resize).
// OnBeforeUpdate sees the proposed bounds of each move and may change them
// or put the old ones back.

#include "host/tpanel.h"

#include <QPointer>

class QRubberBand;

class TqMovePanel : public TCustomPanel
{
    Q_OBJECT
    Q_PROPERTY(TqStickType StickWhere READ StickWhere WRITE SetStickWhere)
    Q_PROPERTY(bool StickOldStyle READ StickOldStyle WRITE SetStickOldStyle)
    Q_PROPERTY(Controls::TAlignment Alignment READ Alignment WRITE SetAlignment)
    Q_PROPERTY(Controls::TPanelBevel BevelInner READ BevelInner WRITE SetBevelInner)
    Q_PROPERTY(Controls::TPanelBevel BevelOuter READ BevelOuter WRITE SetBevelOuter)
    Q_PROPERTY(int BevelWidth READ BevelWidth WRITE SetBevelWidth)
    Q_PROPERTY(int BorderWidth READ BorderWidth WRITE SetBorderWidth)
    Q_PROPERTY(Forms::TFormBorderStyle BorderStyle READ BorderStyle WRITE SetBorderStyle)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(bool Locked READ Locked WRITE SetLocked)
    Q_PROPERTY(bool TabStop READ TabStop WRITE SetTabStop)
    Q_PROPERTY(bool Enabled READ Enabled WRITE SetEnabled)
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(QFont Font READ Font WRITE SetFont)
    Q_PROPERTY(bool ParentColor READ ParentColor WRITE SetParentColor)
    Q_PROPERTY(bool ParentFont READ ParentFont WRITE SetParentFont)
    Q_PROPERTY(bool ParentShowHint READ ParentShowHint WRITE SetParentShowHint)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)

public:
    enum TqStickType { stNone, stleft, stTop, stRight, stBottom, stBoth };
    Q_ENUM(TqStickType)

    explicit TqMovePanel(QWidget *parent = nullptr);

    TqStickType StickWhere() const { return FStickWhere; }
    void SetStickWhere(TqStickType where);
    bool StickOldStyle() const { return FOldStyle; }
    void SetStickOldStyle(bool oldStyle);
    // Kept for forms that store it; a panel's children are never locked.
    bool Locked() const { return FLocked; }
    void SetLocked(bool locked) { FLocked = locked; }

    bool Dragging() const { return FDragging; }

signals:
    // The proposed left, top, width and height of a move, to change at will.
    void OnBeforeUpdate(QObject *Sender, int &X, int &Y, int &W, int &H);

protected:
    // Puts the panel at (or aligns it to) its edge, in front of its siblings.
    virtual void DoStick();
    // Applies the current bounds through OnBeforeUpdate and keeps the panel
    // inside a parent that is not a form.
    virtual void DoUpdate();
    void Loaded() override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QRect dragRect() const;

    TqStickType FStickWhere = stNone;
    bool FOldStyle = true;
    bool FLocked = false;
    bool FDragging = false;
    QPoint FStart, FNow;
    QPointer<QRubberBand> FBand;
};
