// What all controls share: mouse events in the platform's order, colour
// inheritance, design mode, the off-screen paint and the non-visual face.
#include "host/tcontrol.h"

#include <QEnterEvent>
#include <QHelpEvent>
#include <QtTest>

namespace {
// Paints its left half blue and leaves the rest to whatever is below.
class HalfControl : public TGraphicControl
{
public:
    using TGraphicControl::TGraphicControl;
    int paints = 0;
protected:
    void Paint(TCanvas &canvas) override
    {
        ++paints;
        canvas.Brush.SetColor(clBlue);
        canvas.FillRect(Rect(0, 0, width() / 2, height()));
    }
};
} // namespace

class tst_Control : public QObject
{
    Q_OBJECT
private slots:
    void clickSequence();
    void doubleClickSequence();
    void releaseOutsideIsNoClick();
    void rightButtonAndShiftState();
    void enterAndLeave();
    void parentColor();
    void showHint();
    void designTimeCreation();
    void componentFace();
    void offScreenPaintComposesOverParent();
};

void tst_Control::clickSequence()
{
    HalfControl c;
    c.resize(40, 20);
    QStringList log;
    connect(&c, &TControl::OnMouseDown, this, [&](QObject *s, TControl::TMouseButton b, int, int x, int y) {
        QCOMPARE(s, &c);
        QCOMPARE(b, TControl::mbLeft);
        log << QStringLiteral("down %1,%2").arg(x).arg(y);
    });
    connect(&c, &TControl::OnClick, this, [&](QObject *) { log << QStringLiteral("click"); });
    connect(&c, &TControl::OnMouseUp, this, [&](QObject *, TControl::TMouseButton, int, int, int) { log << QStringLiteral("up"); });
    QTest::mouseClick(&c, Qt::LeftButton, Qt::NoModifier, QPoint(7, 5));
    QCOMPARE(log, (QStringList{"down 7,5", "click", "up"}));
}

