// What only a window manager shows, on a real X desktop (Xvfb, openbox, a tray).
#include "buttons/qdesktop.h"
#include "platform/windowhints.h"
#include "services/mystd.h"
#include "services/std2.h"

#include "testutil.h"
#include "xdesktop.h"

#include <QRegularExpression>
#include <QScreen>
#include <QSystemTrayIcon>

namespace {

// The user's mouse, through the X server (xdotool), at screen points.
void xdo(const QStringList &args) { runTool(QStringLiteral("xdotool"), args); }

void userDrag(QPoint from, QPoint to, const QString &button = QStringLiteral("1"), bool alt = false)
{
    xdo({"mousemove", QString::number(from.x()), QString::number(from.y())});
    if (alt)
        xdo({"keydown", "alt"});
    xdo({"mousedown", button});
    QTest::qWait(100);   // the window manager takes the pointer over
    // In steps, as a hand moves.
    for (int i = 1; i <= 5; ++i) {
        const QPoint p = from + (to - from) * i / 5;
        xdo({"mousemove", QString::number(p.x()), QString::number(p.y())});
        QTest::qWait(30);
    }
    xdo({"mouseup", button});
    if (alt)
        xdo({"keyup", "alt"});
}

// The frame's place as the X server has it: the window's place less the
// frame the window manager says it drew (Qt may learn of a new frame late).
QPoint frameOnScreen(QWidget *form)
{
    const QString id = QString::number(form->winId());
    const QString info = runTool("xwininfo", {"-id", id});
    const QString extents = runTool("xprop", {"-id", id, "_NET_FRAME_EXTENTS"});
    const QRegularExpressionMatch x = QRegularExpression(QStringLiteral("Absolute upper-left X: +(-?\\d+)")).match(info);
    const QRegularExpressionMatch y = QRegularExpression(QStringLiteral("Absolute upper-left Y: +(-?\\d+)")).match(info);
    const QRegularExpressionMatch frame =
        QRegularExpression(QStringLiteral("= (\\d+), (\\d+), (\\d+), (\\d+)")).match(extents);
    if (!x.hasMatch() || !y.hasMatch() || !frame.hasMatch())
        return QPoint(-1, -1);
    return QPoint(x.captured(1).toInt() - frame.captured(1).toInt(), y.captured(1).toInt() - frame.captured(3).toInt());
}

struct ShownForm
{
    QWidget form;
    explicit ShownForm(QSize size = QSize(300, 200))
    {
        form.setGeometry(QRect(QPoint(200, 150), size));
        form.show();
        form.activateWindow();
        if (!QTest::qWaitForWindowActive(&form))
            qWarning("the form did not become active");
    }
};

QWidget *trayWindow()
{
    for (QWidget *w : QApplication::topLevelWidgets())
        if (w->inherits("QSystemTrayIconSys") && w->isVisible())
            return w;
    return nullptr;
}

} // namespace

class tst_Desktop : public QObject
{
    Q_OBJECT
private slots:
    void showOnStatusBarFalseKeepsTheFormOffTheTaskbar()
    {
        QWidget form;
        form.resize(200, 100);
        auto *info = new TqShowApp(&form);
        info->SetShowOnStatusBar(false);
        loaded(info);
        QVERIFY(shown(&form));
        QVERIFY(SkipsTaskbar(form.windowHandle()));   // as the window manager keeps it
        QCOMPARE(form.windowType(), Qt::Window);        // still a plain window
        // A new native window keeps the hint.
        form.setWindowFlag(Qt::WindowStaysOnTopHint, true);
        QVERIFY(shown(&form));
        QTRY_VERIFY(SkipsTaskbar(form.windowHandle()));
        // Shown, a form is put back on the taskbar through the window manager.
        QVERIFY(SetSkipTaskbar(form.windowHandle(), false));
        QTRY_VERIFY(!SkipsTaskbar(form.windowHandle()));
    }

    void titleBarHiddenAndTheFormDraggedByItsClientArea()
    {
        ShownForm shown;
        QWidget &form = shown.form;
        auto *bar = new TqTitleBar(&form);
        loaded(bar);
        QTRY_VERIFY(form.frameGeometry().height() > form.height());   // the window manager's frame is on
        const QRect frame = form.frameGeometry();
        const int decoration = frame.height() - form.height();
        bar->SetTitleBar(false);
        QTRY_COMPARE(form.frameGeometry().height(), frame.height() - decoration);
        QCOMPARE(form.size(), QSize(300, 200));
        QTRY_COMPARE(form.frameGeometry().topLeft(), frame.topLeft());
        QVERIFY(form.isVisible());
        // A press on the form drags it, through the window manager.
        const QPoint start = form.pos();
        userDrag(form.mapToGlobal(QPoint(150, 100)), form.mapToGlobal(QPoint(210, 140)));
        QTRY_COMPARE(form.pos(), start + QPoint(60, 40));
        // Not with the title bar back, nor when not allowed.
        bar->SetTitleBar(true);
        QTRY_COMPARE(form.frameGeometry().height(), frame.height());
        QCOMPARE(form.size(), QSize(300, 200));
        const QPoint titled = form.pos();
        userDrag(form.mapToGlobal(QPoint(150, 100)), form.mapToGlobal(QPoint(210, 140)));
        QTest::qWait(200);
        QCOMPARE(form.pos(), titled);
        bar->SetAllowMoveWhitoutTitle(false);
        bar->SetTitleBar(false);
        QTRY_VERIFY(form.frameGeometry().height() < frame.height());
        const QPoint bare = form.pos();
        userDrag(form.mapToGlobal(QPoint(150, 100)), form.mapToGlobal(QPoint(210, 140)));
        QTest::qWait(200);
        QCOMPARE(form.pos(), bare);
    }

