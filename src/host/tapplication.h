#pragma once
// The application object as components see it: one per process, made on
// first use. It keeps the application's title, icon, help file and hint
// settings, reports the application's events, and takes over the timing and
// look of tool tips once it exists:
//   - a tool tip pops up after the mouse rests HintPause ms on a widget with
//     a tool tip (20 ms when another tip went away less than two seconds
//     ago) and stays HintHidePause ms, in HintColor; OnShowHint may change
//     its text, place, colour and time or keep it from showing; widgets
//     whose tips depend on the place (item views, tab bars) are asked as Qt
//     asks them, on the same timing;
//   - Hint is the long hint of the widget under the mouse (its status tip,
//     else the part of its tool tip after a "|", else the whole tool tip);
//     OnHint fires when it changes;
//   - an exception that escapes a component's event handling (the library's
//     own events and the signals they emit to application code) ends up in
//     HandleException: OnException when connected, else the message is shown;
//   - F1 on a focused widget with a positive "HelpContext" property asks
//     HelpContext; OnHelp sees every help request first.
// OnMessage sees every event the application delivers, before its receiver,
// while it is connected (it costs nothing when it is not).

#include "tcolor.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QIcon>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QTimer>
#include <QWidget>

#include <exception>
#include <functional>
#include <vector>
#include <stdexcept>

class QSessionManager;

// What OnShowHint may change about the tip about to show.
struct THintInfo
{
    QWidget *HintControl = nullptr;   // the widget whose tip it is
    QPoint CursorPos;                 // the mouse, in HintControl's coordinates
    QRect CursorRect;                 // the tip goes when the mouse leaves it (HintControl's coordinates)
    QPoint HintPos;                   // where the tip shows, on the screen
    TColor HintColor = 0;
    int HideTimeout = 0;              // ms the tip stays
};

// A window that shows the tips in place of Qt's tool tip: the application
// decides when a tip shows and goes, the window how it looks.
class THintWindow
{
public:
    virtual ~THintWindow() = default;
    // Shows `text` for the mouse at `info.HintPos` (screen coordinates).
    virtual void ActivateHint(const QString &text, const THintInfo &info) = 0;
    virtual void HideHint() = 0;
    virtual bool HintShown() const = 0;
};

// A hint "short|long": the tip shows the short part, the application's Hint
// and the status line the long one; a hint without a bar is both.
QString GetShortHint(const QString &hint);
QString GetLongHint(const QString &hint);

// Help commands as OnHelp receives them.
enum THelpCommand { HELP_CONTEXT = 1, HELP_QUIT = 2, HELP_INDEX = 3, HELP_KEY = 0x101 };

// A session asks the application's main form whether it may end: a hook
// of the form clears DoEnd to object.
class TQueryEndSessionEvent : public QEvent
{
public:
    TQueryEndSessionEvent() : QEvent(type()) {}
    static QEvent::Type type();
    bool DoEnd = true;
};

// The session is ending (sent to the main form when the application quits
// because the session ends).
class TEndSessionEvent : public QEvent
{
public:
    TEndSessionEvent() : QEvent(type()) {}
    static QEvent::Type type();
};

class TApplication : public QObject
{
    Q_OBJECT
public:
    static TApplication *instance();

    QString Title() const;
    void SetTitle(const QString &title);
    QIcon Icon() const;
    void SetIcon(const QIcon &icon);
    QString HelpFile() const { return FHelpFile; }
    void SetHelpFile(const QString &file) { FHelpFile = file; }

    QString Hint() const { return FHint; }
    void SetHint(const QString &hint);
    TColor HintColor() const;
    void SetHintColor(TColor color);
    int HintPause() const { return FHintPause; }
    void SetHintPause(int millis) { FHintPause = qMax(0, millis); }
    int HintHidePause() const { return FHintHidePause; }
    void SetHintHidePause(int millis) { FHintHidePause = qMax(0, millis); }
    bool ShowHint() const { return FShowHint; }
    void SetShowHint(bool show);

