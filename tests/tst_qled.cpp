// The LED lamp: its picture at the points the geometry fixes, the lit
// state and its events, blinking and the timer's life.
#include "indicators/qled.h"
#include "testutil.h"

#include <QTimer>

class tst_QLed : public QObject
{
    Q_OBJECT
private slots:
    void newLampIsUnlitRedOnTheParentsColour()
    {
        QWidget form;
        form.setPalette(QPalette(QColor(0x12, 0x34, 0x56)));
        TqLed led(&form);
        const QImage img = led.RenderImage();
        QCOMPARE(img.pixel(8, 8), rgb(clMaroon));           // the glass, unlit
        QCOMPARE(img.pixel(0, 0), qRgb(0x12, 0x34, 0x56));   // outside the bezel
        QCOMPARE(img.pixel(8, 0), rgb(clBlack));             // the outline at the top
        led.writeLedOn(true);
        QCOMPARE(led.RenderImage().pixel(8, 8), rgb(clRed));
    }

    void scaleComesFromTheWidthAlone()
    {
        QCOMPARE(LedScale(33), 1);
        QCOMPARE(LedScale(34), 2);
        QCOMPARE(LedScale(2000), 6);
        // 60 x 20: f = 3 from the width, an elliptic lamp; the outline is 3 wide.
        TqLed led;
        led.SetBounds(0, 0, 60, 20);
        led.WriteLedColor(TqLed::lctBlue);
        const QImage img = led.RenderImage();
        QCOMPARE(img.pixel(30, 1), rgb(clBlack));
        QCOMPARE(img.pixel(30, 10), rgb(clNavy));
        QCOMPARE(img.pixel(0, 0), rgb(clBtnFace));
    }

    void squareLampAndSteel()
    {
        TqLed led;
        led.SetStyle(TqLed::lstSquare);
        led.SetBounds(0, 0, 34, 34);   // f = 2
        led.writeLedOn(true);
        led.WriteLedColor(TqLed::lctGreen);
        QImage img = led.RenderImage();
        QCOMPARE(img.pixel(17, 17), rgb(clLime));
        QCOMPARE(img.pixel(1, 17), rgb(clBlack));    // outer frame, 2 wide from f - 1
        QCOMPARE(img.pixel(14, 8), rgb(clSilver));   // the glint's softer neighbour (7f..9f)
        // The two shadow marks are given right to left and bottom to top; the
        // platform fills such a rectangle one pixel right and down of the one
        // it spans: x 23..26 and 17..20, y 25..26.
        QCOMPARE(img.pixel(23, 25), rgb(clGray));
        QCOMPARE(img.pixel(17, 26), rgb(clGray));
        QCOMPARE(img.pixel(22, 25), rgb(clLime));
        // On steel, the round lamp's corners show the texture: silver, white
        // where x and y are both odd.
        led.SetStyle(TqLed::lstRound);
        led.SetSteel(true);
        img = led.RenderImage();
        QCOMPARE(img.pixel(0, 0), rgb(clSilver));
        QCOMPARE(img.pixel(1, 1), rgb(clWhite));
    }

    void litStateRaisesOnChangeOnlyOnAChange()
    {
        TqLed led;
        QSignalSpy change(&led, &TqLed::OnChange);
        led.writeLedOn(false);
        QCOMPARE(change.count(), 0);
        led.writeLedOn(true);
        led.writeLedOn(true);
        led.writeLedOn(false);
        QCOMPARE(change.count(), 2);
        QCOMPARE(change.at(0).at(0).value<QObject *>(), &led);
        // The lit state is the published Enabled; the widget itself stays usable.
        led.setProperty("Enabled", true);
        QVERIFY(led.Enabled() && led.isEnabled());
    }

    void colourRepaintsEvenWhenUnchanged()
    {
        TqLed led;
        QVERIFY(shown(&led));
        QSignalSpy paints(&led, &TqLed::OnPaint);
        led.WriteLedColor(led.LEDColor());   // at once, without comparing
        QCOMPARE(paints.count(), 1);
        led.SetStyle(led.LedStyle());        // compares: nothing
        QCoreApplication::processEvents();
        QCOMPARE(paints.count(), 1);
    }

    void blinkTogglesUntilSwitchedOff()
    {
        auto *led = new TqLed;
        led->SetInterval(10);
        QVERIFY(!led->BlinkTimer());
        QSignalSpy change(led, &TqLed::OnChange);
        led->SetBlink(true);
        QVERIFY(led->BlinkTimer() && led->BlinkTimer()->isActive());
        QTRY_VERIFY(change.count() >= 3);   // each toggle raises OnChange
        led->SetBlink(false);
        QVERIFY(!led->BlinkTimer());        // the timer is gone: the state stays
        const bool reached = led->Enabled();
        QCOMPARE(reached, change.count() % 2 == 1);
        // A lamp freed while blinking takes its timer with it.
        led->SetBlink(true);
        QPointer<QTimer> timer = led->BlinkTimer();
        delete led;
        QVERIFY(timer.isNull());
    }

    // A new interval takes effect at once on a running lamp; in the designer
    // it stops the blinking that Blink started.
    void newIntervalRunsOrStopsInTheDesigner()
    {
        TqLed running;
        running.SetBlink(true);
        running.SetInterval(250);
        QCOMPARE(running.BlinkTimer()->interval(), 250);
        DesignTimeCreation designing;
        TqLed led;
        led.SetBlink(true);
        QVERIFY(led.BlinkTimer());
        led.SetInterval(250);
        QVERIFY(!led.BlinkTimer());
        QVERIFY(led.Blink());
    }
};

QTEST_MAIN(tst_QLed)
#include "tst_qled.moc"
