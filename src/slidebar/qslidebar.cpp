#include "qslidebar.h"

#include "host/tbitmap.h"
#include "host/tsteel.h"
#include "slidebar/qslidethumbs.h"

#include <algorithm>
#include <climits>
#include <cmath>

namespace {

int roundEven(double v) { return int(std::nearbyint(v)); }

} // namespace

TRect TSlideGeometry::Groove(int t) const
{
    if (vertical) {
        const int x1 = (W - t) / 2 - 1;
        return Rect(x1, th / 2, x1 + t + 1, H - th + th / 2);
    }
    const int y1 = (H - t) / 2 - 1;
    return Rect(tw / 2, y1, W - tw + tw / 2, y1 + t + 1);
}

TRect TSlideGeometry::Thumb(int value, int min, int max) const
{
    const double span = double(max) - min;
    if (vertical) {
        const double s = span == 0 ? 0 : (H - th) / span;
        int top = H - roundEven((double(value) - min) * s) - th;
        top = std::max(0, std::min(top, H - th));
        const int left = (W - tw) / 2;
        return Rect(left, top, left + tw, top + th);
    }
    const double s = span == 0 ? 0 : (W - tw) / span;
    int left = roundEven((double(value) - min) * s);
    left = std::max(0, std::min(left, W - tw));
    const int top = (H - th) / 2;
    return Rect(left, top, left + tw, top + th);
}

int TSlideGeometry::ValueAt(int x, int y, int min, int max) const
{
    const double span = double(max) - min;
    const double v = vertical ? roundEven((double(H) - y) / H * span) + double(min)
                              : roundEven(double(x) / W * span) + double(min);
    return int(std::clamp(v, double(min), double(max)));
}

int TSlideGeometry::TickAt(int v, int min, int max, const TRect &g) const
{
    const double span = double(max) - min;
    if (vertical) {
        if (v == max)
            return g.Top;
        return g.Bottom - int(std::trunc((double(v) - min) * ((H - th) / span))) - 1;
    }
    if (v == max)
        return g.Right - 1;
    return g.Left + int(std::trunc((double(v) - min) * ((W - tw) / span)));
}

TqSlideBar::TqSlideBar(QWidget *parent) : TCustomControl(parent)
{
    TCustomControl::SetColor(clBtnFace);
    SetBounds(x(), y(), 100, 20);
    SetControlStyle(ControlStyle() | csOpaque);   // painting covers every pixel
    SetThumbStyle(tsVertHigh);
}

TSlideGeometry TqSlideBar::Geometry() const
{
    return TSlideGeometry{width(), height(), FThumb.width(), FThumb.height(), IsVert()};
}

void TqSlideBar::SetBounds(int left, int top, int width, int height)
{
    TCustomControl::SetBounds(left, top, width, height);
    SetOrientation(this->height() <= this->width() ? orHorizontal : orVertical);
}

void TqSlideBar::SetColor(TColor color)
{
    TCustomControl::SetColor(color);
    SetThumbStyle(FThumbStyle);
}

void TqSlideBar::SetThumbStyle(TThumbStyle style)
{
    FThumbStyle = style;
    TThumbBitmaps made = MakeThumb(style, Color());
    FThumb = std::move(made.thumb);
    FThumbMask = std::move(made.mask);
    FHalfThumbW = FThumb.width() / 2;
    FHalfThumbH = FThumb.height() / 2;
    Refresh();
}

QString TqSlideBar::CurrentLabel() const
{
    const long long i = (long long)FValue - FMin;
    if (FValue >= FMin && FLabels.size() >= i + 1)
        return FLabels[qsizetype(i)];
    return QString();
}

namespace {
// Stores and repaints at once, only when the value changes.
template <class T>
void setRefreshing(TqSlideBar *bar, T &field, T value)
{
    if (field == value)
        return;
    field = value;
    bar->Refresh();
}
} // namespace

void TqSlideBar::SetSteel(bool steel) { setRefreshing(this, FSteel, steel); }
void TqSlideBar::SetTickSpace(int space) { setRefreshing(this, FTickSpace, space); }
void TqSlideBar::SetTickSize(int size) { setRefreshing(this, FTickSize, size); }
void TqSlideBar::SetTickWhere(TBarTickStyle where) { setRefreshing(this, FTickWhere, where); }
void TqSlideBar::SetStepPerTick(int step) { setRefreshing(this, FStepPerTick, std::max(step, 1)); }
void TqSlideBar::SetFocusColor(TColor color) { setRefreshing(this, FFocusColor, color); }
void TqSlideBar::SetNonFocusColor(TColor color) { setRefreshing(this, FNonFocusColor, color); }
void TqSlideBar::SetOrientation(TOrientation orientation) { setRefreshing(this, FOrientation, orientation); }
void TqSlideBar::SetStyle(TBarStyle style) { setRefreshing(this, FStyle, style); }

void TqSlideBar::SetTicks(bool ticks)
{
    FTicks = ticks;
    Refresh();
}

