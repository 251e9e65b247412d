// The whole front panel, 120 widgets fed sixty times a second, offscreen:
// the CPU time it takes per second of wall time, against the same panel
// made of Qt's stock widgets (QLCDNumber, QProgressBar, QDial, QSlider,
// QPushButton, a QPainter polyline scope), measured in the same run.

#include "panelfeed.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <QtTest/QTest>

#include <cstdio>
#include <ctime>

namespace {

double cpuSeconds()
{
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return double(t.tv_sec) + double(t.tv_nsec) * 1e-9;
}

// Shows the panel, feeds it at 60 Hz for `seconds`, and returns the share
// of one core it took (CPU seconds per wall second).
double coreShare(TPanel &panel, double seconds)
{
    QWidget *w = panel.Widget();
    w->show();
    if (!QTest::qWaitForWindowExposed(w))
        std::fprintf(stderr, "the panel was not shown\n");
    TSignalSource source;
    QTimer feed;
    feed.setTimerType(Qt::PreciseTimer);
    QObject::connect(&feed, &QTimer::timeout, [&] { panel.Feed(source.Next()); });
    feed.start(16);
    QTest::qWait(500);   // settled: caches made, first paints done
    const double cpu0 = cpuSeconds();
    QElapsedTimer wall;
    wall.start();
    QTest::qWait(int(seconds * 1000));
    const double share = (cpuSeconds() - cpu0) / (double(wall.nsecsElapsed()) * 1e-9);
    feed.stop();
    w->hide();
    return share;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QCoreApplication::addLibraryPath(QStringLiteral(QC_PLUGIN_DIR));
    QString error;
    std::unique_ptr<TPanel> ours = LoadPanel(QStringLiteral(QC_PANEL_UI), &error);
    if (!ours) {
        std::fprintf(stderr, "the panel did not load: %s\n", qPrintable(error));
        return 1;
    }
    std::unique_ptr<TPanel> stock = MakeStockPanel();
    const double seconds = argc > 1 ? std::atof(argv[1]) : 3.0;
    // "ours" or "stock" as a second argument measures that one alone (for a
    // profiler).
    const QString only = argc > 2 ? QString::fromLocal8Bit(argv[2]) : QString();
    if (!only.isEmpty()) {
        const double share = coreShare(only == QLatin1String("stock") ? *stock : *ours, seconds);
        std::printf("%s panel %6.1f %%\n", qPrintable(only), 100 * share);
        return 0;
    }
    // Twice each, alternating, the better of each pair counted.
    double mine = 1e9, theirs = 1e9;
    for (int round = 0; round < 2; ++round) {
        mine = std::min(mine, coreShare(*ours, seconds));
        theirs = std::min(theirs, coreShare(*stock, seconds));
    }
    std::printf("whole panel, 120 widgets at 60 Hz, offscreen (share of one core)\n");
    std::printf("  library panel   %6.1f %%\n", 100 * mine);
    std::printf("  stock Qt panel  %6.1f %%\n", 100 * theirs);
    std::printf("  ratio           %6.2fx the stock panel's cost\n", mine / theirs);
    return 0;
}
