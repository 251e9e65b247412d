// Repaints per second of an 11-cell segment label and an 11-cell dot label
// at Size 2, beside Qt's QLCDNumber showing 11 digits in the same area.
// Each repaint changes the text and renders the whole widget off-screen.
#include "benchutil.h"

#include "displays/qseg.h"

#include <QApplication>
#include <QLCDNumber>

namespace {

QString text(int n) { return QString::number(1000000 + n * 7).rightJustified(8) + QStringLiteral(".25"); }

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);

    TqSegmentLabel segments;
    segments.SetSize(2);
    TqcDotLabel dots;
    dots.SetSize(2);
    QLCDNumber lcd(11);
    lcd.setSegmentStyle(QLCDNumber::Filled);

    const double seg = renderRate(segments, [&](int n) { segments.SetCaption(text(n)); });
    lcd.resize(segments.size());
    const double lcdSeg = renderRate(lcd, [&](int n) { lcd.display(text(n)); });
    const double dot = renderRate(dots, [&](int n) { dots.SetCaption(text(n)); });
    lcd.resize(dots.size());
    const double lcdDot = renderRate(lcd, [&](int n) { lcd.display(text(n)); });

    std::printf("%-34s %12s %14s %8s\n", "11 cells, Size 2", "repaints/s", "QLCDNumber/s", "ratio");
    std::printf("%-34s %12.0f %14.0f %7.2fx\n", "TqSegmentLabel (418x58)", seg, lcdSeg, seg / lcdSeg);
    std::printf("%-34s %12.0f %14.0f %7.2fx\n", "TqcDotLabel (330x38)", dot, lcdDot, dot / lcdDot);
    std::printf("(ratio above 1: faster than QLCDNumber in the same area)\n");
    return 0;
}
