// High-density screens, at QT_SCALE_FACTOR 2 (and 1.5 by a second ctest entry).
#include "buttons/qanimate.h"
#include "displays/qseg.h"
#include "indicators/qgauge.h"
#include "indicators/qled.h"
#include "instruments/qpanel.h"
#include "labels/labels.h"
#include "slidebar/slidebar.h"

#include "testutil.h"

#include <QSet>

namespace {

QSet<QRgb> coloursOf(const QImage &image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y) | 0xFF000000u);
    return colours;
}

} // namespace

class tst_HiDpi : public QObject
{
    Q_OBJECT
private slots:
    void picturesScalePixelByPixel()
    {
        QWidget form;
        form.resize(420, 320);
        form.setPalette(QPalette(QColor(0, 0, 80)));
        QList<TControl *> controls;
        auto *segment = new TqSegment(&form);
        segment->SetChar('8');
        auto *dot = new TqcDotSegment(&form);
        dot->SetChar('A');
        auto *knob = new TqKnob(&form);
        knob->SetKnobValue(40);
        auto *led = new TqLed(&form);
        led->writeLedOn(true);
        auto *gauge = new TqGauge(&form);
        gauge->SetValue(60);
        auto *meter = new TqPanelMeter(&form);
        meter->SetValue(30);
        auto *button = new TqColorBtn(&form);
        button->SetCaption(QStringLiteral("OK"));
        auto *label = new Tq3DLabel(&form);
        label->SetCaption(QStringLiteral("Raised"));
        auto *bar = new TqSlideBar(&form);
        controls << segment << dot << knob << led << gauge << meter << button << label << bar;
        int x = 0;
        for (TControl *c : controls) {
            c->move(x % 400, (x / 400) * 100);
            x += 105;
        }
        QVERIFY(shown(&form));
        const qreal ratio = form.devicePixelRatioF();
        QCOMPARE(ratio, qEnvironmentVariable("QT_SCALE_FACTOR").toDouble());
        const QImage screen = form.grab().toImage();
        for (TControl *c : controls) {
            const QImage own = c->RenderImage(qRgb(0, 0, 80));
            // At a ratio that is not whole, the edges of a control share device
            // pixels with its neighbours: only the inside is its own.
            QRect device(QPointF(c->pos() * ratio).toPoint(), QSizeF(QSizeF(c->size()) * ratio).toSize());
            if (ratio != 2.0)
                device.adjust(2, 2, -2, -2);
            const QImage shown = screen.copy(device);
            const QSet<QRgb> allowed = coloursOf(own);
            for (QRgb colour : coloursOf(shown))
                QVERIFY2(allowed.contains(colour), qPrintable(QStringLiteral("%1: colour %2 is not in its picture")
                                                                  .arg(QLatin1String(c->metaObject()->className()))
                                                                  .arg(colour, 8, 16)));
            if (ratio == 2.0) {   // each pixel a 2 x 2 block of its colour
                QImage blocks = own.convertToFormat(QImage::Format_RGB32).scaled(own.size() * 2);
                QImage onScreen = shown.convertToFormat(QImage::Format_RGB32);
                blocks.setDevicePixelRatio(1);
                onScreen.setDevicePixelRatio(1);
                QVERIFY2(onScreen == blocks, c->metaObject()->className());
            }
        }
    }

    void mouseLandsWhereTheGeometrySays()
    {
        // A triangle button: a press in its box but outside the shape is not
        // its own; inside it is, in logical coordinates at any ratio.
        ShownOnForm<TqShapeBtn> shown;
        TqShapeBtn *button = shown.control;
        button->SetShape(TqShapeBtn::sbUpTriangle);
        button->SetBounds(20, 20, 60, 60);
        QSignalSpy clicks(button, &TControl::OnClick);
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(3, 3));   // the empty corner
        QCOMPARE(clicks.count(), 0);
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(30, 50));
        QCOMPARE(clicks.count(), 1);
        // A knob dragged to its top: the value of that angle.
        auto *knob = new TqKnob(&shown.form);
        knob->SetBounds(100, 100, 57, 57);
        knob->show();
        QTest::mousePress(knob, Qt::LeftButton, {}, QPoint(20, 20));
        dragTo(knob, QPoint(28, 4));
        QTest::mouseRelease(knob, Qt::LeftButton, {}, QPoint(28, 4));
        QCOMPARE(knob->Value(), 50);   // the top of the dial: the middle of 0..100
    }
};

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_SCALE_FACTOR"))
        qputenv("QT_SCALE_FACTOR", "2");
    QApplication app(argc, argv);
    tst_HiDpi test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_hidpi.moc"
