#include "sections.h"

#include "indicators/qgauge.h"
#include "indicators/qled.h"
#include "instruments/qpanel.h"
#include "services/std2.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

#include <cmath>

namespace {

// Lamps of every colour in a row, lit and unlit alternating.
QWidget *lampRow(LedStyleType style, bool steel, QWidget *parent)
{
    auto *row = new QWidget(parent);
    auto *layout = sideBySide(row);
    for (int c = TqLed::lctRed; c <= TqLed::lctWhite; ++c) {
        auto *led = new TqLed(row);
        led->SetStyle(style);
        led->SetSteel(steel);
        led->WriteLedColor(LedColorType(c));
        led->SetBounds(0, 0, 34, 34);
        led->writeLedOn(c % 2 == 0);
        layout->addWidget(led);
    }
    return row;
}

// A stripe picture for the gauge's glyph.
QPixmap stripes()
{
    QImage image(8, 8, QImage::Format_RGB32);
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x)
            image.setPixel(x, y, ((x + y) / 2) % 2 ? qRgb(0, 160, 255) : qRgb(0, 60, 160));
    return QPixmap::fromImage(image);
}

} // namespace

QGroupBox *instrumentsSection(QWidget *parent)
{
    auto *box = new QGroupBox(QStringLiteral("Indicators and instruments"), parent);
    SectionRows add(box);

    // Lamps: both styles, on the parent's colour and on steel; one blinks.
    auto *lamps = new QWidget(box);
    auto *lampLayout = new QGridLayout(lamps);
    lampLayout->setContentsMargins(0, 0, 0, 0);
    lampLayout->addWidget(lampRow(TqLed::lstRound, false, lamps), 0, 0);
    lampLayout->addWidget(lampRow(TqLed::lstSquare, true, lamps), 1, 0);
    auto *blinker = new TqLed(lamps);
    blinker->SetBounds(0, 0, 51, 51);
    blinker->WriteLedColor(TqLed::lctGreen);
    blinker->SetInterval(400);
    blinker->SetBlink(true);
    lampLayout->addWidget(blinker, 0, 1, 2, 1);
    add(QStringLiteral("TqLed, eight colours, round and square on steel; blinking"), lamps);

    // Gauges: the four caption styles, blocks, and a glyph.
    auto *gauges = new QWidget(box);
    auto *gaugeLayout = new QGridLayout(gauges);
    gaugeLayout->setContentsMargins(0, 0, 0, 0);
    const char *formats[] = {"%d%%", "%d units", "%d / %d%%", "%d%% of %d"};
    for (int s = TqGauge::gaPctBar; s <= TqGauge::gaPctTot; ++s) {
        auto *g = new TqGauge(gauges);
        g->SetBounds(0, 0, 140, 24);
        g->SetCaptionStyle(gaCaptionStyle(s));
        g->SetCaption(QString::fromLatin1(formats[s]));
        g->SetBarColor(s % 2 ? TColor(0x00E06000) : TColor(0x0000B000));   // captions clear in either palette
        g->SetValue(20 + 20 * s);
        gaugeLayout->addWidget(g, s / 2, s % 2);
    }
    auto *blocks = new TqGauge(gauges);
    blocks->SetBounds(0, 0, 140, 24);
    blocks->SetNumberOfLed(12);
    blocks->SetSpaceBetweenLed(2);
    blocks->SetBarColor(clLime);
    blocks->SetColor(clBlack);
    blocks->SetBevelOuter(bvLowered);
    blocks->SetValue(70);
    gaugeLayout->addWidget(blocks, 2, 0);
    auto *glyph = new TqGauge(gauges);
    glyph->SetBounds(0, 0, 140, 24);
    glyph->SetGlyph(stripes());
    glyph->SetCaption(QStringLiteral("glyph %d%%"));
    glyph->SetBarColor(0x0000A0FF);   // the caption's colour: clear on the stripes and either palette
    glyph->SetValue(55);
    gaugeLayout->addWidget(glyph, 2, 1);
    add(QStringLiteral("TqGauge: caption styles, blocks, glyph"), gauges);

    // Meters: the three looks, one in its alert zone.
    auto *meters = new QWidget(box);
    auto *meterLayout = sideBySide(meters);
    auto *standard = new TqPanelMeter(meters);
    standard->SetCaption(QStringLiteral("mA"));
    standard->SetFontColor(clBlack);   // on the white face in any palette
    standard->SetValue(40);
    meterLayout->addWidget(standard);
    auto *alert = new TqPanelMeter(meters);
    alert->SetCaption(QStringLiteral("ALERT"));
    alert->SetFontColor(clBlack);
    alert->SetSteelLook(true);
    alert->SetScaleWidth(3);
    alert->SetValue(88);
    meterLayout->addWidget(alert);
    auto *horizontal = new TqPanelMeter(meters);
    horizontal->SetPanelType(TqPanelMeter::qpEdgeHorz);
    horizontal->SetBounds(0, 0, 150, 60);
    horizontal->SetCaption(QStringLiteral("V"));
    horizontal->SetFontColor(clBlack);
    horizontal->SetValue(60);
    meterLayout->addWidget(horizontal);
    auto *vertical = new TqPanelMeter(meters);
    vertical->SetPanelType(TqPanelMeter::qpEdgeVert);
    vertical->SetBounds(0, 0, 50, 120);
    vertical->SetHouseStyle(bsSolid);
    vertical->SetValue(30);
    meterLayout->addWidget(vertical);
    add(QStringLiteral("TqPanelMeter: round, steel in alert, edgewise"), meters);

    // A scope fed live: a sine on beam 1, a slow square wave on beam 2.
    auto *scope = new TqScope(box);
    scope->SetBounds(0, 0, 300, 120);
    scope->SetUse2(true);
    scope->SetStepY(25);
    auto *feed = new TqcTimer(scope);
    feed->SetInterval(40);
    auto step = [scope, t = 0]() mutable {
        ++t;
        scope->SetIn1(50 + int(std::lround(35 * std::sin(t / 10.0))));
        scope->SetIn2((t / 25) % 2 ? 80 : 20);
        scope->Push();
    };
    // Some history at once, so that a picture taken early shows both beams.
    for (int i = 0; i < 300; ++i)
        step();
    QObject::connect(feed, &TqcTimer::OnTimer, scope, [step](QObject *) mutable { step(); });
    add(QStringLiteral("TqScope fed by a TqcTimer"), scope);
    return box;
}
