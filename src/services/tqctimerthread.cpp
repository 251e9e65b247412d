#include "tqctimerthread.h"

#include "tqctimer.h"

#include <condition_variable>
#include <mutex>

struct TqcTimerThread::Shared
{
    std::mutex mutex;
    std::condition_variable wake;
    bool ticking = false;
    bool stop = false;
    bool tickDone = false;
};

TqcTimerThread::TqcTimerThread(TqcTimer *timer) : FTimer(timer), FShared(std::make_shared<Shared>())
{
    start(ToQThreadPriority(timer->Priority()));
}

TqcTimerThread::~TqcTimerThread()
{
    Stop();
    wait();
}

void TqcTimerThread::SetTicking(bool ticking)
{
    std::lock_guard<std::mutex> lock(FShared->mutex);
    FShared->ticking = ticking;
    FShared->wake.notify_all();
}

bool TqcTimerThread::IsTicking() const
{
    std::lock_guard<std::mutex> lock(FShared->mutex);
    return FShared->ticking && !FShared->stop;
}

void TqcTimerThread::Stop()
{
    std::lock_guard<std::mutex> lock(FShared->mutex);
    FShared->stop = true;
    FShared->wake.notify_all();
}

void TqcTimerThread::run()
{
    setPriority(ToQThreadPriority(FTimer->Priority()));
    Shared &s = *FShared;
    for (;;) {
        std::unique_lock<std::mutex> lock(s.mutex);
        s.wake.wait(lock, [&] { return s.stop || s.ticking; });
        if (s.stop)
            return;
        // The sleep is not cut short by a change of the conditions, only by
        // the stop flag.
        const auto interval = std::chrono::milliseconds(FTimer->Interval());
        if (s.wake.wait_for(lock, interval, [&] { return s.stop; }))
            return;
        if (!s.ticking)
            continue;
        lock.unlock();
        if (!synchronizeTick())
            return;
    }
}

// Runs the timer's Timer on the main thread and waits for it; false when the
// thread was stopped meanwhile.
bool TqcTimerThread::synchronizeTick()
{
    Shared &s = *FShared;
    {
        std::lock_guard<std::mutex> lock(s.mutex);
        s.tickDone = false;
    }
    // Posted by name to this object, which lives on the main thread: nothing
    // this worker allocates is read there (the queued call is Qt's own), and
    // if the object is destroyed before the call is delivered, the call goes
    // with it.
    QMetaObject::invokeMethod(this, "deliverTick", Qt::QueuedConnection);
    std::unique_lock<std::mutex> lock(s.mutex);
    s.wake.wait(lock, [&] { return s.stop || s.tickDone; });
    return !s.stop;
}

void TqcTimerThread::deliverTick()
{
    // The handler may free the timer and with it this object.
    const std::shared_ptr<Shared> shared = FShared;
    Shared &s = *shared;
    bool stopped;
    {
        std::lock_guard<std::mutex> lock(s.mutex);
        stopped = s.stop;
    }
    if (!stopped)
        FTimer->deliverTick();
    std::lock_guard<std::mutex> lock(s.mutex);
    s.tickDone = true;
    s.wake.notify_all();
}
