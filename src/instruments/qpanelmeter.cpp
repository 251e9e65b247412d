#include "qpanelmeter.h"

#include "host/tscale.h"
#include "host/tsteel.h"

#include <QEvent>
#include <algorithm>
#include <cmath>

namespace {

constexpr double kFullTurn = 6.283185307179586;

// Round to nearest, ties to even.
int roundEven(double v) { return int(std::nearbyint(v)); }

} // namespace

int MeterPercent(int value, int min, int max) { return ScalePercent(value, min, max); }

TMeterGeometry MeterGeometry(int width, int height)
{
    TMeterGeometry g;
    g.a = width / 11;
    g.b = height / 11;
    g.cx = width / 2;
    g.hb = height - height / 4;
    g.base = height / 2 + 2 * g.b;
    g.rx = width / 2;
    g.ry = height / 2;
    g.face = Rect(g.a + 1, g.b + 1, width - g.a, g.hb - g.b);
    return g;
}

TPoint MeterScalePoint(const TMeterGeometry &g, int percent)
{
    int d = percent + 310;
    if (d > 359)
        d -= 360;
    const double angle = d / 360.0 * kFullTurn;
    return Point(g.cx + roundEven(std::sin(angle) * g.rx), g.base - roundEven(std::cos(angle) * g.ry));
}

int EdgeOffset(int percent, int length) { return roundEven(percent * ((length - 2) / 100.0)); }

TqPanelMeter::TqPanelMeter(QWidget *parent) : TGraphicControl(parent)
{
    SetBounds(x(), y(), 105, 97);
    SetControlStyle(ControlStyle() | csOpaque | csSetCaption);
}

void TqPanelMeter::SetCaption(const QString &caption)
{
    if (FCaption == caption)
        return;
    FCaption = caption;
    dialChanged();
}

void TqPanelMeter::SetValue(int value)
{
    FValue = std::clamp(value, FMin, std::max(FMin, FMax));
    if (FUseAlert) {
        if (FValue < FAlert && FAlertOn) {
            FAlertOn = false;
            emit OnNotAlert(this);
        } else if (FValue >= FAlert && !FAlertOn) {
            FAlertOn = true;
            emit OnAlert(this);
        }
    }
    emit OnChange(this);
    Repaint();
}

void TqPanelMeter::SetScaledMin(int min)
{
    FMin = std::min(min, FMax);
    FDialValid = false;   // before the value repaints
    SetValue(FValue);
}

void TqPanelMeter::SetScaledMax(int max)
{
    FMax = std::max(max, FMin);
    FDialValid = false;   // before the value repaints
    SetValue(FValue);
}

void TqPanelMeter::SetAlert(int alert)
{
    FAlert = std::clamp(alert, FMin, std::max(FMin, FMax));
    dialChanged();
}

void TqPanelMeter::SetTicks(bool ticks) { FTicks = ticks; dialChanged(); }
void TqPanelMeter::SetStep(int step) { FStep = step; dialChanged(); }
void TqPanelMeter::SetHand(TColor color) { FHand = color; dialChanged(); }
void TqPanelMeter::SetPanelType(qPanelType type) { FPanelType = type; dialChanged(); }
void TqPanelMeter::SetHouseColor(TColor color) { FHouseColor = color; dialChanged(); }
void TqPanelMeter::SetHouseStyle(TBrushStyle style) { FHouseStyle = style; dialChanged(); }
void TqPanelMeter::SetFaceColor(TColor color) { FFaceColor = color; dialChanged(); }
void TqPanelMeter::SetNormalColor(TColor color) { FNormalColor = color; dialChanged(); }
void TqPanelMeter::SetAlertColor(TColor color) { FAlertColor = color; dialChanged(); }
void TqPanelMeter::SetUseAlert(bool use) { FUseAlert = use; dialChanged(); }
void TqPanelMeter::SetShowAll(bool show) { FShowAll = show; dialChanged(); }

void TqPanelMeter::SetScaleWidth(int width)
{
    FScaleWidth = quint8(std::clamp(width, 0, 5));
    dialChanged();
}

void TqPanelMeter::SetShadowColor(TColor color)
{
    FShadowColor = color;
    FSteelLook = false;
    dialChanged();
}

void TqPanelMeter::SetHighColor(TColor color)
{
    FHighColor = color;
    FSteelLook = false;
    dialChanged();
}

void TqPanelMeter::SetSteelLook(bool steel)
{
    FSteelLook = steel;
    if (steel)
        Steel();
    dialChanged();
}

void TqPanelMeter::Steel()
{
    FShadowColor = clGray;
    FHighColor = clWhite;
}

template <class Mark>
void TqPanelMeter::forEachMark(bool ticksOnly, Mark mark) const
{
    if (ticksOnly && FStep == 0)
        return;
    ForEachScalePercent(FMin, FMax, ticksOnly ? FStep : 0, [&](int v, int) { mark(v, scaleColor(v)); });
}

