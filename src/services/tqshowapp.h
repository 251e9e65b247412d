#pragma once
// Application information: facts about the machine and the process, the
// application's own settings and events on a form, and application
// behaviour: the start-up show command, single instance with a hand-over to
// the first instance, end of session, and the short date format.

#include "host/tapplication.h"
#include "host/tcolor.h"
#include "host/tcomponent.h"

#include <QIcon>
#include <QPointer>
#include <QStringList>
#include <QVariantMap>

#include <memory>

class TFormHook;
class TInstanceChannel;
class TInstanceLock;

// The processor class: the first digit of the processor type number
// (386 -> 3, 586 -> 5, 8664 -> 8).
int CpuID();
// The host name and its IPv4 address; both "-none-" when the lookup fails.
void GetHostInfo(QString &name, QString &address);

class TqShowApp : public TComponent
{
    Q_OBJECT
    Q_PROPERTY(TqShortDateFormat ShortDate READ ShortDate WRITE SetShortDate)
    Q_PROPERTY(QString WinDir READ WinDir WRITE IgnoreString STORED false)
    Q_PROPERTY(QString SystemDir READ SystemDir WRITE IgnoreString STORED false)
    Q_PROPERTY(QStringList EnvironmentLines READ EnvironmentLines WRITE IgnoreList STORED false)
    Q_PROPERTY(bool OnlyOneInstance READ OnlyOneInstance WRITE SetOnlyOneInstance)
    Q_PROPERTY(WTypes WindowKind READ WindowKind WRITE IgnoreKind STORED false)
    Q_PROPERTY(int WinVerMajor READ WinVerMajor WRITE IgnoreInteger STORED false)
    Q_PROPERTY(int WinVerMinor READ WinVerMinor WRITE IgnoreInteger STORED false)
    Q_PROPERTY(int WinVerBuild READ WinVerBuild WRITE IgnoreInteger STORED false)
    Q_PROPERTY(QString WindowsString READ WindowsString WRITE IgnoreString STORED false)
    Q_PROPERTY(int CPUType READ CPUType WRITE IgnoreInteger)
    Q_PROPERTY(QString CPUString READ CPUString WRITE IgnoreString)
    Q_PROPERTY(bool UseCmdShow READ UseCmdShow WRITE SetUseCmdShow)
    Q_PROPERTY(QString HelpFile READ HelpFile WRITE SetHelpFile)
    Q_PROPERTY(QString Hint READ Hint WRITE SetHint)
    Q_PROPERTY(TColor HintColor READ HintColor WRITE SetHintColor)
    Q_PROPERTY(int HintPause READ HintPause WRITE SetHintPause)
    Q_PROPERTY(int HintHidePause READ HintHidePause WRITE SetHintHidePause)
    Q_PROPERTY(bool ShowOnStatusBar READ ShowOnStatusBar WRITE SetShowOnStatusBar)
    Q_PROPERTY(bool ShowMainForm READ ShowMainForm WRITE SetShowMainForm)
    Q_PROPERTY(QString ComputerName READ ComputerName WRITE IgnoreString STORED false)
    Q_PROPERTY(QString UserName READ UserName WRITE IgnoreString STORED false)
    Q_PROPERTY(QString IPHostName READ IPHostName WRITE IgnoreString STORED false)
    Q_PROPERTY(QString IPHostAddress READ IPHostAddress WRITE IgnoreString STORED false)
    Q_PROPERTY(bool EnabledHostInfo READ EnabledHostInfo WRITE SetEnabledHostInfo)
    Q_PROPERTY(QIcon Icon READ Icon WRITE SetIcon STORED false)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(QString Title READ Title WRITE SetTitle)

public:
    enum TqShortDateFormat { sdfDontTouch, sdf4DigitYear, sdf2DigitYear };
    Q_ENUM(TqShortDateFormat)
    // The system family; this system reports itself as q_NT (a kernel of
    // today's kind), its version being the running kernel's.
    enum WTypes { q_Windows, q_WFW, q_Win32S, q_NT, q_95 };
    Q_ENUM(WTypes)

    explicit TqShowApp(QWidget *owner = nullptr);
    ~TqShowApp() override;

    // Acts on the process-wide short date format: put back as it was when
    // the component was made, or its year made four or two digits long.
    TqShortDateFormat ShortDate() const { return FShortDate; }
    void SetShortDate(TqShortDateFormat format);

