// The rotary knobs, with one, two and three discs.
#include "instruments/qpanel.h"
#include "testutil.h"

namespace {

// Every value event of a knob, by name.
template <class Knob>
void watch(EventLog &log, Knob &k)
{
    log.watch(&k, &TqKnob::OnChange, "change");
    log.watch(&k, &TqKnob::OnMinimum, "min");
    log.watch(&k, &TqKnob::OnMaximum, "max");
    if constexpr (std::is_base_of_v<TqDblKnob, Knob>) {
        log.watch(&k, &TqDblKnob::OnMinimum2, "min2");
        log.watch(&k, &TqDblKnob::OnMaximum2, "max2");
    }
    if constexpr (std::is_base_of_v<TqTripKnob, Knob>) {
        log.watch(&k, &TqTripKnob::OnMinimum3, "min3");
        log.watch(&k, &TqTripKnob::OnMaximum3, "max3");
    }
}

template <class Knob>
struct OnForm : ShownOnForm<Knob>
{
    Knob *knob = this->control;
};

} // namespace

class tst_QKnob : public QObject
{
    Q_OBJECT
private slots:
    void mouseAngleInEveryQuadrant_data()
    {
        QTest::addColumn<QPoint>("offset");   // from the centre of a 57-pixel knob
        QTest::addColumn<int>("value");       // in 0..100
        QTest::newRow("centre") << QPoint(0, 0) << 81;
        QTest::newRow("straight up") << QPoint(0, -18) << 50;
        QTest::newRow("upper right") << QPoint(10, -10) << 66;
        QTest::newRow("right") << QPoint(18, 0) << 81;
        QTest::newRow("lower right") << QPoint(10, 10) << 97;
        QTest::newRow("straight down: Max") << QPoint(0, 18) << 100;
        QTest::newRow("just left of bottom: Min") << QPoint(-3, 18) << 0;
        QTest::newRow("lower left") << QPoint(-10, 10) << 3;
        QTest::newRow("left") << QPoint(-18, 0) << 19;
        QTest::newRow("upper left") << QPoint(-10, -10) << 34;
    }

    void mouseAngleInEveryQuadrant()
    {
        QFETCH(QPoint, offset);
        QFETCH(int, value);
        QCOMPARE(KnobWhere(57, 28 + offset.x(), 28 + offset.y(), 0, 100), value);
        // The same through a real click, on a range that is not 0..100.
        OnForm<TqKnob> f;
        f.knob->SetScaledMax(200);
        f.knob->SetScaledMin(100);
        QTest::mouseClick(f.knob, Qt::LeftButton, {}, QPoint(28, 28) + offset);
        QCOMPARE(f.knob->Value(), 100 + value);
    }

    void pointerSweepsFromLowerLeftToLowerRight()
    {
        QCOMPARE(qRound(qRadiansToDegrees(KnobPointerAngle(0, 0, 100))), -144);
        QCOMPARE(qRound(qRadiansToDegrees(KnobPointerAngle(100, 0, 100))), 144);
        QCOMPARE(KnobRayEnd(28, 19, KnobPointerAngle(50, 0, 100)), Point(28, 9));

        QWidget form;
        TqKnob knob(&form);
        knob.SetKnobValue(50);
        QImage img = knob.RenderImage();
        QCOMPARE(img.pixel(28, 10), rgb(clRed));   // the pointer, straight up...
        QCOMPARE(img.pixel(28, 9), rgb(clSilver));   // ...ending short of its end point
        QCOMPARE(img.pixel(28, 4), rgb(clBlack));    // the tick at 50, outside the disc
        QCOMPARE(img.pixel(28, 6), img.pixel(1, 1));   // the ring clears the tick's inner part
        knob.SetPointW(3);   // wider and shorter
        img = knob.RenderImage();
        QCOMPARE(img.pixel(28, 13), rgb(clRed));
        QCOMPARE(img.pixel(29, 15), rgb(clRed));
    }

    void sizeStaysSquareWithinItsBounds()
    {
        TqKnob knob;
        QCOMPARE(knob.size(), QSize(57, 57));
        knob.SetWidth(200);
        QCOMPARE(knob.size(), QSize(120, 120));
        knob.SetheightWidth(57);
        knob.SetBounds(0, 0, 30, 80);   // the width changed: it wins, clamped
        QCOMPARE(knob.size(), QSize(45, 45));
        knob.SetBounds(0, 0, 45, 90);   // the width stayed: the height decides
        QCOMPARE(knob.size(), QSize(90, 90));
        // The discs of a 75-pixel knob and their pointers.
        QCOMPARE(KnobDisc(75, 1), Rect(8, 8, 67, 67));
        QCOMPARE(KnobDisc(75, 3), Rect(26, 26, 49, 49));
        QCOMPARE(KnobPointerLength(75, 3, 1), 10);
    }

    void pressAndDragSetTheValue()
    {
        OnForm<TqKnob> f;
        EventLog log;
        watch(log, *f.knob);
        f.form.setFocus();
        // A press outside the disc takes the focus and nothing else; moves
        // after it do nothing either.
        QTest::mousePress(f.knob, Qt::LeftButton, {}, QPoint(2, 2));
        QVERIFY(f.knob->hasFocus());
        QTest::mouseMove(f.knob, QPoint(28, 5), 5);
        QTest::mouseRelease(f.knob, Qt::LeftButton, {}, QPoint(28, 5));
        QCOMPARE(log.names.size(), 0);
        // Pressed on the disc, the value follows the mouse until the release.
        QTest::mousePress(f.knob, Qt::LeftButton, {}, QPoint(28, 10));
        QCOMPARE(f.knob->Value(), 50);
        dragTo(f.knob, QPoint(18, 38));
        QCOMPARE(f.knob->Value(), 3);
        QTest::mouseRelease(f.knob, Qt::LeftButton, {}, QPoint(28, 45));
        QCOMPARE(f.knob->Value(), 100);
        QCOMPARE(log.names, (QStringList{"change", "change", "change", "max"}));
    }

