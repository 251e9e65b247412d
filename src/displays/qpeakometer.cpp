#include "qpeakometer.h"

#include <algorithm>
#include <cmath>

std::vector<TPeakBlock> PeakBlocks(int length, int blocks, int gap)
{
    std::vector<TPeakBlock> out;
    if (blocks <= 0 || length <= 0)
        return out;
    const qint64 b = blocks, room = std::max<qint64>(0, length - qint64(gap) * (b - 1));
    // Block i spans room * i / b .. room * (i + 1) / b, moved on by its gaps.
    const auto start = [&](qint64 i) { return room * i / b; };
    if (b <= room) {
        for (qint64 i = 0; i < b; ++i)
            out.push_back({int(i), int(start(i) + i * gap), int(start(i + 1) - start(i))});
        return out;
    }
    // More blocks than pixels: pixel k belongs to the first block whose end
    // passes it; the others are no pixel long.
    for (qint64 k = 1; k <= room; ++k) {
        const qint64 i = (k * b + room - 1) / room - 1;
        out.push_back({int(i), int(k - 1 + i * gap), 1});
    }
    return out;
}

double PeakLevel(double top, double value, qint64 sinceTop, int hold, double fall)
{
    if (sinceTop <= hold)
        return std::max(top, value);
    return std::max(value, top - fall * double(sinceTop - hold) / 1000.0);
}

TqcPeakOmeter::TqcPeakOmeter(QWidget *parent) : TGraphicControl(parent)
{
    SetColor(clBlack);
    SetBounds(Left(), Top(), 20, 120);
    SetControlStyle(ControlStyle() | csOpaque);
    UpdateOpacity();
    FSinceTop.start();
    FFallTimer.setInterval(30);
    connect(&FFallTimer, &QTimer::timeout, this, &TqcPeakOmeter::tick);
}

template <class T>
void TqcPeakOmeter::set(T &field, T value)
{
    if (field == value)
        return;
    field = value;
    FShownLit = -1;
    Invalidate();
}

void TqcPeakOmeter::SetMax(int max) { set(FMax, std::max(1, max)); }
void TqcPeakOmeter::SetBlocks(int blocks) { set(FBlocks, std::max(1, blocks)); }
void TqcPeakOmeter::SetKind(TqPeakKind kind) { set(FKind, kind); }
void TqcPeakOmeter::SetYellowLevel(int percent) { set(FYellow, std::clamp(percent, 0, 100)); }
void TqcPeakOmeter::SetRedLevel(int percent) { set(FRed, std::clamp(percent, 0, 100)); }
void TqcPeakOmeter::SetGreenColor(TColor color) { set(FGreenColor, color); }
void TqcPeakOmeter::SetYellowColor(TColor color) { set(FYellowColor, color); }
void TqcPeakOmeter::SetRedColor(TColor color) { set(FRedColor, color); }
void TqcPeakOmeter::SetUnlitLevel(int percent) { set(FUnlit, std::clamp(percent, 0, 100)); }
void TqcPeakOmeter::SetGap(int gap) { set(FGap, std::max(0, gap)); }
void TqcPeakOmeter::SetShowPeak(bool show) { set(FShowPeak, show); }

double TqcPeakOmeter::Peak() const
{
    const double perBlock = double(FMax) / FBlocks;
    return PeakLevel(FTop, FValue, FSinceTop.elapsed(), FHold, FFall * perBlock);
}

void TqcPeakOmeter::SetValue(int value)
{
    value = std::clamp(value, 0, FMax);
    const double peak = Peak();
    if (value >= peak) {   // a new top: held from now
        FTop = value;
        FSinceTop.restart();
    } else if (!FFallTimer.isActive()) {
        FFallTimer.start();
    }
    if (value == FValue)
        return;
    FValue = value;
    refresh();
}

void TqcPeakOmeter::tick()
{
    if (Peak() <= FValue)
        FFallTimer.stop();
    refresh();
}

// A repaint only when a block changes.
void TqcPeakOmeter::refresh()
{
    const int lit = LitBlocks(), peak = PeakBlock();
    if (lit == FShownLit && peak == FShownPeak)
        return;
    Invalidate();
}

int TqcPeakOmeter::LitBlocks() const
{
    return int(std::lround(double(FValue) * FBlocks / FMax));
}

int TqcPeakOmeter::PeakBlock() const
{
    if (!FShowPeak)
        return -1;
    // The last block the peak level would light.
    const int block = int(std::lround(Peak() * FBlocks / FMax)) - 1;
    return block >= LitBlocks() ? block : -1;   // inside the lit ones it is not seen apart
}

TColor TqcPeakOmeter::BlockColor(int i) const
{
    const qint64 top = (qint64(i) + 1) * 100 / FBlocks;   // the block's top, in percent
    return top > FRed ? FRedColor : top > FYellow ? FYellowColor : FGreenColor;
}

void TqcPeakOmeter::Paint(TCanvas &canvas)
{
    const int w = Width(), h = Height();
    canvas.Brush.SetStyle(bsSolid);
    canvas.Brush.SetColor(Color());
    canvas.FillRect(Rect(0, 0, w, h));
    const bool vertical = FKind == pkVertical;
    const auto blocks = PeakBlocks(vertical ? h : w, FBlocks, FGap);
    FShownLit = LitBlocks();
    FShownPeak = PeakBlock();
    for (const auto &[i, from, length] : blocks) {
        const bool lit = i < FShownLit || i == FShownPeak;
        const QRgb c = ColorToQRgb(BlockColor(i));
        canvas.Brush.SetColor(lit ? BlockColor(i)
                                  : TColor(quint32(qRed(c) * FUnlit / 100) | quint32(qGreen(c) * FUnlit / 100) << 8
                                           | quint32(qBlue(c) * FUnlit / 100) << 16));
        if (vertical)
            canvas.FillRect(Rect(0, h - from - length, w, h - from));
        else
            canvas.FillRect(Rect(from, 0, from + length, h));
    }
}
