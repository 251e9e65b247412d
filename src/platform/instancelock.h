#pragma once
// One instance of a program at a time: a lock named by a key that a single
// process holds. The system drops it when the holder ends, however it ends
// (a killed holder leaves nothing that blocks the next start).

#include <QString>

class TInstanceLock
{
public:
    explicit TInstanceLock(const QString &key);
    ~TInstanceLock();
    TInstanceLock(const TInstanceLock &) = delete;
    TInstanceLock &operator=(const TInstanceLock &) = delete;

    // True when this process holds the lock now: it was free, or another
    // lock of this process holds it (the process is the instance).
    bool Acquire();
    bool Held() const { return FHandle >= 0; }

    // The name the key gives on this system (safe as a file or socket name).
    static QString Name(const QString &key);

private:
    QString FKey;
    int FHandle = -1;
};