    // The facts, read when asked (the version once per process).
    QString WinDir() const;
    QString SystemDir() const;
    QStringList EnvironmentLines() const { return FEnvironment; }
    WTypes WindowKind() const { return q_NT; }
    int WinVerMajor() const;
    int WinVerMinor() const;
    int WinVerBuild() const;
    // The system's own name for its version ("Linux 6.1.0-13-amd64").
    QString WindowsString() const;
    int CPUType() const { return FCpuType; }
    QString CPUString() const;
    QString ComputerName() const;
    QString UserName() const;
    // "-Unknown-" while EnabledHostInfo is false.
    QString IPHostName() const;
    QString IPHostAddress() const;
    bool EnabledHostInfo() const { return FEnabledHostInfo; }
    void SetEnabledHostInfo(bool enabled) { FEnabledHostInfo = enabled; }

    // A second start of the same executable hands over to the first and ends.
    bool OnlyOneInstance() const { return FOnlyOneInstance; }
    void SetOnlyOneInstance(bool only) { FOnlyOneInstance = only; }
    // The form starts minimised or maximised as the start command asks
    // ("-iconic", "--minimized", "--maximized" on the command line, or the
    // show command of a program runner; see services/showcommand.h).
    bool UseCmdShow() const { return FUseCmdShow; }
    void SetUseCmdShow(bool use) { FUseCmdShow = use; }
    // When false, the form shows no taskbar entry (on X11 by the window
    // manager's skip-taskbar hint, elsewhere as a tool window).
    bool ShowOnStatusBar() const { return FShowOnStatusBar; }
    void SetShowOnStatusBar(bool show) { FShowOnStatusBar = show; }

    // The application's settings, kept on the application object (the
    // component keeps no copy): title, icon, help file, hint text, colour
    // and pauses, whether hints show, whether the main form is shown. In
    // the form designer they are kept with the component instead, so that
    // designing a form leaves the designer's own application alone.
    QString HelpFile() const;
    void SetHelpFile(const QString &file);
    QString Hint() const;
    void SetHint(const QString &hint);
    TColor HintColor() const;
    void SetHintColor(TColor color);
    int HintPause() const;
    void SetHintPause(int millis);
    int HintHidePause() const;
    void SetHintHidePause(int millis);
    bool ShowMainForm() const;
    void SetShowMainForm(bool show);
    QIcon Icon() const;
    void SetIcon(const QIcon &icon);
    bool ShowHint() const;
    void SetShowHint(bool show);
    QString Title() const;
    void SetTitle(const QString &title);

    // True in a second instance that is ending.
    bool Closing() const { return FClosing; }

signals:
    // The application's events: connecting to one of these connects to the
    // application object's own (OnDeActivate to OnDeactivate, OnExecption
    // to OnException).
    void OnActivate(QObject *Sender);
    void OnDeActivate(QObject *Sender);
    void OnExecption(QObject *Sender, const std::exception &E);
    void OnHelp(int Command, qintptr Data, bool &CallHelp, bool &Result);
    void OnHint(QObject *Sender);
    void OnIdle(QObject *Sender, bool &Done);
    void OnMessage(QObject *Receiver, QEvent *Msg, bool &Handled);
    void OnMinimize(QObject *Sender);
    void OnRestore(QObject *Sender);
    void OnShowHint(QString &HintStr, bool &CanShow, THintInfo &HintInfo);
    // The component's own.
    void OnAskEndSession(bool &DoEnd);
    void OnEndSession();
    void OnSecondInstance(QObject *Sender, bool &BringFirstInstanceToFront);
    void OnAnotherInstance(QObject *Sender);

protected:
    void Loaded() override;
    void connectNotify(const QMetaMethod &signal) override;

private:
    void IgnoreString(const QString &) {}
    void IgnoreList(const QStringList &) {}
    void IgnoreKind(WTypes) {}
    void IgnoreInteger(int) {}
    QWidget *mainForm() const;
    void showCommand(QWidget *form);
    void singleInstance(QWidget *form);
    void anotherInstance();
    bool formEvent(QEvent *event);
    void keepOffTaskbar(QWidget *form);
    QVariant setting(const char *name, const QVariant &value) const;
    bool designing(const char *name, const QVariant &value);

    TqShortDateFormat FShortDate = sdfDontTouch;
    QString FSavedShortDate;
    QStringList FEnvironment;
    bool FOnlyOneInstance = false;
    bool FUseCmdShow = false;
    bool FShowOnStatusBar = true;
    bool FEnabledHostInfo = false;
    int FCpuType = 0;
    bool FClosing = false;
    QString FKey;
    std::unique_ptr<TInstanceLock> FLock;
    TInstanceChannel *FChannel = nullptr;
    TFormHook *FHook = nullptr;
    QVariantMap FDesignValues;
    quint32 FRelayed = 0;
};