    // The latest window installed (and not yet removed) shows the tips;
    // with none, Qt's tool tip does.
    void InstallHintWindow(THintWindow *window);
    void RemoveHintWindow(THintWindow *window);
    THintWindow *HintWindow() const { return FHintWindows.empty() ? nullptr : FHintWindows.back(); }

    // The application's main form: the one set here, or else the first
    // window the application showed.
    QWidget *MainForm() const { return FMainForm; }
    void SetMainForm(QWidget *form) { FMainForm = form; }
    // Read by the application's start-up code: whether it shows its main
    // form (start-up minimised sets it false).
    bool ShowMainForm() const { return FShowMainForm; }
    void SetShowMainForm(bool show) { FShowMainForm = show; }
    // A start minimised: the next time the user restores `form`, `step`
    // runs in place of OnRestore, once; after it OnRestore is raised again.
    void SetRestoreStep(QWidget *form, std::function<void()> step);

    // Help: OnHelp first; then, unless it says otherwise, the help file is
    // opened (at the context as the fragment "#<context>", or the keyword as
    // a query). True when help was shown (or OnHelp said so).
    bool HelpCommand(int Command, qintptr Data, const QString &keyword = QString());
    bool HelpContext(int Context) { return HelpCommand(HELP_CONTEXT, Context); }
    bool HelpJump(const QString &keyword) { return HelpCommand(HELP_KEY, 0, keyword); }

    // An exception that escaped the handling of `sender`'s events.
    void HandleException(QObject *sender, const std::exception &e);
    // Shows an exception's message (a message box; the log without a screen).
    void ShowException(const std::exception &e);

    // Sends the main form the end-of-session query and returns its answer.
    bool QueryEndSession();

signals:
    void OnActivate(QObject *Sender);
    void OnDeactivate(QObject *Sender);
    void OnException(QObject *Sender, const std::exception &E);
    void OnHelp(int Command, qintptr Data, bool &CallHelp, bool &Result);
    void OnHint(QObject *Sender);
    void OnIdle(QObject *Sender, bool &Done);
    void OnMessage(QObject *Receiver, QEvent *Msg, bool &Handled);
    void OnMinimize(QObject *Sender);
    void OnRestore(QObject *Sender);
    void OnShowHint(QString &HintStr, bool &CanShow, THintInfo &HintInfo);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void connectNotify(const QMetaMethod &signal) override;

private:
    TApplication();
    void hover(QWidget *widget);
    bool tipShown();
    int pause() const;
    void showTip();
    void hideTip();
    void commitData(QSessionManager &manager);
    void idle();

    QString FHelpFile;
    QString FHint;
    int FHintPause = 700;
    int FHintHidePause = 10000;
    bool FShowHint = true;
    bool FShowMainForm = true;
    bool FSessionEnding = false;
    bool FDelivering = false;
    bool FIdleConnected = false;
    QPointer<QWidget> FMainForm;
    QPointer<QWidget> FRestoreForm;
    std::function<void()> FRestoreStep;
    QPointer<QWidget> FHover;
    QPointer<QWidget> FTipControl;
    QTimer FPause;
    QTimer FHide;             // a hint window's tip goes
    QRect FTipRect;           // the tip goes when the mouse leaves it (screen)
    std::vector<THintWindow *> FHintWindows;
    QElapsedTimer FSinceTip;
};

inline TApplication *Application() { return TApplication::instance(); }

// Runs `body`; an exception it throws goes to the application's
// HandleException for `sender` and `otherwise` is returned.
template<typename Body>
bool GuardEvent(QObject *sender, Body body, bool otherwise = true)
{
    try {
        return body();
    } catch (const std::exception &e) {
        Application()->HandleException(sender, e);
    } catch (...) {
        Application()->HandleException(sender, std::runtime_error("Unknown exception"));
    }
    return otherwise;
}