void TqPanelMeter::Paint(TCanvas &canvas)
{
    if (!FDialValid || FDial.size() != size()) {
        FDial = QImage(size(), QImage::Format_RGB32);
        TCanvas dial(&FDial);
        paintDial(dial);
        FDialValid = true;
    }
    canvas.Draw(0, 0, FDial);
    canvas.Pen.SetWidth(1);
    const int W1 = width() - 1, H1 = height() - 1;
    switch (FPanelType) {
    case qpStandard: PaintSt(canvas, W1, H1, mpNeedle); break;
    case qpEdgeHorz: PaintEH(canvas, W1, H1, mpNeedle); break;
    case qpEdgeVert: PaintEV(canvas, W1, H1, mpNeedle); break;
    }
    emit OnPaint(this);
}

void TqPanelMeter::changeEvent(QEvent *event)
{
    TGraphicControl::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::PaletteChange:
    case QEvent::ApplicationPaletteChange:
    case QEvent::EnabledChange:
        FDialValid = false;
        break;
    default:
        break;
    }
}

void TqPanelMeter::paintDial(TCanvas &canvas)
{
    const int W = width(), H = height();
    if (FSteelLook)
        Steel();
    canvas.Pen.SetColor(clBlack);
    if (FHouseStyle != bsSolid && !FSteelLook) {
        // A hatch leaves its gaps alone: they show a fresh bitmap's white.
        canvas.Brush.SetStyle(bsSolid);
        canvas.Brush.SetColor(clWhite);
        canvas.FillRect(Rect(0, 0, W, H));
    }
    canvas.Brush.SetColor(FHouseColor);
    canvas.Brush.SetStyle(FHouseStyle);
    if (FSteelLook)
        canvas.Brush.SetBitmap(TSteel());
    canvas.FillRect(Rect(0, 0, W, H));
    canvas.Brush.SetBitmap(QImage());
    canvas.Brush.SetStyle(bsSolid);
    canvas.Pen.SetWidth(1);
    canvas.Font = CanvasFont();
    switch (FPanelType) {
    case qpStandard: PaintSt(canvas, W - 1, H - 1, mpDial); break;
    case qpEdgeHorz: PaintEH(canvas, W - 1, H - 1, mpDial); break;
    case qpEdgeVert: PaintEV(canvas, W - 1, H - 1, mpDial); break;
    }
}

void TqPanelMeter::caption(TCanvas &canvas, TRect face, unsigned flags)
{
    canvas.Brush.SetStyle(bsClear);
    InflateRect(face, -2, -2);
    canvas.DrawText(FCaption.left(255), face, flags);
    canvas.Brush.SetStyle(bsSolid);
}

void TqPanelMeter::PaintSt(TCanvas &c, int W1, int H1, TMeterPart part)
{
    const int W = W1 + 1, H = H1 + 1;
    const TMeterGeometry g = MeterGeometry(W, H);
    const int a = g.a, b = g.b, cx = g.cx, hb = g.hb;
    const int sw = FScaleWidth;
    if (part == mpNeedle) {
        const TPoint tip = MeterScalePoint(g, percent(FValue));
        c.Pen.SetColor(FHand);
        c.MoveTo(tip.X, tip.Y);
        c.LineTo(cx, hb - b);
        return;
    }
    c.Pen.SetColor(FShadowColor);
    c.Polyline({{a - 1, hb - b}, {a - 1, b - 1}, {W - a, b - 1}});
    c.Polyline({{0, H1}, {0, 0}, {W1, 0}});
    c.Polyline({{W1 - 1, 1}, {W1 - 1, H1 - 1}, {0, H1 - 1}});
    c.Polyline({{a - 1, hb - b}, {a - 1, b - 1}, {W - a - 1, b - 1}});
    c.Pen.SetColor(FHighColor);
    c.Polyline({{W - a + 1, b - 1}, {W - a + 1, hb - b + 1}, {a - 1, hb - b + 1}});
    c.Polyline({{1, H1}, {1, 1}, {W1, 1}});
    c.Pen.SetColor(clBlack);
    c.Brush.SetColor(FHand);
    if (FShowAll)   // the zero-adjust screw below the face
        c.Ellipse(cx - a + 2, hb + 2, cx + a - 2, hb + 2 * b - 2);
    c.Polyline({{W1, 0}, {W1, H1}, {0, H1}});
    c.Polyline({{a, hb - b - 1}, {a, b}, {W - a, b}});
    c.Brush.SetColor(FFaceColor);
    c.FillRect(g.face);
    caption(c, g.face, DT_CENTER | DT_BOTTOM | DT_SINGLELINE);
    if (FShowAll) {
        c.Pen.SetColor(FHighColor);
        c.MoveTo(cx - a + 5, hb + b);
        c.LineTo(cx + a - 5, hb + b);
        c.Pen.SetColor(FShadowColor);
        c.MoveTo(cx - a + 5, hb + b - 1);
        c.LineTo(cx + a - 5, hb + b - 1);
    }
    // The band: one vertical stroke per value, ticks two pixels above it.
    const auto stroke = [&](int i, TColor colour) {
        const TPoint p = MeterScalePoint(g, percent(i));
        c.Pen.SetColor(colour);
        c.MoveTo(p.X, p.Y + 2);
        c.LineTo(p.X, p.Y - sw);
    };
    const auto tick = [&](int i, TColor colour) {
        const TPoint p = MeterScalePoint(g, percent(i));
        c.SetPixels(p.X, p.Y - (sw + 1), colour);
        c.SetPixels(p.X, p.Y - (sw + 2), colour);
    };
    // Each percentage's tick, then its stroke: they never share a pixel.
    if (FTicks)
        forEachMark(true, tick);
    forEachMark(false, stroke);
}

