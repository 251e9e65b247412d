#pragma once
// The bar of a splitter panel: dragged with the left button, it shows a
// rubber band where it would go and, on release, moves there and tells its
// panel, which shifts the controls on either side by the same distance.

#include "host/tpanel.h"

#include <QPointer>

class QRubberBand;
class TqVerSplit;

class TqSplit : public TCustomPanel
{
    Q_OBJECT
public:
    TqSplit(TqVerSplit *panel, bool vertical);

    bool Vertical() const { return FVertical; }
    void SetVertical(bool vertical) { FVertical = vertical; }
    bool Dragging() const { return FDragging; }

protected:
    void Paint(TCanvas &canvas) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QRect dragRect() const;

    TqVerSplit *FPanel;
    bool FVertical;
    bool FDragging = false;
    QPoint FStart;           // the pointer at the press, in the bar
    QPoint FOffset;          // the pointer now, clamped to the parent
    QRect FBoundsAtPress;
    QPointer<QRubberBand> FBand;
};
