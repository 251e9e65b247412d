#include "tform.h"

#include "tapplication.h"

#include <QList>

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
    bool filter(QObject *watched, QEvent *event)
    {
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
        QPointer<QObject> form = watched;
        const bool handled = watched->event(event);
        for (const QPointer<TFormHook> &hook : hooks)
            if (form && hook && hook->FAfter
                && std::find(hook->FAfterTypes.begin(), hook->FAfterTypes.end(), event->type())
                       != hook->FAfterTypes.end())
                hook->FAfter(event);
        Q_UNUSED(handled);
        return true;
    }

    explicit TFormHooks(QWidget *form) : QObject(form) {}
    QList<TFormHook *> FHooks;
};

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
