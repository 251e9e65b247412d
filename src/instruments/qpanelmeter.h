#pragma once
// The needle meter: a value between Min and Max on a bevelled panel
// instrument, with a scale band, an alert zone, ticks, a caption and a
// needle. Three looks: a round scale with a needle swinging over 100
// degrees, and edgewise meters with a straight horizontal or vertical scale.

#include "host/tcontrol.h"

// Where a value falls on the scale, in whole percent of Min..Max (truncated;
// 0 for an empty range).
int MeterPercent(int value, int min, int max);

// The round look's fixed points for a meter of `width` x `height`.
struct TMeterGeometry
{
    int a = 0, b = 0;        // the housing's border: width div 11, height div 11
    int cx = 0, hb = 0;      // the needle's pivot is (cx, hb - b)
    int base = 0;            // centre row of the scale's ellipse
    int rx = 0, ry = 0;      // radii of the scale's ellipse
    TRect face;
};
TMeterGeometry MeterGeometry(int width, int height);
// The point of the round scale for a percentage: 0 at 50 degrees left of
// straight up, 100 at 50 degrees right.
TPoint MeterScalePoint(const TMeterGeometry &g, int percent);
// The offset along an edgewise scale `length` pixels long.
int EdgeOffset(int percent, int length);

class TqPanelMeter : public TGraphicControl
{
    Q_OBJECT
    Q_PROPERTY(int Width READ Width WRITE SetWidth STORED false)
    Q_PROPERTY(int Height READ Height WRITE SetHeight STORED false)
    Q_PROPERTY(int DragCursor READ DragCursor WRITE SetDragCursor)
    Q_PROPERTY(TDragMode DragMode READ DragMode WRITE SetDragMode)
    Q_PROPERTY(bool ParentFont READ ParentFont WRITE SetParentFont)
    Q_PROPERTY(bool ParentShowHint READ ParentShowHint WRITE SetParentShowHint)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)
    Q_PROPERTY(QFont Font READ Font WRITE SetFont)
    // The font's colour: what the caption is written in.
    Q_PROPERTY(TColor FontColor READ FontColor WRITE SetFontColor)
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(int Min READ Min WRITE SetScaledMin)
    Q_PROPERTY(int Max READ Max WRITE SetScaledMax)
    Q_PROPERTY(bool ShowAll READ ShowAll WRITE SetShowAll)
    Q_PROPERTY(bool UseAlert READ UseAlert WRITE SetUseAlert)
    Q_PROPERTY(qPanelType PanelType READ PanelType WRITE SetPanelType)
    Q_PROPERTY(TColor HouseColor READ HouseColor WRITE SetHouseColor)
    Q_PROPERTY(Graphics::TBrushStyle HouseStyle READ HouseStyle WRITE SetHouseStyle)
    Q_PROPERTY(TColor ShadowColor READ ShadowColor WRITE SetShadowColor)
    Q_PROPERTY(TColor HighColor READ HighColor WRITE SetHighColor)
    Q_PROPERTY(TColor FaceColor READ FaceColor WRITE SetFaceColor)
    Q_PROPERTY(TColor NormalColor READ NormalColor WRITE SetNormalColor)
    Q_PROPERTY(TColor AlertColor READ AlertColor WRITE SetAlertColor)
    Q_PROPERTY(bool Ticks READ Ticks WRITE SetTicks)
    Q_PROPERTY(int StepPerTick READ StepPerTick WRITE SetStep)
    Q_PROPERTY(int Alert READ Alert WRITE SetAlert)
    Q_PROPERTY(int Value READ Value WRITE SetValue)
    Q_PROPERTY(TColor Hand READ Hand WRITE SetHand)
    Q_PROPERTY(int ScaleWidth READ ScaleWidth WRITE SetScaleWidth)
    Q_PROPERTY(bool SteelLook READ SteelLook WRITE SetSteelLook)

