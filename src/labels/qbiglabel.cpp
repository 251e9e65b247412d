#include "qbiglabel.h"

TqBigLabel::TqBigLabel(QWidget *parent) : TCaptionLabel(parent)
{
    QFont big = Font();
    big.setPointSize(20);
    big.setBold(true);
    SetFont(big);
    SetFontColor(clYellow);
}

void TqBigLabel::SetOutlineColor(TColor color)
{
    if (color == FOutlineColor)
        return;
    FOutlineColor = color;
    Invalidate();
}

void TqBigLabel::SetOutlineWidth(int width)
{
    width = qBound(0, width, 10);
    if (width == FOutlineWidth)
        return;
    FOutlineWidth = width;
    Changed();
}

void TqBigLabel::SetShadowColor(TColor color)
{
    if (color == FShadowColor)
        return;
    FShadowColor = color;
    Invalidate();
}

void TqBigLabel::SetShadowDepth(int depth)
{
    depth = qBound(0, depth, 20);
    if (depth == FShadowDepth)
        return;
    FShadowDepth = depth;
    Changed();
}

QMargins TqBigLabel::Decoration() const
{
    const int o = FOutlineWidth;
    return QMargins(o, o, o + FShadowDepth, o + FShadowDepth);
}

// The letters in `face` with a ring of `outline` round them: the caption
// stamped at every offset within the outline's width, then on top.
void TqBigLabel::outlined(TCanvas &canvas, QPoint at, TColor outline, TColor face)
{
    const int o = FOutlineWidth;
    if (o > 0) {
        canvas.Font.SetColor(outline);
        for (int dy = -o; dy <= o; ++dy)
            for (int dx = -o; dx <= o; ++dx)
                if (dx || dy)
                    canvas.TextOut(at.x() + dx, at.y() + dy, Caption());
    }
    canvas.Font.SetColor(face);
    canvas.TextOut(at.x(), at.y(), Caption());
}

void TqBigLabel::PaintCaption(TCanvas &canvas, QPoint at)
{
    if (FShadowDepth > 0)
        outlined(canvas, at + QPoint(FShadowDepth, FShadowDepth), FShadowColor, FShadowColor);
    outlined(canvas, at, FOutlineColor, FontColor());
}
