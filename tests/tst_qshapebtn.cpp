// The shape button: its regions, hits that fall through to the control
// beneath, the bevel of a shape raised and pressed, and its keys.
#include "buttons/qanimate.h"
#include "testutil.h"

class tst_QShapeBtn : public QObject
{
    Q_OBJECT
private slots:
    void regionsFollowTheShape()
    {
        // 25 x 25 plus: arms 8 wide, spanning x 0..23.
        TRegion plus = TqShapeBtn::ShapeRegion(TqShapeBtn::sbPlus, 25, 25);
        QVERIFY(PtInRegion(plus, 12, 2) && PtInRegion(plus, 2, 12) && PtInRegion(plus, 23, 12));
        QVERIFY(!PtInRegion(plus, 2, 2) && !PtInRegion(plus, 24, 12));
        // One wider: the plus stops short of the last columns, the minus bar does not.
        QVERIFY(!PtInRegion(TqShapeBtn::ShapeRegion(TqShapeBtn::sbPlus, 26, 25), 24, 12));
        const TRegion minus = TqShapeBtn::ShapeRegion(TqShapeBtn::sbMinus, 26, 25);
        QVERIFY(PtInRegion(minus, 24, 12) && PtInRegion(minus, 12, 2) && !PtInRegion(minus, 12, 7));
        const TRegion up = TqShapeBtn::ShapeRegion(TqShapeBtn::sbUpTriangle, 25, 25);
        QVERIFY(PtInRegion(up, 12, 3) && !PtInRegion(up, 3, 3) && PtInRegion(up, 3, 22));
        const TRegion circle = TqShapeBtn::ShapeRegion(TqShapeBtn::sbCircle, 25, 25);
        QVERIFY(PtInRegion(circle, 12, 12) && !PtInRegion(circle, 1, 1));
        QVERIFY(!PtInRegion(TqShapeBtn::ShapeRegion(TqShapeBtn::sbRectangle, 25, 25), 24, 10));
    }

    void pressOutsideTheShapeGoesBeneath()
    {
        QWidget form;
        auto *beneath = new TqColorBtn(&form);
        beneath->SetBounds(0, 0, 60, 60);
        auto *shape = new TqShapeBtn(&form);
        shape->SetBounds(0, 0, 60, 60);
        shape->SetShape(TqShapeBtn::sbUpTriangle);
        form.resize(100, 100);
        QVERIFY(shown(&form));
        QSignalSpy under(beneath, &TControl::OnClick), over(shape, &TControl::OnClick);
        QTest::mouseClick(shape, Qt::LeftButton, {}, QPoint(5, 5));     // beside the triangle
        QCOMPARE(under.count(), 1);
        QCOMPARE(over.count(), 0);
        QTest::mouseClick(shape, Qt::LeftButton, {}, QPoint(30, 40));   // inside it
        QCOMPARE(under.count(), 1);
        QCOMPARE(over.count(), 1);
    }

    void draggingOutOfTheShapeCancelsTheClick()
    {
        ShownOnForm<TqShapeBtn> f;
        TqShapeBtn *b = f.control;
        b->SetBounds(0, 0, 40, 40);
        b->SetShape(TqShapeBtn::sbCircle);
        b->RenderImage();
        QSignalSpy clicks(b, &TControl::OnClick);
        QTest::mousePress(b, Qt::LeftButton, {}, QPoint(20, 20));
        QVERIFY(b->Pressed());
        dragTo(b, QPoint(2, 2));   // out of the circle, still on the control
        QVERIFY(!b->Pressed());
        QTest::mouseRelease(b, Qt::LeftButton, {}, QPoint(2, 2));
        QCOMPARE(clicks.count(), 0);
        // Disabled, it ignores presses and stays raised.
        b->setEnabled(false);
        QTest::mousePress(b, Qt::LeftButton, {}, QPoint(20, 20));
        QVERIFY(!b->Pressed());
        QTest::mouseRelease(b, Qt::LeftButton, {}, QPoint(20, 20));
    }

    void bevelRaisedAndPressed()
    {
        ShownOnForm<TqShapeBtn> f;
        TqShapeBtn *b = f.control;
        QImage img = b->RenderImage(0xFF0000FF);
        QCOMPARE(img.pixel(1, 10), rgb(clBtnHighlight));
        QCOMPARE(img.pixel(24, 10), rgb(clBlack));
        QCOMPARE(img.pixel(12, 12), rgb(clBtnFace));
        QTest::mousePress(b, Qt::LeftButton, {}, QPoint(12, 12));
        img = b->RenderImage(0xFF0000FF);
        QCOMPARE(img.pixel(1, 10), rgb(clBlack));
        QCOMPARE(img.pixel(24, 10), rgb(clBtnHighlight));
        QTest::mouseRelease(b, Qt::LeftButton, {}, QPoint(12, 12));
        // Around a triangle the parent shows; its edge is framed in the shadow colour.
        b->SetShape(TqShapeBtn::sbUpTriangle);
        img = b->RenderImage(0xFF0000FF);
        QCOMPARE(img.pixel(2, 2), 0xFF0000FFu);
        QCOMPARE(img.pixel(12, 16), rgb(clBtnFace));
    }

    void plusAndMinusAnswerTheirKeys()
    {
        ShownOnForm<TqShapeBtn> f;
        TqShapeBtn *b = f.control;
        QSignalSpy clicks(b, &TControl::OnClick);
        b->SetAccelKey(QChar(u'x'));
        b->SetShape(TqShapeBtn::sbCircle);   // another shape drops the accelerator
        QCOMPARE(b->GetAccelkey(), QChar(u' '));
        QTest::keyClick(&f.form, Qt::Key_X);
        QCOMPARE(clicks.count(), 0);
        b->SetShape(TqShapeBtn::sbMinus);
        QTest::keyClick(&f.form, Qt::Key_Minus);
        QCOMPARE(clicks.count(), 1);
        b->SetAccelKey(QChar(u'q'));
        QTest::keyClick(&f.form, Qt::Key_Q);
        QCOMPARE(clicks.count(), 2);
    }

    void transparentAndOwnerDrawn()
    {
        ShownOnForm<TqShapeBtn> f;
        TqShapeBtn *b = f.control;
        b->SetTransparent(true);
        QCOMPARE(b->RenderImage(0xFF0000FF).pixel(0, 0), 0xFF0000FFu);   // nothing painted...
        QSignalSpy clicks(b, &TControl::OnClick);
        QTest::mouseClick(b, Qt::LeftButton, {}, QPoint(12, 12));
        QCOMPARE(clicks.count(), 1);                                      // ...yet it answers
        b->SetDesigning(true);
        QCOMPARE(b->RenderImage(0xFF0000FF).pixel(0, 0), rgb(clBlack));  // the designer's outline
        b->SetDesigning(false);
        b->SetTransparent(false);
        // The application's shape: hits follow the region it gives.
        connect(b, &TqShapeBtn::OnGetRegion, [](QObject *, TRegion &r, int, int) { r = CreateRectRgn(0, 0, 5, 5); });
        b->SetShape(TqShapeBtn::sbOwnerDraw);
        b->RenderImage();
        QVERIFY(PtInRegion(b->Region(), 2, 2) && !PtInRegion(b->Region(), 12, 12));
    }
};

QTEST_MAIN(tst_QShapeBtn)
#include "tst_qshapebtn.moc"
