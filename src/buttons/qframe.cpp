#include "qframe.h"

TqFrame::TqFrame(QWidget *parent) : TGraphicControl(parent)
{
    SetBounds(Left(), Top(), 50, 50);
}

void TqFrame::SetShape(TqFrameShape shape)
{
    if (shape == FShape)
        return;
    FShape = shape;
    Invalidate();
}

void TqFrame::SetStyle(TqFrameStyle style)
{
    if (style == FStyle)
        return;
    FStyle = style;
    Invalidate();
}

void TqFrame::Paint(TCanvas &canvas)
{
    const int w = Width(), h = Height();
    // Lowered: shadow first (top, left), highlight after; raised the other way.
    const TColor first = FStyle == fsLowered ? clBtnShadow : clBtnHighlight;
    const TColor second = FStyle == fsLowered ? clBtnHighlight : clBtnShadow;
    canvas.Pen.SetWidth(1);
    canvas.Pen.SetStyle(psSolid);
    const auto line = [&](TColor color, int x0, int y0, int x1, int y1) {
        canvas.Pen.SetColor(color);
        canvas.MoveTo(x0, y0);
        canvas.LineTo(x1, y1);
    };
    switch (FShape) {
    case fsBox: {
        TRect r = Rect(0, 0, w, h);
        Frame3D(canvas, r, first, second, 1);
        break;
    }
    case fsFrame:
        // Two rectangles a pixel apart: an etched (or embossed) groove.
        canvas.Brush.SetStyle(bsClear);
        canvas.Pen.SetColor(first);
        canvas.Rectangle(0, 0, w - 1, h - 1);
        canvas.Pen.SetColor(second);
        canvas.Rectangle(1, 1, w, h);
        break;
    case fsTopLine:
        line(first, 0, 0, w, 0);
        line(second, 0, 1, w, 1);
        break;
    case fsBottomLine:
        line(first, 0, h - 2, w, h - 2);
        line(second, 0, h - 1, w, h - 1);
        break;
    case fsLeftLine:
        line(first, 0, 0, 0, h);
        line(second, 1, 0, 1, h);
        break;
    case fsRightLine:
        line(first, w - 2, 0, w - 2, h);
        line(second, w - 1, 0, w - 1, h);
        break;
    }
}
