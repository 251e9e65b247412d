#pragma once
// Facts about the machine and the process, as the system reports them.

#include <QString>
#include <QStringList>

struct TOsVersion
{
    int major = 0;
    int minor = 0;
    int build = 0;       // the low 16 bits
    QString text;        // as a user of this system names it ("Linux 6.1.0-13-amd64")
};

// The running kernel's version: read once per process.
const TOsVersion &OsVersion();
// The processor type number in the platform's numbering: 386, 486, 586,
// 686 for the x86 generations, 8664 for x86-64, 0 for others.
int ProcessorType();
// The machine's name on the network, and the user running the process.
QString ComputerName();
QString UserName();
// The host name and its first IPv4 address; false when the lookup fails.
bool HostInfo(QString &name, QString &address);
// The environment as NAME=value lines, in the process's order.
QStringList EnvironmentLines();
// The system's folders standing for the platform's Windows and system
// directories: the configuration root and the system libraries.
QString SystemConfigDir();
QString SystemLibraryDir();
