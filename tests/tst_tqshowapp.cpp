// Application information and single instance, with real processes.
#include "host/tapplication.h"
#include "host/tformat.h"
#include "services/mystd.h"

#include "testutil.h"

namespace {

struct Probe : ProbeProcess
{
    explicit Probe(const QStringList &args = {}) : ProbeProcess(QStringLiteral(QC_SHOWAPP_PROBE), args) {}
};

} // namespace

class tst_TqShowApp : public QObject
{
    Q_OBJECT
private slots:
    void factsAsTheSystemSaysThem()
    {
        TqShowApp info;
        QCOMPARE(info.WindowsString(), runTool("uname", {"-s"}) + QLatin1Char(' ') + runTool("uname", {"-r"}));
        QCOMPARE(info.WinVerMajor(), runTool("uname", {"-r"}).section(QLatin1Char('.'), 0, 0).toInt());
        QCOMPARE(info.ComputerName(), runTool("hostname"));
        QCOMPARE(info.UserName(), runTool("id", {"-un"}));
        QCOMPARE(info.EnvironmentLines(), QProcess::systemEnvironment());
        if (runTool("uname", {"-m"}) == QLatin1String("x86_64")) {
            QCOMPARE(info.CPUType(), 8);
            QCOMPARE(info.CPUString(), QStringLiteral("P8"));
        }
        QCOMPARE(info.IPHostName(), QStringLiteral("-Unknown-"));   // until asked for
        info.SetEnabledHostInfo(true);
        if (info.IPHostName() != QLatin1String("-none-")) {
            QCOMPARE(info.IPHostName(), runTool("hostname"));
            QVERIFY(QRegularExpression(QStringLiteral("^\\d+\\.\\d+\\.\\d+\\.\\d+$")).match(info.IPHostAddress()).hasMatch());
        }
        // Settings live on the application object, not in the component.
        info.SetTitle(QStringLiteral("Bench rig"));
        info.SetHelpFile(QStringLiteral("rig.qch"));
        TqShowApp other;
        QCOMPARE(other.Title(), QStringLiteral("Bench rig"));
        QCOMPARE(other.HelpFile(), QStringLiteral("rig.qch"));
    }

    void shortDateRules()
    {
        SetShortDateFormat(QStringLiteral("d/M/yy"));
        TqShowApp info;   // remembers d/M/yy
        info.SetShortDate(TqShowApp::sdf4DigitYear);
        QCOMPARE(ShortDateFormat(), QStringLiteral("d/M/yyyy"));
        info.SetShortDate(TqShowApp::sdf2DigitYear);
        QCOMPARE(ShortDateFormat(), QStringLiteral("d/M/yy"));
        SetShortDateFormat(QStringLiteral("yyyy.MM.dd"));   // changed by other code meanwhile
        info.SetShortDate(TqShowApp::sdf2DigitYear);
        QCOMPARE(ShortDateFormat(), QStringLiteral("yy.MM.dd"));
        info.SetShortDate(TqShowApp::sdfDontTouch);
        QCOMPARE(ShortDateFormat(), QStringLiteral("d/M/yy"));
    }

    void loadedAloneHasNoForm()
    {
        TqShowApp info;
        info.QueueLoaded();
        QVERIFY_THROWS_EXCEPTION(EComponentError, info.FinishLoading());
    }

    // Started minimised, the form waits on the taskbar with ShowMainForm
    // false; the user's restore shows it and sets ShowMainForm again, in
    // place of the application's OnRestore that once.
    void minimisedStartComesBack()
    {
        QWidget form;
        Application()->SetMainForm(&form);
        auto *info = new TqShowApp(&form);
        info->SetUseCmdShow(true);
        QSignalSpy restores(Application(), &TApplication::OnRestore);
        qputenv("QC_SHOW_COMMAND", "7");
        loaded(info);
        qunsetenv("QC_SHOW_COMMAND");
        QVERIFY(!info->ShowMainForm());
        QVERIFY(form.windowState() & Qt::WindowMinimized);
        QTRY_VERIFY(form.isVisible());
        form.setWindowState(Qt::WindowNoState);   // the user restores it
        QVERIFY(info->ShowMainForm());
        QVERIFY(form.isVisible());
        QCOMPARE(form.windowState(), Qt::WindowNoState);
        QCOMPARE(restores.count(), 0);
        form.setWindowState(Qt::WindowMinimized);
        form.setWindowState(Qt::WindowNoState);
        QCOMPARE(restores.count(), 1);   // the application's own again
    }

    void applicationEventsAndSettings()
    {
        TqShowApp info;
        EventLog log;
        log.watch(&info, &TqShowApp::OnHint, "hint");
        Application()->SetHint(QStringLiteral("Trigger level"));
        Application()->SetHint(QStringLiteral("Trigger level"));   // no change, no event
        QCOMPARE(log.names, QStringList{"hint"});
        info.SetHintPause(120);
        QCOMPARE(Application()->HintPause(), 120);
        // Designing a form leaves the designer's own application alone.
        const auto designed = madeInDesigner<TqShowApp>();
        designed->SetTitle(QStringLiteral("Designed"));
        designed->SetHintPause(900);
        QCOMPARE(designed->Title(), QStringLiteral("Designed"));
        QCOMPARE(designed->HintPause(), 900);
        QVERIFY(Application()->Title() != QLatin1String("Designed"));
        QCOMPARE(Application()->HintPause(), 120);
    }

