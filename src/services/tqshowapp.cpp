#include "tqshowapp.h"

#include "services/showcommand.h"

#include "host/tform.h"
#include "host/tformat.h"
#include "platform/instancechannel.h"
#include "platform/instancelock.h"
#include "platform/systeminfo.h"
#include "platform/windowhints.h"

#include <QEvent>
#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWindow>

int CpuID()
{
    const QString digits = QString::number(ProcessorType());
    return digits.isEmpty() ? 0 : digits[0].digitValue();
}

void GetHostInfo(QString &name, QString &address)
{
    if (!HostInfo(name, address))
        name = address = QStringLiteral("-none-");
}

TqShowApp::TqShowApp(QWidget *owner) : TComponent(owner)
{
    FSavedShortDate = ShortDateFormat();
    FCpuType = CpuID();
    FEnvironment = ::EnvironmentLines();
    SetShowMainForm(true);
}

// Connecting to one of the application's events here connects it to the
// application object's own, once.
void TqShowApp::connectNotify(const QMetaMethod &signal)
{
    if (IsDesigning() || !Application())
        return;
    TApplication *app = Application();
    const auto relay = [&](int bit, auto appSignal, auto ownSignal) {
        if (signal == QMetaMethod::fromSignal(ownSignal) && !(FRelayed & (1u << bit))) {
            FRelayed |= 1u << bit;
            connect(app, appSignal, this, ownSignal);
        }
    };
    relay(0, &TApplication::OnActivate, &TqShowApp::OnActivate);
    relay(1, &TApplication::OnDeactivate, &TqShowApp::OnDeActivate);
    relay(2, &TApplication::OnException, &TqShowApp::OnExecption);
    relay(3, &TApplication::OnHelp, &TqShowApp::OnHelp);
    relay(4, &TApplication::OnHint, &TqShowApp::OnHint);
    relay(5, &TApplication::OnIdle, &TqShowApp::OnIdle);
    relay(6, &TApplication::OnMessage, &TqShowApp::OnMessage);
    relay(7, &TApplication::OnMinimize, &TqShowApp::OnMinimize);
    relay(8, &TApplication::OnRestore, &TqShowApp::OnRestore);
    relay(9, &TApplication::OnShowHint, &TqShowApp::OnShowHint);
}

TqShowApp::~TqShowApp() = default;

void TqShowApp::SetShortDate(TqShortDateFormat format)
{
    FShortDate = format;
    switch (format) {
    case sdfDontTouch: SetShortDateFormat(FSavedShortDate); break;
    case sdf4DigitYear: SetShortDateFormat(FourDigitYear(ShortDateFormat())); break;
    case sdf2DigitYear: SetShortDateFormat(TwoDigitYear(ShortDateFormat())); break;
    }
}

QString TqShowApp::WinDir() const { return SystemConfigDir(); }
QString TqShowApp::SystemDir() const { return SystemLibraryDir(); }
int TqShowApp::WinVerMajor() const { return OsVersion().major; }
int TqShowApp::WinVerMinor() const { return OsVersion().minor; }
int TqShowApp::WinVerBuild() const { return OsVersion().build; }
QString TqShowApp::WindowsString() const { return OsVersion().text; }

QString TqShowApp::CPUString() const
{
    switch (FCpuType) {
    case 2: return QStringLiteral("80286");
    case 3: return QStringLiteral("80386");
    case 4: return QStringLiteral("80486");
    case 5: return QStringLiteral("Pentium");
    case 6: return QStringLiteral("PentiumPro");
    default: return QStringLiteral("P%1").arg(FCpuType);
    }
}

QString TqShowApp::ComputerName() const { return ::ComputerName(); }
QString TqShowApp::UserName() const { return ::UserName(); }

QString TqShowApp::IPHostName() const
{
    if (!FEnabledHostInfo)
        return QStringLiteral("-Unknown-");
    QString name, address;
    GetHostInfo(name, address);
    return name;
}

QString TqShowApp::IPHostAddress() const
{
    if (!FEnabledHostInfo)
        return QStringLiteral("-Unknown-");
    QString name, address;
    GetHostInfo(name, address);
    return address;
}

