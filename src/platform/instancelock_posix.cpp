#include "instancelock.h"

#include <QCryptographicHash>
#include <QDir>
#include <QHash>
#include <QMutex>
#include <QStandardPaths>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

QString TInstanceLock::Name(const QString &key)
{
    return QStringLiteral("qcol-") + QString::fromLatin1(
        QCryptographicHash::hash(key.toUtf8(), QCryptographicHash::Sha1).toHex().left(24));
}

namespace {
// The locks this process holds, by key, with how many holders share each:
// the process as a whole is the instance.
struct HeldLock
{
    int fd;
    int holders;
};
QMutex heldLock;
QHash<QString, HeldLock> &held()
{
    static QHash<QString, HeldLock> locks;
    return locks;
}
} // namespace

TInstanceLock::TInstanceLock(const QString &key) : FKey(key) {}

TInstanceLock::~TInstanceLock()
{
    if (FHandle < 0)
        return;
    QMutexLocker lock(&heldLock);
    auto it = held().find(FKey);
    if (it != held().end() && --it->holders == 0) {
        ::close(it->fd);   // closing releases the lock
        held().erase(it);
    }
}

// An advisory lock on a file in the user's runtime folder: the kernel
// releases it with the last descriptor, so a crashed holder frees it.
bool TInstanceLock::Acquire()
{
    if (FHandle >= 0)
        return true;
    QMutexLocker lock(&heldLock);
    if (auto it = held().find(FKey); it != held().end()) {   // this process holds it already
        ++it->holders;
        FHandle = it->fd;
        return true;
    }
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QDir::tempPath();
    const QByteArray path = QDir(folder).filePath(Name(FKey) + QStringLiteral(".lock")).toLocal8Bit();
    const int fd = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (fd < 0)
        return false;
    if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
        ::close(fd);
        return false;
    }
    FHandle = fd;
    held().insert(FKey, HeldLock{fd, 1});
    return true;
}
