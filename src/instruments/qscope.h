#pragma once
// The trace display: the recent history of two integer channels drawn as
// two beams over a grid, newest sample at the right edge, older ones
// moving left with every push.

#include "host/tcontrol.h"

#include <array>

// The row of a sample: Trunc(((s + adjust - min) * 100 / (max - min)) *
// height / 100), counted up from the bottom edge.
int ScopeLevel(int sample, int adjust, int min, int max, int height);
// The row of a horizontal grid line at value v (percentages in whole
// numbers, as the grid rounds them).
int ScopeGridLevel(int v, int min, int max, int height);

class TqScope : public TGraphicControl
{
    Q_OBJECT
    Q_PROPERTY(int Width READ Width WRITE SetWidth STORED false)
    Q_PROPERTY(int Height READ Height WRITE SetHeight STORED false)
    Q_PROPERTY(bool AutoPush READ AutoPush WRITE SetPush)
    Q_PROPERTY(int Min READ Min WRITE SetMin)
    Q_PROPERTY(int Max READ Max WRITE SetMax)
    Q_PROPERTY(int GridXstep READ GridXstep WRITE SetStepX)
    Q_PROPERTY(int GridYstep READ GridYstep WRITE SetStepY)
    Q_PROPERTY(bool ShowGrid READ ShowGrid WRITE Setgrid)
    Q_PROPERTY(TColor GridColor READ GridColor WRITE SetgridColor)
    Q_PROPERTY(TColor Beam1Color READ Beam1Color WRITE SetBeam1Color)
    Q_PROPERTY(TColor Beam2Color READ Beam2Color WRITE SetBeam2Color)
    Q_PROPERTY(bool ShowBeam1 READ ShowBeam1 WRITE SetUse1)
    Q_PROPERTY(bool ShowBeam2 READ ShowBeam2 WRITE SetUse2)
    Q_PROPERTY(int Channel1 READ Channel1 WRITE SetIn1)
    Q_PROPERTY(int Channel2 READ Channel2 WRITE SetIn2)
    Q_PROPERTY(int Ajust1 READ Ajust1 WRITE SetAjust1)
    Q_PROPERTY(int Ajust2 READ Ajust2 WRITE SetAjust2)
    Q_PROPERTY(TColor FaceColor READ FaceColor WRITE SetFaceColor)
    Q_PROPERTY(Controls::TAlign Align READ Align WRITE SetAlign)
    Q_PROPERTY(int DragCursor READ DragCursor WRITE SetDragCursor)
    Q_PROPERTY(TDragMode DragMode READ DragMode WRITE SetDragMode)
    Q_PROPERTY(bool ParentShowHint READ ParentShowHint WRITE SetParentShowHint)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)

public:
    // Samples kept per channel; a push moves all but the oldest.
    static constexpr int Capacity = 1001;
    static constexpr int PushLength = 1000;

    explicit TqScope(QWidget *parent = nullptr);

    bool AutoPush() const { return FAutoPush; }
    void SetPush(bool autoPush) { FAutoPush = autoPush; }
    int Min() const { return FMin; }
    void SetMin(int min);
    int Max() const { return FMax; }
    void SetMax(int max);
    // Pixels between vertical grid lines, counted from the right edge; kept
    // in 0..Width, 0 drawing none.
    int GridXstep() const { return FStepX; }
    void SetStepX(int step);
    // Horizontal lines at multiples of this value; 0 draws none.
    int GridYstep() const { return FStepY; }
    void SetStepY(int step);
    bool ShowGrid() const { return FShowGrid; }
    void Setgrid(bool show);
    TColor GridColor() const { return FGridColor; }
    void SetgridColor(TColor color);
    TColor Beam1Color() const { return FBeam1Color; }
    void SetBeam1Color(TColor color);
    TColor Beam2Color() const { return FBeam2Color; }
    void SetBeam2Color(TColor color);
    bool ShowBeam1() const { return FShowBeam1; }
    void SetUse1(bool show);
    bool ShowBeam2() const { return FShowBeam2; }
    void SetUse2(bool show);
    // The next samples; with AutoPush, writing either pushes both.
    int Channel1() const { return FIn1; }
    void SetIn1(int value);
    int Channel2() const { return FIn2; }
    void SetIn2(int value);
    // Added to every sample of the channel when drawn.
    int Ajust1() const { return FAjust1; }
    void SetAjust1(int adjust);
    int Ajust2() const { return FAjust2; }
    void SetAjust2(int adjust);
    TColor FaceColor() const { return FFaceColor; }
    void SetFaceColor(TColor color);

    // Shifts both histories one place and takes Channel1 and Channel2 as the
    // newest samples, unless OnBeforePush says no; repaints at once.
    void Push();
    // Replaces the newest 1000 samples of a channel (index 0 newest);
    // `values` must hold at least 1000.
    void SetAllChannel1(const int values[], int High);
    void SetAllChannel2(const int values[], int High);
    // Sample `age` pushes old of channel 1 or 2.
    int Sample(int channel, int age) const;

    // Width kept in 20..1000, height at least 35.
    void SetBounds(int left, int top, int width, int height) override;

signals:
    void OnPaint(QObject *Sender);
    void OnBeforePush(QObject *Sender, bool &DoPush);

protected:
    void Paint(TCanvas &canvas) override;

private:
    void beam(TCanvas &canvas, const std::array<int, Capacity> &samples, int adjust, TColor color);

    std::array<int, Capacity> FSamples1{};
    std::array<int, Capacity> FSamples2{};
    bool FAutoPush = false;
    int FMin = 0;
    int FMax = 100;
    int FStepX = 10;
    int FStepY = 10;
    bool FShowGrid = true;
    TColor FGridColor = clGreen;
    TColor FBeam1Color = clLime;
    TColor FBeam2Color = clYellow;
    bool FShowBeam1 = true;
    bool FShowBeam2 = false;
    int FIn1 = 0;
    int FIn2 = 0;
    int FAjust1 = 0;
    int FAjust2 = 0;
    TColor FFaceColor = clBlack;
};
