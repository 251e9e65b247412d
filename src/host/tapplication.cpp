#include "tapplication.h"

#include <algorithm>
#include <utility>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCursor>
#include <QDesktopServices>
#include <QFileInfo>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QStyle>
#include <QSessionManager>
#include <QToolTip>
#include <QUrl>
#include <QUrlQuery>
#include <QWindowStateChangeEvent>

QEvent::Type TQueryEndSessionEvent::type()
{
    static const auto t = QEvent::Type(QEvent::registerEventType());
    return t;
}

QEvent::Type TEndSessionEvent::type()
{
    static const auto t = QEvent::Type(QEvent::registerEventType());
    return t;
}

namespace {

// How long after a tip went away the next one shows at once.
constexpr int kQuickReshow = 2000;
constexpr int kQuickPause = 20;

QString longHint(const QWidget *w)
{
    return w->statusTip().isEmpty() ? GetLongHint(w->toolTip()) : w->statusTip();
}

// The widget whose tip shows over `w`: `w` or its nearest ancestor in the
// same window with a tool tip.
QWidget *tipOwner(QWidget *w)
{
    for (; w; w = w->isWindow() ? nullptr : w->parentWidget())
        if (!w->toolTip().isEmpty())
            return w;
    return nullptr;
}

QWidget *hintOwner(QWidget *w)
{
    for (; w; w = w->isWindow() ? nullptr : w->parentWidget())
        if (!w->toolTip().isEmpty() || !w->statusTip().isEmpty())
            return w;
    return nullptr;
}

} // namespace

QString GetShortHint(const QString &hint)
{
    const qsizetype bar = hint.indexOf(QLatin1Char('|'));
    return bar < 0 ? hint : hint.left(bar);
}

QString GetLongHint(const QString &hint)
{
    const qsizetype bar = hint.indexOf(QLatin1Char('|'));
    return bar < 0 ? hint : hint.mid(bar + 1);
}

TApplication *TApplication::instance()
{
    static QPointer<TApplication> app;
    if (!app && qApp) {
        app = new TApplication;
        app->setParent(qApp);
    }
    return app;
}

TApplication::TApplication()
{
    FPause.setSingleShot(true);
    connect(&FPause, &QTimer::timeout, this, &TApplication::showTip);
    FHide.setSingleShot(true);
    connect(&FHide, &QTimer::timeout, this, &TApplication::hideTip);
    if (auto *style = QApplication::style())
        FHintPause = style->styleHint(QStyle::SH_ToolTip_WakeUpDelay);
    qApp->installEventFilter(this);
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            emit OnActivate(this);
        else if (state == Qt::ApplicationInactive)
            emit OnDeactivate(this);
    });
    connect(qApp, &QGuiApplication::commitDataRequest, this, &TApplication::commitData, Qt::DirectConnection);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
        if (FSessionEnding && FMainForm) {
            TEndSessionEvent ending;
            QCoreApplication::sendEvent(FMainForm, &ending);
        }
    });
}

QString TApplication::Title() const { return QGuiApplication::applicationDisplayName(); }
void TApplication::SetTitle(const QString &title) { QGuiApplication::setApplicationDisplayName(title); }
QIcon TApplication::Icon() const { return QApplication::windowIcon(); }
void TApplication::SetIcon(const QIcon &icon) { QApplication::setWindowIcon(icon); }

void TApplication::SetRestoreStep(QWidget *form, std::function<void()> step)
{
    FRestoreForm = form;
    FRestoreStep = std::move(step);
}

void TApplication::SetHint(const QString &hint)
{
    if (hint == FHint)
        return;
    FHint = hint;
    emit OnHint(this);
}

TColor TApplication::HintColor() const
{
    return QColorToColor(QToolTip::palette().color(QPalette::ToolTipBase));
}

void TApplication::SetHintColor(TColor color)
{
    QPalette palette = QToolTip::palette();
    palette.setColor(QPalette::ToolTipBase, ColorToQColor(color));
    QToolTip::setPalette(palette);
}

void TApplication::SetShowHint(bool show)
{
    FShowHint = show;
    if (!show) {
        FPause.stop();
        hideTip();
    }
}

void TApplication::InstallHintWindow(THintWindow *window)
{
    if (!window)
        return;
    hideTip();
    FHintWindows.erase(std::remove(FHintWindows.begin(), FHintWindows.end(), window), FHintWindows.end());
    FHintWindows.push_back(window);
}

