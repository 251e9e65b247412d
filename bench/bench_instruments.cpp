// Repaint rates of the instruments beside the nearest Qt widgets, all
// rendered off-screen into an image of their size:
// - TqScope at 300 x 150, one push and one repaint per step, against a
//   QWidget that keeps the same two histories and draws a grid and two
//   polylines with QPainter (aliased, its fastest honest way);
// - TqPanelMeter against QDial, TqGauge against QProgressBar, and
//   TqcPeakOmeter at 50 blocks against a vertical QProgressBar, each with a
//   new value per repaint.
#include "benchutil.h"

#include "displays/qseg.h"
#include "indicators/qgauge.h"
#include "instruments/qpanel.h"

#include <QApplication>
#include <QDial>
#include <QPainter>
#include <QProgressBar>

#include <cmath>
#include <cstring>

namespace {

// Two channels of history drawn right to left over a grid, as the scope does.
class PlainScope : public QWidget
{
public:
    PlainScope() { resize(300, 150); }
    void push(int a, int b)
    {
        std::memmove(&FOne[1], &FOne[0], 1000 * sizeof(int));
        std::memmove(&FTwo[1], &FTwo[0], 1000 * sizeof(int));
        FOne[0] = a;
        FTwo[0] = b;
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter p(this);
        const int w = width(), h = height();
        p.fillRect(rect(), Qt::black);
        p.setPen(QColor(0, 128, 0));
        for (int x = w - 10; x > 0; x -= 10)
            p.drawLine(x, 0, x, h - 2);
        for (int v = 10; v < 100; v += 10)
            p.drawLine(0, h - v * h / 100, w - 2, h - v * h / 100);
        QPolygon line(w + 1);
        const auto trace = [&](const int *samples, QColor colour) {
            for (int k = 0; k <= w; ++k)
                line.setPoint(k, w - k - 1, h - samples[k] * h / 100 - 1);
            p.setPen(colour);
            p.drawPolyline(line);
        };
        trace(FOne, QColor(0, 255, 0));
        trace(FTwo, QColor(255, 255, 0));
    }

private:
    int FOne[1001] = {};
    int FTwo[1001] = {};
};

int wave(int n) { return 50 + int(std::lround(40 * std::sin(n / 9.0))); }

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);

    TqScope scope;
    scope.SetBounds(0, 0, 300, 150);
    scope.SetUse2(true);
    PlainScope plain;
    const double ours = renderRate(scope, [&](int n) {
        scope.SetIn1(wave(n));
        scope.SetIn2(100 - wave(n));
        scope.Push();
    });
    const double theirs = renderRate(plain, [&](int n) { plain.push(wave(n), 100 - wave(n)); });

    TqPanelMeter meter;
    QDial dial;
    dial.resize(meter.size());
    dial.setNotchesVisible(true);
    const double meterRate = renderRate(meter, [&](int n) { meter.SetValue(n % 101); });
    const double dialRate = renderRate(dial, [&](int n) { dial.setValue(n % 100); });

    TqGauge gauge;
    gauge.SetCaption(QStringLiteral("%d%%"));
    QProgressBar bar;
    bar.resize(gauge.size());
    const double gaugeRate = renderRate(gauge, [&](int n) { gauge.SetValue(n % 101); });
    const double barRate = renderRate(bar, [&](int n) { bar.setValue(n % 101); });

    // The peak meter at 50 blocks, a new sample per repaint, against a
    // progress bar of the same size.
    TqcPeakOmeter peak;
    peak.SetBounds(0, 0, 24, 200);
    peak.SetBlocks(50);
    QProgressBar level;
    level.setOrientation(Qt::Vertical);
    level.resize(peak.size());
    const double peakRate = renderRate(peak, [&](int n) { peak.Push(wave(n)); });
    const double levelRate = renderRate(level, [&](int n) { level.setValue(wave(n)); });

    ratioHeader("repaints");
    ratioRow("TqScope 300x150, push", ours, "QPainter polylines", theirs);
    ratioRow("TqPanelMeter 105x97", meterRate, "QDial", dialRate);
    ratioRow("TqGauge 75x30 with caption", gaugeRate, "QProgressBar", barRate);
    ratioRow("TqcPeakOmeter 24x200, 50 blocks", peakRate, "QProgressBar", levelRate);
    std::printf("(ratio above 1: faster than the Qt widget in the same area)\n");
    return 0;
}
