#include "instancechannel.h"

#include "instancelock.h"

#include <QElapsedTimer>
#include <QHash>
#include <QLocalServer>
#include <QLocalSocket>
#include <QThread>

#include <algorithm>
#include <memory>

TInstanceChannel::TInstanceChannel(const QString &key, QObject *parent) : QObject(parent), FKey(key) {}

namespace {

// The one listener of a key in this process: every channel of the key hears
// each message. It goes with the last of them.
class Listener : public QObject
{
    Q_OBJECT
public:
    static Listener *of(const QString &name)
    {
        if (Listener *l = all().value(name))
            return l;
        auto *l = new Listener(name);
        if (!l->FServer.listen(name)) {
            delete l;
            return nullptr;
        }
        all().insert(name, l);
        return l;
    }
    void release()
    {
        if (--FUsers == 0)
            delete this;
    }
    void use() { ++FUsers; }
    ~Listener() override { all().remove(FName); }

signals:
    void Received(const QByteArray &message);

private:
    explicit Listener(const QString &name) : FName(name)
    {
        QLocalServer::removeServer(name);   // what a killed first instance left
        FServer.setSocketOptions(QLocalServer::UserAccessOption);
        connect(&FServer, &QLocalServer::newConnection, this, [this] {
            while (QLocalSocket *socket = FServer.nextPendingConnection()) {
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
    }
    static QHash<QString, Listener *> &all()
    {
        static QHash<QString, Listener *> listeners;
        return listeners;
    }

    QString FName;
    QLocalServer FServer;
    int FUsers = 0;
};

} // namespace

TInstanceChannel::~TInstanceChannel()
{
    if (FListener)
        static_cast<Listener *>(FListener)->release();
}

bool TInstanceChannel::Listen()
{
    if (FListener)
        return true;
    Listener *listener = Listener::of(TInstanceLock::Name(FKey));
    if (!listener)
        return false;
    listener->use();
    FListener = listener;
    connect(listener, &Listener::Received, this, &TInstanceChannel::Received);
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

#include "instancechannel.moc"
