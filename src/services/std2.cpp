#include "std2.h"

#include <QMetaMethod>

#include <utility>

#include <condition_variable>
#include <mutex>

void Delay(quint16 milliseconds)
{
    if (milliseconds > 0)
        QThread::msleep(milliseconds);
}

QThread::Priority ToQThreadPriority(TqcTimer::TThreadPriority priority)
{
    switch (priority) {
    case TqcTimer::tpIdle: return QThread::IdlePriority;
    case TqcTimer::tpLowest: return QThread::LowestPriority;
    case TqcTimer::tpLower: return QThread::LowPriority;
    case TqcTimer::tpNormal: return QThread::NormalPriority;
    case TqcTimer::tpHigher: return QThread::HighPriority;
    case TqcTimer::tpHighest: return QThread::HighestPriority;
    case TqcTimer::tpTimeCritical: return QThread::TimeCriticalPriority;
    }
    return QThread::NormalPriority;
}

// ---------------------------------------------------------------- TqcTimer

TqcTimer::TqcTimer(QWidget *owner) : TComponent(owner)
{
    FThread = std::make_unique<TqcTimerThread>(this);
}

TqcTimer::~TqcTimer()
{
    FEnabled = false;
    UpdateTimer();
    if (FThread) {
        FThread->Stop();
        FThread.reset();
    }
}

void TqcTimer::SetPriority(TThreadPriority priority)
{
    if (priority == FPriority.load())
        return;
    FPriority = priority;
    UpdateTimer();
}

void TqcTimer::SetEnabled(bool enabled)
{
    if (enabled == FEnabled)
        return;
    FEnabled = enabled;
    UpdateTimer();
}

void TqcTimer::SetInterval(quint32 interval)
{
    if (interval == FInterval.load())
        return;
    FInterval = interval;
    UpdateTimer();
}

bool TqcTimer::Ticking() const
{
    return FThread && FThread->IsTicking();
}

void TqcTimer::Timer()
{
    emit OnTimer(this);
}

// Connecting or disconnecting OnTimer is assigning the event: it re-checks
// the conditions like any setter. Qt may hold its connection lock while it
// notifies, so the handlers are counted here rather than asked for.
void TqcTimer::connectNotify(const QMetaMethod &signal)
{
    if (signal != QMetaMethod::fromSignal(&TqcTimer::OnTimer))
        return;
    ++FHandlers;
    UpdateTimer();
}

void TqcTimer::disconnectNotify(const QMetaMethod &signal)
{
    if (!signal.isValid()) {
        // Everything was disconnected at once: count again once Qt is done.
        QMetaObject::invokeMethod(this, &TqcTimer::recountHandlers, Qt::QueuedConnection);
        return;
    }
    if (signal != QMetaMethod::fromSignal(&TqcTimer::OnTimer) || FHandlers == 0)
        return;
    --FHandlers;
    UpdateTimer();
}

void TqcTimer::recountHandlers()
{
    FHandlers = receivers(SIGNAL(OnTimer(QObject*)));
    UpdateTimer();
}

void TqcTimer::deliverTick()
{
    // A handler whose receiver died may have left without a notification.
    if (receivers(SIGNAL(OnTimer(QObject*))) != FHandlers) {
        recountHandlers();
        if (FHandlers == 0)
            return;
    }
    Timer();
}

void TqcTimer::UpdateTimer()
{
    if (!FThread)
        FThread = std::make_unique<TqcTimerThread>(this);
    const bool tick = FInterval.load() != 0 && FEnabled && FHandlers > 0;
    if (tick && FThread->isRunning())
        FThread->setPriority(ToQThreadPriority(FPriority.load()));
    FThread->SetTicking(tick);
}

// ---------------------------------------------------------- TqcTimerThread

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

