// The program runner, with real programs.
#include "services/showcommand.h"
#include "services/std2.h"

#include "testutil.h"

#include <QDir>
#include <QTemporaryDir>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

struct Runner
{
    TqcRunProg run;
    EventLog log;
    QList<int> errors;
    Runner()
    {
        log.watch(&run, &TqcRunProg::OnBeforeRun, "run");
        log.watch(&run, &TqcRunProg::OnBeforeWait, "wait");
        log.watch(&run, &TqcRunProg::OnFinish, "finish");
        log.watch(&run, &TqcRunProg::OnError, "error");
        QObject::connect(&run, &TqcRunProg::OnError, &run,
                         [this](QObject *, TqcRunProg::TqcRunError, int code) { errors << code; });
    }
};

int openFiles() { return int(QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files | QDir::System).size()); }
// This process's children that have not been reaped, ended or not, by
// their process numbers.
QString unreaped()
{
    QStringList found;
    const QByteArray me = QByteArray::number(getpid());
    for (const QString &pid : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile f(QStringLiteral("/proc/%1/stat").arg(pid));
        if (!pid[0].isDigit() || !f.open(QIODevice::ReadOnly))
            continue;
        const QByteArray stat = f.readAll();
        // pid (name) state ppid ...: the name may hold spaces, so after its ")".
        const QList<QByteArray> rest = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
        if (rest.size() > 1 && rest[1] == me)
            found << pid;
    }
    return found.join(QLatin1Char(' '));
}
} // namespace

class tst_TqcRunProg : public QObject
{
    Q_OBJECT
private slots:
    void commandLinesSplitWithoutAShell()
    {
        QStringList words;
        QVERIFY(SplitCommandLine(QStringLiteral("prog \"a b\" 'c \"d' e\\ f \"x\\\"y\\\\z\"  last"), words));
        QCOMPARE(words, (QStringList{"prog", "a b", "c \"d", "e f", "x\"y\\z", "last"}));
        QVERIFY(!SplitCommandLine(QStringLiteral("prog 'open"), words));
        // Shell syntax is only words: nothing but the program runs.
        QTemporaryDir dir;
        const QString mark = dir.filePath(QStringLiteral("made"));
        Runner r;
        r.run.SetCmdLine(QStringLiteral("true; touch ") + mark);
        r.run.Run();
        QCOMPARE(r.run.LastResultCode(), TqcRunProg::qre_FileNotFound);   // "true;" is no program
        r.run.SetCmdLine(QStringLiteral("echo $(touch %1)").arg(mark));
        r.run.Run();
        QCOMPARE(r.run.LastResultCode(), TqcRunProg::qre_OK);
        QVERIFY(!QFile::exists(mark));
    }

    void startFailures()
    {
        QTemporaryDir dir;
        const QString plain = dir.filePath(QStringLiteral("notes.txt"));
        QFile(plain).open(QIODevice::WriteOnly);   // not executable
        struct Case
        {
            QString line;
            TqcRunProg::TqcRunError result;
            int error;
        } cases[] = {
            {QStringLiteral("no-such-program-here --help"), TqcRunProg::qre_FileNotFound, ENOENT},
            {dir.filePath(QStringLiteral("missing/folder/prog")), TqcRunProg::qre_PathNotFound, ENOENT},
            {plain, TqcRunProg::qre_networkerror, EACCES},
            {QStringLiteral("'unclosed"), TqcRunProg::qre_UnknownError, EINVAL},
        };
        for (const Case &c : cases) {
            Runner r;
            r.run.SetCmdLine(c.line);
            r.run.Run();
            QCOMPARE(r.run.LastResultCode(), c.result);
            QCOMPARE(r.run.SavedErrorCode(), c.error);
            QCOMPARE(r.errors, QList<int>{c.error});
            QCOMPARE(r.log.names, (QStringList{"run", "error"}));
        }
    }