void TApplication::RemoveHintWindow(THintWindow *window)
{
    if (window == HintWindow())
        hideTip();
    FHintWindows.erase(std::remove(FHintWindows.begin(), FHintWindows.end(), window), FHintWindows.end());
}

bool TApplication::HelpCommand(int Command, qintptr Data, const QString &keyword)
{
    bool callHelp = true, result = false;
    emit OnHelp(Command, Data, callHelp, result);
    if (!callHelp)
        return result;
    if (FHelpFile.isEmpty() || Command == HELP_QUIT)
        return false;
    QUrl url = FHelpFile.contains(QLatin1String("://"))
                   ? QUrl(FHelpFile)
                   : QUrl::fromLocalFile(QFileInfo(FHelpFile).absoluteFilePath());
    if (Command == HELP_CONTEXT)
        url.setFragment(QString::number(Data));
    else if (Command == HELP_KEY) {
        QUrlQuery query;
        query.addQueryItem(QStringLiteral("keyword"), keyword);
        url.setQuery(query);
    }
    return QDesktopServices::openUrl(url);
}

void TApplication::HandleException(QObject *sender, const std::exception &e)
{
    if (isSignalConnected(QMetaMethod::fromSignal(&TApplication::OnException)))
        emit OnException(sender, e);
    else
        ShowException(e);
}

void TApplication::ShowException(const std::exception &e)
{
    const QString message = QString::fromLocal8Bit(e.what());
    const QString platform = QGuiApplication::platformName();
    if (platform == QLatin1String("offscreen") || platform == QLatin1String("minimal")) {
        qCritical().noquote() << message;
        return;
    }
    QMessageBox::critical(QApplication::activeWindow(), Title(), message);
}

bool TApplication::QueryEndSession()
{
    if (!FMainForm)
        return true;
    TQueryEndSessionEvent query;
    QCoreApplication::sendEvent(FMainForm, &query);
    return query.DoEnd;
}

void TApplication::commitData(QSessionManager &manager)
{
    FSessionEnding = QueryEndSession();
    if (!FSessionEnding && manager.allowsInteraction()) {
        manager.cancel();
        manager.release();
    }
}

void TApplication::connectNotify(const QMetaMethod &signal)
{
    if (signal == QMetaMethod::fromSignal(&TApplication::OnIdle) && !FIdleConnected) {
        if (auto *dispatcher = QAbstractEventDispatcher::instance(thread())) {
            FIdleConnected = true;
            connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, &TApplication::idle);
        }
    }
}

// Before the application waits for events: OnIdle; when it is not done it
// is asked again right after the events that came meanwhile.
void TApplication::idle()
{
    bool done = true;
    emit OnIdle(this, done);
    if (!done)
        QTimer::singleShot(0, this, [] {});
}

// Whether this object's tip still shows (it goes by itself, too).
bool TApplication::tipShown()
{
    const bool visible = HintWindow() ? HintWindow()->HintShown() : QToolTip::isVisible();
    if (FTipControl && !visible) {
        FTipControl = nullptr;
        FSinceTip.start();
    }
    return FTipControl;
}

int TApplication::pause() const
{
    return FSinceTip.isValid() && FSinceTip.elapsed() < kQuickReshow ? kQuickPause : FHintPause;
}

void TApplication::hover(QWidget *widget)
{
    if (widget == FHover)
        return;
    FHover = widget;
    QWidget *owner = widget ? hintOwner(widget) : nullptr;
    SetHint(owner ? longHint(owner) : QString());
    if (FTipControl && (!widget || tipOwner(widget) != FTipControl))
        hideTip();
}

void TApplication::hideTip()
{
    FHide.stop();
    if (THintWindow *window = HintWindow())
        window->HideHint();
    else if (FTipControl)
        QToolTip::hideText();
    if (FTipControl) {
        FTipControl = nullptr;
        FSinceTip.start();
    }
}

