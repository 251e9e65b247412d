#pragma once
// An audio-style level meter of LED blocks, vertical (bottom up) or
// horizontal (left to right), in green, yellow and red zones, with a peak
// marker that holds the highest level for PeakHold ms and then falls at
// PeakFall blocks a second until it meets the level. Fed by Value or by
// Push of each sample; it repaints only when a block changes, so fifty
// updates a second cost little.
//
// Properties (defaults): Value (0), Max (100), Blocks (20), Kind
// (pkVertical), YellowLevel (70) and RedLevel (90), in percent of Max: a
// block is in the yellow zone when its top is above YellowLevel, in the red
// when above RedLevel; GreenColor (clLime), YellowColor (clYellow), RedColor
// (clRed); UnlitLevel (25: an unlit block shows its zone colour darkened to
// this percent); Color (clBlack, around and between the blocks); Gap (1);
// ShowPeak (true), PeakHold (1000), PeakFall (10); Width 20, Height 120.

#include "host/tcontrol.h"

#include <QElapsedTimer>
#include <QTimer>

#include <vector>

// The blocks along a length that are at least a pixel long, `gap` pixels
// apart, the lengths shared out so that they fill the length: each its
// number, its start and its length. However many blocks are asked for, no
// more come than the length has pixels.
struct TPeakBlock
{
    int index, from, length;
};
std::vector<TPeakBlock> PeakBlocks(int length, int blocks, int gap);
// The peak `sinceTop` ms after it was set at `top`: held for `hold` ms,
// then falling `fall` a second (in value units), never below `value`.
double PeakLevel(double top, double value, qint64 sinceTop, int hold, double fall);

class TqcPeakOmeter : public TGraphicControl
{
    Q_OBJECT
    Q_PROPERTY(int Width READ Width WRITE SetWidth STORED false)
    Q_PROPERTY(int Height READ Height WRITE SetHeight STORED false)
    Q_PROPERTY(int Value READ Value WRITE SetValue)
    Q_PROPERTY(int Max READ Max WRITE SetMax)
    Q_PROPERTY(int Blocks READ Blocks WRITE SetBlocks)
    Q_PROPERTY(TqPeakKind Kind READ Kind WRITE SetKind)
    Q_PROPERTY(int YellowLevel READ YellowLevel WRITE SetYellowLevel)
    Q_PROPERTY(int RedLevel READ RedLevel WRITE SetRedLevel)
    Q_PROPERTY(TColor GreenColor READ GreenColor WRITE SetGreenColor)
    Q_PROPERTY(TColor YellowColor READ YellowColor WRITE SetYellowColor)
    Q_PROPERTY(TColor RedColor READ RedColor WRITE SetRedColor)
    Q_PROPERTY(int UnlitLevel READ UnlitLevel WRITE SetUnlitLevel)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(int Gap READ Gap WRITE SetGap)
    Q_PROPERTY(bool ShowPeak READ ShowPeak WRITE SetShowPeak)
    Q_PROPERTY(int PeakHold READ PeakHold WRITE SetPeakHold)
    Q_PROPERTY(int PeakFall READ PeakFall WRITE SetPeakFall)
    Q_PROPERTY(Controls::TAlign Align READ Align WRITE SetAlign)
    Q_PROPERTY(QString Hint READ Hint WRITE SetHint)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)

public:
    enum TqPeakKind { pkVertical, pkHorizontal };
    Q_ENUM(TqPeakKind)

    explicit TqcPeakOmeter(QWidget *parent = nullptr);

    int Value() const { return FValue; }
    QAccessible::Role AccessibleRole() const override { return QAccessible::ProgressBar; }
    bool AccessibleRange(TAccessibleRange &range) const override
    {
        range = {0, double(FMax), double(FValue), 1, true};
        return true;
    }
    void SetValue(int value);
    // One sample: the same as setting Value.
    void Push(int sample) { SetValue(sample); }
    int Max() const { return FMax; }
    void SetMax(int max);
    int Blocks() const { return FBlocks; }
    void SetBlocks(int blocks);
    TqPeakKind Kind() const { return FKind; }
    void SetKind(TqPeakKind kind);
    int YellowLevel() const { return FYellow; }
    void SetYellowLevel(int percent);
    int RedLevel() const { return FRed; }
    void SetRedLevel(int percent);
    TColor GreenColor() const { return FGreenColor; }
    void SetGreenColor(TColor color);
    TColor YellowColor() const { return FYellowColor; }
    void SetYellowColor(TColor color);
    TColor RedColor() const { return FRedColor; }
    void SetRedColor(TColor color);
    int UnlitLevel() const { return FUnlit; }
    void SetUnlitLevel(int percent);
    int Gap() const { return FGap; }
    void SetGap(int gap);
    bool ShowPeak() const { return FShowPeak; }
    void SetShowPeak(bool show);
    int PeakHold() const { return FHold; }
    void SetPeakHold(int millis) { FHold = qMax(0, millis); }
    int PeakFall() const { return FFall; }
    void SetPeakFall(int blocksPerSecond) { FFall = qMax(1, blocksPerSecond); }

    // The peak now, in value units.
    double Peak() const;
    // Blocks lit by the level, and the block of the peak (-1: none).
    int LitBlocks() const;
    int PeakBlock() const;
    // The lit colour of block i.
    TColor BlockColor(int i) const;

protected:
    void Paint(TCanvas &canvas) override;

private:
    template <class T>
    void set(T &field, T value);
    void tick();
    void refresh();

    int FValue = 0, FMax = 100, FBlocks = 20;
    TqPeakKind FKind = pkVertical;
    int FYellow = 70, FRed = 90;
    TColor FGreenColor = clLime, FYellowColor = clYellow, FRedColor = clRed;
    int FUnlit = 25, FGap = 1;
    bool FShowPeak = true;
    int FHold = 1000, FFall = 10;
    double FTop = 0;              // the peak when last set
    QElapsedTimer FSinceTop;
    QTimer FFallTimer;            // while the peak is above the level
    int FShownLit = -1, FShownPeak = -2;
};
