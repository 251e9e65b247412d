#include "tqsplit.h"

#include "layout/qversplit.h"

#include <QMouseEvent>
#include <QRubberBand>

TqSplit::TqSplit(TqVerSplit *panel, bool vertical) : TCustomPanel(panel), FPanel(panel), FVertical(vertical)
{
    SetBevelOuter(bvNone);
}

void TqSplit::Paint(TCanvas &canvas)
{
    if (!FPanel->NewLook()) {
        PaintPanel(canvas);
        return;
    }
    // Two flat raised strips.
    const int w = Width(), h = Height();
    canvas.Brush.SetStyle(bsSolid);
    canvas.Brush.SetColor(FPanel->Color());
    canvas.FillRect(Rect(0, 0, w, h));
    canvas.Pen.SetWidth(1);
    canvas.Pen.SetStyle(psSolid);
    const auto line = [&](TColor color, std::initializer_list<TPoint> points) {
        canvas.Pen.SetColor(color);
        const TPoint *p = points.begin();
        canvas.MoveTo(p->X, p->Y);
        for (++p; p != points.end(); ++p)
            canvas.LineTo(p->X, p->Y);
    };
    if (FVertical) {
        const int m = w / 2;
        line(clBtnHighlight, {{m - 1, 0}, {0, 0}, {0, h - 1}});
        line(clBtnHighlight, {{w - 1, 0}, {m, 0}, {m, h - 1}});
        line(clBtnShadow, {{m - 1, 0}, {m - 1, h - 1}, {0, h - 1}});
        line(clBtnShadow, {{w - 1, 0}, {w - 1, h - 1}, {m, h - 1}});
    } else {
        const int m = h / 2;
        line(clBtnHighlight, {{w - 1, 0}, {0, 0}, {0, m - 1}});
        line(clBtnHighlight, {{w - 1, m}, {0, m}, {0, h - 1}});
        line(clBtnShadow, {{w - 1, 0}, {w - 1, m - 1}, {0, m - 1}});
        line(clBtnShadow, {{w - 1, m}, {w - 1, h - 1}, {0, h - 1}});
    }
}

// Where the bar would go, in the panel.
QRect TqSplit::dragRect() const
{
    return QRect(FBoundsAtPress.left() + FOffset.x() - FStart.x(), FBoundsAtPress.top() + FOffset.y() - FStart.y(),
                 FBoundsAtPress.width(), FBoundsAtPress.height());
}

void TqSplit::mousePressEvent(QMouseEvent *event)
{
    TCustomPanel::mousePressEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    FBoundsAtPress = geometry();
    FStart = FOffset = event->position().toPoint();
    FDragging = true;
    if (!FBand)
        FBand = new QRubberBand(QRubberBand::Rectangle, FPanel);
    FBand->setGeometry(dragRect());
    FBand->show();
}

void TqSplit::mouseMoveEvent(QMouseEvent *event)
{
    TCustomPanel::mouseMoveEvent(event);
    if (!FDragging)
        return;
    const QPoint p = event->position().toPoint();
    const int pw = FPanel->width(), ph = FPanel->height();
    if (FVertical)
        FOffset = QPoint(qMax(-Left(), qMin(p.x(), pw - Left() - Width())), FStart.y());
    else
        FOffset = QPoint(FStart.x(), qMax(-Top(), qMin(p.y(), ph - Top() - Height())));
    if (FBand)
        FBand->setGeometry(dragRect());
}

void TqSplit::mouseReleaseEvent(QMouseEvent *event)
{
    TCustomPanel::mouseReleaseEvent(event);
    if (!FDragging || event->button() != Qt::LeftButton)
        return;
    FDragging = false;
    if (FBand)
        FBand->hide();
    const QPoint p = event->position().toPoint();
    if (!DragUnmoved(FStart, p)) {
        if (FVertical)
            move(Left() + p.x() - FStart.x(), Top());
        else
            move(Left(), Top() + p.y() - FStart.y());
    }
    // Inside the panel.
    const int pw = FPanel->width(), ph = FPanel->height();
    QPoint at = pos();
    if (at.y() < 0)
        at.setY(0);
    if (at.x() < 0)
        at.setX(0);
    if (at.x() > pw - Width())
        at.setX(pw - Width());
    if (at.y() > ph - Height())
        at.setY(ph - Height());
    move(at);
    const int moved = FVertical ? at.x() - FBoundsAtPress.left() : at.y() - FBoundsAtPress.top();
    FPanel->SetWhereSplit(FPanel->WhereSplit() + moved);
}
