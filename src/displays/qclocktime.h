#pragma once
// What the segment clock and the dot clock share: the owned timer, the time
// of day (from a source tests can pin), the minute and second shown last,
// and the rule for when the time is new.

#include "services/tqctimer.h"

#include <QString>
#include <QTime>

#include <functional>

class TClockWork
{
public:
    using Source = std::function<QTime()>;
    using Show = std::function<void(const QString &caption)>;

    // `show` receives the new caption; the timer ticks once a second.
    TClockWork(QWidget *owner, Show show);
    ~TClockWork();   // frees the timer first of all
    TClockWork(const TClockWork &) = delete;
    TClockWork &operator=(const TClockWork &) = delete;

    TqcTimer *Timer() const { return FTimer; }
    QTime Now() const;
    void SetSource(Source source) { FSource = std::move(source); }
    // Where clocks without a source of their own read the time (tests pin
    // it before they make a clock); empty means the system clock.
    static void SetDefaultSource(Source source);
    bool ShowSeconds() const { return FShowSeconds; }
    void SetShowSeconds(bool show) { FShowSeconds = show; }

    // Remembers the minute and second of now and shows the time.
    void Setnow();

private:
    // Shows the time when its minute (or, with seconds, its second) differs
    // from the one shown last.
    void TimerNu();

    Show FShow;
    Source FSource;
    bool FShowSeconds = false;
    quint16 FMinute = 0;
    quint16 FSecond = 0;
    TqcTimer *FTimer;
};
