#include "instancechannel.h"

#include "instancelock.h"

#include <QElapsedTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QThread>

#include <algorithm>
#include <memory>

TInstanceChannel::TInstanceChannel(const QString &key, QObject *parent) : QObject(parent), FKey(key) {}

bool TInstanceChannel::Listen()
{
    if (FServer)
        return true;
    const QString name = TInstanceLock::Name(FKey);
    QLocalServer::removeServer(name);   // what a killed first instance left
    FServer = new QLocalServer(this);
    FServer->setSocketOptions(QLocalServer::UserAccessOption);
    if (!FServer->listen(name)) {
        delete FServer;
        FServer = nullptr;
        return false;
    }
    connect(FServer, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *socket = FServer->nextPendingConnection()) {
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            // One message a connection, ended by the sender's closing.
            auto received = std::make_shared<QByteArray>();
            connect(socket, &QLocalSocket::readyRead, socket, [socket, received] { *received += socket->readAll(); });
            connect(socket, &QLocalSocket::disconnected, this, [this, socket, received] {
                *received += socket->readAll();
                emit Received(*received);
            });
        }
    });
    return true;
}

// A first instance that is still starting may not listen yet: the sender
// tries again until the time is up.
bool TInstanceChannel::Send(const QString &key, const QByteArray &message, int timeoutMs)
{
    QLocalSocket socket;
    QElapsedTimer clock;
    clock.start();
    for (;;) {
        socket.connectToServer(TInstanceLock::Name(key));
        if (socket.waitForConnected(std::max(1, int(timeoutMs - clock.elapsed()))))
            break;
        if (clock.elapsed() >= timeoutMs)
            return false;
        QThread::msleep(20);
    }
    socket.write(message);
    if (!socket.waitForBytesWritten(timeoutMs))
        return false;
    socket.disconnectFromServer();
    if (socket.state() != QLocalSocket::UnconnectedState)
        socket.waitForDisconnected(timeoutMs);
    return true;
}