void TApplication::showTip()
{
    QWidget *w = FHover;
    if (!w || !FShowHint || !w->isVisible())
        return;
    if (!w->isActiveWindow() && !w->testAttribute(Qt::WA_AlwaysShowToolTips))
        return;
    const QPoint global = QCursor::pos();
    QWidget *control = tipOwner(w);
    if (!control) {
        // A tip that depends on the place: the widget is asked as Qt asks.
        QHelpEvent help(QEvent::ToolTip, w->mapFromGlobal(global), global);
        FDelivering = true;
        QCoreApplication::sendEvent(w, &help);
        FDelivering = false;
        return;
    }
    const QVariant own = control->property("ShowHint");
    if (own.isValid() && !own.toBool())
        return;
    THintInfo info;
    info.HintControl = control;
    info.CursorPos = control->mapFromGlobal(global);
    info.CursorRect = control->rect();
    info.HintPos = global;
    info.HintColor = HintColor();
    info.HideTimeout = FHintHidePause;
    QString text = GetShortHint(control->toolTip());
    bool canShow = true;
    emit OnShowHint(text, canShow, info);
    if (!canShow || text.isEmpty())
        return;
    QWidget *at = info.HintControl;
    if (THintWindow *window = HintWindow()) {
        window->ActivateHint(text, info);
        FTipRect = at ? QRect(at->mapToGlobal(info.CursorRect.topLeft()), info.CursorRect.size()) : QRect();
        if (info.HideTimeout > 0)
            FHide.start(info.HideTimeout);
    } else {
        QToolTip::showText(info.HintPos, text, at, at ? info.CursorRect : QRect(), info.HideTimeout);
        if (info.HintColor != HintColor()) {
            // This tip only, in its own colour.
            for (QWidget *top : QApplication::topLevelWidgets())
                if (top->inherits("QTipLabel") && top->isVisible()) {
                    QPalette palette = top->palette();
                    palette.setColor(QPalette::ToolTipBase, ColorToQColor(info.HintColor));
                    palette.setColor(QPalette::Window, ColorToQColor(info.HintColor));
                    top->setPalette(palette);
                }
        }
    }
    FTipControl = control;
    FSinceTip.invalidate();
}

bool TApplication::eventFilter(QObject *watched, QEvent *event)
{
    static const QMetaMethod message = QMetaMethod::fromSignal(&TApplication::OnMessage);
    if (isSignalConnected(message)) {
        bool handled = false;
        emit OnMessage(watched, event, handled);
        if (handled)
            return true;
    }
    if (!watched->isWidgetType())
        return false;
    auto *w = static_cast<QWidget *>(watched);
    switch (event->type()) {
    case QEvent::Enter:
        // A window is entered again after its child; the child stays.
        if (!(FHover && w->isAncestorOf(FHover)))
            hover(w);
        if (!tipShown())
            FPause.start(pause());
        break;
    case QEvent::Leave:
        if (w == FHover)
            hover(w->isWindow() ? nullptr : w->parentWidget());
        if (!FHover)
            FPause.stop();
        break;
    case QEvent::MouseMove:
        // The tip comes once the mouse rests.
        if (static_cast<QMouseEvent *>(event)->buttons() == Qt::NoButton && w == FHover && !tipShown())
            FPause.start(pause());
        // A hint window's tip goes once the mouse leaves its place.
        if (FTipControl && HintWindow() && FTipRect.isValid()
            && !FTipRect.contains(static_cast<QMouseEvent *>(event)->globalPosition().toPoint()))
            hideTip();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
        FPause.stop();
        hideTip();
        break;
    case QEvent::KeyPress:
        FPause.stop();
        hideTip();
        if (static_cast<QKeyEvent *>(event)->key() == Qt::Key_F1 && w == QApplication::focusWidget()) {
            for (QWidget *h = w; h; h = h->isWindow() ? nullptr : h->parentWidget()) {
                const int context = h->property("HelpContext").toInt();
                if (context > 0) {
                    HelpContext(context);
                    return true;
                }
            }
        }
        break;
    case QEvent::ToolTip:
        // Tips come on this object's timing, not on Qt's own.
        return !FDelivering;
    case QEvent::Show:
        if (!FMainForm && w->isWindow() && (w->windowType() == Qt::Window || w->windowType() == Qt::Dialog))
            FMainForm = w;
        break;
    case QEvent::WindowStateChange: {
        const bool was = static_cast<QWindowStateChangeEvent *>(event)->oldState() & Qt::WindowMinimized;
        const bool is = w->windowState() & Qt::WindowMinimized;
        if (was && !is && FRestoreStep && w == FRestoreForm) {
            const std::function<void()> step = std::exchange(FRestoreStep, nullptr);
            FRestoreForm = nullptr;
            step();
        } else if (w == FMainForm) {
            if (is && !was)
                emit OnMinimize(this);
            else if (was && !is)
                emit OnRestore(this);
        }
        break;
    }
    default:
        break;
    }
    return false;
}
