#include "tqcrunprog.h"

#include "services/showcommand.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QSocketNotifier>

#include <cerrno>
#include <cstring>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

extern char **environ;

bool SplitCommandLine(const QString &line, QStringList &words)
{
    words.clear();
    QString word;
    bool inWord = false;
    enum { Plain, Single, Double } mode = Plain;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const QChar c = line[i];
        switch (mode) {
        case Single:
            if (c == QLatin1Char('\'')) mode = Plain; else word += c;
            break;
        case Double:
            if (c == QLatin1Char('"')) {
                mode = Plain;
            } else if (c == QLatin1Char('\\') && i + 1 < line.size()
                       && QStringLiteral("\"\\$`").contains(line[i + 1])) {
                word += line[++i];
            } else {
                word += c;
            }
            break;
        case Plain:
            if (c.isSpace()) {
                if (inWord)
                    words << word;
                word.clear();
                inWord = false;
                break;
            }
            inWord = true;
            if (c == QLatin1Char('\'')) mode = Single;
            else if (c == QLatin1Char('"')) mode = Double;
            else if (c == QLatin1Char('\\') && i + 1 < line.size()) word += line[++i];
            else word += c;
            break;
        }
    }
    if (inWord)
        words << word;
    return mode == Plain;
}

namespace {

// A descriptor that becomes readable when the process ends; -1 where the
// kernel has none.
int processFd(pid_t pid)
{
#ifdef SYS_pidfd_open
    return int(syscall(SYS_pidfd_open, pid, 0));
#else
    Q_UNUSED(pid);
    return -1;
#endif
}

// The exit code as a shell reports it.
int exitCode(int status)
{
    if (WIFEXITED(status))
        return WEXITSTATUS(status);
    if (WIFSIGNALED(status))
        return 128 + WTERMSIG(status);
    return status;
}

// Reaps a program nobody waits for, once it ends.
void reapLater(pid_t pid)
{
    const int fd = processFd(pid);
    if (fd < 0 || !QCoreApplication::instance()) {
        if (fd >= 0)
            ::close(fd);
        std::thread([pid] { waitpid(pid, nullptr, 0); }).detach();
        return;
    }
    auto *notifier = new QSocketNotifier(fd, QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [notifier, pid, fd] {
        waitpid(pid, nullptr, WNOHANG);
        notifier->setEnabled(false);
        notifier->deleteLater();
        ::close(fd);
    });
}

} // namespace

TqcRunProg::TqcRunProg(QWidget *owner) : TComponent(owner) {}

TqcRunProg::TqcRunError TqcRunProg::ResultOf(int error, const QString &program)
{
    switch (error) {
    case 0: return qre_OK;
    case ENOENT: {
        // A missing folder on the way to the program is a missing path.
        if (program.contains(QLatin1Char('/')) && !QFileInfo(program).absoluteDir().exists())
            return qre_PathNotFound;
        return qre_FileNotFound;
    }
    case ENOTDIR: return qre_PathNotFound;
    case EACCES:
    case EPERM: return qre_networkerror;
    case ENOMEM:
    case E2BIG:
    case EAGAIN: return qre_MemoryError;
    case EMFILE:
    case ENFILE:
    case EIO:
    case ENOEXEC:
    case EISDIR:
    case ELOOP:
    case ENAMETOOLONG:
    case ETXTBSY: return qre_FileError;
    default: return qre_UnknownError;
    }
}

void TqcRunProg::RunThis(const QString &commandLine)
{
    FReturnCode = 0;
    const QString line = commandLine.left(255);
    emit OnBeforeRun(this);
    QStringList words;
    int error = 0;
    pid_t pid = 0;
    if (!SplitCommandLine(line, words) || words.isEmpty()) {
        error = EINVAL;
    } else {
        std::vector<QByteArray> args;
        for (const QString &w : words)
            args.push_back(w.toLocal8Bit());
        std::vector<char *> argv;
        for (QByteArray &a : args)
            argv.push_back(a.data());
        argv.push_back(nullptr);
        // The caller's environment with the show command in place of any
        // the caller was given.
        const QByteArray show = QByteArray(kShowCommandVariable) + '=' + QByteArray::number(int(FShow));
        const size_t nameLength = sizeof(kShowCommandVariable) - 1;
        std::vector<char *> envp;
        for (char **e = environ; *e; ++e)
            if (std::strncmp(*e, kShowCommandVariable, nameLength) != 0 || (*e)[nameLength] != '=')
                envp.push_back(*e);
        envp.push_back(const_cast<char *>(show.constData()));
        envp.push_back(nullptr);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addclosefrom_np(&actions, 3);   // only stdin, stdout, stderr go along
        error = posix_spawnp(&pid, argv[0], &actions, nullptr, argv.data(), envp.data());
        posix_spawn_file_actions_destroy(&actions);
    }
    if (error != 0) {
        FSavedError = error;
        FLastResult = ResultOf(error, words.value(0));
        emit OnError(this, FLastResult, FSavedError);
        return;
    }
    if (FWait) {
        emit OnBeforeWait(this);
        if (FHardWait) {
            waitpid(pid, nullptr, 0);
        } else {
            softWait(pid);
        }
        emit OnFinish(this);
    } else {
        reapLater(pid);
    }
    FLastResult = qre_OK;
    FSavedError = 0;
}

// The caller's events go on until the program ends or the application is
// told to end (which ends every event loop, this one too).
void TqcRunProg::softWait(int pid)
{
    FReturnCode = 259;
    int status = 0;
    const int fd = processFd(pid);
    if (fd >= 0) {
        QEventLoop loop;
        QSocketNotifier ended(fd, QSocketNotifier::Read);
        connect(&ended, &QSocketNotifier::activated, &loop, &QEventLoop::quit);
        if (waitpid(pid, &status, WNOHANG) == 0)
            loop.exec();
        else {
            ::close(fd);
            FReturnCode = exitCode(status);
            return;
        }
        ended.setEnabled(false);
        ::close(fd);
    } else {
        // No process descriptor: look between the events.
        while (waitpid(pid, &status, WNOHANG) == 0 && !QCoreApplication::closingDown())
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
    }
    if (waitpid(pid, &status, WNOHANG) == pid)
        FReturnCode = exitCode(status);
    else
        reapLater(pid);   // still running as the application ends
}
