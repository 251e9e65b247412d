// The instance lock and channel between real processes.
#include "platform/instancechannel.h"
#include "platform/instancelock.h"

#include "testutil.h"

#include <QUuid>

#include <signal.h>

namespace {

struct Probe : ProbeProcess
{
    Probe(const QString &key, const char *mode)
        : ProbeProcess(QStringLiteral(QC_INSTANCE_PROBE), {key, QString::fromLatin1(mode)})
    {
    }
};

QString freshKey() { return QStringLiteral("/opt/test/") + QUuid::createUuid().toString(); }

} // namespace

class tst_Platform : public QObject
{
    Q_OBJECT
private slots:
    void firstHoldsLaterOnesHandOver()
    {
        const QString key = freshKey();
        Probe first(key, "hold");
        QCOMPARE(first.line(), QStringLiteral("first"));
        QCOMPARE(first.line(), QStringLiteral("listening"));
        for (int i = 0; i < 3; ++i) {
            Probe later(key, "try");
            const qint64 pid = later.process.processId();
            QCOMPARE(later.line(), QStringLiteral("second"));
            QVERIFY(later.process.waitForFinished(10000));
            QCOMPARE(later.process.exitCode(), 0);
            // Exactly one message for each later instance.
            QCOMPARE(first.line(), QStringLiteral("got hello from %1").arg(pid));
        }
        // In this process too the lock is taken; within one process every
        // lock of a key is the same one.
        TInstanceLock here(key);
        QVERIFY(!here.Acquire());
        const QString mine = freshKey();
        TInstanceLock a(mine), b(mine);
        QVERIFY(a.Acquire() && b.Acquire());
    }

    void killedFirstLeavesNoLock()
    {
        const QString key = freshKey();
        {
            Probe first(key, "hold");
            QCOMPARE(first.line(), QStringLiteral("first"));
            ::kill(pid_t(first.process.processId()), SIGKILL);
            QVERIFY(first.process.waitForFinished(10000));
        }
        Probe next(key, "hold");
        QCOMPARE(next.line(), QStringLiteral("first"));
        QCOMPARE(next.line(), QStringLiteral("listening"));   // the name it left is taken over
        Probe later(key, "try");
        QCOMPARE(later.line(), QStringLiteral("second"));
        QVERIFY(next.line().startsWith(QStringLiteral("got hello")));
    }
};

QTEST_GUILESS_MAIN(tst_Platform)
#include "tst_platform.moc"
