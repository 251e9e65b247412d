#include "qdivider.h"

TqDivider::TqDivider(QWidget *parent) : TGraphicControl(parent)
{
    SetBounds(Left(), Top(), 150, 16);
}

void TqDivider::SetKind(TqDividerKind kind)
{
    if (kind == FKind)
        return;
    FKind = kind;
    Invalidate();
}

void TqDivider::SetCaption(const QString &caption)
{
    if (caption == FCaption)
        return;
    FCaption = caption;
    Invalidate();
}

void TqDivider::SetAlignment(Controls::TAlignment alignment)
{
    if (alignment == FAlignment)
        return;
    FAlignment = alignment;
    Invalidate();
}

int TqDivider::LinePosition() const
{
    return (FKind == dkHorizontal ? Height() : Width()) / 2 - 1;
}

void TqDivider::Paint(TCanvas &canvas)
{
    const int w = Width(), h = Height(), at = LinePosition();
    canvas.Pen.SetWidth(1);
    canvas.Pen.SetStyle(psSolid);
    canvas.Pen.SetColor(clBtnShadow);
    if (FKind == dkVertical) {
        canvas.MoveTo(at, 0);
        canvas.LineTo(at, h);
        canvas.Pen.SetColor(clBtnHighlight);
        canvas.MoveTo(at + 1, 0);
        canvas.LineTo(at + 1, h);
        return;
    }
    canvas.MoveTo(0, at);
    canvas.LineTo(w, at);
    canvas.Pen.SetColor(clBtnHighlight);
    canvas.MoveTo(0, at + 1);
    canvas.LineTo(w, at + 1);
    if (FCaption.isEmpty())
        return;
    // The caption on the line, on the control's colour, 8 pixels from the end.
    canvas.Font = CanvasFont();
    const int tw = canvas.TextWidth(FCaption) + 8, th = canvas.TextHeight(FCaption);
    const int left = FAlignment == taLeftJustify ? 8 : FAlignment == taRightJustify ? w - 8 - tw : (w - tw) / 2;
    canvas.Brush.SetStyle(bsSolid);
    canvas.Brush.SetColor(Color());
    canvas.FillRect(Rect(left, at - th / 2, left + tw, at - th / 2 + th));
    canvas.Brush.SetStyle(bsClear);
    canvas.TextOut(left + 4, at - th / 2, FCaption);
}
