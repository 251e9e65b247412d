#pragma once
// A caption that acts as a link: while the mouse is over it, it takes
// HotColor, an underline and the pointing hand; a click fires OnClick. Tab
// reaches it (a dotted frame shows the focus) and Enter or Space clicks it.
//
// Properties (defaults): Caption, FontColor (clBlue), HotColor (clRed),
// HotUnderline (true), Font, Alignment (taLeftJustify), Transparent (true),
// AutoSize (true), Color; OnClick, OnMouseEnter, OnMouseLeave.

#include "labels/qcaptionlabel.h"

class TqMouseSpot : public TCaptionLabel
{
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(TColor FontColor READ FontColor WRITE SetFontColor)
    Q_PROPERTY(TColor HotColor READ HotColor WRITE SetHotColor)
    Q_PROPERTY(bool HotUnderline READ HotUnderline WRITE SetHotUnderline)
    Q_PROPERTY(QFont Font READ Font WRITE SetFont)
    Q_PROPERTY(Controls::TAlignment Alignment READ Alignment WRITE SetAlignment)
    Q_PROPERTY(bool Transparent READ Transparent WRITE SetTransparent)
    Q_PROPERTY(bool AutoSize READ AutoSize WRITE SetAutoSize)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)

public:
    explicit TqMouseSpot(QWidget *parent = nullptr);

    TColor HotColor() const { return FHotColor; }
    void SetHotColor(TColor color);
    bool HotUnderline() const { return FUnderline; }
    void SetHotUnderline(bool underline);
    // Whether the mouse is over it now.
    bool Hot() const { return FHot; }

    QAccessible::Role AccessibleRole() const override { return QAccessible::Link; }
    bool AccessiblePress() override;

protected:
    void PaintCaption(TCanvas &canvas, QPoint at) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    TColor FHotColor = clRed;
    bool FUnderline = true;
    bool FHot = false;
};
