#include "tqtrayicon.h"

#include "host/tapplication.h"
#include "host/tform.h"

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QPainter>
#include <QSystemTrayIcon>
#include <QTimer>

QString TrayToolTip(const QString &text)
{
    return text.left(62);
}

TqTrayIcon::TqTrayIcon(QWidget *owner) : TComponent(owner)
{
    FindForm(this);   // "NoForm" when made on none
    // A form other than the main one is shown or hidden as HideParentForm
    // says, once the current event has been handled.
    if (!IsDesigning())
        SetHideParentForm(FHideParentForm);
}

TqTrayIcon::~TqTrayIcon()
{
    if (shownNow())
        DeleteIcon();
}

void TqTrayIcon::SetHideParentForm(bool hide)
{
    FHideParentForm = hide;
    if (!IsDesigning())
        QTimer::singleShot(0, this, &TqTrayIcon::hideForm);
}

// Run from the event loop: a component taken off its form meanwhile
// reports "NoForm" to the application.
void TqTrayIcon::hideForm()
{
    GuardEvent(this, [this] {
        QWidget *form = FindForm(this);
        if (form != Application()->MainForm())
            form->setVisible(!FHideParentForm);
        return true;
    });
}

void TqTrayIcon::SetShowDesigning(bool show)
{
    if (!IsDesigning() || show == FShowDesigning)
        return;
    FShowDesigning = show;
    if (show)
        AddIcon();
    else
        DeleteIcon();
}

void TqTrayIcon::SetActive(bool active)
{
    if (active == FActive)
        return;
    FActive = active;
    if (IsDesigning())
        return;
    if (active)
        AddIcon();
    else
        DeleteIcon();
}

void TqTrayIcon::SetIcon(const QIcon &icon)
{
    FIcon = icon;
    ModifyIcon();
}

void TqTrayIcon::SetToolTip(const QString &text)
{
    FToolTip = TrayToolTip(text);
    ModifyIcon();
}

bool TqTrayIcon::InTray() const
{
    return FTray && FTray->isVisible() && QSystemTrayIcon::isSystemTrayAvailable();
}

QIcon TqTrayIcon::shownIcon() const
{
    if (!FIcon.isNull())
        return FIcon;
    if (!QApplication::windowIcon().isNull())
        return QApplication::windowIcon();
    QPixmap lamp(16, 16);
    lamp.fill(Qt::transparent);
    QPainter p(&lamp);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QColor(0, 64, 0));
    p.setBrush(QColor(0, 200, 0));
    p.drawEllipse(QRectF(1.5, 1.5, 13, 13));
    return QIcon(lamp);
}

bool TqTrayIcon::AddIcon()
{
    if (!QSystemTrayIcon::isSystemTrayAvailable()) {
        emit OnTrayMissing(this);
        return false;
    }
    if (!FTray) {
        FTray = new QSystemTrayIcon(this);
        connect(FTray, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
            if (FTrayWindow)
                return;   // the tray window's own mouse events say more
            switch (reason) {
            case QSystemTrayIcon::Trigger:
                TrayMessage(tmLButtonDown);
                TrayMessage(tmLButtonUp);
                break;
            case QSystemTrayIcon::DoubleClick: TrayMessage(tmLButtonDblClk); break;
            case QSystemTrayIcon::Context:
                TrayMessage(tmRButtonDown);
                TrayMessage(tmRButtonUp);
                break;
            case QSystemTrayIcon::MiddleClick:
                TrayMessage(tmMButtonDown);
                TrayMessage(tmMButtonUp);
                break;
            default: break;
            }
        });
    }
    FTray->setIcon(shownIcon());
    FTray->setToolTip(FToolTip);
    // Qt's own tray window, if it makes one, is where XEmbed is spoken.
    QSet<QWidget *> before;
    for (QWidget *w : QApplication::topLevelWidgets())
        if (w->inherits("QSystemTrayIconSys"))
            before.insert(w);
    FTray->show();
    FTrayWindow = nullptr;
    for (QWidget *w : QApplication::topLevelWidgets())
        if (w->inherits("QSystemTrayIconSys") && !before.contains(w)) {
            FTrayWindow = w;
            w->installEventFilter(this);
        }
    FProtocol = FTrayWindow ? QStringLiteral("xembed") : QStringLiteral("statusnotifier");
    QTimer::singleShot(0, this, &TqTrayIcon::ModifyIcon);
    return true;
}

bool TqTrayIcon::ModifyIcon()
{
    if (!shownNow() || !FTray)
        return true;
    FTray->setIcon(shownIcon());
    FTray->setToolTip(FToolTip);
    return FTray->isVisible();
}

void TqTrayIcon::DeleteIcon()
{
    if (FTrayWindow)
        FTrayWindow->removeEventFilter(this);
    FTrayWindow = nullptr;
    delete FTray;
    FTray = nullptr;
    FProtocol.clear();
}

