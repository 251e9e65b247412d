#include "qscope.h"

#include "host/tscale.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

// Rows this far outside the picture all look alike; keeping levels within
// it keeps the arithmetic in range for any sample.
constexpr double kFarAway = 1e9;

} // namespace

int ScopeLevel(int sample, int adjust, int min, int max, int height)
{
    const long long span = (long long)max - min;
    if (span == 0)
        return 0;
    const double ys = height / 100.0;
    const double level = double(((long long)sample + adjust - min) * 100) / double(span) * ys;
    return int(std::trunc(std::clamp(level, -kFarAway, kFarAway)));
}

int ScopeGridLevel(int v, int min, int max, int height)
{
    return int(std::nearbyint(ScalePercent(v, min, max) * (height / 100.0)));
}

TqScope::TqScope(QWidget *parent) : TGraphicControl(parent)
{
    SetBounds(x(), y(), 122, 100);
    SetControlStyle(ControlStyle() | csOpaque);
}

void TqScope::SetBounds(int left, int top, int width, int height)
{
    TGraphicControl::SetBounds(left, top, std::clamp(width, 20, 1000), std::max(height, 35));
}

void TqScope::Push()
{
    bool doPush = true;
    emit OnBeforePush(this, doPush);
    if (!doPush)
        return;
    std::memmove(&FSamples1[1], &FSamples1[0], PushLength * sizeof(int));
    std::memmove(&FSamples2[1], &FSamples2[0], PushLength * sizeof(int));
    FSamples1[0] = FIn1;
    FSamples2[0] = FIn2;
    Refresh();
}

void TqScope::SetIn1(int value)
{
    FIn1 = value;
    if (FAutoPush)
        Push();
}

void TqScope::SetIn2(int value)
{
    FIn2 = value;
    if (FAutoPush)
        Push();
}

void TqScope::SetAllChannel1(const int values[], int High)
{
    Q_UNUSED(High);   // always 1000 values, as documented
    std::memcpy(FSamples1.data(), values, PushLength * sizeof(int));
    Invalidate();
}

void TqScope::SetAllChannel2(const int values[], int High)
{
    Q_UNUSED(High);
    std::memcpy(FSamples2.data(), values, PushLength * sizeof(int));
    Invalidate();
}

int TqScope::Sample(int channel, int age) const
{
    if (age < 0 || age >= Capacity)
        return 0;
    return channel == 2 ? FSamples2[size_t(age)] : FSamples1[size_t(age)];
}

void TqScope::SetMin(int min)
{
    FMin = min > FMax ? FMax - 1 : min;
    Invalidate();
}

void TqScope::SetMax(int max)
{
    FMax = max < FMin ? FMin + 1 : max;
    Invalidate();
}

void TqScope::SetStepX(int step)
{
    step = std::clamp(step, 0, width());
    if (step == FStepX)
        return;
    FStepX = step;
    Invalidate();
}

void TqScope::SetStepY(int step)
{
    FStepY = step;
    Invalidate();
}

namespace {
template <class T>
void setChanged(TqScope *scope, T &field, T value)
{
    if (field == value)
        return;
    field = value;
    scope->Invalidate();
}
} // namespace

void TqScope::Setgrid(bool show) { setChanged(this, FShowGrid, show); }
void TqScope::SetgridColor(TColor color) { setChanged(this, FGridColor, color); }
void TqScope::SetBeam1Color(TColor color) { setChanged(this, FBeam1Color, color); }
void TqScope::SetBeam2Color(TColor color) { setChanged(this, FBeam2Color, color); }
void TqScope::SetUse1(bool show) { setChanged(this, FShowBeam1, show); }
void TqScope::SetUse2(bool show) { setChanged(this, FShowBeam2, show); }

void TqScope::SetAjust1(int adjust)
{
    if (FAjust1 == adjust)
        return;
    FAjust1 = adjust;
    Refresh();
}

void TqScope::SetAjust2(int adjust)
{
    if (FAjust2 == adjust)
        return;
    FAjust2 = adjust;
    Refresh();
}

void TqScope::SetFaceColor(TColor color)
{
    FFaceColor = color;
    Invalidate();
}

void TqScope::Paint(TCanvas &canvas)
{
    const int R = width(), B = height();
    canvas.Brush.SetStyle(bsSolid);
    canvas.Brush.SetColor(FFaceColor);
    canvas.FillRect(Rect(0, 0, R, B));
    canvas.Pen.SetWidth(1);
    if (FShowGrid) {
        canvas.Pen.SetColor(FGridColor);
        // Anchored at the right edge, where the newest sample is.
        if (FStepX > 0)
            for (int i = FStepX; i <= R - 1; i += FStepX) {
                canvas.MoveTo(R - i, 0);
                canvas.LineTo(R - i, B - 1);
            }
        // At multiples of GridYstep strictly between Min and Max; values with
        // the same whole percentage share a row, drawn once.
        if (FStepY != 0)
            ForEachScalePercent(FMin, FMax, FStepY, [&](int v, int) {
                if (v <= FMin || v >= FMax)
                    return;
                const int y = ScopeGridLevel(v, FMin, FMax, B);
                canvas.MoveTo(0, B - y);
                canvas.LineTo(R - 1, B - y);
            });
    }
    if (FShowBeam1)
        beam(canvas, FSamples1, FAjust1, FBeam1Color);
    if (FShowBeam2)
        beam(canvas, FSamples2, FAjust2, FBeam2Color);
    emit OnPaint(this);
}

// From the right edge leftwards: sample k at x = Width - k - 1.
void TqScope::beam(TCanvas &canvas, const std::array<int, Capacity> &samples, int adjust, TColor color)
{
    const int R = width(), B = height();
    std::vector<TPoint> points;
    points.reserve(size_t(R) + 2);
    points.push_back({R, B - ScopeLevel(samples[0], adjust, FMin, FMax, B) - 1});
    for (int k = 0; k <= R; ++k)
        points.push_back({R - (k + 1), B - ScopeLevel(samples[size_t(k)], adjust, FMin, FMax, B) - 1});
    canvas.Pen.SetColor(color);
    canvas.Polyline(points);
    canvas.MoveTo(points.back().X, points.back().Y);
}
