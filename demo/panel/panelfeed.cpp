#include "panelfeed.h"

#include "displays/qseg.h"
#include "indicators/qgauge.h"
#include "indicators/qled.h"
#include "instruments/qpanel.h"

#include <QDial>
#include <QFile>
#include <QLabel>
#include <QLCDNumber>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QTime>
#include <QTimer>
#include <QUiLoader>

#include <vector>

namespace {

template <class T>
std::vector<T *> numbered(QWidget *form, const char *stem, int count)
{
    std::vector<T *> out;
    for (int i = 0; i < count; ++i)
        if (T *w = form->findChild<T *>(QString::fromLatin1(stem) + QString::number(i)))
            out.push_back(w);
    return out;
}

// The library's panel: the widgets the frames reach, found once.
class TLibraryPanel : public TPanel
{
public:
    explicit TLibraryPanel(QWidget *form) : FForm(form)
    {
        FReadings = numbered<TqSegmentLabel>(form, "reading", 12);
        FOver = numbered<TqLed>(form, "over", 12);
        FFrequencies = numbered<TqcDotLabel>(form, "freq", 8);
        FMeters = numbered<TqPanelMeter>(form, "meter", 6);
        FScopes = numbered<TqScope>(form, "scope", 2);
        FPeaks = numbered<TqcPeakOmeter>(form, "peak", 8);
        FLoads = numbered<TqGauge>(form, "load", 7);
        for (TqLed *led : numbered<TqLed>(form, "status", 24))
            if (!led->Blink())
                FChase.push_back(led);
    }

    QWidget *Widget() const override { return FForm.get(); }

