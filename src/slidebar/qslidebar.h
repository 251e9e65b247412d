#pragma once
// The slide bar: a track with tick marks and a thumb in one of sixteen
// shapes, holding a value between Min and Max that the user drags, clicks
// toward or keys. Horizontal or vertical by its shape; it draws no text,
// but keeps a text per value for the application (CurrentLabel).

#include "host/tcontrol.h"

#include <QImage>
#include <QStringList>

// Where things go on a bar of W x H with a thumb of tw x th.
struct TSlideGeometry
{
    int W = 0, H = 0, tw = 0, th = 0;
    bool vertical = false;

    // The groove's corners, from one thumb centre at the end of the travel
    // to the other; `thickness` across.
    TRect Groove(int thickness) const;
    // The thumb's rectangle for a value.
    TRect Thumb(int value, int min, int max) const;
    // The value for a mouse point: the whole control spans the range.
    int ValueAt(int x, int y, int min, int max) const;
    // Where the tick of value v lies along the groove (x, or y when
    // vertical), the last one pinned to the groove's end.
    int TickAt(int v, int min, int max, const TRect &groove) const;
};

class TqSlideBar : public TCustomControl
{
    Q_OBJECT
    Q_PROPERTY(int Height READ Height WRITE SetHeight STORED false)
    Q_PROPERTY(int Cursor READ Cursor WRITE SetCursor)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(bool SteelLook READ SteelLook WRITE SetSteel)
    Q_PROPERTY(int TickSpace READ TickSpace WRITE SetTickSpace)
    Q_PROPERTY(int TickSize READ TickSize WRITE SetTickSize)
    Q_PROPERTY(TqTickStyle TickStyle READ TickStyle WRITE SetTickStyle)
    Q_PROPERTY(TBarTickStyle TickWhere READ TickWhere WRITE SetTickWhere)
    Q_PROPERTY(int StepPerTick READ StepPerTick WRITE SetStepPerTick)
    Q_PROPERTY(TColor FocusColor READ FocusColor WRITE SetFocusColor)
    Q_PROPERTY(TColor NonFocusColor READ NonFocusColor WRITE SetNonFocusColor)
    Q_PROPERTY(QStringList Labels READ Labels WRITE SetLabels)
    Q_PROPERTY(int Max READ Max WRITE SetMax)
    Q_PROPERTY(int Min READ Min WRITE SetMin)
    Q_PROPERTY(TOrientation Orientation READ Orientation WRITE SetOrientation)
    Q_PROPERTY(int Value READ Value WRITE SetPosition)
    Q_PROPERTY(int Thickness READ Thickness WRITE SetThickness)
    Q_PROPERTY(TThumbStyle ThumbStyle READ ThumbStyle WRITE SetThumbStyle)
    Q_PROPERTY(bool Ticks READ Ticks WRITE SetTicks)
    Q_PROPERTY(TBarStyle Style READ Style WRITE SetStyle)
    Q_PROPERTY(bool TabStop READ TabStop WRITE SetTabStop)
    Q_PROPERTY(bool ParentShowHint READ ParentShowHint WRITE SetParentShowHint)
    Q_PROPERTY(bool Enabled READ Enabled WRITE SetEnabled)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)

