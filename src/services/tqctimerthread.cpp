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
    std::shared_ptr<Shared> shared = FShared;
    TqcTimer *timer = FTimer;
    {
        std::lock_guard<std::mutex> lock(shared->mutex);
        shared->tickDone = false;
    }
    // Posted to the timer itself: if the timer is gone before the call is
    // delivered, the call goes with it.
    QMetaObject::invokeMethod(timer, [shared, timer] {
        bool stopped;
        {
            std::lock_guard<std::mutex> lock(shared->mutex);
            stopped = shared->stop;
        }
        if (!stopped)
            timer->deliverTick();
        std::lock_guard<std::mutex> lock(shared->mutex);
        shared->tickDone = true;
        shared->wake.notify_all();
    }, Qt::QueuedConnection);
    std::unique_lock<std::mutex> lock(shared->mutex);
    shared->wake.wait(lock, [&] { return shared->stop || shared->tickDone; });
    return !shared->stop;
}
