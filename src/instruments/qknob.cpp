#include "qknob.h"

#include "host/tscale.h"
#include "host/tsteel.h"

#include <QEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr long double kPi = 3.141592653589793238462643383279502884L;

// Round to nearest, ties to even, as the floating-point unit does.
int roundEven(long double v) { return int(std::nearbyintl(v)); }

} // namespace

int PointAngle(int cx, int cy, int x, int y)
{
    const long double t = std::atan((long double)(cy - y) / ((long double)(x - cx) + 1e-7L));
    int phi = roundEven(t / (2 * kPi) * 360);
    if (cx < x && cy < y)
        phi += 360;
    else if (x < cx)
        phi += 180;
    return phi;
}

int KnobWhere(int width, int x, int y, int min, int max)
{
    const int c = width / 2;
    int w = 360 - PointAngle(c, c, x, y) - 125;
    if (w < 0)
        w += 360;
    if (w > 360)
        w -= 360;
    int p;
    if (w >= 330 && w <= 360)
        p = 0;
    else if (w >= 290)
        p = 100;
    else
        p = roundEven(w * 0.3448275862068966L);
    return int(std::trunc(((long double)max - min) * (p / 100.0L) + min));
}

double KnobPointerAngle(int value, int min, int max)
{
    int a = ScalePercent(value, min, max) - 50;
    if (a > 100)
        a -= 99;
    return double(a / 125.0L * 2 * kPi);
}

TPoint KnobRayEnd(int c, int length, double angle)
{
    return Point(c + roundEven(length * std::sin((long double)angle)),
                 c - roundEven(length * std::cos((long double)angle)));
}

TRect KnobDisc(int width, int disc)
{
    TRect d = Rect(0, 0, width, width);
    InflateRect(d, -8, -8);
    const int k = width / 8;
    InflateRect(d, -k * (disc - 1), -k * (disc - 1));
    return d;
}

int KnobPointerLength(int width, int disc, int pointWidth)
{
    return width / 2 - (width / 8) * (disc - 1) - (pointWidth + 8);
}

TqKnob::TqKnob(QWidget *parent) : TCustomControl(parent)
{
    SetColor(clWindow);
    SetParentColor(true);
    SetBounds(x(), y(), 57, 57);
    // Painting covers every pixel: nothing beneath needs drawing first.
    SetControlStyle(ControlStyle() | csOpaque);
}

std::array<TColor, 3> TqKnob::Shades(KnobColorType color)
{
    switch (color) {
    case kcRed: return {clRed, clMaroon, 0x000040};
    case kcBlue: return {clBlue, clNavy, 0x400000};
    case kcGreen: return {clLime, clGreen, 0x004000};
    case kcYellow: return {clYellow, clOlive, 0x00C0C0};   // brighter dark shade: kept
    case kcMagenta: return {clFuchsia, clPurple, 0x400040};
    case kcSilver: return {clWhite, clSilver, clGray};
    case kcCyan: return {clAqua, clTeal, 0x404000};
    case kcWhite: return {clWhite, 0xE2E2E2, clSilver};
    }
    return {clWhite, clSilver, clGray};
}

void TqKnob::SetheightWidth(int size) { SetBounds(x(), y(), size, size); }

void TqKnob::SetBounds(int left, int top, int width, int height)
{
    width = std::clamp(width, 45, 120);
    height = std::clamp(height, 45, 120);
    // Whichever side changed decides the size.
    const int side = width == this->width() ? height : width;
    TCustomControl::SetBounds(left, top, side, side);
    if (parentWidget())
        buildRegions();
}

void TqKnob::Loaded()
{
    TCustomControl::Loaded();
    buildRegions();
}

void TqKnob::buildRegions()
{
    for (int n = 1; n <= 3; ++n) {
        const TRect d = KnobDisc(width(), n);
        FRegions[size_t(n - 1)] = n <= Discs() ? CreateEllipticRgn(d.Left, d.Top, d.Right, d.Bottom) : TRegion();
    }
}

void TqKnob::ApplyValue(int &field, int value, const std::function<void()> &atMin,
                        const std::function<void()> &atMax)
{
    field = value > FMax ? FMax : value < FMin ? FMin : value;
    emit OnChange(this);
    AccessibleValueChanged();
    // The requested value decides: one below Min is clamped silently.
    if (value == FMin)
        atMin();
    if (value == FMax)
        atMax();
    Refresh();
}

void TqKnob::SetKnobValue(int value)
{
    ApplyValue(FValue, value, [this] { emit OnMinimum(this); }, [this] { emit OnMaximum(this); });
}

void TqKnob::SetScaledMin(int min)
{
    FMin = std::min(min, FMax);
    for (int n = 1; n <= Discs(); ++n)
        SetDiscValue(n, DiscValue(n));
    Invalidate();
}

void TqKnob::SetScaledMax(int max)
{
    FMax = std::max(max, FMin);
    for (int n = 1; n <= Discs(); ++n)
        SetDiscValue(n, DiscValue(n));
    Invalidate();
}

