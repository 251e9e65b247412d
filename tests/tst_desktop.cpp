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

// A property of the form's window as the X server has it.
QString windowProperty(QWidget *form, const char *property)
{
    return runTool("xprop", {"-id", QString::number(form->winId()), QLatin1String(property)});
}

// The frame the window manager says it drew: left, right, top, bottom.
QList<int> frameExtents(QWidget *form)
{
    const QString extents = windowProperty(form, "_NET_FRAME_EXTENTS");
    const QRegularExpressionMatch m = QRegularExpression(QStringLiteral("= (\\d+), (\\d+), (\\d+), (\\d+)")).match(extents);
    if (!m.hasMatch())
        return {};
    return {m.captured(1).toInt(), m.captured(2).toInt(), m.captured(3).toInt(), m.captured(4).toInt()};
}

// Maximised as Qt and the window manager both have it.
bool maximisedByTheWindowManager(QWidget *form)
{
    const QString state = windowProperty(form, "_NET_WM_STATE");
    return form->isMaximized() && state.contains(QLatin1String("_NET_WM_STATE_MAXIMIZED_VERT"))
        && state.contains(QLatin1String("_NET_WM_STATE_MAXIMIZED_HORZ"));
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
        const QList<int> withTitle = frameExtents(&form);
        QVERIFY(withTitle.at(2) > withTitle.at(0));   // a title bar over the border
        bar->SetTitleBar(false);
        // A thin border all round is left, the same on every side.
        QTRY_VERIFY(frameExtents(&form).value(2, INT_MAX) < withTitle.at(2));
        const QList<int> bordered = frameExtents(&form);
        QVERIFY(bordered.at(0) > 0);
        QCOMPARE(bordered, QList<int>(4, bordered.at(0)));
        QTRY_COMPARE(form.frameGeometry().height(), form.height() + 2 * bordered.at(0));
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
        QCOMPARE(frameExtents(&form), withTitle);
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

    // A tool window of a fixed size keeps its title bar, and each hide
    // still takes the caption's height off.
    void fixedToolWindowLosesTheCaptionsHeight()
    {
        QWidget tool(nullptr, Qt::Tool);
        tool.setGeometry(200, 150, 300, 200);
        tool.setFixedSize(300, 200);
        QVERIFY(shown(&tool));
        QTRY_VERIFY(frameExtents(&tool).value(2) > frameExtents(&tool).value(0));
        auto *bar = new TqTitleBar(&tool);
        bar->SetTitleBarOnFormShow(true);
        loaded(bar);
        const int caption = frameExtents(&tool).at(2);   // the frame above the client area
        QList<int> heights;
        for (const bool show : {false, false, true}) {
            bar->SetTitleBar(show);
            heights << tool.height();
        }
        QCOMPARE(heights, (QList<int>{200 - caption, 200 - 2 * caption, 200 - 2 * caption}));
        QTRY_COMPARE(tool.geometry().height(), 200 - 2 * caption);
        QCOMPARE(FormBorderStyle(&tool), bsToolWindow);
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
        // Maximised, it takes the guard's size and stays maximised, also
        // through a change of the limits and the taskbar option; restored,
        // it is back where it was.
        const QRect normal = form.geometry();
        form.showMaximized();
        QTRY_COMPARE(form.geometry().size(), QSize(350, 260));
        QVERIFY(maximisedByTheWindowManager(&form));
        guard->SetMaxWidth(320);
        QTRY_COMPARE(form.geometry().size(), QSize(320, 260));
        QVERIFY(maximisedByTheWindowManager(&form));
        guard->SetAutoTaskBarAjust(true);
        QTRY_VERIFY(maximisedByTheWindowManager(&form));
        QTRY_COMPARE(form.geometry().size(), QSize(320, 260));
        form.showNormal();
        QTRY_COMPARE(form.geometry(), normal);
        QVERIFY(!form.isMaximized());
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