void TqPanelMeter::edgeBevel(TCanvas &c, int a, int b, int W1, int H1)
{
    const int W = W1 + 1, H = H1 + 1;
    c.Pen.SetColor(FShadowColor);
    c.Polyline({{0, H1}, {0, 0}, {W1, 0}});
    c.Polyline({{W1 - 1, 1}, {W1 - 1, H1 - 1}, {0, H1 - 1}});
    c.Polyline({{a - 1, H1 - b + 1}, {a - 1, b - 1}, {W - a + 1, b - 1}});
    c.Pen.SetColor(FHighColor);
    c.Polyline({{1, H1}, {1, 1}, {W1, 1}});
    c.Polyline({{W - a + 1, b}, {W - a + 1, H1 - b + 2}, {a - 1, H1 - b + 2}});
    c.Pen.SetColor(clBlack);
    c.Polyline({{W1, 0}, {W1, H1}, {0, H1}});
    c.Polyline({{a, H1 - b}, {a, b}, {W - a, b}});
    c.Brush.SetColor(FFaceColor);
    c.FillRect(Rect(a + 1, b + 1, W - a, H - b));
}

void TqPanelMeter::PaintEH(TCanvas &c, int W1, int H1, TMeterPart part)
{
    const int W = W1 + 1, H = H1 + 1;
    const int a = W / 15, b = H / 5, L = W - 2 * a, sw = FScaleWidth;
    const auto P = [&](int v) { return EdgeOffset(percent(v), L); };
    if (part == mpNeedle) {
        c.Pen.SetColor(FHand);
        c.MoveTo(a + 1 + P(FValue), b + 1);
        c.LineTo(a + 1 + P(FValue), H1 - b + 1);
        return;
    }
    edgeBevel(c, a, b, W1, H1);
    const int m = (H - sw + 1) / 2;
    c.Brush.SetColor(FNormalColor);
    c.FillRect(Rect(a + 1, m, W - a, m + sw + 1));
    if (FUseAlert) {   // from the threshold to the right end
        c.Brush.SetColor(FAlertColor);
        c.FillRect(Rect(a + 1 + P(FAlert), m, W - a, m + sw + 1));
    }
    if (FTicks)
        forEachMark(true, [&](int i, TColor colour) {
            c.Pen.SetColor(colour);
            c.MoveTo(a + 1 + P(i), 2 * b + 1);
            c.LineTo(a + 1 + P(i), H1 - 2 * b + 1);
        });
    caption(c, Rect(a + 1, b + 1, W - a, H - b), DT_CENTER | DT_BOTTOM | DT_SINGLELINE);
}

void TqPanelMeter::PaintEV(TCanvas &c, int W1, int H1, TMeterPart part)
{
    const int W = W1 + 1, H = H1 + 1;
    const int a = W / 5, b = H / 15, L = H - 2 * b, sw = FScaleWidth;
    const int e = H - b;   // the bottom of the scale; values grow upward
    const auto y = [&](int v) { return e - (EdgeOffset(percent(v), L) + 1); };
    if (part == mpNeedle) {
        c.Pen.SetColor(FHand);
        c.MoveTo(a + 1, y(FValue));
        c.LineTo(W1 - a + 1, y(FValue));
        return;
    }
    edgeBevel(c, a, b, W1, H1);
    const int m = (W - sw + 1) / 2;
    c.Brush.SetColor(FNormalColor);
    c.FillRect(Rect(m, b + 1, m + sw + 1, e));
    if (FUseAlert) {   // from the top of the band down to the threshold
        c.Brush.SetColor(FAlertColor);
        c.FillRect(Rect(m, b + 1, m + sw + 1, y(FAlert)));
    }
    if (FTicks)
        forEachMark(true, [&](int i, TColor colour) {
            c.Pen.SetColor(colour);
            c.MoveTo(2 * a + 1, y(i));
            c.LineTo(W1 - 2 * a + 1, y(i));
        });
    caption(c, Rect(a + 1, b + 1, W - a, H - b), DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}