TControl::TShiftState TqTrayIcon::GetShift() const
{
    const Qt::KeyboardModifiers keys = QGuiApplication::queryKeyboardModifiers();
    TShiftState shift = 0;
    if (keys & Qt::ShiftModifier)
        shift |= TControl::ssShift;
    if (keys & Qt::ControlModifier)
        shift |= TControl::ssCtrl;
    if (keys & Qt::AltModifier)
        shift |= TControl::ssAlt;
    return shift;
}

void TqTrayIcon::TrayMessage(TTrayMessage message)
{
    const QPoint at = QCursor::pos();
    const int x = at.x(), y = at.y();
    const TShiftState shift = GetShift();
    switch (message) {
    case tmMouseMove: emit OnMouseMove(this, shift, x, y); break;
    case tmLButtonDown:
        FLeftDown = true;
        emit OnMouseDown(this, TControl::mbLeft, shift | TControl::ssLeft, x, y);
        break;
    case tmLButtonUp:
        if (FLeftDown) {
            FLeftDown = false;
            emit OnClick(this);
            CheckMenuPopup(at, true);
        }
        emit OnMouseUp(this, TControl::mbLeft, shift | TControl::ssLeft, x, y);
        break;
    case tmLButtonDblClk:
        if (!CheckMenu())
            emit OnDblClick(this);
        break;
    case tmRButtonDown:
        FRightDown = true;
        emit OnMouseDown(this, TControl::mbRight, shift | TControl::ssRight, x, y);
        break;
    case tmRButtonUp:
        if (FRightDown) {
            FRightDown = false;
            emit OnRightClick(this, TControl::mbRight, shift | TControl::ssRight, x, y);
            CheckMenuPopup(at, false);
        }
        emit OnMouseUp(this, TControl::mbRight, shift | TControl::ssRight, x, y);
        break;
    case tmRButtonDblClk: emit OnRightDblClick(this, TControl::mbRight, shift | TControl::ssRight, x, y); break;
    case tmMButtonDown:
        FMiddleDown = true;
        emit OnMouseDown(this, TControl::mbMiddle, shift | TControl::ssMiddle, x, y);
        break;
    case tmMButtonUp:
        if (FMiddleDown) {
            FMiddleDown = false;
            emit OnMidClick(this, TControl::mbMiddle, shift | TControl::ssMiddle, x, y);
        }
        emit OnMouseUp(this, TControl::mbMiddle, shift | TControl::ssMiddle, x, y);
        break;
    case tmMButtonDblClk: emit OnMidDblClick(this, TControl::mbMiddle, shift | TControl::ssMiddle, x, y); break;
    }
}

void TqTrayIcon::CheckMenuPopup(QPoint at, bool left)
{
    if (IsDesigning())
        return;
    QMenu *menu = left ? FLeftPopupMenu : FPopupMenu;
    const QVariant autoPopup = menu ? menu->property("AutoPopup") : QVariant();
    if (!menu || (autoPopup.isValid() && !autoPopup.toBool()))
        return;
    menu->setProperty("PopupComponent", QVariant::fromValue<QObject *>(this));
    if (QWidget *main = Application()->MainForm())
        main->activateWindow();
    if (left)
        emit OnleftMenu(this);
    else
        emit OnRightMenu(this);
    menu->popup(at);
}

bool TqTrayIcon::CheckMenu()
{
    if (!FDoDefaultMenu || IsDesigning() || !FActive || !FPopupMenu || FPopupMenu->actions().isEmpty())
        return false;
    QAction *item = FPopupMenu->defaultAction();
    if (!item)
        return false;
    bool doDefault = true;
    emit OnDefaultMenu(this, doDefault);
    if (!doDefault)
        return false;
    item->trigger();
    return true;
}

// Qt's tray window (XEmbed): its mouse events are the notification
// area's messages.
bool TqTrayIcon::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != FTrayWindow)
        return false;
    const auto button = [event] { return static_cast<QMouseEvent *>(event)->button(); };
    const auto pick = [&](TTrayMessage l, TTrayMessage r, TTrayMessage m) {
        switch (button()) {
        case Qt::LeftButton: TrayMessage(l); return true;
        case Qt::RightButton: TrayMessage(r); return true;
        case Qt::MiddleButton: TrayMessage(m); return true;
        default: return false;
        }
    };
    switch (event->type()) {
    case QEvent::MouseMove: TrayMessage(tmMouseMove); return false;
    case QEvent::MouseButtonPress: return pick(tmLButtonDown, tmRButtonDown, tmMButtonDown);
    case QEvent::MouseButtonRelease: return pick(tmLButtonUp, tmRButtonUp, tmMButtonUp);
    case QEvent::MouseButtonDblClick: return pick(tmLButtonDblClk, tmRButtonDblClk, tmMButtonDblClk);
    default: return false;
    }
}