void TqSlideBar::SetTickStyle(TqTickStyle style)
{
    FTickStyle = style;
    Refresh();
}

void TqSlideBar::SetMin(int min)
{
    if (min < FMax && min != FMin) {
        FMin = min;
        Refresh();
    }
}

void TqSlideBar::SetMax(int max)
{
    if (max > FMin && max != FMax) {
        FMax = max;
        Refresh();
    }
}

void TqSlideBar::SetThickness(int thickness)
{
    if (thickness != FThickness && thickness > 0 && thickness < 11)
        FThickness = quint8(thickness);
}

void TqSlideBar::SetPosition(int value)
{
    if (value == FValue)
        return;
    if (value >= FMin && value <= FMax)
        FValue = value;
    Refresh();
    AccessibleValueChanged();
    if (IsDesigning())
        return;
    emit OnChange(this);
    if (FValue == FMin)
        emit OnMinimum(this);
    if (FValue == FMax)
        emit OnMaximum(this);
}

int TqSlideBar::NewPosition(int X, int Y) { return Geometry().ValueAt(X, Y, FMin, FMax); }

void TqSlideBar::WhereIsBar() { FThumbRect = Geometry().Thumb(FValue, FMin, FMax); }

void TqSlideBar::SetTLColor(TCanvas &canvas) { canvas.Pen.SetColor(FStyle == bsRaised ? clBtnHighlight : clBtnShadow); }
void TqSlideBar::SetBRColor(TCanvas &canvas) { canvas.Pen.SetColor(FStyle == bsLowered ? clBtnHighlight : clBtnShadow); }

QByteArray TqSlideBar::trackKey() const
{
    const qint64 values[] = {width(), height(), FThumb.width(), FThumb.height(), hasFocus(), FSteel,
                             ColorToRGB(ParentBrushColor()), ColorToRGB(FFocusColor), ColorToRGB(FNonFocusColor),
                             ColorToRGB(clBtnHighlight), ColorToRGB(clBtnShadow), FStyle, FThickness, FTicks,
                             FTickWhere, FTickSize, FTickSpace, FStepPerTick, FMin, FMax};
    return QByteArray(reinterpret_cast<const char *>(values), sizeof values);
}

void TqSlideBar::paintTrack(TCanvas &canvas)
{
    const int W = width(), H = height();
    if (FSteel) {
        canvas.Brush.SetBitmap(TSteel());
        canvas.FillRect(Rect(0, 0, W, H));
        canvas.Brush.SetBitmap(QImage());
    } else {
        // The parent's colour: the bar's own Color is the thumb's.
        canvas.Brush.SetColor(ParentBrushColor());
        canvas.FillRect(Rect(0, 0, W, H));
    }
    // The groove from one end of the thumb's travel to the other.
    const TRect g = Geometry().Groove(FThickness);
    canvas.Pen.SetStyle(psSolid);
    SetTLColor(canvas);
    canvas.MoveTo(g.Right, g.Top);
    canvas.LineTo(g.Left, g.Top);
    canvas.LineTo(g.Left, g.Bottom);
    SetBRColor(canvas);
    canvas.LineTo(g.Right, g.Bottom);
    canvas.LineTo(g.Right, g.Top - 1);
    canvas.Brush.SetColor(hasFocus() ? FFocusColor : FNonFocusColor);
    canvas.Pen.SetStyle(psClear);
    canvas.Rectangle(g.Left + 1, g.Top + 1, g.Right + 1, g.Bottom + 1);
    canvas.Pen.SetStyle(psSolid);
    if (FTicks)
        paintTicks(canvas, g);
}

void TqSlideBar::Paint(TCanvas &canvas)
{
    const TRect all = Rect(0, 0, width(), height());
    if (FTicks && FTickStyle == tsOwnerDraw) {
        paintTrack(canvas);
    } else {
        const QByteArray key = trackKey();
        if (key != FTrackKey || FTrack.isNull()) {
            TBitmap track(width(), height());
            paintTrack(track.Canvas());
            FTrack = track.Image();
            FTrackKey = key;
        }
        canvas.CopyRect(all, FTrack, all);
    }
    // The thumb: the background ANDed with the mask, the image ORed over it.
    WhereIsBar();
    const TRect thumb = Rect(0, 0, FThumbRect.Width(), FThumbRect.Height());
    canvas.CopyMode = cmSrcAnd;
    canvas.CopyRect(FThumbRect, FThumbMask, thumb);
    canvas.CopyMode = cmSrcPaint;
    canvas.CopyRect(FThumbRect, FThumb, thumb);
    canvas.CopyMode = cmSrcCopy;
}