    void Feed(const TPanelFrame &f) override
    {
        for (size_t i = 0; i < FReadings.size(); ++i)
            FReadings[i]->SetCaption(QString::number(f.volts[i], 'f', 3));
        for (size_t i = 0; i < FOver.size(); ++i)
            FOver[i]->writeLedOn(std::abs(f.volts[i]) > 9.0);
        for (size_t i = 0; i < FFrequencies.size(); ++i)
            FFrequencies[i]->SetCaption(QString::number(f.kilohertz[i], 'f', 3) + QStringLiteral("kHz"));
        for (size_t i = 0; i < FMeters.size(); ++i)
            FMeters[i]->SetValue(f.meter[i]);
        for (size_t i = 0; i < FScopes.size(); ++i) {
            FScopes[i]->SetIn1(f.trace[i]);
            FScopes[i]->SetIn2(100 - f.trace[1 - i]);
            FScopes[i]->Push();
        }
        for (size_t i = 0; i < FPeaks.size(); ++i)
            FPeaks[i]->Push(f.level[i]);
        for (size_t i = 0; i < FLoads.size(); ++i)
            FLoads[i]->SetValue(f.load[i]);
        const size_t lit = size_t(f.tick / 6) % (FChase.size() + 1);
        for (size_t i = 0; i < FChase.size(); ++i)
            FChase[i]->writeLedOn(i == lit);
    }

private:
    std::unique_ptr<QWidget> FForm;
    std::vector<TqSegmentLabel *> FReadings;
    std::vector<TqLed *> FOver, FChase;
    std::vector<TqcDotLabel *> FFrequencies;
    std::vector<TqPanelMeter *> FMeters;
    std::vector<TqScope *> FScopes;
    std::vector<TqcPeakOmeter *> FPeaks;
    std::vector<TqGauge *> FLoads;
};

// A trace drawn as a polyline over a grid, as one would with QPainter.
class TStockScope : public QWidget
{
public:
    explicit TStockScope(QWidget *parent) : QWidget(parent) { setAttribute(Qt::WA_OpaquePaintEvent); }
    void Push(int a, int b)
    {
        FA.push_back(a);
        FB.push_back(b);
        if (int(FA.size()) > width()) {
            FA.erase(FA.begin());
            FB.erase(FB.begin());
        }
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter p(this);
        p.fillRect(rect(), Qt::black);
        p.setPen(QColor(0, 80, 0));
        for (int x = 0; x < width(); x += 20)
            p.drawLine(x, 0, x, height());
        for (int y = 0; y < height(); y += 20)
            p.drawLine(0, y, width(), y);
        const auto trace = [&](const std::vector<int> &v, QColor c) {
            QPolygon line;
            const int x0 = width() - int(v.size());
            for (size_t i = 0; i < v.size(); ++i)
                line << QPoint(x0 + int(i), height() - 1 - v[i] * (height() - 1) / 100);
            p.setPen(c);
            p.drawPolyline(line);
        };
        trace(FA, Qt::green);
        trace(FB, Qt::yellow);
    }

private:
    std::vector<int> FA, FB;
};

// A lamp as a stock widget: a label whose background is lit or not.
class TStockLamp : public QLabel
{
public:
    explicit TStockLamp(QWidget *parent) : QLabel(parent) { setAutoFillBackground(true); SetOn(false); }
    void SetOn(bool on)
    {
        if (on == FOn && FSet)
            return;
        FOn = on;
        FSet = true;
        QPalette p = palette();
        p.setColor(QPalette::Window, on ? QColor(255, 40, 40) : QColor(80, 0, 0));
        setPalette(p);
    }

private:
    bool FOn = false, FSet = false;
};

class TStockPanel : public TPanel
{
public:
    TStockPanel() : FForm(std::make_unique<QWidget>())
    {
        QWidget *f = FForm.get();
        f->resize(1280, 740);
        const auto label = [&](const char *text, int x, int y, int w = 120, int h = 17) {
            auto *l = new QLabel(QString::fromLatin1(text), f);
            l->setGeometry(x, y, w, h);
        };
        label("SIGNAL ANALYSER SA-120", 10, 6, 420, 40);
        FClocks.push_back(lcd(940, 12, 152, 29, 8));
        FClocks.push_back(lcd(1100, 14, 130, 29, 8));
        label("CHANNELS", 10, 52);
        for (int i = 0; i < 12; ++i) {
            const int x = 10 + (i % 2) * 150, y = 72 + (i / 2) * 38;
            FReadings.push_back(lcd(x, y, 114, 29, 6));
            FOver.push_back(lamp(x + 117, y + 3, 24));
        }
        label("FREQUENCY", 320, 52);
        for (int i = 0; i < 8; ++i)
            FFrequencies.push_back(lcd(320, 72 + i * 28, 180, 24, 8));
        label("LEVELS", 520, 52);
        for (int i = 0; i < 6; ++i) {
            auto *d = new QDial(f);
            d->setGeometry(520 + (i % 3) * 132, 72 + (i / 3) * 132, 126, 126);
            d->setNotchesVisible(true);
            d->setRange(0, 100);
            FMeters.push_back(d);
        }
        label("TRACE", 920, 52);
        for (int i = 0; i < 2; ++i) {
            auto *s = new TStockScope(f);
            s->setGeometry(920, 72 + i * 150, 340, 140);
            FScopes.push_back(s);
        }
        label("PEAK", 920, 372);
        for (int i = 0; i < 8; ++i) {
            auto *b = new QProgressBar(f);
            b->setOrientation(Qt::Vertical);
            b->setTextVisible(false);
            b->setGeometry(920 + i * 20, 392, 16, 150);
            FPeaks.push_back(b);
        }
        for (int i = 0; i < 7; ++i) {
            auto *b = new QProgressBar(f);
            b->setGeometry(1090, 392 + i * 22, 120, 18);
            FLoads.push_back(b);
        }
        label("STATUS", 10, 532);
        for (int i = 0; i < 24; ++i) {
            TStockLamp *l = lamp(10 + i * 26, 552, 22);
            if (i % 6 == 5) {
                // Blinking by itself, as the library's lamps do.
                auto *blink = new QTimer(l);
                QObject::connect(blink, &QTimer::timeout, l, [l, on = false]() mutable { l->SetOn(on = !on); });
                blink->start(250 + 50 * (i % 4));
            } else {
                FChase.push_back(l);
            }
        }
        label("CONTROLS", 10, 584);
        for (int i = 0; i < 11; ++i) {
            auto *d = new QDial(f);
            d->setGeometry(i < 8 ? 10 + i * 62 : 520 + (i - 8) * 65, 604, 57, 57);
            d->setNotchesVisible(true);
            d->setValue(10 + i * 8);
        }
        for (int i = 0; i < 6; ++i) {
            auto *s = new QSlider(Qt::Horizontal, f);
            s->setGeometry(720 + (i % 3) * 160, 600 + (i / 3) * 42, 155, 36);
            s->setTickPosition(QSlider::TicksBothSides);
            s->setRange(0, 10);
            s->setValue(2 + i);
        }
        const char *keys[] = {"RUN", "HOLD", "AUTO", "SINGLE", "MENU", "SAVE", "CH1", "CH2", "MATH", "REF", "+", "-"};
        for (int i = 0; i < 12; ++i) {
            auto *b = new QPushButton(QString::fromLatin1(keys[i]), f);
            b->setGeometry(i < 10 ? 10 + i * 95 : 970 + (i - 10) * 50, 692, i < 10 ? 89 : 40, i < 10 ? 33 : 40);
        }
        label("OUTPUT", 1220, 380, 60, 100);
        label("READY", 1080, 700, 180, 30);
        // The clocks tick once a second, as the library's do.
        auto *second = new QTimer(f);
        QObject::connect(second, &QTimer::timeout, f, [this] {
            const QString now = QTime::currentTime().toString(QStringLiteral("hh:mm:ss"));
            for (QLCDNumber *c : FClocks)
                c->display(now);
        });
        second->start(1000);
    }

