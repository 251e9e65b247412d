#include "qversplit.h"

#include "layout/tqsplit.h"

#include <QCoreApplication>
#include <QMouseEvent>

namespace {
constexpr int crSizeNS = -7, crSizeWE = -9, crHSplit = -14, crVSplit = -15;
}

TqVerSplit::TqVerSplit(QWidget *parent) : TCustomPanel(parent)
{
    FBar = new TqSplit(this, true);
    FBar->SetBounds(0, 0, 6, FBar->Height());
    FBar->SetCursor(crHSplit);
    FBar->SetBorderStyle(bsSingle);
    SetBevelInner(bvNone);
    SetBevelOuter(bvNone);
    SetBounds(Left(), Top(), 200, 200);
    DoSize();
}

bool TqVerSplit::Vertical() const { return FBar->Vertical(); }

int TqVerSplit::Width()
{
    if (width() < 10)
        TCustomPanel::SetWidth(10);
    return width();
}

int TqVerSplit::Height()
{
    if (height() < 10)
        TCustomPanel::SetHeight(10);
    return height();
}

void TqVerSplit::SetWidth(int w)
{
    if (w != width())
        TCustomPanel::SetWidth(w);
}

void TqVerSplit::SetHeight(int h)
{
    if (h != height())
        TCustomPanel::SetHeight(h);
}

int TqVerSplit::across()
{
    return Vertical() ? Width() : Height();
}

int TqVerSplit::SplitterWidth() const
{
    return Vertical() ? FBar->width() : FBar->height();
}

void TqVerSplit::SetSplitterWidth(int v)
{
    if (v == SplitterWidth())
        return;
    SetWhereSplit(0);
    v = qMax(v, 6);
    if (FNewLook && v % 2)
        v += v <= 6 ? 1 : -1;
    const int extent = across();
    const int thickness = extent >= 2 * v ? v : extent / 2;
    if (Vertical())
        FBar->SetWidth(thickness);
    else
        FBar->SetHeight(thickness);
}

TFormBorderStyle TqVerSplit::SplitterStyle() const { return FBar->BorderStyle(); }
TPanelBevel TqVerSplit::SplitterInner() const { return FBar->BevelInner(); }
TPanelBevel TqVerSplit::SplitterOuter() const { return FBar->BevelOuter(); }

void TqVerSplit::SetSplitterStyle(TFormBorderStyle style)
{
    if (style == FBar->BorderStyle())
        return;
    FNewLook = false;
    FBar->SetBorderStyle(style);
}

void TqVerSplit::SetSplitterInner(TPanelBevel bevel)
{
    if (bevel == FBar->BevelInner())
        return;
    FNewLook = false;
    FBar->SetBevelInner(bevel);
}

void TqVerSplit::SetSplitterOuter(TPanelBevel bevel)
{
    if (bevel == FBar->BevelOuter())
        return;
    FNewLook = false;
    FBar->SetBevelOuter(bevel);
}

void TqVerSplit::SetWhereSplit(int v)
{
    const int old = FWhereSplit;
    if (v != old) {
        const int limit = across() - SplitterWidth();
        v = qMax(0, v > limit ? limit : v);
        FWhereSplit = v;
        if (Vertical())
            FBar->SetLeft(v);
        else
            FBar->SetTop(v);
        // The controls on either side move with the bar.
        const int delta = v - old;
        for (QObject *child : children()) {
            auto *control = qobject_cast<QWidget *>(child);
            if (!control || control == FBar || control->isWindow() || control->inherits("QRubberBand"))
                continue;
            const int at = Vertical() ? control->x() : control->y();
            const bool right = at >= old;
            if ((right && FMoveRight) || (!right && FMoveLeft))
                control->move(control->pos() + (Vertical() ? QPoint(delta, 0) : QPoint(0, delta)));
        }
    }
    DoSplitChange();
}

void TqVerSplit::SetNewLook(bool newLook)
{
    if (newLook == FNewLook)
        return;
    FNewLook = newLook;
    if (newLook) {
        FBar->SetCursor(Vertical() ? crSizeWE : crSizeNS);
        FBar->SetBorderStyle(bsNone);
        FBar->SetBevelInner(bvNone);
        FBar->SetBevelOuter(bvNone);
    } else {
        FBar->SetCursor(Vertical() ? crHSplit : crVSplit);
        FBar->SetBorderStyle(bsSingle);
    }
    int t = SplitterWidth();
    if (t % 2) {
        t += t < 7 ? 1 : -1;
        if (Vertical())
            FBar->SetWidth(t);
        else
            FBar->SetHeight(t);
    }
    FBar->Invalidate();
}

void TqVerSplit::SetLeftTop(QWidget *control)
{
    if (Vertical())
        control->setGeometry(0, 0, FWhereSplit, Height());
    else
        control->setGeometry(0, 0, Width(), FWhereSplit);
}

void TqVerSplit::SetRightBottom(QWidget *control)
{
    const int t = SplitterWidth();
    if (Vertical())
        control->setGeometry(t + FWhereSplit, 0, Width() - t - FWhereSplit, Height());
    else
        control->setGeometry(0, t + FWhereSplit, Width(), Height() - t - FWhereSplit);
}

void TqVerSplit::GoMaximum()
{
    SetWhereSplit(across() - SplitterWidth());
}

void TqVerSplit::GoMedium()
{
    SetWhereSplit((across() - SplitterWidth()) / 2);
}

void TqVerSplit::DoSplitChange()
{
    emit OnSplitChange(this);
}

void TqVerSplit::DoSize()
{
    if (Vertical())
        FBar->SetHeight(height());
    else
        FBar->SetWidth(width());
}

void TqVerSplit::Loaded()
{
    TCustomPanel::Loaded();
    emit OnBeforeShow(this);
}

void TqVerSplit::Paint(TCanvas &canvas)
{
    const int w = width(), h = height();
    canvas.Brush.SetStyle(bsSolid);
    canvas.Brush.SetColor(Color());
    canvas.FillRect(Rect(0, 0, w, h));
    PaintCaption(canvas, Rect(0, 0, w, h));
    if (IsDesigning())
        PaintDesignOutline(canvas, w, h);
}

void TqVerSplit::resizeEvent(QResizeEvent *event)
{
    TCustomPanel::resizeEvent(event);
    DoSize();
}

void TqVerSplit::mousePressEvent(QMouseEvent *event)
{
    if (FPassMouseOn && event->button() == Qt::LeftButton) {
        // On to the parent as it came: the same press at the same
        // coordinates, the panel's own.
        if (QWidget *parent = parentWidget()) {
            QMouseEvent same(event->type(), event->position(), event->scenePosition(), event->globalPosition(),
                             event->button(), event->buttons(), event->modifiers(), event->pointingDevice());
            QCoreApplication::sendEvent(parent, &same);
        }
        return;
    }
    TCustomPanel::mousePressEvent(event);
}
