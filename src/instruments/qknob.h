#pragma once
// The rotary knob: a shaded, round knob on a square control whose pointer
// shows an integer value between Min and Max, with tick marks around it.
// The value follows the mouse angle around the centre, or the keyboard.
// The double and triple knobs derive from it and add inner discs; the disc
// logic here serves all three.

#include "host/tcontrol.h"
#include "host/tlayer.h"
#include "host/tregion.h"

#include <array>
#include <functional>

// The mathematical angle of (x, y) around (cx, cy) in whole degrees,
// counter-clockwise from the positive x axis with y pointing down: 0..360,
// except -90 straight below the centre and 90 straight above it.
int PointAngle(int cx, int cy, int x, int y);
// The value a mouse point stands for on a knob `width` pixels across: the
// sweep runs 290 degrees clockwise from lower left to lower right; of the
// dead zone at the bottom, the part next to the Max end gives Max, the part
// next to the Min end gives Min.
int KnobWhere(int width, int x, int y, int min, int max);
// The pointer's direction for a value, in radians clockwise from straight
// up: Min at -144 degrees, Max at +144.
double KnobPointerAngle(int value, int min, int max);
// The end of a line `length` long from the centre (c, c) at `angle`.
TPoint KnobRayEnd(int c, int length, double angle);
// Disc n (1 outer, 2, 3 inner) of a knob `width` pixels across, and the
// length of its pointer.
TRect KnobDisc(int width, int disc);
int KnobPointerLength(int width, int disc, int pointWidth);

class TqKnob : public TCustomControl
{
    Q_OBJECT
    Q_PROPERTY(int Width READ Width WRITE SetheightWidth STORED false)
    Q_PROPERTY(int Height READ Height WRITE SetheightWidth STORED false)
    Q_PROPERTY(int Cursor READ Cursor WRITE SetCursor)
    Q_PROPERTY(QString Hint READ Hint WRITE SetHint)
    Q_PROPERTY(bool HideReflex READ HideReflex WRITE SetNoReflex)
    Q_PROPERTY(int Min READ Min WRITE SetScaledMin)
    Q_PROPERTY(int Max READ Max WRITE SetScaledMax)
    Q_PROPERTY(bool Ticks READ Ticks WRITE SetTicks)
    Q_PROPERTY(TColor TickColor READ TickColor WRITE SetTickColor)
    Q_PROPERTY(int StepPerTick READ StepPerTick WRITE SetStep)
    Q_PROPERTY(TColor PointColor READ PointColor WRITE SetPoint)
    Q_PROPERTY(int PointWidth READ PointWidth WRITE SetPointW)
    Q_PROPERTY(KnobColorType KnobColor READ KnobColor WRITE SetKnobCol)
    Q_PROPERTY(int Value READ Value WRITE SetKnobValue)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(bool ParentColor READ ParentColor WRITE SetParentColor)
    Q_PROPERTY(bool SteelLook READ SteelLook WRITE SetSteel)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(bool ParentShowHint READ ParentShowHint WRITE SetParentShowHint)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)
    Q_PROPERTY(bool Enabled READ Enabled WRITE SetEnabled)
    Q_PROPERTY(bool TabStop READ TabStop WRITE SetTabStop)

public:
    enum KnobColorType { kcRed, kcBlue, kcGreen, kcYellow, kcMagenta, kcSilver, kcCyan, kcWhite };
    Q_ENUM(KnobColorType)

    explicit TqKnob(QWidget *parent = nullptr);

    // Both Width and Height: the knob is square.
    void SetheightWidth(int size);
    bool HideReflex() const { return FHideReflex; }
    void SetNoReflex(bool hide);
    int Min() const { return FMin; }
    // Not above Max; every disc's value is applied again (OnChange each).
    virtual void SetScaledMin(int min);
    int Max() const { return FMax; }
    // Not below Min; every disc's value is applied again.
    virtual void SetScaledMax(int max);
    bool Ticks() const { return FTicks; }
    void SetTicks(bool ticks);
    TColor TickColor() const { return FTickColor; }
    void SetTickColor(TColor color);
    // A tick at every multiple; 0 draws none.
    int StepPerTick() const { return FStep; }
    void SetStep(int step);
    TColor PointColor() const { return FPointColor; }
    void SetPoint(TColor color);
    // 1..5: the pointer's pen width, which also shortens it.
    int PointWidth() const { return FPointWidth; }
    void SetPointW(int width);
    KnobColorType KnobColor() const { return FKnobColor; }
    void SetKnobCol(KnobColorType color);
    int Value() const { return FValue; }
    // Read and turned by a screen reader as a dial.
    QAccessible::Role AccessibleRole() const override { return QAccessible::Dial; }
    bool AccessibleRange(TAccessibleRange &range) const override
    {
        range = {double(FMin), double(FMax), double(FValue), 1, false};
        return true;
    }
    void SetAccessibleValue(double value) override { SetKnobValue(qRound(value)); }
    // Clamps into Min..Max, raises OnChange (every call), OnMinimum or
    // OnMaximum when the requested value is that bound, and repaints at once.
    void SetKnobValue(int value);
    bool SteelLook() const { return FSteel; }
    void SetSteel(bool steel);

    // The light, body and dark shades of a knob colour.
    static std::array<TColor, 3> Shades(KnobColorType color);
    // Disc n's hit area (empty until the knob has a parent or is loaded).
    const TRegion &DiscRegion(int disc) const { return FRegions[size_t(disc - 1)]; }

