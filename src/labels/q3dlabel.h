#pragma once
// A caption raised from the panel or pressed into it: raised, the highlight
// copy lies Depth pixels up and left and the shadow copy down and right;
// lowered, the other way round; the caption in FontColor on top.
//
// Properties (defaults): Caption, Style (ts3DRaised), Depth (1),
// HighlightColor (clBtnHighlight), ShadowColor (clBtnShadow), FontColor
// (clBlack), Font, Alignment (taLeftJustify), Transparent (true), AutoSize
// (true), Color.

#include "labels/qcaptionlabel.h"

class Tq3DLabel : public TCaptionLabel
{
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(Tq3DStyle Style READ Style WRITE SetStyle)
    Q_PROPERTY(int Depth READ Depth WRITE SetDepth)
    Q_PROPERTY(TColor HighlightColor READ HighlightColor WRITE SetHighlightColor)
    Q_PROPERTY(TColor ShadowColor READ ShadowColor WRITE SetShadowColor)
    Q_PROPERTY(TColor FontColor READ FontColor WRITE SetFontColor)
    Q_PROPERTY(QFont Font READ Font WRITE SetFont)
    Q_PROPERTY(Controls::TAlignment Alignment READ Alignment WRITE SetAlignment)
    Q_PROPERTY(bool Transparent READ Transparent WRITE SetTransparent)
    Q_PROPERTY(bool AutoSize READ AutoSize WRITE SetAutoSize)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)

public:
    enum Tq3DStyle { ts3DRaised, ts3DLowered };
    Q_ENUM(Tq3DStyle)

    explicit Tq3DLabel(QWidget *parent = nullptr);

    Tq3DStyle Style() const { return FStyle; }
    void SetStyle(Tq3DStyle style);
    int Depth() const { return FDepth; }
    void SetDepth(int depth);
    TColor HighlightColor() const { return FHighlight; }
    void SetHighlightColor(TColor color);
    TColor ShadowColor() const { return FShadow; }
    void SetShadowColor(TColor color);

protected:
    QMargins Decoration() const override { return QMargins(FDepth, FDepth, FDepth, FDepth); }
    void PaintCaption(TCanvas &canvas, QPoint at) override;

private:
    Tq3DStyle FStyle = ts3DRaised;
    int FDepth = 1;
    TColor FHighlight = clBtnHighlight;
    TColor FShadow = clBtnShadow;
};
