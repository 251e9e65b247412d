#include "tform.h"

#include "tapplication.h"

#include <QList>
#include <QMouseEvent>
#include <QScreen>
#include <QWindow>
#include <QWindowStateChangeEvent>

#include <algorithm>

QWidget *FindForm(const QObject *component)
{
    for (const QObject *o = component ? component->parent() : nullptr; o; o = o->parent())
        if (auto *w = qobject_cast<const QWidget *>(o))
            return const_cast<QWidget *>(w)->window();
    throw EComponentError("NoForm");
}

TFormBorderStyle FormBorderStyle(const QWidget *form)
{
    const Qt::WindowFlags flags = form->windowFlags();
    if (flags & Qt::FramelessWindowHint)
        return bsNone;
    const bool fixed = form->minimumSize() == form->maximumSize() || (flags & Qt::MSWindowsFixedSizeDialogHint);
    const Qt::WindowType type = form->windowType();
    if (type == Qt::Tool)
        return fixed ? bsToolWindow : bsSizeToolWin;
    if (!fixed)
        return bsSizeable;
    return type == Qt::Dialog || type == Qt::Sheet ? bsDialog : bsSingle;
}

QEvent::Type THitTestEvent::type()
{
    static const auto t = QEvent::Type(QEvent::registerEventType());
    return t;
}

QEvent::Type TGetMinMaxInfoEvent::type()
{
    static const auto t = QEvent::Type(QEvent::registerEventType());
    return t;
}

namespace {

// What the window system proposes before the hooks answer.
TMinMaxInfo proposedLimits(const QWidget *form)
{
    TMinMaxInfo info;
    const QScreen *screen = form->screen();
    const QRect available = screen ? screen->availableGeometry() : QRect(0, 0, 640, 480);
    const QRect frame = form->frameGeometry(), client = form->geometry();
    const QSize decoration = frame.size() - client.size();
    info.MaxPosition = available.topLeft();
    info.MaxSize = available.size() - decoration;
    info.MinTrackSize = form->minimumSizeHint().expandedTo(QSize(0, 0));
    info.MaxTrackSize = screen ? screen->virtualSize() : available.size();
    return info;
}

// The limits as size hints. A maximised form keeps its state as long as
// only its hints change (a move or a resize from the program would restore
// it): its largest size is then the maximised size, which the window
// manager gives it where it puts maximised windows.
void applyLimits(QWidget *form, const TMinMaxInfo &info)
{
    const QSize unlimited(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    const QSize min = info.MinTrackSize.expandedTo(QSize(0, 0)).boundedTo(unlimited);
    const QSize maxTrack = info.MaxTrackSize.expandedTo(min).boundedTo(unlimited);
    if (!form->isMaximized()) {
        form->setMinimumSize(min);
        form->setMaximumSize(maxTrack);
        return;
    }
    // The widget's own limits only where they keep the present size.
    const QSize now = form->size();
    if (min.width() <= now.width() && min.height() <= now.height())
        form->setMinimumSize(min);
    if (maxTrack.width() >= now.width() && maxTrack.height() >= now.height())
        form->setMaximumSize(maxTrack);
    if (QWindow *window = form->windowHandle()) {
        window->setMinimumSize(min);
        window->setMaximumSize(info.MaxSize.boundedTo(maxTrack).expandedTo(min));
    }
}

} // namespace

// The hooks of one form, an event filter on it; a child of the form, so it
// goes with it.
class TFormHooks : public QObject
{
public:
    // The form's list; with `make`, made when there is none yet.
    static TFormHooks *of(QWidget *form, bool make = true)
    {
        for (QObject *child : form->children())
            if (auto *hooks = dynamic_cast<TFormHooks *>(child))
                return hooks;
        if (!make)
            return nullptr;
        auto *hooks = new TFormHooks(form);
        form->installEventFilter(hooks);
        return hooks;
    }
    void add(TFormHook *hook) { FHooks.prepend(hook); }   // the newest first
    void remove(TFormHook *hook) { FHooks.removeAll(hook); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched != parent() || FHooks.isEmpty())
            return false;
        return GuardEvent(watched, [&] { return filter(watched, event); }, false);
    }

private:
    // The window system's questions, asked of every hook in chain order;
    // true when one of them answered.
    bool ask(QEvent *question)
    {
        const QList<QPointer<TFormHook>> hooks(FHooks.begin(), FHooks.end());
        bool answered = false;
        for (const QPointer<TFormHook> &hook : hooks)
            if (hook && hook->FBefore)
                answered |= hook->FBefore(question);
        return answered;
    }

public:
    void query(QWidget *form)
    {
        TGetMinMaxInfoEvent limits;
        limits.Info = proposedLimits(form);
        if (!ask(&limits))
            return;
        applyLimits(form, limits.Info);
    }

private:
    bool filter(QObject *watched, QEvent *event)
    {
        auto *form = static_cast<QWidget *>(watched);
        switch (event->type()) {
        case QEvent::MouseButtonPress: {
            const auto *press = static_cast<QMouseEvent *>(event);
            if (press->button() != Qt::LeftButton)
                break;
            THitTestEvent hit(press->position().toPoint());
            ask(&hit);
            if (hit.Result == THitTestEvent::HTCAPTION && form->windowHandle()) {
                form->windowHandle()->startSystemMove();
                return true;
            }
            break;
        }
        case QEvent::Show:
            query(form);
            break;
        case QEvent::WindowStateChange:
            // Maximised or back: the hints of the new state.
            if (form->isMaximized() != bool(static_cast<QWindowStateChangeEvent *>(event)->oldState() & Qt::WindowMaximized))
                query(form);
            break;
        default:
            break;
        }
        // A copy: a handler may add or remove hooks.
        const QList<QPointer<TFormHook>> hooks(FHooks.begin(), FHooks.end());
        bool after = false;
        for (const QPointer<TFormHook> &hook : hooks) {
            if (!hook)
                continue;
            if (hook->FBefore && hook->FBefore(event))
                return true;
            after |= hook->FAfter && std::find(hook->FAfterTypes.begin(), hook->FAfterTypes.end(), event->type())
                                         != hook->FAfterTypes.end();
        }
        if (!after)
            return false;
        // The form handles the event now, then the hooks look at it.
        QPointer<QObject> alive = watched;
        const bool handled = watched->event(event);
        for (const QPointer<TFormHook> &hook : hooks)
            if (alive && hook && hook->FAfter
                && std::find(hook->FAfterTypes.begin(), hook->FAfterTypes.end(), event->type())
                       != hook->FAfterTypes.end())
                hook->FAfter(event);
        Q_UNUSED(handled);
        return true;
    }

    explicit TFormHooks(QWidget *form) : QObject(form) {}
    QList<TFormHook *> FHooks;
};

void QueryMinMaxInfo(QWidget *form)
{
    if (form)
        if (TFormHooks *hooks = TFormHooks::of(form, false))
            hooks->query(form);
}

TFormHook::TFormHook(QWidget *form, QObject *owner, Before before, After after, std::vector<QEvent::Type> afterTypes)
    : QObject(owner), FForm(form), FBefore(std::move(before)), FAfter(std::move(after)),
      FAfterTypes(std::move(afterTypes))
{
    if (form)
        TFormHooks::of(form)->add(this);
}

TFormHook::~TFormHook()
{
    // Only an existing list: a form on its way out gets no new one.
    if (FForm)
        if (TFormHooks *hooks = TFormHooks::of(FForm, false))
            hooks->remove(this);
}
