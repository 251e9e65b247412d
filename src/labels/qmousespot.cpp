#include "qmousespot.h"

#include <QKeyEvent>

TqMouseSpot::TqMouseSpot(QWidget *parent) : TCaptionLabel(parent)
{
    SetFontColor(clBlue);
    SetCursor(-21);   // crHandPoint
    setFocusPolicy(Qt::TabFocus);
}

bool TqMouseSpot::AccessiblePress()
{
    if (!isEnabled())
        return false;
    Click();
    return true;
}

void TqMouseSpot::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier) {
            Click();
            return;
        }
        break;
    default:
        break;
    }
    TCaptionLabel::keyPressEvent(event);
}

void TqMouseSpot::focusInEvent(QFocusEvent *event)
{
    TCaptionLabel::focusInEvent(event);
    Invalidate();
}

void TqMouseSpot::focusOutEvent(QFocusEvent *event)
{
    TCaptionLabel::focusOutEvent(event);
    Invalidate();
}

void TqMouseSpot::SetHotColor(TColor color)
{
    if (color == FHotColor)
        return;
    FHotColor = color;
    if (FHot)
        Invalidate();
}

void TqMouseSpot::SetHotUnderline(bool underline)
{
    if (underline == FUnderline)
        return;
    FUnderline = underline;
    if (FHot)
        Invalidate();
}

void TqMouseSpot::enterEvent(QEnterEvent *event)
{
    FHot = true;
    Invalidate();
    TCaptionLabel::enterEvent(event);
}

void TqMouseSpot::leaveEvent(QEvent *event)
{
    FHot = false;
    Invalidate();
    TCaptionLabel::leaveEvent(event);
}

void TqMouseSpot::PaintCaption(TCanvas &canvas, QPoint at)
{
    canvas.Font.SetColor(FHot ? FHotColor : FontColor());
    if (FHot && FUnderline)
        canvas.Font.SetStyle(canvas.Font.Style() | fsUnderline);
    canvas.TextOut(at.x(), at.y(), Caption());
    if (hasFocus())
        canvas.DrawFocusRect(ClientRect());
}
