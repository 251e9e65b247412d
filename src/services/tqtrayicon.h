#pragma once
// An icon with a tool tip in the desktop's notification area. Its mouse
// messages become the component's events in the order below; a left or
// right click pops up LeftPopupMenu or PopupMenu at the mouse, a left
// double-click can run PopupMenu's default action, and the component can
// hide the form it is on (never the application's main form).
//
// What reaches the component depends on the notification area's protocol:
//   - XEmbed (the X11 system tray, Qt's own tray window): every press,
//     release, double-click and move, as the window system reports them;
//   - StatusNotifierItem (D-Bus) and other platforms: only activations; a
//     left activation is made a left press and release, a context request a
//     right press and release, a middle activation a middle press and
//     release, a double-click a left double-click, so that code written for
//     the full set still sees its clicks and menus; there are no moves.
// Where the desktop has no notification area, Active can still be set and
// reads back as set, InTray() says false and OnTrayMissing fires; the icon
// is not shown anywhere.
//
// A menu whose dynamic property "AutoPopup" is false never pops up from the
// icon (nor fires OnleftMenu or OnRightMenu). An empty Icon shows the
// application's window icon, or a small green lamp when it has none.

#include "host/tcomponent.h"
#include "host/tcontrol.h"

#include <QIcon>
#include <QMenu>
#include <QPointer>

class QSystemTrayIcon;

// The mouse messages of a notification area, as the tray icon takes them.
enum TTrayMessage {
    tmMouseMove, tmLButtonDown, tmLButtonUp, tmLButtonDblClk, tmRButtonDown, tmRButtonUp, tmRButtonDblClk,
    tmMButtonDown, tmMButtonUp, tmMButtonDblClk
};

// A tool tip as the notification area takes it: at most 62 characters.
QString TrayToolTip(const QString &text);

class TqTrayIcon : public TComponent
{
    Q_OBJECT
    Q_PROPERTY(bool HideParentForm READ HideParentForm WRITE SetHideParentForm)
    Q_PROPERTY(bool ShowDesigning READ ShowDesigning WRITE SetShowDesigning)
    Q_PROPERTY(bool Active READ Active WRITE SetActive)
    Q_PROPERTY(QIcon Icon READ Icon WRITE SetIcon)
    Q_PROPERTY(QString ToolTip READ ToolTip WRITE SetToolTip)
    Q_PROPERTY(bool DoDefaultMenu READ DoDefaultMenu WRITE SetDoDefaultMenu)

public:
    using TMouseButton = TControl::TMouseButton;
    using TShiftState = TControl::TShiftState;

    explicit TqTrayIcon(QWidget *owner = nullptr);
    ~TqTrayIcon() override;

    // Shown on a right click, and on a left click. Set by the program (a
    // menu is not a designer property); cleared when the menu is deleted.
    QMenu *PopupMenu() const { return FPopupMenu; }
    void SetPopupMenu(QMenu *menu) { FPopupMenu = menu; }
    QMenu *LeftPopupMenu() const { return FLeftPopupMenu; }
    void SetLeftPopupMenu(QMenu *menu) { FLeftPopupMenu = menu; }

    bool HideParentForm() const { return FHideParentForm; }
    void SetHideParentForm(bool hide);
    // In the designer only: the icon shows while the form is designed.
    bool ShowDesigning() const { return FShowDesigning; }
    void SetShowDesigning(bool show);
    // At run time: the icon is in the notification area.
    bool Active() const { return FActive; }
    void SetActive(bool active);
    QIcon Icon() const { return FIcon; }
    void SetIcon(const QIcon &icon);
    QString ToolTip() const { return FToolTip; }
    void SetToolTip(const QString &text);
    // A left double-click runs PopupMenu's default action.
    bool DoDefaultMenu() const { return FDoDefaultMenu; }
    void SetDoDefaultMenu(bool run) { FDoDefaultMenu = run; }

    // Whether the icon is really in a notification area now.
    bool InTray() const;
    // The notification area's protocol: "xembed", "statusnotifier", or
    // empty while the icon is not shown.
    QString Protocol() const { return FProtocol; }

    // A mouse message of the notification area, at the mouse's place.
    void TrayMessage(TTrayMessage message);

signals:
    void OnClick(QObject *Sender);
    void OnDblClick(QObject *Sender);
    void OnRightClick(QObject *Sender, TControl::TMouseButton Button, int Shift, int X, int Y);
    void OnRightDblClick(QObject *Sender, TControl::TMouseButton Button, int Shift, int X, int Y);
    void OnMidClick(QObject *Sender, TControl::TMouseButton Button, int Shift, int X, int Y);
    void OnMidDblClick(QObject *Sender, TControl::TMouseButton Button, int Shift, int X, int Y);
    void OnMouseMove(QObject *Sender, int Shift, int X, int Y);
    void OnMouseDown(QObject *Sender, TControl::TMouseButton Button, int Shift, int X, int Y);
    void OnMouseUp(QObject *Sender, TControl::TMouseButton Button, int Shift, int X, int Y);
    void OnleftMenu(QObject *Sender);
    void OnRightMenu(QObject *Sender);
    void OnDefaultMenu(QObject *Sender, bool &DoDefault);
    // Active was set where the desktop has no notification area.
    void OnTrayMissing(QObject *Sender);

protected:
    // The modifier keys held now.
    virtual TShiftState GetShift() const;
    // Runs PopupMenu's default action on a double-click; true when it ran.
    virtual bool CheckMenu();
    void CheckMenuPopup(QPoint at, bool left);
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool shownNow() const { return IsDesigning() ? FShowDesigning : FActive; }
    bool AddIcon();
    bool ModifyIcon();
    void DeleteIcon();
    void hideForm();
    QIcon shownIcon() const;

    QPointer<QMenu> FPopupMenu;
    QPointer<QMenu> FLeftPopupMenu;
    bool FHideParentForm = false;
    bool FShowDesigning = false;
    bool FActive = false;
    bool FDoDefaultMenu = false;
    bool FLeftDown = false, FRightDown = false, FMiddleDown = false;
    QIcon FIcon;
    QString FToolTip;
    QString FProtocol;
    QSystemTrayIcon *FTray = nullptr;
    QPointer<QWidget> FTrayWindow;   // Qt's own tray window, where XEmbed is spoken
};