// In the designer a setting stays with the component; `designing` keeps
// it there and says so, `setting` reads it back.
bool TqShowApp::designing(const char *name, const QVariant &value)
{
    if (!IsDesigning() && Application())
        return false;
    FDesignValues.insert(QLatin1String(name), value);
    return true;
}

QVariant TqShowApp::setting(const char *name, const QVariant &value) const
{
    if (!IsDesigning() && Application())
        return value;
    return FDesignValues.value(QLatin1String(name), value);
}

QString TqShowApp::HelpFile() const { return setting("HelpFile", Application() ? Application()->HelpFile() : QString()).toString(); }
void TqShowApp::SetHelpFile(const QString &file) { if (!designing("HelpFile", file)) Application()->SetHelpFile(file); }
QString TqShowApp::Hint() const { return setting("Hint", Application() ? Application()->Hint() : QString()).toString(); }
void TqShowApp::SetHint(const QString &hint) { if (!designing("Hint", hint)) Application()->SetHint(hint); }
TColor TqShowApp::HintColor() const
{
    return TColor(setting("HintColor", uint((Application() ? Application()->HintColor() : clInfoBk).value)).toUInt());
}
void TqShowApp::SetHintColor(TColor color) { if (!designing("HintColor", uint(color.value))) Application()->SetHintColor(color); }
int TqShowApp::HintPause() const { return setting("HintPause", Application() ? Application()->HintPause() : 500).toInt(); }
void TqShowApp::SetHintPause(int millis) { if (!designing("HintPause", millis)) Application()->SetHintPause(millis); }
int TqShowApp::HintHidePause() const { return setting("HintHidePause", Application() ? Application()->HintHidePause() : 2500).toInt(); }
void TqShowApp::SetHintHidePause(int millis) { if (!designing("HintHidePause", millis)) Application()->SetHintHidePause(millis); }
bool TqShowApp::ShowMainForm() const { return setting("ShowMainForm", Application() ? Application()->ShowMainForm() : true).toBool(); }
void TqShowApp::SetShowMainForm(bool show) { if (!designing("ShowMainForm", show)) Application()->SetShowMainForm(show); }
QIcon TqShowApp::Icon() const { return setting("Icon", Application() ? Application()->Icon() : QIcon()).value<QIcon>(); }
void TqShowApp::SetIcon(const QIcon &icon) { if (!designing("Icon", icon)) Application()->SetIcon(icon); }
bool TqShowApp::ShowHint() const { return setting("ShowHint", Application() ? Application()->ShowHint() : true).toBool(); }
void TqShowApp::SetShowHint(bool show) { if (!designing("ShowHint", show)) Application()->SetShowHint(show); }
QString TqShowApp::Title() const { return setting("Title", Application() ? Application()->Title() : QString()).toString(); }
void TqShowApp::SetTitle(const QString &title) { if (!designing("Title", title)) Application()->SetTitle(title); }

// The application's main form: the one set on the application object, or
// else this component's own form.
QWidget *TqShowApp::mainForm() const
{
    if (QWidget *form = Application() ? Application()->MainForm() : nullptr)
        return form;
    return FindForm(this);
}

void TqShowApp::Loaded()
{
    TComponent::Loaded();
    QWidget *form = FindForm(this);   // "NoForm" when the component is on none
    if (FUseCmdShow && !IsDesigning())
        showCommand(form);
    FCpuType = CpuID();
    if (!FShowOnStatusBar && !IsDesigning())
        keepOffTaskbar(form);
    FEnvironment = ::EnvironmentLines();
    if (IsDesigning())
        return;
    // The end of the session, asked of the form; a form shown in a new
    // native window keeps off the taskbar.
    delete FHook;
    FHook = new TFormHook(form, this, [this](QEvent *e) { return formEvent(e); });
    singleInstance(form);
}