public:
    enum TBarStyle { bsLowered, bsRaised };
    Q_ENUM(TBarStyle)
    enum TBarTickStyle { ttsLeft, ttsRight, ttsBoth };
    Q_ENUM(TBarTickStyle)
    enum TOrientation { orVertical, orHorizontal };
    Q_ENUM(TOrientation)
    enum TqTickStyle { tsNormal, tsOwnerDraw };
    Q_ENUM(TqTickStyle)
    enum TThumbStyle {
        tsHorzHigh, tsVertHigh, tsHorzLow, tsVertLow, tsSquare, tsSquarehollow, tsLeft, tsRight, tsTop, tsBottom,
        tsRound, tsHorzRound, tsSquarehollowHorz, tsSquarehollowVert, tsSquarehollowHLine, tsSquarehollowVLine
    };
    Q_ENUM(TThumbStyle)

    explicit TqSlideBar(QWidget *parent = nullptr);

    // The thumbs are drawn in this colour: a new one rebuilds them.
    void SetColor(TColor color) override;
    bool SteelLook() const { return FSteel; }
    void SetSteel(bool steel);
    int TickSpace() const { return FTickSpace; }
    void SetTickSpace(int space);
    int TickSize() const { return FTickSize; }
    void SetTickSize(int size);
    TqTickStyle TickStyle() const { return FTickStyle; }
    void SetTickStyle(TqTickStyle style);
    TBarTickStyle TickWhere() const { return FTickWhere; }
    void SetTickWhere(TBarTickStyle where);
    // A tick every this many values from Min (at least 1).
    int StepPerTick() const { return FStepPerTick; }
    void SetStepPerTick(int step);
    TColor FocusColor() const { return FFocusColor; }
    void SetFocusColor(TColor color);
    TColor NonFocusColor() const { return FNonFocusColor; }
    void SetNonFocusColor(TColor color);
    QStringList Labels() const { return FLabels; }
    void SetLabels(const QStringList &labels) { FLabels = labels; }
    // Labels[Value - Min], or empty when there is none.
    QString CurrentLabel() const;
    int Max() const { return FMax; }
    // Ignored unless above Min; Value is not clamped again.
    void SetMax(int max);
    int Min() const { return FMin; }
    // Ignored unless below Max; Value is not clamped again.
    void SetMin(int min);
    // Follows the shape: vertical when taller than wide.
    TOrientation Orientation() const { return FOrientation; }
    void SetOrientation(TOrientation orientation);
    int Value() const { return FValue; }
    QAccessible::Role AccessibleRole() const override { return QAccessible::Slider; }
    bool AccessibleRange(TAccessibleRange &range) const override
    {
        range = {double(FMin), double(FMax), double(FValue), 1, false};
        return true;
    }
    void SetAccessibleValue(double value) override { SetPosition(qRound(value)); }
    // Nothing when unchanged; a value outside Min..Max is not taken, but
    // the events still come (outside the designer): OnChange, then
    // OnMinimum or OnMaximum when Value sits on that bound.
    void SetPosition(int value);
    // 1..10; other values are ignored.
    int Thickness() const { return FThickness; }
    void SetThickness(int thickness);
    TThumbStyle ThumbStyle() const { return FThumbStyle; }
    void SetThumbStyle(TThumbStyle style);
    bool Ticks() const { return FTicks; }
    void SetTicks(bool ticks);
    TBarStyle Style() const { return FStyle; }
    void SetStyle(TBarStyle style);

    bool IsVert() const { return FOrientation == orVertical; }
    // Where the thumb is now (the mouse's hit area for dragging).
    TRect ThumbRect() const { return FThumbRect; }
    const QImage &ThumbImage() const { return FThumb; }
    const QImage &ThumbMask() const { return FThumbMask; }
    TSlideGeometry Geometry() const;

    void SetBounds(int left, int top, int width, int height) override;

signals:
    void OnChange(QObject *Sender);
    void OnMinimum(QObject *Sender);
    void OnMaximum(QObject *Sender);
    // A tick to draw: its start point on the canvas, whether it is a left
    // (or top) tick, and its number from Min.
    void OnOwnerDraw(TCanvas *Canvas, int X, int Y, bool Left, int TickNum);

protected:
    // The value for a mouse point.
    virtual int NewPosition(int X, int Y);
    // Places the thumb for the current value.
    virtual void WhereIsBar();
    virtual void SetTLColor(TCanvas &canvas);
    virtual void SetBRColor(TCanvas &canvas);

    void Paint(TCanvas &canvas) override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void MouseMove(TShiftState Shift, int X, int Y) override;
    void MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void KeyDown(quint16 &Key, TShiftState Shift) override;
    void DoEnter() override;
    void DoExit() override;

private:
    // Background, groove and ticks: everything but the thumb.
    void paintTrack(TCanvas &canvas);
    // The track picture is kept while nothing it shows changes (owner-drawn
    // ticks are the application's, drawn every time).
    QByteArray trackKey() const;
    void paintTicks(TCanvas &canvas, const TRect &groove);
    void tick(TCanvas &canvas, int along, int from, int length, bool left, int number);

    bool FSteel = false;
    int FTickSpace = 3;
    int FTickSize = 4;
    TqTickStyle FTickStyle = tsNormal;
    TBarTickStyle FTickWhere = ttsBoth;
    int FStepPerTick = 1;
    TColor FFocusColor = clActiveCaption;
    TColor FNonFocusColor = clBtnFace;
    QStringList FLabels;
    int FMax = 10;
    int FMin = 0;
    TOrientation FOrientation = orHorizontal;
    int FValue = 0;
    quint8 FThickness = 2;
    TThumbStyle FThumbStyle = tsVertHigh;
    bool FTicks = true;
    TBarStyle FStyle = bsLowered;
    QImage FThumb;
    QImage FThumbMask;
    int FHalfThumbW = 0;
    int FHalfThumbH = 0;
    TRect FThumbRect;
    bool FDragging = false;
    int FDragAnchor = 0;
    QByteArray FTrackKey;
    QImage FTrack;
};