// One tick across the groove at `along`: two lines side by side, lit and
// shadowed, from `from` outward by the tick size (toward lower values when
// `left`); or, owner-drawn, the application's.
void TqSlideBar::tick(TCanvas &canvas, int along, int from, int length, bool left, int number)
{
    if (FTickStyle == tsOwnerDraw) {
        if (IsVert())
            emit OnOwnerDraw(&canvas, from, along, left, number);
        else
            emit OnOwnerDraw(&canvas, along, from, left, number);
        return;
    }
    const int to = left ? from - length : from + length;
    for (int side = 0; side < 2; ++side) {
        side == 0 ? SetTLColor(canvas) : SetBRColor(canvas);
        if (IsVert()) {
            canvas.MoveTo(from, along + side);
            canvas.LineTo(to, along + side);
        } else {
            canvas.MoveTo(along + side, from);
            canvas.LineTo(along + side, to);
        }
    }
}

void TqSlideBar::paintTicks(TCanvas &canvas, const TRect &g)
{
    const TSlideGeometry geo = Geometry();
    const bool right = FTickWhere != ttsLeft, left = FTickWhere != ttsRight;
    // Across the groove: right/bottom ticks start past its far side,
    // left/top ones before its near side.
    const int farFrom = (IsVert() ? g.Right : g.Bottom) + FTickSpace;
    const int nearFrom = (IsVert() ? g.Left : g.Top) - FTickSpace;
    const auto draw = [&](long long v, int number) {
        const int along = geo.TickAt(int(v), FMin, FMax, g);
        if (right)
            tick(canvas, along, farFrom, FTickSize, false, number);
        if (left)
            tick(canvas, along, nearFrom, FTickSize, true, number);
        return along;
    };
    const long long span = (long long)FMax - FMin, step = std::max(FStepPerTick, 1);
    const bool owner = FTickStyle == tsOwnerDraw;
    // Plain ticks of one place are drawn once: after one, the walk jumps to
    // the first tick that can land on the next pixel.
    const double pixelsPerTick =
        span > 0 ? double(step) * ((IsVert() ? height() - FThumb.height() : width() - FThumb.width()) / double(span))
                 : 0;
    int lastAlong = INT_MIN;
    long long k = 0;
    for (; FMin + k * step < FMax; ++k) {
        const long long v = FMin + k * step;
        const int along = geo.TickAt(int(v), FMin, FMax, g);
        if (owner || along != lastAlong)
            draw(v, int(k));
        lastAlong = along;
        if (!owner && pixelsPerTick > 0 && pixelsPerTick < 1) {
            const long long offset = std::llabs((long long)along - (IsVert() ? g.Bottom - 1 : g.Left));
            k = std::max(k, (long long)((offset + 1) / pixelsPerTick) - 1);
        }
    }
    if (FMin + k * step == FMax)   // the last tick, pinned to the groove's end
        draw(FMax, int(k));
}

void TqSlideBar::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    setFocus(Qt::MouseFocusReason);
    FDragging = PtInRect(FThumbRect, Point(X, Y));
    if (FDragging) {
        FDragAnchor = IsVert() ? Y : X;
        SetPosition(NewPosition(X, Y));
    }
    TCustomControl::MouseDown(Button, Shift, X, Y);
}

// Only a move back onto the exact press coordinate is ignored.
void TqSlideBar::MouseMove(TShiftState Shift, int X, int Y)
{
    if ((Shift & ssLeft) && FDragging && (IsVert() ? Y : X) != FDragAnchor)
        SetPosition(NewPosition(X, Y));
    TCustomControl::MouseMove(Shift, X, Y);
}

// A release after a drag takes the point's value; a click beside the thumb
// moves one step toward the click.
void TqSlideBar::MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    TCustomControl::MouseUp(Button, Shift, X, Y);
    if (Button == mbLeft) {
        int v = FValue;
        if (FDragging) {
            v = NewPosition(X, Y);
        } else if (IsVert()) {
            const int c = FThumbRect.Top + FHalfThumbH;
            v = c > Y ? FValue + 1 : c < Y ? FValue - 1 : FValue;
        } else {
            const int c = FThumbRect.Left + FHalfThumbW;
            v = c > X ? FValue - 1 : c < X ? FValue + 1 : FValue;
        }
        SetPosition(std::min(std::max(v, FMin), FMax));
        Refresh();
    }
    FDragging = false;
}

void TqSlideBar::KeyDown(quint16 &Key, TShiftState Shift)
{
    const int step = std::max(1, int(((long long)FMax - FMin) / 10));
    switch (Key) {
    case VK_PRIOR: SetPosition((long long)FValue + step >= FMax ? FMax : FValue + step); break;
    case VK_NEXT: SetPosition(FMin >= (long long)FValue - step ? FMin : FValue - step); break;
    case VK_END: SetPosition(FMax); break;
    case VK_HOME: SetPosition(FMin); break;
    case VK_LEFT:
    case VK_DOWN:
        if (FValue > FMin)
            SetPosition(FValue - 1);
        break;
    case VK_UP:
    case VK_RIGHT:
        if (FValue < FMax)
            SetPosition(FValue + 1);
        break;
    default: break;
    }
    TCustomControl::KeyDown(Key, Shift);
}

void TqSlideBar::DoEnter()
{
    TCustomControl::DoEnter();
    Refresh();
}

void TqSlideBar::DoExit()
{
    TCustomControl::DoExit();
    Refresh();
}
