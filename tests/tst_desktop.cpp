// On a real X desktop with a window manager: the application information's
// taskbar hint.
#include "platform/windowhints.h"
#include "services/mystd.h"

#include "xdesktop.h"

class tst_Desktop : public QObject
{
    Q_OBJECT
private slots:
    void showOnStatusBarFalseKeepsTheFormOffTheTaskbar();
};

void tst_Desktop::showOnStatusBarFalseKeepsTheFormOffTheTaskbar()
{
    QWidget form;
    form.resize(200, 100);
    auto *info = new TqShowApp(&form);
    info->SetShowOnStatusBar(false);
    info->QueueLoaded();
    info->FinishLoading();
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    QVERIFY(SkipsTaskbar(form.windowHandle()));   // as the window manager keeps it
    QCOMPARE(form.windowType(), Qt::Window);        // still a plain window
    // A new native window keeps the hint.
    form.setWindowFlag(Qt::WindowStaysOnTopHint, true);
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    QTRY_VERIFY(SkipsTaskbar(form.windowHandle()));
    // Shown, a form is put back on the taskbar through the window manager.
    QVERIFY(SetSkipTaskbar(form.windowHandle(), false));
    QTRY_VERIFY(!SkipsTaskbar(form.windowHandle()));
}

QC_XDESKTOP_TEST_MAIN(tst_Desktop, WindowManagerOnly)
#include "tst_desktop.moc"
