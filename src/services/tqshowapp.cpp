#include "tqshowapp.h"

#include "host/tform.h"
#include "host/tformat.h"
#include "platform/instancechannel.h"
#include "platform/instancelock.h"
#include "platform/systeminfo.h"

#include <QAbstractEventDispatcher>
#include <QEvent>
#include <QApplication>
#include <QSessionManager>
#include <QToolTip>
#include <QWindowStateChangeEvent>
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

namespace {

// The application object's settings that the component forwards.
QVariant appSetting(const char *name, const QVariant &otherwise)
{
    const QVariant v = qApp ? qApp->property(name) : QVariant();
    return v.isValid() ? v : otherwise;
}

void setAppSetting(const char *name, const QVariant &value)
{
    if (qApp)
        qApp->setProperty(name, value);
}

} // namespace

TqShowApp::TqShowApp(QWidget *owner) : TComponent(owner)
{
    FSavedShortDate = ShortDateFormat();
    FCpuType = CpuID();
    FEnvironment = ::EnvironmentLines();
    SetShowMainForm(true);
    if (IsDesigning() || !qApp)
        return;
    // The application's events, passed on.
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            emit OnActivate(this);
        else if (state == Qt::ApplicationInactive)
            emit OnDeActivate(this);
    });
    if (auto *dispatcher = QAbstractEventDispatcher::instance())
        connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, [this] {
            bool done = true;
            emit OnIdle(this, done);
        });
    connect(qApp, &QGuiApplication::commitDataRequest, this, &TqShowApp::commitData, Qt::DirectConnection);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
        if (FEnding)
            emit OnEndSession();
    });
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

QString TqShowApp::HelpFile() const { return appSetting("HelpFile", QString()).toString(); }
void TqShowApp::SetHelpFile(const QString &file) { setAppSetting("HelpFile", file); }
QString TqShowApp::Hint() const { return appSetting("Hint", QString()).toString(); }
void TqShowApp::SetHint(const QString &hint) { setAppSetting("Hint", hint); }
TColor TqShowApp::HintColor() const { return QColorToColor(QToolTip::palette().color(QPalette::ToolTipBase)); }

void TqShowApp::SetHintColor(TColor color)
{
    QPalette palette = QToolTip::palette();
    palette.setColor(QPalette::ToolTipBase, ColorToQColor(color));
    QToolTip::setPalette(palette);
}

int TqShowApp::HintPause() const { return appSetting("HintPause", 500).toInt(); }
void TqShowApp::SetHintPause(int millis) { setAppSetting("HintPause", millis); }
int TqShowApp::HintHidePause() const { return appSetting("HintHidePause", 2500).toInt(); }
void TqShowApp::SetHintHidePause(int millis) { setAppSetting("HintHidePause", millis); }
bool TqShowApp::ShowMainForm() const { return appSetting("ShowMainForm", true).toBool(); }
void TqShowApp::SetShowMainForm(bool show) { setAppSetting("ShowMainForm", show); }
QIcon TqShowApp::Icon() const { return QApplication::windowIcon(); }
void TqShowApp::SetIcon(const QIcon &icon) { QApplication::setWindowIcon(icon); }
bool TqShowApp::ShowHint() const { return appSetting("ShowHint", true).toBool(); }
void TqShowApp::SetShowHint(bool show) { setAppSetting("ShowHint", show); }
QString TqShowApp::Title() const { return QGuiApplication::applicationDisplayName(); }
void TqShowApp::SetTitle(const QString &title) { QGuiApplication::setApplicationDisplayName(title); }

// The application's main form: the one set on the application object, or
// else this component's own form.
QWidget *TqShowApp::mainForm() const
{
    if (auto *form = qobject_cast<QWidget *>(appSetting("MainForm", QVariant()).value<QObject *>()))
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
    if (!FShowOnStatusBar && !IsDesigning()) {
        // A tool window has no taskbar entry.
        const bool shown = form->isVisible();
        form->setWindowFlag(Qt::Tool, true);
        if (shown)
            form->show();
    }
    FEnvironment = ::EnvironmentLines();
    if (IsDesigning())
        return;
    // Minimising and restoring the form, passed on.
    delete FHook;
    FHook = new TFormHook(
        form, this, {},
        [this, form](QEvent *e) {
            const auto *change = static_cast<QWindowStateChangeEvent *>(e);
            const bool was = change->oldState() & Qt::WindowMinimized, is = form->isMinimized();
            if (is && !was)
                emit OnMinimize(this);
            else if (was && !is)
                emit OnRestore(this);
        },
        {QEvent::WindowStateChange});
    singleInstance(form);
}

void TqShowApp::showCommand(QWidget *form)
{
    const QStringList args = QCoreApplication::arguments();
    const auto has = [&](std::initializer_list<const char *> names) {
        for (const char *n : names)
            if (args.contains(QLatin1String(n)))
                return true;
        return false;
    };
    if (has({"-iconic", "--minimized", "-minimized"})) {
        SetShowMainForm(false);
        form->setWindowState(Qt::WindowMinimized);
    } else if (has({"--maximized", "-maximized"})) {
        form->setWindowState(Qt::WindowMaximized);
    } else {
        form->setWindowState(Qt::WindowNoState);
    }
}

// Keyed by the executable's full path: the first start holds the lock and
// listens; a later one tells the first and ends.
void TqShowApp::singleInstance(QWidget *form)
{
    if (!FOnlyOneInstance)
        return;
    FKey = QCoreApplication::applicationFilePath();
    FLock = std::make_unique<TInstanceLock>(FKey);
    if (FLock->Acquire()) {
        FChannel = new TInstanceChannel(FKey, this);
        connect(FChannel, &TInstanceChannel::Received, this, [this](const QByteArray &message) {
            if (message == (FKey + QStringLiteral("_Afslut")).toUtf8())
                anotherInstance();
        });
        FChannel->Listen();
        return;
    }
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

void TqShowApp::commitData(QSessionManager &manager)
{
    QWidget *form = nullptr;
    try {
        form = FindForm(this);
    } catch (const EComponentError &) {
        return;
    }
    if (form != mainForm())
        return;
    bool doEnd = true;
    emit OnAskEndSession(doEnd);
    if (!doEnd)
        manager.cancel();
    FEnding = doEnd;
}
