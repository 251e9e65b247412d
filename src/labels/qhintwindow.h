#pragma once
// The window a TqHint shows the tips in: a frameless tool window, shaped to
// its picture (the shadow is part of the shape), that never takes the
// focus or the mouse.

#include "host/tapplication.h"
#include "host/tregion.h"
#include "labels/qhint.h"

#include <QImage>
#include <QPolygon>
#include <QWidget>

// Where a tip's pieces lie, in the window's coordinates, and where the
// window goes on the screen.
struct THintLayout
{
    QRect geometry;     // the window on the screen, shadow included
    QRect body;         // the framed box the text sits in
    QPolygon tail;      // a balloon's tail (empty for the other shapes)
    bool below = true;  // the tip hangs below the mouse (else above it)
};

// The tail of a balloon: this high, its point above (or below) the body's
// left + TailAt, its base TailBase wide.
constexpr int kHintTailHeight = 16;
constexpr int kHintTailAt = 10;
constexpr int kHintTailBase = 12;

// For a text `text` pixels big: below the mouse at `cursor` if it fits on
// `screen`, else above it, pushed sideways onto the screen.
THintLayout HintLayout(QSize text, int margin, TqHint::TqHintShape shape, int shadowDepth, QPoint cursor,
                       const QRect &screen);
// The area the shape covers (without its shadow).
TRegion HintShapeRegion(const THintLayout &layout, TqHint::TqHintShape shape, int roundSize);

class TqHintWindow : public QWidget, public THintWindow
{
    Q_OBJECT
public:
    explicit TqHintWindow(const TqHint *hint);

    void ActivateHint(const QString &text, const THintInfo &info) override;
    void HideHint() override;
    bool HintShown() const override { return isVisible(); }

    // What the window shows now, and the text it shows.
    const QImage &Picture() const { return FPicture; }
    QString Text() const { return FText; }
    const THintLayout &Layout() const { return FLayout; }

    // Lays out and draws `text` for the mouse at `cursor` without showing.
    void Prepare(const QString &text, QPoint cursor, TColor color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const TqHint *FHint;
    QString FText;
    THintLayout FLayout;
    QImage FPicture;
};
