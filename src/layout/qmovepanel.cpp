#include "qmovepanel.h"

#include <QMouseEvent>
#include <QRubberBand>

TqMovePanel::TqMovePanel(QWidget *parent) : TCustomPanel(parent)
{
    raise();
}

void TqMovePanel::SetStickWhere(TqStickType where)
{
    FStickWhere = where;
    DoStick();
}

void TqMovePanel::SetStickOldStyle(bool oldStyle)
{
    if (oldStyle == FOldStyle)
        return;
    FOldStyle = oldStyle;
    DoStick();
}

void TqMovePanel::Loaded()
{
    TCustomPanel::Loaded();
    DoStick();
}

void TqMovePanel::DoStick()
{
    raise();
    QWidget *parent = parentWidget();
    if (FOldStyle) {
        SetAlign(alNone);
        if (!parent)
            return;
        switch (FStickWhere) {
        case stleft: SetLeft(0); break;
        case stTop: SetTop(0); break;
        case stRight: SetLeft(parent->contentsRect().width() - Width()); break;
        case stBottom: SetTop(parent->contentsRect().height() - Height()); break;
        case stBoth:
            SetTop(0);
            SetLeft(0);
            break;
        case stNone: break;
        }
        return;
    }
    switch (FStickWhere) {
    case stNone: SetAlign(alNone); break;
    case stleft: SetAlign(alLeft); break;
    case stTop: SetAlign(alTop); break;
    case stRight: SetAlign(alRight); break;
    case stBottom: SetAlign(alBottom); break;
    case stBoth:
        SetAlign(alTop);
        SetLeft(0);
        break;
    }
}

void TqMovePanel::DoUpdate()
{
    int X = Left(), Y = Top(), W = Width(), H = Height();
    const bool visible = Visible();
    SetVisible(false);
    emit OnBeforeUpdate(this, X, Y, W, H);
    SetBounds(X, Y, W, H);
    if (Top() < 0)
        SetTop(0);
    if (Left() < 0)
        SetLeft(0);
    // Held inside a parent panel; a form lets it go past its right and
    // bottom edges.
    if (QWidget *parent = parentWidget(); parent && !parent->isWindow()) {
        if (parent->width() < Left() + Width())
            SetLeft(parent->width() - Width() - 1);
        if (parent->height() < Top() + Height())
            SetTop(parent->height() - Height() - 1);
    }
    SetVisible(visible);
}

QRect TqMovePanel::dragRect() const
{
    return QRect(Left() + FNow.x() - FStart.x(), Top() + FNow.y() - FStart.y(), width(), height());
}

void TqMovePanel::mousePressEvent(QMouseEvent *event)
{
    TCustomPanel::mousePressEvent(event);
    if (event->button() != Qt::LeftButton || !parentWidget())
        return;
    FDragging = true;
    FStart = FNow = event->position().toPoint();
    if (!FBand)
        FBand = new QRubberBand(QRubberBand::Rectangle, parentWidget());
    FBand->setGeometry(dragRect());
    FBand->show();
    FBand->raise();
}

void TqMovePanel::mouseMoveEvent(QMouseEvent *event)
{
    TCustomPanel::mouseMoveEvent(event);
    if (!FDragging)
        return;
    FNow = event->position().toPoint();
    if (FBand)
        FBand->setGeometry(dragRect());
}

void TqMovePanel::mouseReleaseEvent(QMouseEvent *event)
{
    TCustomPanel::mouseReleaseEvent(event);
    if (!FDragging || event->button() != Qt::LeftButton)
        return;
    FDragging = false;
    if (FBand)
        FBand->hide();
    const QPoint p = event->position().toPoint();
    if (!DragUnmoved(FStart, p)) {
        const bool visible = Visible();
        SetVisible(false);
        SetBounds(Left() + p.x() - FStart.x(), Top() + p.y() - FStart.y(), Width(), Height());
        SetVisible(visible);
    }
    DoUpdate();
    DoStick();
}
