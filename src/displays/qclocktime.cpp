#include "qclocktime.h"

#include "host/tformat.h"

namespace {
TClockWork::Source &defaultSource()
{
    static TClockWork::Source source;
    return source;
}
} // namespace

void TClockWork::SetDefaultSource(Source source)
{
    defaultSource() = std::move(source);
}

QTime TClockWork::Now() const
{
    if (FSource)
        return FSource();
    if (defaultSource())
        return defaultSource()();
    return QTime::currentTime();
}

TClockWork::TClockWork(QWidget *owner, Show show) : FShow(std::move(show)), FTimer(new TqcTimer(owner))
{
    FTimer->SetSubComponent(true);   // the clock's own part, no face on the form
    QObject::connect(FTimer, &TqcTimer::OnTimer, FTimer, [this](QObject *) { TimerNu(); });
}

TClockWork::~TClockWork()
{
    delete FTimer;
}

void TClockWork::TimerNu()
{
    const QTime now = Now();
    if (FShowSeconds ? now.second() != FSecond : now.minute() != FMinute)
        Setnow();
}

void TClockWork::Setnow()
{
    const QTime now = Now();
    FMinute = quint16(now.minute());
    FSecond = quint16(now.second());
    FShow(TimeToStr(Now()));   // the time is read again for the text
}