public:
    enum qPanelType { qpStandard, qpEdgeHorz, qpEdgeVert };
    Q_ENUM(qPanelType)

    explicit TqPanelMeter(QWidget *parent = nullptr);

    // Longer captions are cut to 255 characters when drawn.
    QString Caption() const { return FCaption; }
    void SetCaption(const QString &caption);
    QString Text() const override { return FCaption; }
    void SetText(const QString &text) override { SetCaption(text); }
    int Min() const { return FMin; }
    // Not above Max; the value is clamped again.
    void SetScaledMin(int min);
    int Max() const { return FMax; }
    // Not below Min; the value is clamped again.
    void SetScaledMax(int max);
    bool ShowAll() const { return FShowAll; }
    void SetShowAll(bool show);
    bool UseAlert() const { return FUseAlert; }
    void SetUseAlert(bool use);
    qPanelType PanelType() const { return FPanelType; }
    void SetPanelType(qPanelType type);
    TColor HouseColor() const { return FHouseColor; }
    void SetHouseColor(TColor color);
    TBrushStyle HouseStyle() const { return FHouseStyle; }
    void SetHouseStyle(TBrushStyle style);
    // Setting either bevel colour turns SteelLook off.
    TColor ShadowColor() const { return FShadowColor; }
    void SetShadowColor(TColor color);
    TColor HighColor() const { return FHighColor; }
    void SetHighColor(TColor color);
    TColor FaceColor() const { return FFaceColor; }
    void SetFaceColor(TColor color);
    TColor NormalColor() const { return FNormalColor; }
    void SetNormalColor(TColor color);
    TColor AlertColor() const { return FAlertColor; }
    void SetAlertColor(TColor color);
    bool Ticks() const { return FTicks; }
    void SetTicks(bool ticks);
    // A tick at every multiple; 0 shows none.
    int StepPerTick() const { return FStep; }
    void SetStep(int step);
    // Kept in Min..Max; the alert state follows at the next SetValue.
    int Alert() const { return FAlert; }
    void SetAlert(int alert);
    int Value() const { return FValue; }
    // Read by a screen reader as a bar of Min..Max.
    QAccessible::Role AccessibleRole() const override { return QAccessible::ProgressBar; }
    bool AccessibleRange(TAccessibleRange &range) const override
    {
        range = {double(FMin), double(FMax), double(FValue), 1, true};
        return true;
    }
    // Clamps, raises OnAlert or OnNotAlert on a crossing, then OnChange
    // (every time, changed or not), and repaints at once.
    void SetValue(int value);
    TColor Hand() const { return FHand; }
    void SetHand(TColor color);
    int ScaleWidth() const { return FScaleWidth; }
    void SetScaleWidth(int width);
    // Steel housing; it replaces the bevel colours with grey and white.
    bool SteelLook() const { return FSteelLook; }
    void SetSteelLook(bool steel);

    bool AlertOn() const { return FAlertOn; }

signals:
    void OnPaint(QObject *Sender);
    void OnAlert(QObject *Sender);
    void OnNotAlert(QObject *Sender);
    void OnChange(QObject *Sender);

protected:
    void Paint(TCanvas &canvas) override;
    // The three looks, given Width - 1 and Height - 1: the dial (house,
    // bevels, face, scale, caption), or the needle over it.
    enum TMeterPart { mpDial, mpNeedle };
    void PaintSt(TCanvas &canvas, int W1, int H1, TMeterPart part);
    void PaintEH(TCanvas &canvas, int W1, int H1, TMeterPart part);
    void PaintEV(TCanvas &canvas, int W1, int H1, TMeterPart part);
    void Steel();
    void changeEvent(QEvent *event) override;

private:
    int percent(int value) const { return MeterPercent(value, FMin, FMax); }
    TColor scaleColor(int value) const { return FUseAlert && value >= FAlert ? FAlertColor : FNormalColor; }
    void edgeBevel(TCanvas &canvas, int a, int b, int W1, int H1);
    void paintDial(TCanvas &canvas);
    // Everything but the value changed: the dial is drawn again.
    void dialChanged()
    {
        FDialValid = false;
        Invalidate();
    }
    void caption(TCanvas &canvas, TRect face, unsigned flags);
    // Calls `mark(i, colour)` once for each whole percentage of the scale
    // that holds a value of Min..Max, with the last value there; with
    // `ticksOnly`, the last multiple of StepPerTick there instead.
    template <class Mark>
    void forEachMark(bool ticksOnly, Mark mark) const;

    QString FCaption;
    int FMin = 0;
    int FMax = 100;
    bool FShowAll = true;
    bool FUseAlert = true;
    qPanelType FPanelType = qpStandard;
    TColor FHouseColor = clBtnFace;
    TBrushStyle FHouseStyle = bsDiagCross;
    TColor FShadowColor = clBtnShadow;
    TColor FHighColor = clBtnHighlight;
    TColor FFaceColor = clWhite;
    TColor FNormalColor = clBlack;
    TColor FAlertColor = clRed;
    bool FTicks = true;
    int FStep = 10;
    int FAlert = 75;
    int FValue = 0;
    TColor FHand = clGreen;
    quint8 FScaleWidth = 2;
    bool FSteelLook = false;
    bool FAlertOn = false;
    // The dial as last drawn: a new value only draws the needle over it.
    QImage FDial;
    bool FDialValid = false;
};

using qPanelType = TqPanelMeter::qPanelType;
