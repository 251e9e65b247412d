#include "q3dlabel.h"

Tq3DLabel::Tq3DLabel(QWidget *parent) : TCaptionLabel(parent) {}

void Tq3DLabel::SetStyle(Tq3DStyle style)
{
    if (style == FStyle)
        return;
    FStyle = style;
    Invalidate();
}

void Tq3DLabel::SetDepth(int depth)
{
    depth = qMax(0, depth);
    if (depth == FDepth)
        return;
    FDepth = depth;
    Changed();
}

void Tq3DLabel::SetHighlightColor(TColor color)
{
    if (color == FHighlight)
        return;
    FHighlight = color;
    Invalidate();
}

void Tq3DLabel::SetShadowColor(TColor color)
{
    if (color == FShadow)
        return;
    FShadow = color;
    Invalidate();
}

void Tq3DLabel::PaintCaption(TCanvas &canvas, QPoint at)
{
    const int d = FStyle == ts3DRaised ? FDepth : -FDepth;
    canvas.Font.SetColor(FHighlight);
    canvas.TextOut(at.x() - d, at.y() - d, Caption());
    canvas.Font.SetColor(FShadow);
    canvas.TextOut(at.x() + d, at.y() + d, Caption());
    canvas.Font.SetColor(FontColor());
    canvas.TextOut(at.x(), at.y(), Caption());
}
