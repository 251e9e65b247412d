#pragma once
// Word from later instances of a program to the first one: the first
// listens under the key, a later one sends its message and goes.

#include <QByteArray>
#include <QObject>
#include <QString>


class TInstanceChannel : public QObject
{
    Q_OBJECT
public:
    explicit TInstanceChannel(const QString &key, QObject *parent = nullptr);
    ~TInstanceChannel() override;

    // Starts listening; only the instance that holds the instance lock
    // should (a name left by a killed first instance is taken over). The
    // channels of one key in a process share one listener and all hear
    // every message.
    bool Listen();
    // Sends `message` to the instance listening under `key`, waiting for
    // one that is still starting; false when none took it within `timeoutMs`.
    static bool Send(const QString &key, const QByteArray &message, int timeoutMs = 3000);

signals:
    void Received(const QByteArray &message);

private:
    QString FKey;
    QObject *FListener = nullptr;
};
