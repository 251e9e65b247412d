#include "tqminmax.h"

#include "host/tform.h"

#include <QLayout>
#include <QScreen>

void MakeLimitsConsistent(TSizeLimits &l)
{
    if (l.MinDragWidth > l.MaxWidth)
        l.MaxWidth = l.MinDragWidth;
    if (l.MinDragHeight > l.MaxHeight)
        l.MaxHeight = l.MinDragHeight;
    if (l.MaxWidth > l.MaxDragWidth)
        l.MaxDragWidth = l.MaxWidth;
    if (l.MaxHeight > l.MaxDragHeight)
        l.MaxDragHeight = l.MaxHeight;
}

QRect TaskbarRect(const QRect &screen, const QRect &available)
{
    if (available.left() > screen.left())
        return QRect(screen.left(), screen.top(), available.left() - screen.left(), screen.height());
    if (available.top() > screen.top())
        return QRect(screen.left(), screen.top(), screen.width(), available.top() - screen.top());
    if (available.bottom() < screen.bottom())
        return QRect(screen.left(), available.bottom() + 1, screen.width(), screen.bottom() - available.bottom());
    if (available.right() < screen.right())
        return QRect(available.right() + 1, screen.top(), screen.right() - available.right(), screen.height());
    return QRect();
}

void AdjustForTaskbar(QSize screen, const QRect &bar, TSizeLimits &l)
{
    const int W = screen.width() + 1, H = screen.height() + 1;
    // The bar's edges as the platform counts them: right and bottom exclusive.
    const int left = bar.left(), top = bar.top(), right = bar.left() + bar.width(), bottom = bar.top() + bar.height();
    l.MaxLeft = 0;
    l.MaxDragWidth = W - 1;
    l.MaxTop = 0;
    l.MaxDragHeight = H - 1;
    if (left < 2 && top < 2 && W - 2 > right) {          // on the left
        l.MaxLeft = right;
        l.MaxDragWidth = W - right;
    } else if (left < 2 && top < 2) {                    // at the top
        l.MaxTop = bottom;
        l.MaxDragHeight = H - bottom;
    } else if (left < 2) {                               // at the bottom
        l.MaxDragHeight = H - (bottom - top - 1);
    } else {                                             // on the right
        l.MaxDragWidth = W - (right - left - 1);
    }
}

TqMinMax::TqMinMax(QWidget *owner) : TComponent(owner)
{
    SetSize();   // "NoForm" when made on none
}

TqMinMax::~TqMinMax()
{
    QWidget *form = FHook ? FHook->Form() : nullptr;
    if (!form)
        return;
    delete FHook;
    form->setMinimumSize(0, 0);
    form->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    if (QLayout *layout = form->layout()) {
        layout->invalidate();
        layout->activate();
    }
}

void TqMinMax::SetAutoTaskBarAjust(bool adjust)
{
    FAutoTaskBarAjust = adjust;
    if (IsDesigning() || !parent())
        return;
    QWidget *form = FindForm(this);
    if (form->isMaximized()) {
        // Maximised again, so that the limits are asked for again.
        form->setWindowState(form->windowState() & ~Qt::WindowMaximized);
        form->setWindowState(form->windowState() | Qt::WindowMaximized);
    }
}

void TqMinMax::SetUseDefaultSize(bool use)
{
    FUseDefaultSize = use;
    SetSize();
}

void TqMinMax::SetSize()
{
    if (FUseDefaultSize)
        return;
    MakeLimitsConsistent(FLimits);
    QWidget *form = FindForm(this);   // "NoForm" when on none
    if (IsDesigning())
        return;
    // The new limits first, so that the form may take the sizes below. A
    // maximised form takes its maximised size from them, through the window
    // manager, and stays maximised.
    QueryMinMaxInfo(form);
    if (form->isMaximized())
        return;
    const QSize size = form->size()
                           .boundedTo(QSize(FLimits.MaxDragWidth, FLimits.MaxDragHeight))
                           .expandedTo(QSize(FLimits.MinDragWidth, FLimits.MinDragHeight));
    if (size != form->size())
        form->resize(size);
}

void TqMinMax::Loaded()
{
    TComponent::Loaded();
    if (IsDesigning())
        return;
    QWidget *form = FindForm(this);
    delete FHook;
    FHook = new TFormHook(form, this, [this](QEvent *e) { return answer(e); });
    QueryMinMaxInfo(form);
}

// The window system asks for the limits.
bool TqMinMax::answer(QEvent *event)
{
    if (event->type() != TGetMinMaxInfoEvent::type())
        return false;
    TMinMaxInfo &info = static_cast<TGetMinMaxInfoEvent *>(event)->Info;
    if (FUseDefaultSize) {
        FLimits.MinDragWidth = info.MinTrackSize.width();
        FLimits.MinDragHeight = info.MinTrackSize.height();
        FLimits.MaxWidth = info.MaxSize.width();
        FLimits.MaxHeight = info.MaxSize.height();
        FLimits.MaxDragWidth = info.MaxTrackSize.width();
        FLimits.MaxDragHeight = info.MaxTrackSize.height();
        FLimits.MaxLeft = info.MaxPosition.x();
        FLimits.MaxTop = info.MaxPosition.y();
    }
    TSizeLimits l = FLimits;
    if (FAutoTaskBarAjust)
        if (const QScreen *screen = FHook->Form() ? FHook->Form()->screen() : nullptr) {
            const QRect bar = TaskbarRect(screen->geometry(), screen->availableGeometry());
            if (!bar.isEmpty())
                AdjustForTaskbar(screen->size(), bar, l);
        }
    emit OnSizeChange(this, l.MinDragWidth, l.MinDragHeight, l.MaxWidth, l.MaxHeight, l.MaxDragWidth,
                      l.MaxDragHeight, l.MaxLeft, l.MaxTop);
    info.MaxSize = QSize(l.MaxWidth, l.MaxHeight);
    info.MaxPosition = QPoint(l.MaxLeft, l.MaxTop);
    info.MaxTrackSize = QSize(l.MaxDragWidth, l.MaxDragHeight);
    info.MinTrackSize = QSize(l.MinDragWidth, l.MinDragHeight);
    return true;
}