    void waitingAndExitCodes()
    {
        Runner r;
        r.run.SetCmdLine(QStringLiteral("sh -c 'exit 255'"));
        r.run.Run();   // ended with 255: started all the same
        QCOMPARE(r.run.LastResultCode(), TqcRunProg::qre_OK);
        QCOMPARE(r.run.ReturnCode(), 255);
        QCOMPARE(r.log.names, (QStringList{"run", "wait", "finish"}));
        // The caller's events go on during a soft wait.
        int ticks = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, [&] { ++ticks; });
        timer.start(10);
        r.run.SetCmdLine(QStringLiteral("sh -c 'sleep 0.3; exit 7'"));
        r.run.Run();
        QCOMPARE(r.run.ReturnCode(), 7);
        QVERIFY(ticks > 0);
        // A hard wait blocks and leaves the return code alone.
        r.run.SetHardWait(true);
        ticks = 0;
        r.run.SetCmdLine(QStringLiteral("sh -c 'sleep 0.1; exit 9'"));
        r.run.Run();
        QCOMPARE(r.run.ReturnCode(), 0);
        QCOMPARE(ticks, 0);
        // Without waiting: no wait events.
        r.log.names.clear();
        r.run.SetWait(false);
        r.run.SetCmdLine(QStringLiteral("sh -c 'exit 3'"));
        r.run.Run();
        QCOMPARE(r.log.names, QStringList{"run"});
        QCOMPARE(r.run.ReturnCode(), 0);
    }

    void nothingHandedOnNothingLeaked()
    {
        const int fd = ::open("/dev/null", O_RDONLY);   // inheritable
        QVERIFY(fd > 2);
        Runner r;
        r.run.SetCmdLine(QStringLiteral("sh -c '[ -e /proc/self/fd/%1 ] && exit 1; exit 0'").arg(fd));
        r.run.Run();
        ::close(fd);
        QCOMPARE(r.run.ReturnCode(), 0);
        // A thousand starts leave no open file and no unreaped child.
        const int files = openFiles();
        r.run.SetCmdLine(QStringLiteral("true"));
        for (int i = 0; i < 1000; ++i)
            r.run.Run();
        QVERIFY(openFiles() <= files);   // Qt may close one of its own meanwhile
        QCOMPARE(unreaped(), QString());
        // Not waited for: each is reaped once it ends.
        r.run.SetWait(false);
        for (int i = 0; i < 200; ++i)
            r.run.Run();
        QTRY_COMPARE(unreaped(), QString());
        QTRY_VERIFY(openFiles() <= files);
    }

    void showCommandHandedOn()
    {
        // The program finds Visiblility as its show number, in place of the
        // caller's own.
        qputenv(kShowCommandVariable, "9");
        QTemporaryDir dir;
        const QString seen = dir.filePath(QStringLiteral("seen"));
        const auto read = [&] {
            QFile f(seen);
            return f.open(QIODevice::ReadOnly) ? QString::fromLatin1(f.readAll()) : QString();
        };
        Runner r;
        r.run.SetVisiblility(TqcRunProg::qrs_SHOWMAXIMIZED);
        r.run.SetCmdLine(QStringLiteral("sh -c 'printf %s \"$QC_SHOW_COMMAND\" > %1'").arg(seen));
        r.run.Run();
        QCOMPARE(read(), QStringLiteral("3"));
        qunsetenv(kShowCommandVariable);
        // A program with the application information follows it.
        const QList<std::pair<TqcRunProg::TqcRunShow, QString>> cases = {
            {TqcRunProg::qrs_SHOWMINNOACTIVE, QStringLiteral("minimized")},
            {TqcRunProg::qrs_SHOWMAXIMIZED, QStringLiteral("maximized")},
            {TqcRunProg::qrs_HIDE, QStringLiteral("normal")},
        };
        for (const auto &[show, state] : cases) {
            r.run.SetVisiblility(show);
            r.run.SetCmdLine(QStringLiteral(QC_SHOWAPP_PROBE " state %1").arg(seen));
            r.run.Run();
            QCOMPARE(r.run.ReturnCode(), 0);
            QCOMPARE(read(), state);
        }
        // The command line wins over the variable; a number out of range or no
        // number is no show command, and the form starts normal.
        QCOMPARE(StartupShowCommand({QStringLiteral("app"), QStringLiteral("--maximized")}, QStringLiteral("6")), 3);
        QCOMPARE(StartupShowCommand({QStringLiteral("app")}, QStringLiteral("6")), 6);
        QCOMPARE(StartupShowCommand({QStringLiteral("app")}, QStringLiteral("11")), -1);
        QCOMPARE(StartupShowCommand({QStringLiteral("app")}, QStringLiteral("max")), -1);
        QCOMPARE(StartStateOf(-1), TStartState::Normal);
    }

    // Last: the application's end stays told for the rest of the run.
    void softWaitEndsWithTheApplication()
    {
        Runner r;
        QTimer::singleShot(100, [] { QCoreApplication::exit(0); });
        r.run.SetCmdLine(QStringLiteral("sleep 2"));
        r.run.Run();
        QCOMPARE(r.run.ReturnCode(), 259);
        QCOMPARE(r.log.names, (QStringList{"run", "wait", "finish"}));
    }
};

QTEST_MAIN(tst_TqcRunProg)
#include "tst_tqcrunprog.moc"
