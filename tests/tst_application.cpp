// The application object: tips on its own timing, exceptions from component
// events, help, messages, idle and the main form.
#include "host/tapplication.h"
#include "indicators/qled.h"

#include "testutil.h"

#include <QLineEdit>
#include <QStyle>
#include <QToolTip>

namespace {

// Runs the event loop past the time after which Qt's own tool tip would
// show, and past a short hint pause several times over.
void waitPastQtsOwnTipTime()
{
    QTest::qWait(QApplication::style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay) + 200);
}

} // namespace

class tst_Application : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        Application()->SetHintPause(30);
        Application()->SetHintHidePause(10000);
        Application()->SetShowHint(true);
    }

    void tipsOnTheApplicationsTiming()
    {
        TipForm form;
        QTest::mouseMove(form.plain, QPoint(50, 50));
        QStringList hints;
        QObject context;
        connect(Application(), &TApplication::OnHint, &context, [&] { hints << Application()->Hint(); });
        // A long pause keeps the tip back past Qt's own time; Hint is the long
        // part at once.
        Application()->SetHintPause(60000);
        QTest::mouseMove(form.tipped, QPoint(50, 50));
        waitPastQtsOwnTipTime();
        QVERIFY(!QToolTip::isVisible());
        QCOMPARE(hints, QStringList{"Supply voltage in volts"});
        // A short one, counted from the mouse's last move; the tip is the short part.
        Application()->SetHintPause(30);
        QTest::mouseMove(form.tipped, QPoint(51, 50));
        QTRY_VERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), QStringLiteral("Volts"));
        // Over the widget without a tip: the tip goes and Hint empties.
        QTest::mouseMove(form.plain, QPoint(50, 50));
        QTRY_VERIFY(!QToolTip::isVisible());
        QCOMPARE(hints, (QStringList{"Supply voltage in volts", QString()}));
        // Back soon after: the tip is back at once, and stays HintHidePause.
        Application()->SetHintPause(60000);
        Application()->SetHintHidePause(200);
        QTest::mouseMove(form.tipped, QPoint(40, 40));
        QTRY_VERIFY(QToolTip::isVisible());
        QTRY_VERIFY(!QToolTip::isVisible());
        // With hints off nothing shows, whatever the pause.
        Application()->SetHintPause(30);
        Application()->SetShowHint(false);
        QTest::mouseMove(form.plain, QPoint(50, 50));
        QTest::mouseMove(form.tipped, QPoint(50, 50));
        waitPastQtsOwnTipTime();
        QVERIFY(!QToolTip::isVisible());
    }

    void showHintMayChangeOrStopTheTip()
    {
        TipForm form;
        QObject context;
        bool allow = true;
        QWidget *tipControl = nullptr;
        connect(Application(), &TApplication::OnShowHint, &context,
                [&](QString &text, bool &canShow, THintInfo &info) {
                    tipControl = info.HintControl;
                    QCOMPARE(info.CursorPos, QPoint(50, 50));
                    text = QStringLiteral("Volts: %1").arg(12);
                    canShow = allow;
                });
        QTest::mouseMove(form.tipped, QPoint(50, 50));
        QTRY_VERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), QStringLiteral("Volts: 12"));
        QCOMPARE(tipControl, form.tipped);
        QTest::mouseMove(form.plain, QPoint(50, 50));
        QTRY_VERIFY(!QToolTip::isVisible());
        allow = false;
        tipControl = nullptr;
        QTest::mouseMove(form.tipped, QPoint(50, 50));
        QTRY_COMPARE(tipControl, form.tipped);   // asked, and refused
        QCoreApplication::processEvents();
        QVERIFY(!QToolTip::isVisible());
    }

    void exceptionsFromComponentEvents()
    {
        ShownOnForm<TqLed> shown;
        TqLed *led = shown.control;
        connect(led, &TControl::OnMouseDown, led, [] { throw std::runtime_error("lamp handler failed"); });
        QStringList seen;
        QObject context;
        connect(Application(), &TApplication::OnException, &context, [&](QObject *sender, const std::exception &e) {
            seen << QString::fromLatin1(e.what());
            QCOMPARE(sender, led);
        });
        QTest::mouseClick(led, Qt::LeftButton);
        QCOMPARE(seen, QStringList{"lamp handler failed"});
        // Nobody listening: the message is shown (logged without a screen).
        context.disconnect();
        disconnect(Application(), &TApplication::OnException, nullptr, nullptr);
        QTest::ignoreMessage(QtCriticalMsg, "lamp handler failed");
        QTest::mouseClick(led, Qt::LeftButton);
    }

    void helpRequests()
    {
        QWidget form;
        auto *edit = new QLineEdit(&form);
        edit->setProperty("HelpContext", 42);
        form.show();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        edit->setFocus();
        QList<qintptr> asked;
        QObject context;
        connect(Application(), &TApplication::OnHelp, &context, [&](int command, qintptr data, bool &callHelp, bool &result) {
            QCOMPARE(command, int(HELP_CONTEXT));
            asked << data;
            callHelp = false;
            result = true;
        });
        QTest::keyClick(edit, Qt::Key_F1);
        QCOMPARE(asked, QList<qintptr>{42});
        QVERIFY(edit->text().isEmpty());
        QVERIFY(Application()->HelpContext(7));   // OnHelp answered
        context.disconnect();
        disconnect(Application(), &TApplication::OnHelp, nullptr, nullptr);
        Application()->SetHelpFile(QString());
        QVERIFY(!Application()->HelpJump(QStringLiteral("volts")));   // no help file
    }

    void messagesIdleAndMainForm()
    {
        QWidget form;
        auto *edit = new QLineEdit(&form);
        Application()->SetMainForm(&form);
        QVERIFY(shown(&form));
        QObject context;
        connect(Application(), &TApplication::OnMessage, &context, [&](QObject *receiver, QEvent *e, bool &handled) {
            handled = receiver == edit && e->type() == QEvent::KeyPress
                      && static_cast<QKeyEvent *>(e)->key() == Qt::Key_X;
        });
        QTest::keyClicks(edit, QStringLiteral("axb"));
        QCOMPARE(edit->text(), QStringLiteral("ab"));
        // Not done: asked again with nothing else happening.
        int idles = 0;
        QEventLoop loop;
        connect(Application(), &TApplication::OnIdle, &context, [&](QObject *, bool &done) {
            done = ++idles >= 5;
            if (done)
                loop.quit();
        });
        QTimer::singleShot(10000, &loop, &QEventLoop::quit);   // not for ever
        loop.exec();
        QCOMPARE(idles, 5);
        EventLog log;
        log.watch(Application(), &TApplication::OnMinimize, "minimize");
        log.watch(Application(), &TApplication::OnRestore, "restore");
        form.setWindowState(Qt::WindowMinimized);
        form.setWindowState(Qt::WindowMinimized);   // no change, no event
        form.setWindowState(Qt::WindowNoState);
        QCOMPARE(log.names, (QStringList{"minimize", "restore"}));
    }
};

QTEST_MAIN(tst_Application)
#include "tst_application.moc"