void TqKnob::SetNoReflex(bool hide)
{
    if (FHideReflex == hide)
        return;
    FHideReflex = hide;
    Invalidate();
}

void TqKnob::SetTicks(bool ticks)
{
    if (FTicks == ticks)
        return;
    FTicks = ticks;
    Invalidate();
}

void TqKnob::SetTickColor(TColor color)
{
    FTickColor = color;
    Invalidate();
}

void TqKnob::SetStep(int step)
{
    if (FStep == step)
        return;
    FStep = step;
    Invalidate();
}

void TqKnob::SetPoint(TColor color)
{
    if (FPointColor == color)
        return;
    FPointColor = color;
    Invalidate();
}

void TqKnob::SetPointW(int width)
{
    width = std::clamp(width, 1, 5);
    if (FPointWidth == width)
        return;
    FPointWidth = quint8(width);
    Refresh();
}

void TqKnob::SetKnobCol(KnobColorType color)
{
    if (FKnobColor == color)
        return;
    FKnobColor = color;
    FShades = Shades(color);
    Invalidate();
}

void TqKnob::SetSteel(bool steel)
{
    FSteel = steel;
    Invalidate();
}

int TqKnob::Where(int X, int Y) { return KnobWhere(width(), X, Y, FMin, FMax); }

// The picture without pointers: background, ticks, the clearing ring and
// the outer disc.
void TqKnob::paintBase(TCanvas &canvas, int parity)
{
    const int W = width();
    const TRect d = KnobDisc(W, 1);
    const auto fill = [&](auto draw) {   // in Color, or in the steel texture
        canvas.Brush.SetColor(Color());
        if (FSteel)
            canvas.Brush.SetBitmap(TSteel());
        draw();
        canvas.Brush.SetBitmap(QImage());
    };
    fill([&] { canvas.FillRect(Rect(0, 0, W, height())); });
    if (FTicks)
        DrawTick(canvas, W / 2);
    // The clearing ring hides the inner part of the tick lines.
    canvas.Pen.SetColor(clBlack);
    canvas.Pen.SetStyle(psClear);
    fill([&] { canvas.Ellipse(d.Left - 3, d.Top - 3, d.Right + 3, d.Bottom + 3); });
    canvas.Pen.SetStyle(psSolid);
    PaintDiscBody(canvas, d, W / 22, parity);
}

const QImage &TqKnob::basePicture(int parity)
{
    const TPictureKey key{width(), FStep, FMin, FMax, Discs(), ColorToRGB(Color()), ColorToRGB(FTickColor),
                          FSteel, FTicks, FHideReflex, FShades};
    if (!(key == FPictureKey)) {
        FPictureKey = key;
        FBase = {};
        for (auto &layers : FInnerDiscs)
            for (TLayer &l : layers)
                l.Clear();
    }
    QImage &base = FBase[size_t(parity)];
    if (base.isNull()) {
        TBitmap picture(width(), height());
        paintBase(picture.Canvas(), parity);
        base = picture.Image();
    }
    return base;
}

const TLayer &TqKnob::discLayer(int disc, int parity)
{
    TLayer &layer = FInnerDiscs[size_t(disc - 2)][size_t(parity)];
    if (layer.IsEmpty()) {
        const TRect dn = KnobDisc(width(), disc);
        layer.Capture(width(), height(), [&](TCanvas &c) {
            PaintDiscBody(c, dn, dn.Width() / (disc == 2 ? 20 : 19), parity);
        });
    }
    return layer;
}

// Each paint lays the kept still parts down and draws the pointers over
// them: disc by disc, each inner disc covering the middle of the pointers
// before it.
void TqKnob::Paint(TCanvas &canvas)
{
    const int W = width();
    canvas.CopyRect(Rect(0, 0, W, height()), basePicture(FValue & 1), Rect(0, 0, W, height()));
    PaintPointer(canvas, FValue, KnobPointerLength(W, 1, FPointWidth));
    for (int n = 2; n <= Discs(); ++n) {
        const int value = DiscValue(n);
        discLayer(n, value & 1).DrawOn(canvas);
        PaintPointer(canvas, value, KnobPointerLength(W, n, FPointWidth));
    }
    canvas.Pen.SetWidth(1);
    canvas.Brush.SetColor(Color());
    canvas.Brush.SetStyle(bsSolid);
    canvas.Pen.SetColor(clBlack);
    if (hasFocus())
        canvas.DrawFocusRect(Rect(0, 0, W, height()));
    emit OnPaint(this);
}

void TqKnob::PaintDisc(TCanvas &canvas, const TRect &disc, int depth, int value, int pointerLength)
{
    PaintDiscBody(canvas, disc, depth, value & 1);
    PaintPointer(canvas, value, pointerLength);
}

void TqKnob::PaintDiscBody(TCanvas &canvas, const TRect &disc, int depth, int parity)
{
    canvas.Pen.SetStyle(psSolid);
    canvas.Brush.SetStyle(bsSolid);
    canvas.Brush.SetColor(FShades[1]);
    canvas.Pen.SetColor(clBlack);
    for (int i = depth; i >= 0; --i)
        canvas.Ellipse(disc.Left + i, disc.Top + i, disc.Right + i, disc.Bottom + i);
    canvas.Ellipse(disc);
    if (!FHideReflex)
        DrawReflex(canvas, disc.Width(), disc, parity);
    canvas.Pen.SetColor(clBlack);
    canvas.Brush.SetStyle(bsClear);
    canvas.Ellipse(disc);
}