    void sizeGuardLimitsTheUsersDragAndTheMaximisedPlace()
    {
        ShownForm shown;
        QWidget &form = shown.form;
        auto *guard = new TqMinMax(&form);
        guard->SetMaxWidth(350);   // first: the drag sizes are never below it
        guard->SetMaxHeight(260);
        guard->SetMaxDragWidth(400);
        guard->SetMaxDragHeight(300);
        guard->SetMinDragWidth(250);
        guard->SetMaxLeft(30);
        guard->SetMaxTop(40);
        loaded(guard);
        // Alt and the right button resize a window in this window manager.
        const QPoint corner = form.mapToGlobal(QPoint(290, 190));
        userDrag(corner, corner + QPoint(300, 300), QStringLiteral("3"), true);
        QTest::qWait(200);
        QCOMPARE(form.size(), QSize(400, 300));
        userDrag(form.mapToGlobal(QPoint(390, 290)), form.mapToGlobal(QPoint(50, 50)), QStringLiteral("3"), true);
        QTRY_COMPARE(form.width(), 250);
        // Maximised, it takes the guard's place and size.
        form.showMaximized();
        QTRY_COMPARE(form.geometry().size(), QSize(350, 260));
        QTRY_COMPARE(frameOnScreen(&form), QPoint(30, 40));
    }

    void trayIconInARealNotificationArea()
    {
        QTRY_VERIFY(QSystemTrayIcon::isSystemTrayAvailable());
        QWidget form;
        auto *icon = new TqTrayIcon(&form);
        EventLog log;
        log.watch(icon, &TqTrayIcon::OnMouseDown, "down");
        log.watch(icon, &TqTrayIcon::OnMouseUp, "up");
        log.watch(icon, &TqTrayIcon::OnClick, "click");
        log.watch(icon, &TqTrayIcon::OnRightClick, "rightclick");
        icon->SetToolTip(QStringLiteral("Bench supply"));
        icon->SetActive(true);
        QVERIFY(icon->InTray());
        QCOMPARE(icon->Protocol(), QStringLiteral("xembed"));
        QTRY_VERIFY(trayWindow() && trayWindow()->isVisible());
        QWidget *tray = trayWindow();
        QTRY_VERIFY(tray->mapToGlobal(QPoint(0, 0)) != QPoint(0, 0));   // embedded in the tray
        const QPoint centre = tray->mapToGlobal(tray->rect().center());
        xdo({"mousemove", QString::number(centre.x()), QString::number(centre.y())});
        xdo({"click", "1"});
        QTRY_COMPARE(log.names, (QStringList{"down", "click", "up"}));
        xdo({"click", "3"});
        QTRY_COMPARE(log.names, (QStringList{"down", "click", "up", "down", "rightclick", "up"}));
        // Gone with the component.
        delete icon;
        QTRY_VERIFY(!trayWindow());
    }

    void sizeGuardMakesRoomForTheTaskbar()
    {
        // The notification area here is a 24 pixel bar at the bottom of 1024 x 768.
        QScreen *screen = QGuiApplication::primaryScreen();
        QTRY_COMPARE(screen->availableGeometry(), QRect(0, 0, 1024, 744));
        ShownForm shown;
        auto *guard = new TqMinMax(&shown.form);
        guard->SetAutoTaskBarAjust(true);
        loaded(guard);
        QList<int> asked;
        connect(guard, &TqMinMax::OnSizeChange, guard,
                [&](QObject *, int &, int &, int &, int &, int &dragW, int &dragH, int &left, int &top) {
                    asked = {left, top, dragW, dragH};
                });
        QueryMinMaxInfo(&shown.form);
        QCOMPARE(asked, (QList<int>{0, 0, 1024, 769 - 23}));
        QCOMPARE(shown.form.maximumSize(), QSize(1024, 746));
        QCOMPARE(guard->MaxDragHeight(), 400);   // the property stays
    }

    void desktopControlShowsTheScreenBehindTheForm()
    {
        // Something on the screen first: a red window larger than the form,
        // whatever frames the window manager adds.
        QWidget behind;
        behind.setGeometry(100, 100, 500, 500);
        behind.setPalette(QPalette(Qt::red));
        QVERIFY(shown(&behind));
        QWidget form;
        form.setGeometry(200, 200, 200, 200);
        auto *desktop = new TqDesktop(&form);
        desktop->SetBounds(20, 20, 50, 50);
        QVERIFY(shown(&form));
        QVERIFY(desktop->Grabbed());
        QCOMPARE(desktop->RenderImage().pixel(25, 25), qRgb(255, 0, 0));
    }
};

QC_XDESKTOP_TEST_MAIN(tst_Desktop, WithTray)
#include "tst_desktop.moc"
