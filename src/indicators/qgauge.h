#pragma once
// The gauge: a value between Min and Max shown as a bar filled from the
// left, continuous with a formatted caption or as a row of blocks, plain or
// cut from a tiled picture, inside bevels and a frame.

#include "host/tbitmap.h"
#include "host/tcontrol.h"

#include <QPixmap>

#include <vector>

// The bar area inside bevels, frame and margin.
struct TGaugeLayout
{
    TRect bar;
    int fillEnd = 0;   // x where the filled part ends
};
TGaugeLayout GaugeLayout(int width, int height, int outerWidth, int innerWidth, int frameWidth, int margin,
                         int value, int min, int max);
// The blocks lit from `bar.Left` up to `fillEnd`, and the gaps between them.
struct TGaugeBlocks
{
    std::vector<TRect> lit;
    std::vector<TRect> gaps;   // filled with the background, the rest of the bar included
};
TGaugeBlocks GaugeBlocks(const TRect &bar, int fillEnd, int count, int spacing);

class TqGauge : public TGraphicControl
{
    Q_OBJECT
    Q_PROPERTY(int Width READ Width WRITE SetWidth STORED false)
    Q_PROPERTY(int Height READ Height WRITE SetHeight STORED false)
    Q_PROPERTY(QPixmap Glyph READ Glyph WRITE SetGlyph)
    Q_PROPERTY(int Percent READ Percent WRITE SetPercent STORED false)
    Q_PROPERTY(QFont Font READ Font WRITE SetFont)
    Q_PROPERTY(bool DrawOnlyWhenPCTChange READ DrawOnlyWhenPCTChange WRITE SetDrawOnlyWhenPCTChange)
    Q_PROPERTY(bool ParentFont READ ParentFont WRITE SetParentFont)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(bool ParentColor READ ParentColor WRITE SetParentColor)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(gaCaptionStyle CaptionStyle READ CaptionStyle WRITE SetCaptionStyle)
    Q_PROPERTY(TColor BarColor READ BarColor WRITE SetBarColor)
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(Controls::TPanelBevel BevelInner READ BevelInner WRITE SetBevelInner)
    Q_PROPERTY(Controls::TPanelBevel BevelOuter READ BevelOuter WRITE SetBevelOuter)
    Q_PROPERTY(int BevelWidth READ BevelWidth WRITE SetBevelWidth)
    Q_PROPERTY(int Min READ Min WRITE SetMin)
    Q_PROPERTY(int Max READ Max WRITE SetMax)
    Q_PROPERTY(int Value READ Value WRITE SetValue)
    Q_PROPERTY(int Margin READ Margin WRITE SetMargin)
    Q_PROPERTY(int SpaceBetweenLed READ SpaceBetweenLed WRITE SetSpaceBetweenLed)
    Q_PROPERTY(int NumberOfLed READ NumberOfLed WRITE SetNumberOfLed)
    Q_PROPERTY(int FrameWidth READ FrameWidth WRITE SetFrameWidth)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)
    Q_PROPERTY(int DragCursor READ DragCursor WRITE SetDragCursor)
    Q_PROPERTY(TDragMode DragMode READ DragMode WRITE SetDragMode)

public:
    // Which numbers the caption format receives: the percentage, the value,
    // or both in either order.
    enum gaCaptionStyle { gaPctBar, gaTotalBar, gaTotPct, gaPctTot };
    Q_ENUM(gaCaptionStyle)

    explicit TqGauge(QWidget *parent = nullptr);

    // A copy of the picture is kept and tiled under the filled part.
    QPixmap Glyph() const { return FGlyphPixmap; }
    void SetGlyph(const QPixmap &glyph);
    // (Value - Min) * 100 div (Max - Min), as a byte; writing sets Value.
    int Percent() const;
    void SetPercent(int percent);
    bool DrawOnlyWhenPCTChange() const { return FPctOnly; }
    void SetDrawOnlyWhenPCTChange(bool only) { FPctOnly = only; }
    gaCaptionStyle CaptionStyle() const { return FCaptionStyle; }
    void SetCaptionStyle(gaCaptionStyle style);
    TColor BarColor() const { return FBarColor; }
    void SetBarColor(TColor color);
    // A format for the framework's Format; empty shows no caption.
    QString Caption() const { return FCaption; }
    void SetCaption(const QString &caption);
    TPanelBevel BevelInner() const { return FBevelInner; }
    void SetBevelInner(TPanelBevel bevel);
    TPanelBevel BevelOuter() const { return FBevelOuter; }
    void SetBevelOuter(TPanelBevel bevel);
    int BevelWidth() const { return FBevelWidth; }
    void SetBevelWidth(int width);
    int Min() const { return FMin; }
    void SetMin(int min);
    // Always at least Min + 1.
    int Max() const { return FMax; }
    void SetMax(int max);
    int Value() const { return FValue; }
    // Read by a screen reader as a bar of Min..Max.
    QAccessible::Role AccessibleRole() const override { return QAccessible::ProgressBar; }
    bool AccessibleRange(TAccessibleRange &range) const override
    {
        range = {double(FMin), double(FMax), double(FValue), 1, true};
        return true;
    }
    void SetValue(int value);
    void AddValue(int delta) { SetValue(FValue + delta); }
    int Margin() const { return FMargin; }
    void SetMargin(int margin);
    int SpaceBetweenLed() const { return FSpace; }
    void SetSpaceBetweenLed(int space);
    // 0 draws the continuous bar.
    int NumberOfLed() const { return FLeds; }
    void SetNumberOfLed(int count);
    int FrameWidth() const { return FFrameWidth; }
    void SetFrameWidth(int width);

    // The caption as painted now (empty in block mode or without a caption).
    QString CaptionText() const;
    // The glyph tiled to the control's size (empty without a glyph).
    const TBitmap &PreparedBitmap() const { return FPrepared; }

signals:
    void OnMinimum(QObject *Sender);
    void OnMaximum(QObject *Sender);
    void OnPaint(QObject *Sender);

protected:
    void Loaded() override;
    void Paint(TCanvas &canvas) override;
    // Tiles the glyph over the prepared bitmap at the control's size.
    virtual void DoTheBitmap();
    virtual void CallMinimum();
    virtual void CallMaximum();

private:
    TGaugeLayout layout() const;
    void paintBlocks(TCanvas &canvas, const TGaugeLayout &l);
    void paintBar(TCanvas &canvas, const TGaugeLayout &l);

    QPixmap FGlyphPixmap;
    QImage FGlyph;
    TBitmap FPrepared;
    bool FPctOnly = false;
    gaCaptionStyle FCaptionStyle = gaPctBar;
    TColor FBarColor = 0xFF00FF;
    QString FCaption;
    TPanelBevel FBevelInner = bvNone;
    TPanelBevel FBevelOuter = bvRaised;
    int FBevelWidth = 1;
    int FMin = 0;
    int FMax = 100;
    int FValue = 0;
    quint8 FMargin = 1;
    quint8 FSpace = 1;
    int FLeds = 0;
    quint8 FFrameWidth = 0;
};

using gaCaptionStyle = TqGauge::gaCaptionStyle;
