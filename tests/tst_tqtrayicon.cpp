// The tray icon's rules without a notification area; the real tray is in
// tst_desktop.
#include "host/tapplication.h"
#include "services/mystd.h"

#include "testutil.h"

namespace {

struct Tray
{
    QWidget form;
    TqTrayIcon *icon = new TqTrayIcon(&form);
    QMenu right, left;
    EventLog log;
    Tray()
    {
        icon->SetPopupMenu(&right);
        icon->SetLeftPopupMenu(&left);
        log.watch(icon, &TqTrayIcon::OnMouseDown, "down");
        log.watch(icon, &TqTrayIcon::OnMouseUp, "up");
        log.watch(icon, &TqTrayIcon::OnClick, "click");
        log.watch(icon, &TqTrayIcon::OnDblClick, "dblclick");
        log.watch(icon, &TqTrayIcon::OnRightClick, "rightclick");
        log.watch(icon, &TqTrayIcon::OnMidClick, "midclick");
        log.watch(icon, &TqTrayIcon::OnleftMenu, "leftmenu");
        log.watch(icon, &TqTrayIcon::OnRightMenu, "rightmenu");
        log.watch(icon, &TqTrayIcon::OnMouseMove, "move");
    }
    ~Tray()
    {
        right.hide();
        left.hide();
    }
};

} // namespace

class tst_TqTrayIcon : public QObject
{
    Q_OBJECT
private slots:
    void messagesInOrder()
    {
        Tray t;
        t.left.setProperty("AutoPopup", false);
        t.right.setProperty("AutoPopup", false);
        for (TTrayMessage m : {tmMouseMove, tmLButtonDown, tmLButtonUp, tmMButtonDown, tmMButtonUp, tmRButtonDown, tmRButtonUp})
            t.icon->TrayMessage(m);
        QCOMPARE(t.log.names, (QStringList{"move", "down", "click", "up", "down", "midclick", "up", "down", "rightclick", "up"}));
        // A release whose press was not on the icon is only a release.
        t.log.names.clear();
        t.icon->TrayMessage(tmLButtonUp);
        t.icon->TrayMessage(tmRButtonUp);
        QCOMPARE(t.log.names, (QStringList{"up", "up"}));
    }

    void menusAndAutoPopup()
    {
        Tray t;
        t.left.addAction(QStringLiteral("Start"));
        t.right.addAction(QStringLiteral("Stop"));
        t.icon->TrayMessage(tmLButtonDown);
        t.icon->TrayMessage(tmLButtonUp);
        QCOMPARE(t.log.names, (QStringList{"down", "click", "leftmenu", "up"}));
        QTRY_VERIFY(t.left.isVisible());
        QCOMPARE(t.left.property("PopupComponent").value<QObject *>(), t.icon);
        t.left.hide();
        t.log.names.clear();
        t.right.setProperty("AutoPopup", false);
        t.icon->TrayMessage(tmRButtonDown);
        t.icon->TrayMessage(tmRButtonUp);
        QCOMPARE(t.log.names, (QStringList{"down", "rightclick", "up"}));
        QVERIFY(!t.right.isVisible());
    }

    void defaultActionOnDoubleClick()
    {
        Tray t;
        QAction *run = t.right.addAction(QStringLiteral("Run"));
        t.right.setDefaultAction(run);
        int runs = 0;
        connect(run, &QAction::triggered, [&] { ++runs; });
        QSignalSpy missing(t.icon, &TqTrayIcon::OnTrayMissing);
        t.icon->SetActive(true);   // no notification area here: said so, and still set
        QCOMPARE(missing.count(), 1);
        QVERIFY(t.icon->Active());
        QVERIFY(!t.icon->InTray());
        t.icon->TrayMessage(tmLButtonDblClk);   // DoDefaultMenu is off
        QCOMPARE(t.log.names, QStringList{"dblclick"});
        t.icon->SetDoDefaultMenu(true);
        t.icon->TrayMessage(tmLButtonDblClk);
        QCOMPARE(runs, 1);
        bool allow = false;
        connect(t.icon, &TqTrayIcon::OnDefaultMenu, t.icon, [&](QObject *, bool &doDefault) { doDefault = allow; });
        t.icon->TrayMessage(tmLButtonDblClk);
        QCOMPARE(runs, 1);
        QCOMPARE(t.log.names, (QStringList{"dblclick", "dblclick"}));
    }

    void toolTipMenusAndTheParentForm()
    {
        QWidget main, other;
        Application()->SetMainForm(&main);
        main.show();
        other.show();
        auto *onMain = new TqTrayIcon(&main);
        auto *onOther = new TqTrayIcon(&other);
        onOther->SetToolTip(QString(100, QLatin1Char('x')));
        QCOMPARE(onOther->ToolTip().size(), 62);
        onMain->SetHideParentForm(true);
        onOther->SetHideParentForm(true);
        QTRY_VERIFY(!other.isVisible());
        QVERIFY(main.isVisible());
        auto *menu = new QMenu;
        onMain->SetPopupMenu(menu);
        delete menu;
        QVERIFY(!onMain->PopupMenu());

        // No form: none at construction, and the hide-form message, run
        // from the event loop, reports it to the application.
        QVERIFY_THROWS_EXCEPTION(EComponentError, TqTrayIcon(nullptr));
        QStringList errors;
        connect(Application(), &TApplication::OnException, onOther,
                [&](QObject *, const std::exception &e) { errors << QString::fromLatin1(e.what()); });
        onOther->SetHideParentForm(false);
        onOther->setParent(nullptr);
        QTRY_COMPARE(errors, QStringList{"NoForm"});
        delete onOther;
    }
};

QTEST_MAIN(tst_TqTrayIcon)
#include "tst_tqtrayicon.moc"
