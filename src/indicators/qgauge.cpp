#include "qgauge.h"

#include "host/tpanel.h"

#include "host/tformat.h"

#include <algorithm>

TGaugeLayout GaugeLayout(int width, int height, int outerWidth, int innerWidth, int frameWidth, int margin,
                         int value, int min, int max)
{
    const int d = outerWidth + innerWidth + frameWidth + margin;
    TGaugeLayout l;
    l.bar = Rect(d, d, width - d, height - d);
    l.fillEnd = l.bar.Left + int((qint64(value) - min) * (l.bar.Right - l.bar.Left) / (qint64(max) - min));
    return l;
}

TGaugeBlocks GaugeBlocks(const TRect &bar, int fillEnd, int count, int spacing)
{
    TGaugeBlocks out;
    const int span = bar.Right - bar.Left;
    const int b = std::max((span - spacing * (count - 1)) / count, 1);
    const int pitch = span / count;
    int x = bar.Left;
    while (x < fillEnd) {
        if (x + b > bar.Right)
            break;
        out.lit.push_back(Rect(x, bar.Top, x + b, bar.Bottom));
        if (x + pitch <= bar.Right) {
            out.gaps.push_back(Rect(x + b, bar.Top, x + pitch, bar.Bottom));
            x += spacing;
        }
        x += b;
    }
    if (x < bar.Right)
        out.gaps.push_back(Rect(x, bar.Top, bar.Right, bar.Bottom));
    return out;
}

TqGauge::TqGauge(QWidget *parent) : TGraphicControl(parent)
{
    SetBounds(x(), y(), 75, 30);
    SetShowHint(false);
}

void TqGauge::Loaded()
{
    TGraphicControl::Loaded();
    DoTheBitmap();
}

void TqGauge::DoTheBitmap()
{
    FPrepared.SetSize(0, 0);
    if (FGlyph.width() < 1)
        return;
    const int W = width(), H = height(), gw = FGlyph.width(), gh = FGlyph.height();
    FPrepared.SetSize(W, H);
    for (int j = 0; j <= H / gh; ++j)
        for (int i = 0; i <= W / gw; ++i)
            FPrepared.Canvas().CopyRect(Bounds(i * gw, j * gh, gw, gh), FGlyph, Rect(0, 0, gw, gh));
}

void TqGauge::SetGlyph(const QPixmap &glyph)
{
    FGlyphPixmap = glyph;
    FGlyph = glyph.isNull() ? QImage() : glyph.toImage().convertToFormat(QImage::Format_RGB32);
    DoTheBitmap();
    Invalidate();
}

int TqGauge::Percent() const
{
    return quint8((qint64(FValue) - FMin) * 100 / (qint64(FMax) - FMin));
}

void TqGauge::SetPercent(int percent)
{
    const int p = std::clamp(percent, 0, 100);
    SetValue(int(FMin + (double(FMax) - FMin) * (p / 100.0)));
}

void TqGauge::SetCaptionStyle(gaCaptionStyle style)
{
    FCaptionStyle = style;
    Repaint();
}

void TqGauge::SetBarColor(TColor color)
{
    FBarColor = color;
    Repaint();
}

void TqGauge::SetCaption(const QString &caption)
{
    FCaption = caption;
    Repaint();
}

void TqGauge::SetBevelInner(TPanelBevel bevel)
{
    FBevelInner = bevel;
    Repaint();
}

void TqGauge::SetBevelOuter(TPanelBevel bevel)
{
    FBevelOuter = bevel;
    Repaint();
}

void TqGauge::SetBevelWidth(int width)
{
    FBevelWidth = std::max(width, 1);
    Repaint();
}

void TqGauge::SetMargin(int margin)
{
    FMargin = quint8(std::clamp(margin, 0, 255));
    Repaint();
}

void TqGauge::SetSpaceBetweenLed(int space)
{
    FSpace = quint8(std::clamp(space, 0, 255));
    Repaint();
}

void TqGauge::SetNumberOfLed(int count)
{
    FLeds = std::max(count, 0);
    Repaint();
}

void TqGauge::SetFrameWidth(int width)
{
    FFrameWidth = quint8(std::clamp(width, 0, 255));
    Repaint();
}

// Value is not clamped into the new range here: that waits for the next
// SetValue.
void TqGauge::SetMin(int min)
{
    FMin = min;
    SetMax(FMax);
}

void TqGauge::SetMax(int max)
{
    FMax = max <= FMin ? FMin + 1 : max;
    Repaint();
}

void TqGauge::SetValue(int value)
{
    if (value == FValue)
        return;
    // In the designer only a new percentage repaints, whatever
    // DrawOnlyWhenPCTChange says.
    const bool byPercent = FPctOnly || IsDesigning();
    const int before = byPercent ? Percent() : 0;
    FValue = std::clamp(value, FMin, std::max(FMin, FMax));
    if (FValue == FMin)
        CallMinimum();
    else if (FValue == FMax)
        CallMaximum();
    if (!byPercent || Percent() != before)
        Repaint();
}

