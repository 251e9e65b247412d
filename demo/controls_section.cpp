#include "sections.h"

#include "displays/qseg.h"
#include "indicators/qgauge.h"
#include "instruments/qpanel.h"
#include "slidebar/slidebar.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaEnum>
#include <QVBoxLayout>

namespace {

// A three-cell segment label showing a number.
TqSegmentLabel *readout(QWidget *parent, TColor lit)
{
    auto *label = new TqSegmentLabel(parent);
    label->SetElements(3);
    label->SetLitColor(lit);
    label->SetUnLitColor(0x202020);
    return label;
}

QString number(int v) { return QString::number(v).rightJustified(3); }

} // namespace

QGroupBox *controlsSection(QWidget *parent)
{
    auto *box = new QGroupBox(QStringLiteral("Knobs and sliders"), parent);
    auto *layout = new QVBoxLayout(box);

    // Each knob drives a readout: turn it and the number follows.
    auto *knobs = new QWidget(box);
    auto *knobRow = sideBySide(knobs);

    auto *single = new TqKnob(knobs);
    auto *singleOut = readout(knobs, clLime);
    QObject::connect(single, &TqKnob::OnChange, singleOut, [=] { singleOut->SetCaption(number(single->Value())); });
    single->SetKnobValue(30);
    knobRow->addWidget(single);
    knobRow->addWidget(singleOut);

    auto *dbl = new TqDblKnob(knobs);
    dbl->SetKnobCol(TqKnob::kcBlue);
    dbl->SetPoint(clYellow);
    auto *dblOut = new TqGauge(knobs);
    dblOut->SetBounds(0, 0, 90, 20);
    dblOut->SetCaption(QStringLiteral("%d%%"));
    auto *dblOut2 = new TqGauge(knobs);
    dblOut2->SetBounds(0, 0, 90, 20);
    dblOut2->SetCaption(QStringLiteral("%d%%"));
    dblOut2->SetBarColor(0x00E06000);   // its caption clear in either palette
    QObject::connect(dbl, &TqKnob::OnChange, dblOut, [=] {
        dblOut->SetValue(dbl->Value());
        dblOut2->SetValue(dbl->Value2());
    });
    dbl->SetKnobValue(65);
    dbl->SetKnobValue2(25);
    auto *gauges = new QWidget(knobs);
    auto *gaugeColumn = new QVBoxLayout(gauges);
    gaugeColumn->setContentsMargins(0, 0, 0, 0);
    gaugeColumn->addWidget(dblOut);
    gaugeColumn->addWidget(dblOut2);
    knobRow->addWidget(dbl);
    knobRow->addWidget(gauges);

    auto *trip = new TqTripKnob(knobs);
    trip->SetKnobCol(TqKnob::kcRed);
    trip->SetSteel(true);
    trip->SetTickColor(clNavy);
    auto *tripOut = new TqSegmentLabel(knobs);
    tripOut->SetElements(11);
    tripOut->SetLitColor(clRed);
    tripOut->SetUnLitColor(0x000020);
    QObject::connect(trip, &TqKnob::OnChange, tripOut, [=] {
        tripOut->SetCaption(number(trip->Value()) + number(trip->Value2()).prepend(QLatin1Char(' '))
                            + number(trip->Value3()).prepend(QLatin1Char(' ')));
    });
    trip->SetKnobValue(10);
    trip->SetKnobValue2(50);
    trip->SetKnobValue3(90);
    knobRow->addWidget(trip);
    knobRow->addWidget(tripOut);
    knobRow->addStretch();
    layout->addWidget(new QLabel(QStringLiteral("TqKnob, TqDblKnob (Shift: inner disc), TqTripKnob on steel "
                                                "(Ctrl: innermost), each driving a display"),
                                 box));
    layout->addWidget(knobs);

    // The sixteen thumbs, each on a bar driving its own readout.
    auto *bars = new QWidget(box);
    auto *grid = new QGridLayout(bars);
    grid->setContentsMargins(0, 0, 0, 0);
    const QMetaEnum styles = QMetaEnum::fromType<TqSlideBar::TThumbStyle>();
    for (int s = 0; s < styles.keyCount(); ++s) {
        auto *cell = new QWidget(bars);
        auto *row = sideBySide(cell);
        auto *bar = new TqSlideBar(cell);
        bar->SetThumbStyle(TqSlideBar::TThumbStyle(styles.value(s)));
        bar->SetBounds(0, 0, 130, 34);
        auto *out = readout(cell, clAqua);
        out->SetSize(1);
        QObject::connect(bar, &TqSlideBar::OnChange, out, [=] { out->SetCaption(number(bar->Value())); });
        bar->SetPosition(s % 11);
        out->SetCaption(number(bar->Value()));
        auto *name = new QLabel(QString::fromLatin1(styles.key(s)), cell);
        name->setFixedWidth(125);
        row->addWidget(name);
        row->addWidget(bar);
        row->addWidget(out);
        grid->addWidget(cell, s / 2, s % 2);
    }
    // Upright, with ticks on one side and the steel background.
    auto *upright = new TqSlideBar(bars);
    upright->SetBounds(0, 0, 40, 150);
    upright->SetThumbStyle(TqSlideBar::tsLeft);
    upright->SetTickWhere(TqSlideBar::ttsRight);
    upright->SetSteel(true);
    upright->SetPosition(7);
    grid->addWidget(upright, 0, 2, 8, 1);
    layout->addWidget(new QLabel(QStringLiteral("TqSlideBar: the sixteen thumb styles, and an upright bar on steel"),
                                 box));
    layout->addWidget(bars);
    return box;
}
