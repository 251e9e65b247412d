#include "qgradbtn.h"

TqGradBtn::TqGradBtn(QWidget *parent) : TqColorBtn(parent) { ColorSet(); }

void TqGradBtn::SetColor(TColor color)
{
    TqColorBtn::SetColor(color);
    ColorSet();
    Invalidate();
}

void TqGradBtn::SetGrad(gradType type)
{
    FFillType = type;
    ColorSet();
    Invalidate();
}

void TqGradBtn::SetEndColor(TColor color)
{
    FEndColor = color;
    ColorSet();
    Invalidate();
}

void TqGradBtn::SetBands(int bands)
{
    FBands = bands;
    Invalidate();
}

// The bands span Width - 1 by Height - 1 (the bevel covers the last row and
// column), shifted a pixel down and right while pressed.
void TqGradBtn::PaintFace(TCanvas &canvas)
{
    if (Color() == FEndColor) {
        TqColorBtn::PaintFace(canvas);
        return;
    }
    const int R = width() - 1, B = height() - 1, off = Pressed() ? 1 : 0;
    TRect ring = ClientRect();
    OffsetRect(ring, off, off);
    InflateRect(ring, -1, -1);
    PaintBlend(canvas, FFillType, FBands, FBlend, off, off, R, B, ring);
    canvas.Brush.SetColor(Color());
}