signals:
    void OnPaint(QObject *Sender);
    void OnChange(QObject *Sender);
    void OnMinimum(QObject *Sender);
    void OnMaximum(QObject *Sender);

public:
    // The value for a mouse point (see KnobWhere).
    virtual int Where(int X, int Y);
    virtual void NewPosition(int X, int Y) { SetKnobValue(Where(X, Y)); }
    void SetBounds(int left, int top, int width, int height) override;

protected:
    void Loaded() override;
    void Paint(TCanvas &canvas) override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void MouseMove(TShiftState Shift, int X, int Y) override;
    void MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void KeyDown(quint16 &Key, TShiftState Shift) override;
    void DoEnter() override;
    void DoExit() override;
    // A knob put on a parent later gets its hit regions there.
    bool event(QEvent *event) override;

    void DrawTick(TCanvas &canvas, int centre);
    void DrawReflex(TCanvas &canvas, int diameter, const TRect &disc, int shift);
    // One disc: the body with its depth, the reflexes, the outline and the
    // pointer. `depth` offset outlines give it its edge toward the lower right.
    void PaintDisc(TCanvas &canvas, const TRect &disc, int depth, int value, int pointerLength);
    // The same in two steps: the disc without its pointer (the reflexes
    // follow the value's parity), then the pointer alone.
    void PaintDiscBody(TCanvas &canvas, const TRect &disc, int depth, int parity);
    void PaintPointer(TCanvas &canvas, int value, int pointerLength);

    // The discs: how many, their values, the setter of each, which one the
    // modifier keys pick, and the depth divisor of the inner ones.
    virtual int Discs() const { return 1; }
    virtual int DiscValue(int disc) const { Q_UNUSED(disc); return FValue; }
    virtual void SetDiscValue(int disc, int value) { Q_UNUSED(disc); SetKnobValue(value); }
    virtual int KeyDisc(TShiftState Shift) const { Q_UNUSED(Shift); return 1; }
    // Clamps `value` into `field`, raises OnChange and the bound events of
    // the requested value, and repaints: the rule every disc's setter keeps.
    void ApplyValue(int &field, int value, const std::function<void()> &atMin,
                    const std::function<void()> &atMax);

private:
    // What the still parts of the picture depend on; when it changes, the
    // kept pictures are made again.
    struct TPictureKey
    {
        int width = -1, step = 0, min = 0, max = 0, discs = 0;
        TColor color = 0, tickColor = 0;
        bool steel = false, ticks = false, hideReflex = false;
        std::array<TColor, 3> shades{};
        bool operator==(const TPictureKey &o) const
        {
            return width == o.width && step == o.step && min == o.min && max == o.max && discs == o.discs
                && color == o.color && tickColor == o.tickColor && steel == o.steel && ticks == o.ticks
                && hideReflex == o.hideReflex && shades == o.shades;
        }
    };
    // Background, ticks, ring and outer disc, by the value's parity; and
    // the inner discs as layers, by their values' parity.
    const QImage &basePicture(int parity);
    const TLayer &discLayer(int disc, int parity);
    void paintBase(TCanvas &canvas, int parity);
    void buildRegions();
    // The first disc being dragged follows the point.
    void moveDragged(int X, int Y);

    bool FHideReflex = false;
    int FMin = 0;
    int FMax = 100;
    bool FTicks = true;
    TColor FTickColor = clBlack;
    int FStep = 10;
    TColor FPointColor = clRed;
    quint8 FPointWidth = 1;
    KnobColorType FKnobColor = kcSilver;
    std::array<TColor, 3> FShades{clWhite, clSilver, clGray};
    int FValue = 0;
    bool FSteel = false;
    std::array<TRegion, 3> FRegions;
    std::array<bool, 3> FDragging{};
    TPictureKey FPictureKey;
    std::array<QImage, 2> FBase;
    std::array<std::array<TLayer, 2>, 2> FInnerDiscs;   // discs 2 and 3
};

using KnobColorType = TqKnob::KnobColorType;