void tst_Control::doubleClickSequence()
{
    HalfControl c;
    c.resize(40, 20);
    QStringList log;
    connect(&c, &TControl::OnMouseDown, this, [&](QObject *, TControl::TMouseButton, int shift, int, int) {
        log << ((shift & TControl::ssDouble) ? QStringLiteral("down2") : QStringLiteral("down"));
    });
    connect(&c, &TControl::OnClick, this, [&](QObject *) { log << QStringLiteral("click"); });
    connect(&c, &TControl::OnDblClick, this, [&](QObject *) { log << QStringLiteral("dbl"); });
    connect(&c, &TControl::OnMouseUp, this, [&](QObject *, TControl::TMouseButton, int, int, int) { log << QStringLiteral("up"); });
    // What the window system sends for a double click.
    QTest::mousePress(&c, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QTest::mouseRelease(&c, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QTest::mouseDClick(&c, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QTest::mouseRelease(&c, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    // The second release is no click.
    QCOMPARE(log.count(QStringLiteral("click")), 1);
    QCOMPARE(log.count(QStringLiteral("dbl")), 1);
    const int dbl = int(log.indexOf(QStringLiteral("dbl")));
    QCOMPARE(log.value(dbl + 1), QStringLiteral("down2"));
    QCOMPARE(log.last(), QStringLiteral("up"));
}

void tst_Control::releaseOutsideIsNoClick()
{
    HalfControl c;
    c.resize(40, 20);
    QSignalSpy clicks(&c, &TControl::OnClick);
    QTest::mousePress(&c, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QTest::mouseRelease(&c, Qt::LeftButton, Qt::NoModifier, QPoint(60, 5));
    QCOMPARE(clicks.count(), 0);
}

void tst_Control::rightButtonAndShiftState()
{
    HalfControl c;
    c.resize(40, 20);
    QSignalSpy downs(&c, &TControl::OnMouseDown);
    QSignalSpy clicks(&c, &TControl::OnClick);
    QTest::mouseClick(&c, Qt::RightButton, Qt::ShiftModifier | Qt::ControlModifier, QPoint(3, 4));
    QCOMPARE(clicks.count(), 0);
    QCOMPARE(downs.count(), 1);
    QCOMPARE(downs.at(0).at(1).value<TControl::TMouseButton>(), TControl::mbRight);
    const int shift = downs.at(0).at(2).toInt();
    QVERIFY(shift & TControl::ssShift);
    QVERIFY(shift & TControl::ssCtrl);
    QVERIFY(shift & TControl::ssRight);
    QVERIFY(!(shift & TControl::ssAlt));
}

void tst_Control::enterAndLeave()
{
    HalfControl c;
    QSignalSpy enter(&c, &TControl::OnMouseEnter), leave(&c, &TControl::OnMouseLeave);
    QEnterEvent e(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QCoreApplication::sendEvent(&c, &e);
    QEvent l(QEvent::Leave);
    QCoreApplication::sendEvent(&c, &l);
    QCOMPARE(enter.count(), 1);
    QCOMPARE(leave.count(), 1);
    QCOMPARE(enter.at(0).at(0).value<QObject *>(), &c);
}

void tst_Control::parentColor()
{
    HalfControl parent;
    parent.SetColor(clNavy);
    auto *child = new HalfControl(&parent);
    QVERIFY(child->ParentColor());
    QCOMPARE(child->Color(), clNavy);
    parent.SetColor(clTeal);
    QCOMPARE(child->Color(), clTeal);
    // A colour of its own ends the inheritance...
    child->SetColor(clRed);
    QVERIFY(!child->ParentColor());
    parent.SetColor(clOlive);
    QCOMPARE(child->Color(), clRed);
    // ...and ParentColor brings it back.
    child->SetParentColor(true);
    QCOMPARE(child->Color(), clOlive);
    // A child moved under another parent takes that parent's colour.
    HalfControl other;
    other.SetColor(clPurple);
    child->setParent(&other);
    QCOMPARE(child->Color(), clPurple);
}

void tst_Control::showHint()
{
    HalfControl parent;
    auto *child = new HalfControl(&parent);
    child->SetHint(QStringLiteral("tip"));
    QCOMPARE(child->toolTip(), QStringLiteral("tip"));
    QVERIFY(child->ShowHint());
    parent.SetShowHint(false);
    QVERIFY(!child->ShowHint());   // follows the parent
    QHelpEvent help(QEvent::ToolTip, QPoint(1, 1), QPoint(1, 1));
    QVERIFY(QCoreApplication::sendEvent(child, &help));   // swallowed
    child->SetShowHint(true);
    QVERIFY(!child->ParentShowHint());
    QVERIFY(child->ShowHint());
}

void tst_Control::designTimeCreation()
{
    HalfControl runtime;
    QVERIFY(!runtime.IsDesigning());
    {
        DesignTimeCreation scope;
        HalfControl designed;
        TComponent component;
        QVERIFY(designed.IsDesigning());
        QVERIFY(component.IsDesigning());
    }
    HalfControl after;
    QVERIFY(!after.IsDesigning());
}

void tst_Control::componentFace()
{
    QWidget form;
    auto *component = new TComponent;
    auto *face = new TComponentFace(component, &form);
    QCOMPARE(component->parent(), face);   // the face owns it
    form.show();
    QVERIFY(!face->isVisible());           // nothing at run time
    face->SetDesigning(true);
    QVERIFY(face->isVisible());
    QVERIFY(component->IsDesigning());
    QImage shot = face->grab().toImage();
    QVERIFY(!shot.isNull());
    QCOMPARE(QColor(shot.pixel(0, 0)), QGuiApplication::palette().color(QPalette::Light));
}

void tst_Control::offScreenPaintComposesOverParent()
{
    QWidget parent;
    parent.resize(40, 20);
    parent.setAutoFillBackground(true);
    QPalette pal;
    pal.setColor(QPalette::Window, Qt::red);
    parent.setPalette(pal);
    auto *c = new HalfControl(&parent);
    c->setGeometry(0, 0, 40, 20);
    const QImage shot = parent.grab().toImage();
    QCOMPARE(QColor(shot.pixel(5, 5)), QColor(Qt::blue));
    QCOMPARE(QColor(shot.pixel(30, 5)), QColor(Qt::red));   // not opaque: the parent shows

    QVERIFY(c->paints > 0);
    const QImage direct = c->RenderImage(qRgb(0, 255, 0));
    QCOMPARE(QColor(direct.pixel(5, 5)), QColor(Qt::blue));
    QCOMPARE(QColor(direct.pixel(30, 5)), QColor(Qt::green));
}

QTEST_MAIN(tst_Control)
#include "tst_control.moc"
