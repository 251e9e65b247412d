#pragma once
// A large caption for panel titles: an outline OutlineWidth pixels wide in
// OutlineColor round the letters, and a shadow of the outlined letters
// ShadowDepth pixels down and right in ShadowColor (no shadow at depth 0).
//
// Properties (defaults): Caption, FontColor (clYellow), OutlineColor
// (clBlack), OutlineWidth (1), ShadowColor (clGray), ShadowDepth (3), Font
// (20 points, bold), Alignment (taLeftJustify), Transparent (true),
// AutoSize (true), Color.

#include "labels/qcaptionlabel.h"

class TqBigLabel : public TCaptionLabel
{
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(TColor FontColor READ FontColor WRITE SetFontColor)
    Q_PROPERTY(TColor OutlineColor READ OutlineColor WRITE SetOutlineColor)
    Q_PROPERTY(int OutlineWidth READ OutlineWidth WRITE SetOutlineWidth)
    Q_PROPERTY(TColor ShadowColor READ ShadowColor WRITE SetShadowColor)
    Q_PROPERTY(int ShadowDepth READ ShadowDepth WRITE SetShadowDepth)
    Q_PROPERTY(QFont Font READ Font WRITE SetFont)
    Q_PROPERTY(Controls::TAlignment Alignment READ Alignment WRITE SetAlignment)
    Q_PROPERTY(bool Transparent READ Transparent WRITE SetTransparent)
    Q_PROPERTY(bool AutoSize READ AutoSize WRITE SetAutoSize)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(QString Hint READ Hint WRITE SetHint)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)

public:
    explicit TqBigLabel(QWidget *parent = nullptr);

    TColor OutlineColor() const { return FOutlineColor; }
    void SetOutlineColor(TColor color);
    int OutlineWidth() const { return FOutlineWidth; }
    void SetOutlineWidth(int width);
    TColor ShadowColor() const { return FShadowColor; }
    void SetShadowColor(TColor color);
    int ShadowDepth() const { return FShadowDepth; }
    void SetShadowDepth(int depth);

protected:
    QMargins Decoration() const override;
    void PaintCaption(TCanvas &canvas, QPoint at) override;

private:
    void outlined(TCanvas &canvas, QPoint at, TColor outline, TColor face);

    TColor FOutlineColor = clBlack;
    int FOutlineWidth = 1;
    TColor FShadowColor = clGray;
    int FShadowDepth = 3;
};