    void endOfSessionAskedOfTheMainForm()
    {
        QWidget form, dialog;
        auto *info = new TqShowApp(&form);
        auto *other = new TqShowApp(&dialog);
        for (TqShowApp *c : {info, other}) {
            loaded(c);
        }
        Application()->SetMainForm(&form);
        QStringList seen;
        bool allow = false;
        connect(info, &TqShowApp::OnAskEndSession, info, [&](bool &doEnd) { seen << "ask"; doEnd = allow; });
        connect(info, &TqShowApp::OnEndSession, info, [&] { seen << "end"; });
        connect(other, &TqShowApp::OnAskEndSession, other, [&](bool &doEnd) { seen << "other"; doEnd = false; });
        QVERIFY(!Application()->QueryEndSession());
        allow = true;
        QVERIFY(Application()->QueryEndSession());
        TEndSessionEvent ending;
        QCoreApplication::sendEvent(&form, &ending);
        // Only the main form's component is asked.
        TQueryEndSessionEvent query;
        QCoreApplication::sendEvent(&dialog, &query);
        QVERIFY(query.DoEnd);
        QCOMPARE(seen, (QStringList{"ask", "ask", "end"}));
    }

    void secondStartHandsOverAndEnds()
    {
        Probe first;
        QCOMPARE(first.line(), QStringLiteral("first"));
        for (int i = 0; i < 5; ++i) {
            Probe second;
            QCOMPARE(second.line(), QStringLiteral("second"));
            QVERIFY(second.process.waitForFinished(10000));   // it ends by itself
            QCOMPARE(first.line(), QStringLiteral("another"));   // once for each
        }
        // Started in pairs, exactly one of each pair survives: the other ends
        // by itself.
        first.process.kill();
        first.process.waitForFinished(5000);
        for (int i = 0; i < 100; ++i) {
            Probe a, b;
            const QString saidA = a.line(), saidB = b.line();
            QCOMPARE(QStringList({saidA, saidB}).count(QStringLiteral("first")), 1);
            Probe &survivor = saidA == QLatin1String("first") ? a : b, &other = &survivor == &a ? b : a;
            QVERIFY(other.process.waitForFinished(10000));
            QCOMPARE(survivor.process.state(), QProcess::Running);
        }
    }

    void killedFirstLeavesNoLock()
    {
        {
            Probe first;
            QCOMPARE(first.line(), QStringLiteral("first"));
            first.process.kill();   // SIGKILL: it leaves its lock and name behind
            QVERIFY(first.process.waitForFinished(10000));
        }
        Probe next;
        QCOMPARE(next.line(), QStringLiteral("first"));
        Probe later;
        QCOMPARE(later.line(), QStringLiteral("second"));
        QCOMPARE(next.line(), QStringLiteral("another"));   // the name the killed one left is taken over
    }

    // Within one program every lock of the key is the same one: two
    // components are both first, and both hear of a later start.
    void everyComponentOfTheFirstHears()
    {
        Probe first({QStringLiteral("two")});
        QCOMPARE(first.line(), QStringLiteral("first"));
        QCOMPARE(first.line(), QStringLiteral("first"));
        Probe later;
        QCOMPARE(later.line(), QStringLiteral("second"));
        QCOMPARE(first.line(), QStringLiteral("another"));
        QCOMPARE(first.line(), QStringLiteral("another"));
    }

    // A first start that did not ask for one instance still holds the lock:
    // a later one that asks ends, one that does not runs beside it.
    void firstWithoutTheFlagStillHoldsTheLock()
    {
        Probe free({QStringLiteral("free")});
        QCOMPARE(free.line(), QStringLiteral("first"));
        Probe later;
        QCOMPARE(later.line(), QStringLiteral("second"));
        QVERIFY(later.process.waitForFinished(10000));
        Probe alsoFree({QStringLiteral("free")});
        QCOMPARE(alsoFree.line(), QStringLiteral("first"));
        QCOMPARE(alsoFree.process.state(), QProcess::Running);
        free.process.kill();
        QVERIFY(free.process.waitForFinished(10000));
        QVERIFY(!free.process.canReadLine());   // it never heard of the later start
    }

    void secondStartMayLeaveTheFirstAlone()
    {
        Probe first;
        QCOMPARE(first.line(), QStringLiteral("first"));
        {
            Probe second({QStringLiteral("nobring")});
            QCOMPARE(second.line(), QStringLiteral("second"));
            QVERIFY(second.process.waitForFinished(10000));
        }
        // A later start that does hand over is heard; the one before was not.
        Probe third;
        QCOMPARE(third.line(), QStringLiteral("second"));
        QCOMPARE(first.line(), QStringLiteral("another"));
        QVERIFY(!first.process.canReadLine());
    }
};

QTEST_MAIN(tst_TqShowApp)
#include "tst_tqshowapp.moc"
