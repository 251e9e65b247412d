// Repaint rates of the knob and the slide bar beside QDial and QSlider of
// the same size, all rendered off-screen into an image of their size:
// - repaint: a new value set from code, then one render;
// - input: a key press (Right, then Left at the end of the range) delivered
//   as a real key event, then one render.
#include "benchutil.h"

#include "instruments/qpanel.h"
#include "slidebar/slidebar.h"

#include <QApplication>
#include <QDial>
#include <QKeyEvent>
#include <QSlider>

namespace {

// Right for a while, then Left, so that every press changes the value.
void press(QWidget &w, int n, int range)
{
    QKeyEvent key(QEvent::KeyPress, (n / range) % 2 ? Qt::Key_Left : Qt::Key_Right, Qt::NoModifier);
    QApplication::sendEvent(&w, &key);
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);

    TqKnob knob;
    QDial dial;
    dial.resize(knob.size());
    dial.setNotchesVisible(true);
    TqTripKnob trip;
    QDial tripDial;
    tripDial.resize(trip.size());
    tripDial.setNotchesVisible(true);
    TqSlideBar bar;
    bar.SetMax(100);
    QSlider slider(Qt::Horizontal);
    slider.resize(bar.size());
    slider.setTickPosition(QSlider::TicksBothSides);
    slider.setRange(0, 100);

    const double knobSet = renderRate(knob, [&](int n) { knob.SetKnobValue(n % 101); });
    const double dialSet = renderRate(dial, [&](int n) { dial.setValue(n % 100); });
    const double knobKey = renderRate(knob, [&](int n) { press(knob, n, 100); });
    const double dialKey = renderRate(dial, [&](int n) { press(dial, n, 99); });
    const double tripSet = renderRate(trip, [&](int n) { trip.SetKnobValue3(n % 101); });
    const double tripDialSet = renderRate(tripDial, [&](int n) { tripDial.setValue(n % 100); });
    const double barSet = renderRate(bar, [&](int n) { bar.SetPosition(n % 101); });
    const double sliderSet = renderRate(slider, [&](int n) { slider.setValue(n % 101); });
    const double barKey = renderRate(bar, [&](int n) { press(bar, n, 100); });
    const double sliderKey = renderRate(slider, [&](int n) { press(slider, n, 100); });

    ratioHeader("repaints");
    ratioRow("TqKnob 57x57, value set", knobSet, "QDial", dialSet);
    ratioRow("TqKnob 57x57, key press", knobKey, "QDial", dialKey);
    ratioRow("TqTripKnob 75x75, value set", tripSet, "QDial", tripDialSet);
    ratioRow("TqSlideBar 100x20, value set", barSet, "QSlider", sliderSet);
    ratioRow("TqSlideBar 100x20, key press", barKey, "QSlider", sliderKey);
    std::printf("(ratio above 1: faster than the Qt widget in the same area)\n");
    return 0;
}