void TqGauge::CallMinimum() { emit OnMinimum(this); }
void TqGauge::CallMaximum() { emit OnMaximum(this); }

QString TqGauge::CaptionText() const
{
    if (FCaption.isEmpty() || FLeds != 0)
        return QString();
    const long long pct = Percent(), value = FValue;
    switch (FCaptionStyle) {
    case gaPctBar: return Format(FCaption, {pct});
    case gaTotalBar: return Format(FCaption, {value});
    case gaTotPct: return Format(FCaption, {value, pct});
    case gaPctTot: return Format(FCaption, {pct, value});
    }
    return QString();
}

TGaugeLayout TqGauge::layout() const
{
    const int outer = FBevelOuter != bvNone ? FBevelWidth : 0;
    const int inner = FBevelInner != bvNone ? FBevelWidth : 0;
    return GaugeLayout(width(), height(), outer, inner, FFrameWidth, FMargin, FValue, FMin, FMax);
}

void TqGauge::Paint(TCanvas &canvas)
{
    const int W = width(), H = height();
    if (FGlyph.width() > 0 && (FPrepared.Width() != W || FPrepared.Height() != H))
        DoTheBitmap();
    TRect r = Rect(0, 0, W, H);
    PaintPanelBevels(canvas, r, FBevelOuter, FBevelInner, FBevelWidth, FFrameWidth, Color());
    const TGaugeLayout l = layout();
    // The margin, a ring of background at a time.
    const int d = l.bar.Left - FMargin;
    r = Rect(d, d, W - d, H - d);
    canvas.Brush.SetStyle(bsSolid);
    canvas.Brush.SetColor(Color());
    for (int i = 0; i < FMargin; ++i) {
        canvas.FrameRect(r);
        InflateRect(r, -1, -1);
    }
    if (FLeds != 0)
        paintBlocks(canvas, l);
    else
        paintBar(canvas, l);
    emit OnPaint(this);
}

void TqGauge::paintBlocks(TCanvas &canvas, const TGaugeLayout &l)
{
    const TGaugeBlocks blocks = GaugeBlocks(l.bar, l.fillEnd, FLeds, FSpace);
    canvas.Brush.SetColor(FBarColor);
    for (const TRect &b : blocks.lit) {
        if (FGlyph.isNull()) {
            canvas.FillRect(b);
        } else {
            TRect src = b;
            OffsetRect(src, -l.bar.Left, -l.bar.Top);
            canvas.CopyRect(b, FPrepared.Image(), src);
        }
    }
    canvas.Brush.SetColor(Color());
    for (const TRect &gap : blocks.gaps)
        canvas.FillRect(gap);
}

void TqGauge::paintBar(TCanvas &canvas, const TGaugeLayout &l)
{
    const TRect &bar = l.bar;
    canvas.Brush.SetColor(Color());
    canvas.FillRect(bar);
    // A value below Min (left there by SetMin) shows an empty bar.
    const TRect filled = Rect(bar.Left, bar.Top, l.fillEnd, bar.Bottom);
    if (l.fillEnd > bar.Left) {
        if (FGlyph.isNull()) {
            canvas.Brush.SetColor(FBarColor);
            canvas.FillRect(filled);
        } else {
            canvas.CopyRect(filled, FPrepared.Image(), Rect(0, 0, filled.Width(), filled.Height()));
        }
    }
    const QString text = CaptionText();
    if (text.isEmpty())
        return;
    canvas.Font = CanvasFont();
    const int tw = canvas.TextWidth(text), th = canvas.TextHeight(text);
    int x = bar.Left, y = bar.Top;
    if (tw < bar.Width())
        x += (bar.Width() - tw) / 2;
    if (th < bar.Height())
        y += (bar.Height() - th) / 2;
    if (FGlyph.isNull()) {
        // The two halves swap colours where the bar ends.
        const TRect empty = Rect(std::max(l.fillEnd, bar.Left), bar.Top, bar.Right, bar.Bottom);
        if (!filled.IsEmpty()) {
            canvas.Font.SetColor(Color());
            canvas.Brush.SetColor(FBarColor);
            canvas.TextRect(filled, x, y, text);
        }
        if (!empty.IsEmpty()) {
            canvas.Font.SetColor(FBarColor);
            canvas.Brush.SetColor(Color());
            canvas.TextRect(empty, x, y, text);
        }
    } else {
        canvas.Font.SetColor(FBarColor);
        canvas.Brush.SetStyle(bsClear);
        canvas.TextOut(x, y, text);
        canvas.Brush.SetStyle(bsSolid);
    }
}