void TqShowApp::showCommand(QWidget *form)
{
    const int command = StartupShowCommand(QCoreApplication::arguments(), qEnvironmentVariable(kShowCommandVariable));
    switch (StartStateOf(command)) {
    case TStartState::Minimized: {
        // The application starts minimised, its form not shown; when the
        // user restores it, the form is shown and ShowMainForm is true
        // again (in place of the application's OnRestore, that once).
        QPointer<QWidget> restored = form;
        Application()->SetRestoreStep(form, [restored] {
            Application()->SetShowMainForm(true);
            if (restored) {
                restored->setWindowState(restored->windowState() & ~Qt::WindowMinimized);
                restored->show();
            }
        });
        SetShowMainForm(false);
        form->setWindowState(Qt::WindowMinimized);
        // Minimised is on the taskbar, whether the program shows the form
        // or leaves it to ShowMainForm.
        QTimer::singleShot(0, form, [restored] {
            if (restored && !restored->isVisible() && (restored->windowState() & Qt::WindowMinimized))
                restored->showMinimized();
        });
        break;
    }
    case TStartState::Maximized:
        form->setWindowState(Qt::WindowMaximized);
        break;
    case TStartState::Normal:
        form->setWindowState(Qt::WindowNoState);
        break;
    }
}

// Keyed by the executable's full path: every start takes part, and the
// first holds the lock for its life, whatever its own OnlyOneInstance says.
// A first start that asks for one instance listens; a later one that asks
// for it tells the first and ends; a later one that does not just runs.
void TqShowApp::singleInstance(QWidget *form)
{
    FKey = QCoreApplication::applicationFilePath();
    FLock = std::make_unique<TInstanceLock>(FKey);
    if (FLock->Acquire()) {
        if (!FOnlyOneInstance)
            return;
        FChannel = new TInstanceChannel(FKey, this);
        connect(FChannel, &TInstanceChannel::Received, this, [this](const QByteArray &message) {
            if (message == (FKey + QStringLiteral("_Afslut")).toUtf8())
                anotherInstance();
        });
        FChannel->Listen();
        return;
    }
    FLock.reset();
    if (!FOnlyOneInstance)
        return;
    FClosing = true;
    bool bring = true;
    form->move(-(form->width() + 10), form->y());   // out of sight
    emit OnSecondInstance(this, bring);
    if (bring)
        TInstanceChannel::Send(FKey, (FKey + QStringLiteral("_Afslut")).toUtf8());
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

void TqShowApp::anotherInstance()
{
    if (!FOnlyOneInstance || IsDesigning() || FClosing)
        return;
    emit OnAnotherInstance(this);
    QWidget *form = FindForm(this);
    if (form != mainForm())
        return;
    // To the front, restored if minimised; where the desktop refuses to
    // hand over the focus (Wayland), it asks for attention instead.
    form->setWindowState(form->windowState() & ~Qt::WindowMinimized);
    form->show();
    form->raise();
    form->activateWindow();
    if (QGuiApplication::platformName() == QLatin1String("wayland"))
        QApplication::alert(form);
}

// The taskbar hint of the window system, or where it has none, a tool
// window (which desktops keep off their taskbars).
void TqShowApp::keepOffTaskbar(QWidget *form)
{
    if (HasWindowHints()) {
        // A hidden form gets the hint when it is shown (see formEvent).
        if (form->isVisible())
            SetSkipTaskbar(form->windowHandle(), true);
        return;
    }
    const bool shown = form->isVisible();
    form->setWindowFlag(Qt::Tool, true);
    if (shown)
        form->show();
}

bool TqShowApp::formEvent(QEvent *event)
{
    if (event->type() == QEvent::Show && !FShowOnStatusBar) {
        // Shown again, perhaps in a new native window: the hint goes on the
        // window before it maps, and to the window manager once it has (a
        // window manager drops the state of a window it saw hidden).
        if (QWindow *window = FHook->Form() ? FHook->Form()->windowHandle() : nullptr) {
            SetSkipTaskbar(window, true);
            QTimer::singleShot(0, window, [window] { SetSkipTaskbar(window, true); });
        }
        return false;
    }
    if (event->type() == TQueryEndSessionEvent::type()) {
        if (FindForm(this) != mainForm())
            return false;
        auto *query = static_cast<TQueryEndSessionEvent *>(event);
        bool doEnd = true;
        emit OnAskEndSession(doEnd);
        query->DoEnd = doEnd;
        return true;
    }
    if (event->type() == TEndSessionEvent::type() && FindForm(this) == mainForm())
        emit OnEndSession();
    return false;
}