    void keysStepTheValueWithBoundEvents()
    {
        OnForm<TqKnob> f;
        EventLog log;
        watch(log, *f.knob);
        f.knob->SetKnobValue(95);
        log.names.clear();
        QTest::keyClick(f.knob, Qt::Key_PageUp);
        QCOMPARE(f.knob->Value(), 100);
        QTest::keyClick(f.knob, Qt::Key_Right);   // at Max: nothing
        QTest::keyClick(f.knob, Qt::Key_A);       // not a knob key
        QCOMPARE(log.names, (QStringList{"change", "max"}));
        log.names.clear();
        QTest::keyClick(f.knob, Qt::Key_Down);
        QTest::keyClick(f.knob, Qt::Key_PageDown);
        QCOMPARE(f.knob->Value(), 89);
        QTest::keyClick(f.knob, Qt::Key_Up);
        QCOMPARE(f.knob->Value(), 90);
        QTest::keyClick(f.knob, Qt::Key_Home);
        QCOMPARE(log.names, (QStringList{"change", "change", "change", "change", "min"}));
        log.names.clear();
        QTest::keyClick(f.knob, Qt::Key_Left);   // at Min: nothing
        QCOMPARE(log.names.size(), 0);
        // The focus shows as a dotted frame round the control.
        QVERIFY(f.knob->hasFocus());
        const QRgb focused = f.knob->RenderImage().pixel(0, 0);
        f.form.setFocus();
        QVERIFY(f.knob->RenderImage().pixel(0, 0) != focused);
        // A value set beyond Max is clamped without the bound's event.
        f.knob->SetKnobValue(150);
        QCOMPARE(f.knob->Value(), 100);
        QCOMPARE(log.names, QStringList{"change"});
    }

    void boundEventsPerDiscAndAfterRangeChanges()
    {
        TqKnob knob;
        EventLog log;
        watch(log, knob);
        knob.SetScaledMin(200);   // not above Max
        QCOMPARE(knob.Min(), 100);
        QCOMPARE(knob.Value(), 100);
        QCOMPARE(log.names, QStringList{"change"});   // the old 0 equals neither bound
        TqTripKnob trip;
        trip.SetKnobValue(5);
        trip.SetKnobValue2(6);
        trip.SetKnobValue3(7);
        EventLog tripLog;
        watch(tripLog, trip);
        trip.SetScaledMax(50);
        QCOMPARE(tripLog.names, (QStringList{"change", "change", "change"}));
        // Each disc raises its own bound events; a clamped value none.
        TqTripKnob k;
        EventLog discs;
        watch(discs, k);
        k.SetKnobValue2(100);
        k.SetKnobValue3(0);
        k.SetKnobValue(-5);   // clamped: no bound event
        QCOMPARE(discs.names, (QStringList{"change", "max2", "change", "min3", "change"}));
    }

    void innermostDiscUnderThePressWins()
    {
        OnForm<TqTripKnob> f;
        TqTripKnob *k = f.knob;
        QTest::mouseClick(k, Qt::LeftButton, {}, QPoint(37, 37));   // the centre: disc 3
        QCOMPARE(k->Value3(), 81);
        QCOMPARE(k->Value(), 0);
        QCOMPARE(k->Value2(), 0);
        QTest::mouseClick(k, Qt::LeftButton, {}, QPoint(37, 20));   // disc 2's ring, straight up
        QCOMPARE(k->Value2(), 50);
        QCOMPARE(k->Value3(), 81);
        QTest::mouseClick(k, Qt::LeftButton, {}, QPoint(11, 37));   // disc 1's ring, left
        QCOMPARE(k->Value(), 19);
        QCOMPARE(k->Value2(), 50);
        // Each pointer shows in its own ring: disc 2's, straight up, is covered
        // by disc 3 inside.
        const QImage img = k->RenderImage();
        QCOMPARE(img.pixel(37, 20), rgb(clRed));
        QVERIFY(img.pixel(37, 30) != rgb(clRed));
    }

    void modifierKeysPickADisc()
    {
        OnForm<TqTripKnob> f;
        TqTripKnob *k = f.knob;
        QTest::keyClick(k, Qt::Key_PageUp, Qt::ShiftModifier);
        QCOMPARE(k->Value2(), 10);
        QCOMPARE(k->Value(), 0);
        QTest::keyClick(k, Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(k->Value3(), 100);
        QTest::keyClick(k, Qt::Key_Home, Qt::ControlModifier | Qt::ShiftModifier);   // Shift wins
        QCOMPARE(k->Value2(), 0);
        QCOMPARE(k->Value3(), 100);
        QTest::keyClick(k, Qt::Key_Right);
        QCOMPARE(k->Value(), 1);
        // On several discs every key applies, so a letter still raises OnChange.
        OnForm<TqDblKnob> d;
        EventLog log;
        watch(log, *d.knob);
        QTest::keyClick(d.knob, Qt::Key_Q);
        QCOMPARE(log.names, (QStringList{"change", "min"}));
        QCOMPARE(d.knob->Value(), 0);
    }
};

QTEST_MAIN(tst_QKnob)
#include "tst_qknob.moc"