void TqKnob::PaintPointer(TCanvas &canvas, int value, int pointerLength)
{
    const int c = width() / 2;
    const TPoint end = KnobRayEnd(c, pointerLength, KnobPointerAngle(value, FMin, FMax));
    canvas.Pen.SetColor(FPointColor);
    canvas.Pen.SetWidth(FPointWidth);
    canvas.MoveTo(c, c);
    canvas.LineTo(end.X, end.Y);
    canvas.Pen.SetWidth(1);
}

// Lines from the centre at every multiple of StepPerTick; the values of one
// percentage share a line, drawn once.
void TqKnob::DrawTick(TCanvas &canvas, int centre)
{
    if (FStep == 0)
        return;
    canvas.Pen.SetColor(FTickColor);
    ForEachScalePercent(FMin, FMax, FStep, [&](int, int percent) {
        const TPoint end = KnobRayEnd(centre, centre, double((percent - 50) / 125.0L * 2 * kPi));
        canvas.MoveTo(centre, centre);
        canvas.LineTo(end.X, end.Y);
    });
}

// Two highlight and two shadow wedges; `shift` moves them a pixel with the
// value's parity, so the metal glints as the knob turns.
void TqKnob::DrawReflex(TCanvas &canvas, int d, const TRect &disc, int s)
{
    const int L = disc.Left, T = disc.Top, R = disc.Right, B = disc.Bottom;
    canvas.Brush.SetColor(FShades[0]);
    canvas.Pen.SetColor(FShades[0]);
    canvas.Pie(L, T, R, B, L + d / 5 + s, -s, L + d / 5 + s, T + d / 3 - s);
    canvas.Pie(L, T, R, B, R - d / 5 - s, B + s, R - d / 5 - s, B - d / 3 + s);
    canvas.Brush.SetColor(FShades[2]);
    canvas.Pen.SetColor(FShades[2]);
    canvas.Pie(L, T, R, B, R - d / 8 + s, T + d / 4 + s, R - d / 5, T + d / 6 - s);
    canvas.Pie(L, T, R, B, L + d / 8 - s, B - d / 4 - s, L + d / 5, B - d / 6 - s);
}

// The innermost disc under the point is dragged; a press outside every
// disc takes the focus only.
void TqKnob::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    Q_UNUSED(Button);
    Q_UNUSED(Shift);
    setFocus(Qt::MouseFocusReason);
    bool taken = false;
    for (int n = Discs(); n >= 1; --n) {
        FDragging[size_t(n - 1)] = !taken && PtInRegion(FRegions[size_t(n - 1)], X, Y);
        taken |= FDragging[size_t(n - 1)];
    }
    moveDragged(X, Y);
}

void TqKnob::MouseMove(TShiftState Shift, int X, int Y)
{
    if (Shift & ssLeft)
        moveDragged(X, Y);
}

void TqKnob::moveDragged(int X, int Y)
{
    for (int n = 1; n <= Discs(); ++n)
        if (FDragging[size_t(n - 1)]) {
            if (n == 1)
                NewPosition(X, Y);
            else
                SetDiscValue(n, Where(X, Y));
            Refresh();
            return;
        }
}

void TqKnob::MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    Q_UNUSED(Shift);
    if (Button != mbLeft)
        return;
    moveDragged(X, Y);
    FDragging.fill(false);
}

void TqKnob::KeyDown(quint16 &Key, TShiftState Shift)
{
    const int disc = KeyDisc(Shift);
    const int step = std::max(1, int(((long long)FMax - FMin) / 10));
    int v = DiscValue(disc);
    bool handled = true;
    switch (Key) {
    case VK_PRIOR: v = (long long)v + step >= FMax ? FMax : v + step; break;
    case VK_NEXT: v = (long long)v - step <= FMin ? FMin : v - step; break;
    case VK_END: v = FMax; break;
    case VK_HOME: v = FMin; break;
    case VK_LEFT:
    case VK_DOWN:
        handled = v > FMin;
        if (handled)
            --v;
        break;
    case VK_UP:
    case VK_RIGHT:
        handled = v < FMax;
        if (handled)
            ++v;
        break;
    default: handled = false; break;
    }
    // A knob of several discs applies every key to the chosen disc, so each
    // raises OnChange; the single knob only the keys that act.
    if (handled || Discs() > 1)
        SetDiscValue(disc, v);
}

bool TqKnob::event(QEvent *event)
{
    if (event->type() == QEvent::ParentChange && parentWidget())
        buildRegions();
    return TCustomControl::event(event);
}

void TqKnob::DoEnter()
{
    TCustomControl::DoEnter();
    Refresh();
}

void TqKnob::DoExit()
{
    TCustomControl::DoExit();
    Refresh();
}
