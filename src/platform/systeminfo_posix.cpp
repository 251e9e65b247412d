#include "systeminfo.h"

#include <QDir>
#include <QSysInfo>

#include <arpa/inet.h>
#include <netdb.h>
#include <pwd.h>
#include <sys/utsname.h>
#include <unistd.h>

#include <cstring>

extern char **environ;

const TOsVersion &OsVersion()
{
    static const TOsVersion version = [] {
        TOsVersion v;
        utsname u{};
        if (::uname(&u) == 0) {
            const QStringList parts = QString::fromLocal8Bit(u.release).split(QLatin1Char('.'));
            const auto number = [&](int i) {
                return i < parts.size() ? QString(parts[i]).section(QLatin1Char('-'), 0, 0).toInt() : 0;
            };
            v.major = number(0);
            v.minor = number(1);
            v.build = number(2) & 0xFFFF;
            v.text = QString::fromLocal8Bit(u.sysname) + QLatin1Char(' ') + QString::fromLocal8Bit(u.release);
        }
        return v;
    }();
    return version;
}

int ProcessorType()
{
    const QString arch = QSysInfo::currentCpuArchitecture();
    if (arch == QLatin1String("x86_64"))
        return 8664;
    if (arch == QLatin1String("i386"))
        return 686;   // Qt names every 32-bit x86 so; the generations since the Pentium Pro
    return 0;
}

QString ComputerName() { return QSysInfo::machineHostName(); }

QString UserName()
{
    if (const passwd *pw = ::getpwuid(::geteuid()))
        return QString::fromLocal8Bit(pw->pw_name);
    return qEnvironmentVariable("USER");
}

bool HostInfo(QString &name, QString &address)
{
    char host[256] = {};
    if (::gethostname(host, sizeof host - 1) != 0)
        return false;
    addrinfo hints{};
    hints.ai_family = AF_INET;
    addrinfo *found = nullptr;
    if (::getaddrinfo(host, nullptr, &hints, &found) != 0 || !found)
        return false;
    const auto *in = reinterpret_cast<const sockaddr_in *>(found->ai_addr);
    const auto *b = reinterpret_cast<const unsigned char *>(&in->sin_addr);
    address = QStringLiteral("%1.%2.%3.%4").arg(b[0]).arg(b[1]).arg(b[2]).arg(b[3]);
    name = QString::fromLocal8Bit(host);
    ::freeaddrinfo(found);
    return true;
}

QStringList EnvironmentLines()
{
    QStringList lines;
    for (char **e = environ; e && *e; ++e)
        lines << QString::fromLocal8Bit(*e);
    return lines;
}

QString SystemConfigDir() { return QStringLiteral("/etc"); }

QString SystemLibraryDir()
{
    return QDir(QStringLiteral("/usr/lib64")).exists() && !QDir(QStringLiteral("/usr/lib/x86_64-linux-gnu")).exists()
               ? QStringLiteral("/usr/lib64")
               : QStringLiteral("/usr/lib");
}
