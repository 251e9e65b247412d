#pragma once
// A timer that ticks from a worker thread of its own.

#include "host/tcomponent.h"

#include <QThread>

#include <atomic>
#include <memory>

class TqcTimerThread;

class TqcTimer : public TComponent
{
    Q_OBJECT
    Q_PROPERTY(TThreadPriority Priority READ Priority WRITE SetPriority)
    Q_PROPERTY(bool Enabled READ Enabled WRITE SetEnabled)
    Q_PROPERTY(uint Interval READ Interval WRITE SetInterval)

public:
    enum TThreadPriority { tpIdle, tpLowest, tpLower, tpNormal, tpHigher, tpHighest, tpTimeCritical };
    Q_ENUM(TThreadPriority)

    explicit TqcTimer(QWidget *owner = nullptr);
    ~TqcTimer() override;

    TThreadPriority Priority() const { return FPriority.load(); }
    void SetPriority(TThreadPriority priority);
    bool Enabled() const { return FEnabled; }
    void SetEnabled(bool enabled);
    // Milliseconds between ticks; 0 stops them. Read afresh by the worker
    // each round, so a change takes effect at the next one.
    quint32 Interval() const { return FInterval.load(); }
    void SetInterval(quint32 interval);

    // True while the three conditions for ticking hold.
    bool Ticking() const;

signals:
    // On the main thread, once a tick; the worker waits until it returns.
    void OnTimer(QObject *Sender);

protected:
    // Raises OnTimer; descendants may do more.
    virtual void Timer();
    void connectNotify(const QMetaMethod &signal) override;
    void disconnectNotify(const QMetaMethod &signal) override;

private:
    friend class TqcTimerThread;
    void UpdateTimer();
    void deliverTick();
    void recountHandlers();

    int FHandlers = 0;   // connections to OnTimer
    std::atomic<TThreadPriority> FPriority{tpNormal};
    bool FEnabled = true;
    std::atomic<quint32> FInterval{1000};
    std::unique_ptr<TqcTimerThread> FThread;
};

QThread::Priority ToQThreadPriority(TqcTimer::TThreadPriority priority);
