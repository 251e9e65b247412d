// What a screen reader finds: dials and sliders it reads and sets, a button
// it presses, meters it reads; and the input controls from the keyboard alone.
#include "buttons/qanimate.h"
#include "indicators/qgauge.h"
#include "instruments/qpanel.h"
#include "slidebar/slidebar.h"

#include "testutil.h"

#include <QAccessible>

class tst_Accessible : public QObject
{
    Q_OBJECT
private slots:
    void valuesReadAndSet()
    {
        QWidget form;
        auto *knob = new TqKnob(&form);
        knob->setObjectName(QStringLiteral("gain"));
        knob->SetHint(QStringLiteral("Gain|Input gain in dB"));
        auto *bar = new TqSlideBar(&form);
        bar->setAccessibleName(QStringLiteral("Balance"));
        bar->SetPosition(4);
        knob->SetKnobValue(30);

        QAccessibleInterface *dial = QAccessible::queryAccessibleInterface(knob);
        QVERIFY(dial);
        QCOMPARE(dial->role(), QAccessible::Dial);
        QCOMPARE(dial->text(QAccessible::Name), QStringLiteral("Gain"));   // the hint's short part
        QCOMPARE(dial->text(QAccessible::Description), QStringLiteral("Input gain in dB"));
        QCOMPARE(dial->text(QAccessible::Value), QStringLiteral("30"));
        QAccessibleValueInterface *value = dial->valueInterface();
        QVERIFY(value);
        QCOMPARE(value->minimumValue().toDouble(), 0.0);
        QCOMPARE(value->maximumValue().toDouble(), 100.0);
        QSignalSpy changed(knob, &TqKnob::OnChange);
        value->setCurrentValue(64.4);
        QCOMPARE(knob->Value(), 64);
        QCOMPARE(changed.count(), 1);
        value->setCurrentValue(500);   // held to the range
        QCOMPARE(knob->Value(), 100);
        dial->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
        QCOMPARE(knob->Value(), 99);

        QAccessibleInterface *slider = QAccessible::queryAccessibleInterface(bar);
        QCOMPARE(slider->role(), QAccessible::Slider);
        QCOMPARE(slider->text(QAccessible::Name), QStringLiteral("Balance"));
        QCOMPARE(slider->valueInterface()->currentValue().toInt(), 4);
        QCOMPARE(slider->valueInterface()->maximumValue().toInt(), 10);
        slider->valueInterface()->setCurrentValue(7);
        QCOMPARE(bar->Value(), 7);

    }

    void buttonsPressAndMetersRead()
    {
        QWidget form;
        auto *button = new TqColorBtn(&form);
        button->SetCaption(QStringLiteral("&Run && stop"));
        auto *meter = new TqPanelMeter(&form);
        meter->SetValue(42);
        auto *gauge = new TqGauge(&form);
        gauge->SetValue(17);

        QAccessibleInterface *b = QAccessible::queryAccessibleInterface(button);
        QCOMPARE(b->role(), QAccessible::Button);
        QCOMPARE(b->text(QAccessible::Name), QStringLiteral("Run & stop"));
        QVERIFY(b->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
        QSignalSpy clicks(button, &TControl::OnClick);
        b->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(clicks.count(), 1);
        button->setEnabled(false);
        b->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(clicks.count(), 1);

        // Meters: read, never set.
        QAccessibleInterface *m = QAccessible::queryAccessibleInterface(meter);
        QCOMPARE(m->role(), QAccessible::ProgressBar);
        QCOMPARE(m->valueInterface()->currentValue().toInt(), 42);
        m->valueInterface()->setCurrentValue(80);
        QCOMPARE(meter->Value(), 42);
        QVERIFY(!m->actionInterface() || !m->actionInterface()->actionNames().contains(QAccessibleActionInterface::increaseAction()));
        QCOMPARE(QAccessible::queryAccessibleInterface(gauge)->text(QAccessible::Value), QStringLiteral("17"));
    }

    void keyboardAlone()
    {
        QWidget form;
        form.resize(400, 200);
        auto *knob = new TqKnob(&form);
        auto *bar = new TqSlideBar(&form);
        bar->move(0, 80);
        auto *button = new TqColorBtn(&form);
        button->move(0, 120);
        form.show();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        // Each is reached with Tab and worked with its keys.
        knob->setFocus();
        QTest::keyClick(knob, Qt::Key_Up);
        QCOMPARE(knob->Value(), 1);
        QTest::keyClick(knob, Qt::Key_Tab);
        QTRY_VERIFY(bar->hasFocus());
        QTest::keyClick(bar, Qt::Key_Right);
        QCOMPARE(bar->Value(), 1);
        QTest::keyClick(bar, Qt::Key_Tab);
        QTRY_VERIFY(button->hasFocus());
        QSignalSpy clicks(button, &TControl::OnClick);
        QTest::keyClick(button, Qt::Key_Space);
        QCOMPARE(clicks.count(), 1);
    }
};

QTEST_MAIN(tst_Accessible)
#include "tst_accessible.moc"
