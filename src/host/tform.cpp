#include "tform.h"

#include "tapplication.h"

#include <QElapsedTimer>
#include <QList>
#include <QMouseEvent>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <optional>

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

void applyLimits(QWidget *form, const TMinMaxInfo &info)
{
    form->setMinimumSize(info.MinTrackSize.expandedTo(QSize(0, 0)));
    form->setMaximumSize(info.MaxTrackSize.expandedTo(info.MinTrackSize).boundedTo(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)));
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
        if (form->isMaximized()) {
            FMaximised = QRect(limits.Info.MaxPosition, limits.Info.MaxSize);
            FCorrections = 0;
            FPlacedAt.start();
            place(form);
        }
    }

private:
    // The maximised place: after the window manager has maximised the form,
    // and again (a few times at most) while it settles its frame: when it
    // moves the form on, and a little later, since a new frame need not
    // come with a move.
    void place(QWidget *form)
    {
        QPointer<QWidget> guard = form;
        QTimer::singleShot(0, this, [this, guard] {
            if (!guard || !FMaximised)
                return;
            guard->move(FMaximised->topLeft());
            guard->resize(FMaximised->size());
            // A busy window manager may change the frame later still.
            for (int delay : {50, 200, 500, 1000})
                QTimer::singleShot(delay, this, [this, guard] {
                    if (guard)
                        settle(guard);
                });
        });
    }
    // Some window managers take a placed maximised window for a restored
    // one and give it its frame back: it stays where it was placed, frame
    // and all, for as long as the placing goes on.
    void settle(QWidget *form)
    {
        if (!FMaximised)
            return;
        const bool placing = FPlacedAt.isValid() && FPlacedAt.elapsed() < 2000;
        if (!form->isMaximized() && !placing) {
            FMaximised.reset();
            return;
        }
        if ((form->pos() != FMaximised->topLeft() || form->size() != FMaximised->size()) && FCorrections < 8) {
            ++FCorrections;
            place(form);
        }
    }

    QElapsedTimer FPlacedAt;
    std::optional<QRect> FMaximised;
    int FCorrections = 0;

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
            if (form->isMaximized())
                query(form);
            break;
        case QEvent::Move:
        case QEvent::Resize:
            settle(form);
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
