#include "tqctimer.h"

#include "tqctimerthread.h"

#include <QMetaMethod>

#include <utility>

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
