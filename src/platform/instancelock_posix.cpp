#include "instancelock.h"

#include <QCryptographicHash>
#include <QDir>
#include <QStandardPaths>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

QString TInstanceLock::Name(const QString &key)
{
    return QStringLiteral("qcol-") + QString::fromLatin1(
        QCryptographicHash::hash(key.toUtf8(), QCryptographicHash::Sha1).toHex().left(24));
}

TInstanceLock::TInstanceLock(const QString &key) : FKey(key) {}

TInstanceLock::~TInstanceLock()
{
    if (FHandle >= 0)
        ::close(FHandle);   // closing releases the lock
}

// An advisory lock on a file in the user's runtime folder: the kernel
// releases it with the last descriptor, so a crashed holder frees it.
bool TInstanceLock::Acquire()
{
    if (FHandle >= 0)
        return true;
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
    return true;
}
