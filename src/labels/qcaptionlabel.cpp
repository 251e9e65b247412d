#include "qcaptionlabel.h"

#include <QEvent>
#include <QFontMetrics>

TCaptionLabel::TCaptionLabel(QWidget *parent) : TGraphicControl(parent)
{
    SetBounds(Left(), Top(), 65, 17);
}

void TCaptionLabel::SetCaption(const QString &caption)
{
    if (caption == FCaption)
        return;
    FCaption = caption;
    Changed();
}

void TCaptionLabel::SetAlignment(Controls::TAlignment alignment)
{
    if (alignment == FAlignment)
        return;
    FAlignment = alignment;
    Changed();
}

void TCaptionLabel::SetTransparent(bool transparent)
{
    if (transparent == FTransparent)
        return;
    FTransparent = transparent;
    SetControlStyle(transparent ? ControlStyle() & ~csOpaque : ControlStyle() | csOpaque);
    UpdateOpacity();
    Invalidate();
}

void TCaptionLabel::SetAutoSize(bool autoSize)
{
    FAutoSize = autoSize;
    Changed();
}

void TCaptionLabel::Changed()
{
    if (FAutoSize && !FCaption.isEmpty())
        Fit();
    Invalidate();
}

void TCaptionLabel::Fit()
{
    const QFontMetrics metrics(CanvasFont().ToQFont());
    const QMargins d = Decoration();
    SetBounds(Left(), Top(), metrics.horizontalAdvance(FCaption) + d.left() + d.right(),
              metrics.height() + d.top() + d.bottom());
}

// A new font (set, or the parent's followed) refits the caption.
void TCaptionLabel::changeEvent(QEvent *event)
{
    TGraphicControl::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        Changed();
}

QPoint TCaptionLabel::CaptionAt() const
{
    const QFontMetrics metrics(CanvasFont().ToQFont());
    const QMargins d = Decoration();
    const int w = metrics.horizontalAdvance(FCaption), h = metrics.height();
    const int room = width() - d.left() - d.right();
    const int x = FAlignment == taLeftJustify ? 0 : FAlignment == taRightJustify ? room - w : (room - w) / 2;
    return QPoint(d.left() + x, d.top() + (height() - d.top() - d.bottom() - h) / 2);
}

void TCaptionLabel::Paint(TCanvas &canvas)
{
    if (!FTransparent) {
        canvas.Brush.SetStyle(bsSolid);
        canvas.Brush.SetColor(Color());
        canvas.FillRect(Rect(0, 0, width(), height()));
    }
    canvas.Font = CanvasFont();
    canvas.Brush.SetStyle(bsClear);
    PaintCaption(canvas, CaptionAt());
    if (IsDesigning() && FCaption.isEmpty())
        PaintDesignOutline(canvas, width(), height());   // found on the form without a caption
}
