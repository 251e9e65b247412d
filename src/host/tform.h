#pragma once
// Forms as components see them: the form that owns a component, its border
// style in the framework's terms, and hooks on its events (the counterpart
// of subclassing the form's window procedure).

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <stdexcept>
#include <vector>

// Raised by FindForm when a component has no form.
class EComponentError : public std::runtime_error
{
public:
    explicit EComponentError(const char *message) : std::runtime_error(message) {}
};

// The form of a component: the window of the first widget up its owner
// chain (not the component itself). Raises EComponentError("NoForm") when
// there is none.
QWidget *FindForm(const QObject *component);

namespace Forms {
Q_NAMESPACE
enum TFormBorderStyle { bsNone, bsSingle, bsSizeable, bsDialog, bsToolWindow, bsSizeToolWin };
Q_ENUM_NS(TFormBorderStyle)
} // namespace Forms
using namespace Forms;

// A form's border style from its window flags and size limits: no frame is
// bsNone; a tool window is bsToolWindow when its size is fixed, else
// bsSizeToolWin; a dialog of fixed size is bsDialog; any other fixed size
// is bsSingle; the rest is bsSizeable.
TFormBorderStyle FormBorderStyle(const QWidget *form);

// The window system's messages to a form, as its hooks see them:
//   - activation: QEvent::WindowActivate and WindowDeactivate (the
//     application's as a whole: TApplication's OnActivate, OnDeactivate);
//   - position and size changes: QEvent::Move and Resize, after the change;
//   - erasing the background: QEvent::Paint before the form paints itself
//     (a hook may paint the form's background there and let the form go on);
//   - the end of the session: TQueryEndSessionEvent and TEndSessionEvent
//     (host/tapplication.h), sent to the application's main form;
//   - where a press lands and the size limits: the two events below, which
//     the hooks answer.

// Where a press on the form lands: a hook that answers HTCAPTION makes the
// press drag the form, as a press on its title bar would. Asked for left
// presses that reach the form itself (its children's own presses do not).
class THitTestEvent : public QEvent
{
public:
    enum THit { HTCLIENT = 1, HTCAPTION = 2 };
    explicit THitTestEvent(QPoint pos) : QEvent(type()), Pos(pos) {}
    static QEvent::Type type();
    QPoint Pos;               // in the form's coordinates
    THit Result = HTCLIENT;
};

// The size limits of a form, in the form's own terms: positions of its
// frame on the screen, sizes of its client area (as QWidget::move and
// QWidget::resize take them).
struct TMinMaxInfo
{
    QSize MaxSize;            // maximised size
    QPoint MaxPosition;       // maximised position
    QSize MinTrackSize;       // smallest size the user can drag it to
    QSize MaxTrackSize;       // largest size the user can drag it to
};

// Asked before the form is shown, when it is maximised or restored and
// when a component calls QueryMinMaxInfo. The event comes with the system's
// proposal (the screen's available area, the form's own least size, the
// whole desktop); a hook that changes it returns true from its `before`, and
// then the form gets the limits as size hints the window manager keeps: the
// drag sizes, and while it is maximised the maximised size, so that it stays
// maximised. Where a maximised window goes is the window manager's choice
// on X11 (openbox: the corner of its work area); MaxPosition is kept for
// window systems that place maximised windows by it.
class TGetMinMaxInfoEvent : public QEvent
{
public:
    TGetMinMaxInfoEvent() : QEvent(type()) {}
    static QEvent::Type type();
    TMinMaxInfo Info;
};

// Asks the hooks of `form` for its limits now and applies their answer.
void QueryMinMaxInfo(QWidget *form);

// One component's hook on a form. Several may hook one form: the hook made
// last sees an event first, as subclassed window procedures chain. `before`
// sees the event before the form does and may keep it from the form by
// returning true; `after` sees the events of `afterTypes` once the form has
// handled them. The hook lives as long as `owner` (or until deleted);
// whichever of hook and form goes first, the other is left safe.
class TFormHook : public QObject
{
    Q_OBJECT
public:
    using Before = std::function<bool(QEvent *)>;
    using After = std::function<void(QEvent *)>;

    TFormHook(QWidget *form, QObject *owner, Before before, After after = {},
              std::vector<QEvent::Type> afterTypes = {});
    ~TFormHook() override;

    // The hooked form; null once it is gone.
    QWidget *Form() const { return FForm; }

private:
    friend class TFormHooks;
    QPointer<QWidget> FForm;
    Before FBefore;
    After FAfter;
    std::vector<QEvent::Type> FAfterTypes;
};
