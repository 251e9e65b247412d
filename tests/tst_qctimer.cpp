// The threaded timer: when it ticks, where its handler runs, and that it
// stops cleanly whatever the worker is doing.
#include "services/std2.h"
#include "testutil.h"

#include <QElapsedTimer>

// Runs the event loop until a second timer of the same interval has ticked
// `ticks` times: the proof that a timer under test had that many chances.
static void witnessTicks(int ticks, unsigned interval)
{
    TqcTimer witness;
    witness.SetInterval(interval);
    waitForTicks(&witness, ticks);
}

class tst_QcTimer : public QObject
{
    Q_OBJECT
private slots:
    void ticksOnTheMainThreadAnIntervalApart()
    {
        TqcTimer timer;
        timer.SetInterval(25);
        QElapsedTimer clock;
        QList<qint64> stamps;
        clock.start();
        connect(&timer, &TqcTimer::OnTimer, this, [&](QObject *sender) {
            QCOMPARE(sender, &timer);
            QCOMPARE(QThread::currentThread(), qApp->thread());
            stamps << clock.elapsed();
        });
        QTRY_VERIFY_WITH_TIMEOUT(stamps.size() >= 4, 5000);
        QVERIFY(stamps.first() >= 24);
        for (int i = 1; i < stamps.size(); ++i)
            QVERIFY2(stamps[i] - stamps[i - 1] >= 24, qPrintable(QString::number(stamps[i] - stamps[i - 1])));
    }

    void noTickWhileAConditionFails_data()
    {
        QTest::addColumn<uint>("interval");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("handler");
        QTest::newRow("interval 0") << 0u << true << true;
        QTest::newRow("disabled") << 5u << false << true;
        QTest::newRow("no handler") << 5u << true << false;
    }

    void noTickWhileAConditionFails()
    {
        QFETCH(uint, interval);
        QFETCH(bool, enabled);
        QFETCH(bool, handler);
        // A subclass sees every call of Timer, connected or not.
        struct Probe : TqcTimer {
            int calls = 0;
            void Timer() override { ++calls; TqcTimer::Timer(); }
        } timer;
        timer.SetInterval(interval);
        timer.SetEnabled(enabled);
        if (handler)
            connect(&timer, &TqcTimer::OnTimer, this, [](QObject *) {});
        QVERIFY(!timer.Ticking());
        witnessTicks(10, 5);
        QCOMPARE(timer.calls, 0);
    }

    void handlerAndEnabledStartAndStopTicks()
    {
        TqcTimer timer;
        timer.SetInterval(5);
        witnessTicks(3, 5);
        {
            QSignalSpy spy(&timer, &TqcTimer::OnTimer);   // a spy is a connection too
            QVERIFY(timer.Ticking());
            QTRY_VERIFY_WITH_TIMEOUT(spy.count() >= 2, 5000);
        }
        // Enabled stops and starts them, also from inside the handler; the
        // last handler gone, they stop.
        int ticks = 0;
        const auto c = connect(&timer, &TqcTimer::OnTimer, this, [&](QObject *) {
            if (++ticks == 2)
                timer.SetEnabled(false);
        });
        QTRY_COMPARE_WITH_TIMEOUT(ticks, 2, 5000);
        witnessTicks(5, 5);
        QCOMPARE(ticks, 2);
        timer.SetEnabled(true);
        QTRY_VERIFY_WITH_TIMEOUT(ticks > 2, 5000);
        disconnect(c);
        QVERIFY(!timer.Ticking());
        const int stopped = ticks;
        witnessTicks(5, 5);
        QCOMPARE(ticks, stopped);
    }

    void handlersNeverOverlap()
    {
        TqcTimer timer;
        timer.SetInterval(1);
        int depth = 0, maxDepth = 0, ticks = 0;
        connect(&timer, &TqcTimer::OnTimer, this, [&](QObject *) {
            maxDepth = std::max(maxDepth, ++depth);
            QTest::qWait(20);   // spins the event loop inside the handler
            --depth;
            ++ticks;
        });
        QTRY_VERIFY_WITH_TIMEOUT(ticks >= 3, 5000);
        QCOMPARE(maxDepth, 1);
    }

    void destroyWhileTheWorkerWaits()
    {
        // The worker hands a tick over while the main thread is busy and then
        // waits for it; destroying the timer then must neither hang nor tick.
        int ticks = 0;
        auto *timer = new TqcTimer;
        timer->SetInterval(5);
        connect(timer, &TqcTimer::OnTimer, this, [&](QObject *) { ++ticks; });
        QTRY_VERIFY_WITH_TIMEOUT(ticks >= 1, 5000);
        QThread::msleep(60);   // the next tick is now waiting for the main thread
        const int before = ticks;
        delete timer;
        witnessTicks(3, 5);
        QCOMPARE(ticks, before);
    }

    void deleteLaterFromTheHandler()
    {
        QPointer<TqcTimer> timer = new TqcTimer;
        timer->SetInterval(5);
        int ticks = 0, ticksAtDestruction = -1;
        connect(timer, &TqcTimer::OnTimer, this, [&](QObject *sender) {
            ++ticks;
            sender->deleteLater();
        });
        connect(timer, &QObject::destroyed, this, [&] { ticksAtDestruction = ticks; });
        QTRY_VERIFY_WITH_TIMEOUT(timer.isNull(), 5000);
        QVERIFY(ticksAtDestruction >= 1);
        witnessTicks(3, 5);
        QCOMPARE(ticks, ticksAtDestruction);
    }

    void intervalChangeTakesEffect()
    {
        TqcTimer timer;
        timer.SetInterval(2000);
        int ticks = 0;
        connect(&timer, &TqcTimer::OnTimer, this, [&](QObject *) { ++ticks; });
        witnessTicks(2, 5);
        timer.SetInterval(5);
        QVERIFY(timer.Ticking());
        // The sleep under way finishes first; the next two rounds use the new
        // interval, so they come before another timer's first 2000 ms round.
        QTRY_VERIFY_WITH_TIMEOUT(ticks >= 1, 10000);
        TqcTimer old;
        old.SetInterval(2000);
        QSignalSpy oldTicks(&old, &TqcTimer::OnTimer);
        QTRY_VERIFY_WITH_TIMEOUT(ticks >= 3 || oldTicks.count() > 0, 10000);
        QCOMPARE(oldTicks.count(), 0);
        timer.SetInterval(0);
        QVERIFY(!timer.Ticking());
    }

    void delayBlocksWithoutEvents()
    {
        bool delivered = false;
        QTimer::singleShot(0, this, [&] { delivered = true; });
        QElapsedTimer clock;
        clock.start();
        Delay(30);
        QVERIFY(clock.elapsed() >= 29);
        QVERIFY(!delivered);   // nothing was processed meanwhile
        Delay(0);
        QTRY_VERIFY(delivered);
    }
};

QTEST_MAIN(tst_QcTimer)
#include "tst_qctimer.moc"
