#include "qnwcolorbtn.h"

#include <algorithm>
#include <cmath>

TqNWColorBtn::TqNWColorBtn(QWidget *parent) : TColorButton<TGraphicControl>(parent) {}

TColor TqNWColorBtn::Grey(TColor color)
{
    const TColor c = ColorToRGB(color);
    const int g = int(std::nearbyint((GetRValue(c) + GetGValue(c) + GetBValue(c)) / 3.0));
    return RGB(g, g, g) | 0x02000000u;
}

void TqNWColorBtn::SetTransparent(bool transparent)
{
    if (FTransparent == transparent)
        return;
    FTransparent = transparent;
    SetControlStyle(transparent ? ControlStyle() & ~csOpaque : ControlStyle() | csOpaque);
    SetMouseInFlag(false);
    SetMouseIn();
    Invalidate();
}

void TqNWColorBtn::SetGlass(int glass)
{
    FGlass = quint8(std::clamp(glass, 0, 255));
    Invalidate();
}

void TqNWColorBtn::SetBounds(int left, int top, int width, int height)
{
    TColorButton<TGraphicControl>::SetBounds(left, top, width, height);
    Invalidate();
}

// Transparent, the canvas already holds what lies beneath; the glass is
// ORed over it channel by channel.
void TqNWColorBtn::PaintFace(TCanvas &canvas)
{
    canvas.Brush.SetColor(Color());
    canvas.Pen.SetWidth(1);
    if (!FTransparent) {
        canvas.FillRect(ClientRect());
        return;
    }
    if (FGlass == 0)
        return;
    TBitmap glass(width(), height());
    glass.Canvas().Brush.SetColor(Grey(RGB(FGlass, FGlass, FGlass)));
    glass.Canvas().FillRect(ClientRect());
    canvas.CopyMode = cmSrcPaint;
    canvas.CopyRect(ClientRect(), glass.Canvas(), ClientRect());
    canvas.CopyMode = cmSrcCopy;
}

void TqNWColorBtn::Click()
{
    SetMouseIn();
    ResetPress();
    if (FTransparent)
        Invalidate();   // the parent draws what lies beneath first
    else
        Repaint();
    TColorButton<TGraphicControl>::Click();
}

void TqNWColorBtn::AfterRelease()
{
    if (FTransparent)
        Repaint();
    else
        Invalidate();
}
