// Tick lateness of TqcTimer at 10 ms beside a precise QTimer, in one run.
// Lateness is how much longer than the interval each gap between ticks was.
#include "benchutil.h"

#include "services/std2.h"

#include <QApplication>
#include <QTimer>

namespace {

constexpr int kInterval = 10;
constexpr int kTicks = 150;

template <class Start>
std::vector<double> lateness(QApplication &app, Start start)
{
    std::vector<double> late;
    QElapsedTimer clock;
    qint64 last = -1;
    auto onTick = [&] {
        const qint64 now = clock.nsecsElapsed();
        if (last >= 0)
            late.push_back(double(now - last) / 1e6 - kInterval);
        last = now;
        if (int(late.size()) >= kTicks)
            app.quit();
    };
    clock.start();
    auto stop = start(onTick);
    app.exec();
    stop();
    return late;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);   // the timer is a component, and so a widget
    const auto threaded = lateness(app, [](auto onTick) {
        auto *timer = new TqcTimer;
        timer->SetInterval(kInterval);
        QObject::connect(timer, &TqcTimer::OnTimer, timer, [onTick](QObject *) { onTick(); });
        return [timer] { delete timer; };
    });
    const auto precise = lateness(app, [](auto onTick) {
        auto *timer = new QTimer;
        timer->setTimerType(Qt::PreciseTimer);
        timer->setInterval(kInterval);
        QObject::connect(timer, &QTimer::timeout, timer, onTick);
        timer->start();
        return [timer] { delete timer; };
    });
    std::printf("%-28s %12s %12s\n", "lateness at 10 ms (ms)", "median", "99th pct");
    std::printf("%-28s %12.3f %12.3f\n", "TqcTimer", percentile(threaded, 50), percentile(threaded, 99));
    std::printf("%-28s %12.3f %12.3f\n", "QTimer (PreciseTimer)", percentile(precise, 50), percentile(precise, 99));
    const double m = percentile(precise, 50), p = percentile(precise, 99);
    std::printf("%-28s %11.1fx %11.1fx\n", "ratio TqcTimer / QTimer",
                m > 0 ? percentile(threaded, 50) / m : 0.0, p > 0 ? percentile(threaded, 99) / p : 0.0);
    std::printf("(TqcTimer has no drift correction: each gap is the interval plus the hand-over)\n");
    return 0;
}
