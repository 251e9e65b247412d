#pragma once

#include <QThread>

#include <memory>

class TqcTimer;

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
    // The handed-over tick, on the main thread.
    Q_INVOKABLE void deliverTick();

    TqcTimer *FTimer;
    std::shared_ptr<Shared> FShared;
};
