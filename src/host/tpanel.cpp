#include "tpanel.h"

void PaintPanelBevels(TCanvas &canvas, TRect &r, TPanelBevel outer, TPanelBevel inner, int bevelWidth,
                      int borderWidth, TColor color)
{
    const auto bevel = [&](TPanelBevel kind) {
        if (kind == bvLowered)
            Frame3D(canvas, r, clBtnShadow, clBtnHighlight, bevelWidth);
        else if (kind != bvNone)   // raised, and a space drawn as raised
            Frame3D(canvas, r, clBtnHighlight, clBtnShadow, bevelWidth);
    };
    bevel(outer);
    Frame3D(canvas, r, color, color, borderWidth);
    bevel(inner);
}

TCustomPanel::TCustomPanel(QWidget *parent) : TCustomControl(parent)
{
    SetColor(clBtnFace);
    setFocusPolicy(Qt::NoFocus);   // a panel takes no focus of its own
    SetControlStyle(ControlStyle() | csOpaque);
    UpdateOpacity();
    SetBounds(Left(), Top(), 185, 41);
}

void TCustomPanel::SetBevelInner(TPanelBevel bevel)
{
    if (bevel == FBevelInner)
        return;
    FBevelInner = bevel;
    Invalidate();
}

void TCustomPanel::SetBevelOuter(TPanelBevel bevel)
{
    if (bevel == FBevelOuter)
        return;
    FBevelOuter = bevel;
    Invalidate();
}

void TCustomPanel::SetBevelWidth(int width)
{
    width = qMax(1, width);
    if (width == FBevelWidth)
        return;
    FBevelWidth = width;
    Invalidate();
}

void TCustomPanel::SetBorderWidth(int width)
{
    width = qMax(0, width);
    if (width == FBorderWidth)
        return;
    FBorderWidth = width;
    Invalidate();
}

void TCustomPanel::SetBorderStyle(TFormBorderStyle style)
{
    if (style == FBorderStyle)
        return;
    FBorderStyle = style;
    Invalidate();
}

void TCustomPanel::SetAlignment(Controls::TAlignment alignment)
{
    if (alignment == FAlignment)
        return;
    FAlignment = alignment;
    Invalidate();
}

void TCustomPanel::SetCaption(const QString &caption)
{
    if (caption == FCaption)
        return;
    FCaption = caption;
    Invalidate();
}

void TCustomPanel::PaintPanel(TCanvas &canvas)
{
    TRect r = Rect(0, 0, Width(), Height());
    if (FBorderStyle != bsNone) {
        canvas.Brush.SetStyle(bsSolid);
        canvas.Brush.SetColor(clWindowFrame);
        canvas.FrameRect(r);
        InflateRect(r, -1, -1);
    }
    PaintPanelBevels(canvas, r, FBevelOuter, FBevelInner, FBevelWidth, FBorderWidth, Color());
    canvas.Brush.SetStyle(bsSolid);
    canvas.Brush.SetColor(Color());
    canvas.FillRect(r);
    PaintCaption(canvas, r);
}

// The caption in the middle of `r`'s height, placed as Alignment says.
void TCustomPanel::PaintCaption(TCanvas &canvas, TRect r)
{
    if (FCaption.isEmpty())
        return;
    canvas.Brush.SetStyle(bsClear);
    canvas.Font = CanvasFont();
    const int h = canvas.TextHeight(QStringLiteral("W"));
    r.Top = (r.Top + r.Bottom - h) / 2;
    r.Bottom = r.Top + h;
    const unsigned align = FAlignment == taLeftJustify ? DT_LEFT : FAlignment == taRightJustify ? DT_RIGHT : DT_CENTER;
    canvas.DrawText(FCaption, r, align | DT_VCENTER | DT_EXPANDTABS);
}
