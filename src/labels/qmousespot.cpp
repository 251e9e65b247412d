#include "qmousespot.h"

TqMouseSpot::TqMouseSpot(QWidget *parent) : TCaptionLabel(parent)
{
    SetFontColor(clBlue);
    SetCursor(-21);   // crHandPoint
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
}
