// A small program for the instance tests: takes the instance lock of a key
// and says whether it is the first. "hold" keeps running as the first and
// reports every message from later instances; "try" hands a message to the
// first when it is not, and ends.
//     instance_probe <key> hold|try
#include "platform/instancechannel.h"
#include "platform/instancelock.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    if (argc < 3)
        return 2;
    const QString key = QString::fromLocal8Bit(argv[1]);
    const bool hold = qstrcmp(argv[2], "hold") == 0;
    TInstanceLock lock(key);
    if (!lock.Acquire()) {
        std::printf("second\n");
        std::fflush(stdout);
        const bool sent = TInstanceChannel::Send(key, QByteArray("hello from ") + QByteArray::number(app.applicationPid()));
        return sent ? 0 : 1;
    }
    std::printf("first\n");
    std::fflush(stdout);
    if (!hold)
        return 0;
    TInstanceChannel channel(key);
    QObject::connect(&channel, &TInstanceChannel::Received, [](const QByteArray &m) {
        std::printf("got %s\n", m.constData());
        std::fflush(stdout);
    });
    if (!channel.Listen())
        return 3;
    std::printf("listening\n");
    std::fflush(stdout);
    return app.exec();
}
