#pragma once
// A timer that ticks from a worker thread of its own, the plain Delay, and
// the shared steel texture.

#include "host/tcontrol.h"
#include "host/tsteel.h"

#include <QImage>
#include <QThread>

#include <atomic>
#include <memory>


// Sleeps the calling thread without processing any events.
void Delay(quint16 milliseconds);

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

// The worker: sleeps an interval, then hands the tick to the main thread and
// waits there until the handler has run. Ticking stops (without restarting
// a sleep under way) while the timer's conditions fail; the stop flag ends
// the loop at once, whatever the worker is waiting for.
class TqcTimerThread : public QThread
{
    Q_OBJECT
public:
    explicit TqcTimerThread(TqcTimer *timer);
    ~TqcTimerThread() override;

    void SetTicking(bool ticking);
    bool IsTicking() const;
    // No tick is delivered after this, not even one already handed over.
    void Stop();

protected:
    void run() override;

private:
    struct Shared;
    bool synchronizeTick();

    TqcTimer *FTimer;
    std::shared_ptr<Shared> FShared;
};