    QWidget *Widget() const override { return FForm.get(); }

    void Feed(const TPanelFrame &f) override
    {
        for (size_t i = 0; i < FReadings.size(); ++i)
            FReadings[i]->display(QString::number(f.volts[i], 'f', 3));
        for (size_t i = 0; i < FOver.size(); ++i)
            FOver[i]->SetOn(std::abs(f.volts[i]) > 9.0);
        for (size_t i = 0; i < FFrequencies.size(); ++i)
            FFrequencies[i]->display(QString::number(f.kilohertz[i], 'f', 3));
        for (size_t i = 0; i < FMeters.size(); ++i)
            FMeters[i]->setValue(f.meter[i]);
        for (size_t i = 0; i < FScopes.size(); ++i)
            FScopes[i]->Push(f.trace[i], 100 - f.trace[1 - i]);
        for (size_t i = 0; i < FPeaks.size(); ++i)
            FPeaks[i]->setValue(f.level[i]);
        for (size_t i = 0; i < FLoads.size(); ++i)
            FLoads[i]->setValue(f.load[i]);
        const size_t lit = size_t(f.tick / 6) % (FChase.size() + 1);
        for (size_t i = 0; i < FChase.size(); ++i)
            FChase[i]->SetOn(i == lit);
    }

private:
    QLCDNumber *lcd(int x, int y, int w, int h, int digits)
    {
        auto *n = new QLCDNumber(digits, FForm.get());
        n->setGeometry(x, y, w, h);
        n->setSegmentStyle(QLCDNumber::Flat);
        return n;
    }
    TStockLamp *lamp(int x, int y, int size)
    {
        auto *l = new TStockLamp(FForm.get());
        l->setGeometry(x, y, size, size);
        return l;
    }

    std::unique_ptr<QWidget> FForm;
    std::vector<QLCDNumber *> FReadings, FFrequencies, FClocks;
    std::vector<TStockLamp *> FOver, FChase;
    std::vector<QDial *> FMeters;
    std::vector<TStockScope *> FScopes;
    std::vector<QProgressBar *> FPeaks, FLoads;
};

} // namespace

std::unique_ptr<TPanel> LoadPanel(const QString &uiFile, QString *error)
{
    QFile file(uiFile);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = QStringLiteral("cannot read %1").arg(uiFile);
        return nullptr;
    }
    QUiLoader loader;
    std::unique_ptr<QWidget> form;
    {
        FormLoading loading;
        form.reset(loader.load(&file));
    }
    if (!form || !form->findChild<TqSegmentLabel *>(QStringLiteral("reading0"))) {
        if (error)
            *error = form ? QStringLiteral("the library's Designer plugin was not found (QT_PLUGIN_PATH)")
                          : loader.errorString();
        return nullptr;
    }
    return std::make_unique<TLibraryPanel>(form.release());
}

std::unique_ptr<TPanel> MakeStockPanel()
{
    return std::make_unique<TStockPanel>();
}
