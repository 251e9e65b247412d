// The colour buttons, the see-through button and the gradient button.
#include "buttons/qanimate.h"
#include "testutil.h"

#include <QDialog>
#include <QLineEdit>

namespace {

// The box of the pixels of the caption's rectangle (5 in from the edges,
// and a pixel more for a pressed caption) that differ from the face.
QRect textBox(const QImage &img, QRgb face)
{
    const QImage inside = img.copy(5, 5, img.width() - 9, img.height() - 9);
    return pixelsWhere(inside, [face](QRgb p) { return p != face; }).box.translated(5, 5);
}

void watch(EventLog &log, TControl *c)
{
    log.watch(c, &TControl::OnClick, "click");
    log.watch(c, &TControl::OnMouseEnter, "enter");
    log.watch(c, &TControl::OnMouseLeave, "leave");
}

} // namespace

class tst_QColorBtn : public QObject
{
    Q_OBJECT
private slots:
    void bevelRaisedAndPressed()
    {
        ShownOnForm<TqColorBtn> f;
        TqColorBtn *b = f.control;
        QCOMPARE(b->size(), QSize(89, 33));
        const int R = 88, B = 32;
        QImage img = b->RenderImage();
        QCOMPARE(img.pixel(10, 0), rgb(clBtnShadow));       // outer left and top
        QCOMPARE(img.pixel(1, 10), rgb(clBtnHighlight));    // inner left and top
        QCOMPARE(img.pixel(R - 1, 10), rgb(clBtnShadow));   // inner right and bottom
        QCOMPARE(img.pixel(10, B), rgb(clBlack));           // outer right and bottom
        QCOMPARE(img.pixel(40, 20), rgb(b->Color()));       // the face, the form's colour
        QCOMPARE(b->Color(), ColorToRGB(b->ParentBrushColor()));
        QTest::mousePress(b, Qt::LeftButton, {}, QPoint(40, 16));
        QVERIFY(b->Pressed());
        img = b->RenderImage();
        QCOMPARE(img.pixel(1, 10), rgb(clBlack));
        QCOMPARE(img.pixel(R, 10), rgb(clBtnHighlight));
        QTest::mouseRelease(b, Qt::LeftButton, {}, QPoint(40, 16));
    }

    void captionAtItsNinePlaces()
    {
        TqColorBtn b;
        b.SetCaption(QStringLiteral("Wg"));
        const QRgb face = rgb(clWindow);
        const QRect centre = textBox(b.RenderImage(), face);
        QVERIFY(!centre.isEmpty());
        QVERIFY(qAbs(centre.center().x() - 44) <= 1 && qAbs(centre.center().y() - 16) <= 2);
        b.SetAlign(taLeftJustify);
        b.SetHorzAlign(qbha_Top);
        const QRect topLeft = textBox(b.RenderImage(), face);
        QVERIFY(topLeft.left() >= 5 && topLeft.left() <= 6 && topLeft.top() >= 5 && topLeft.top() < centre.top());
        b.SetAlign(taRightJustify);
        b.SetHorzAlign(qbha_Bottom);
        const QRect bottomRight = textBox(b.RenderImage(), face);
        QVERIFY(bottomRight.right() <= 83 && bottomRight.right() >= 81 && bottomRight.bottom() > centre.bottom());
        // On several lines the caption starts at the top whatever HorzAlign says.
        b.SetMultipleLines(true);
        QCOMPARE(textBox(b.RenderImage(), face).top(), topLeft.top());
        // The flags say the same.
        QCOMPARE(b.CaptionFlags(), unsigned(DT_BOTTOM | DT_RIGHT));
        // Pressed, it moves a pixel down and right.
        ShownOnForm<TqNWColorBtn> shown;
        TqNWColorBtn *pressed = shown.control;
        pressed->SetCaption(QStringLiteral("Wg"));
        QTest::mousePress(pressed, Qt::LeftButton, {}, QPoint(10, 10));
        QCOMPARE(textBox(pressed->RenderImage(), rgb(pressed->Color())), centre.translated(1, 1));
        QTest::mouseRelease(pressed, Qt::LeftButton, {}, QPoint(10, 10));
    }

    void clickOnlyWhenReleasedInside()
    {
        ShownOnForm<TqColorBtn> f;
        TqColorBtn *b = f.control;
        EventLog log;
        watch(log, b);
        QSignalSpy paints(b, &TqColorBtn::OnPaint);
        QTest::mousePress(b, Qt::LeftButton, {}, QPoint(10, 10));
        dragTo(b, QPoint(120, 10));   // off the button: it pops up, still tracking
        QVERIFY(!b->Pressed() && b->Tracking());
        dragTo(b, QPoint(20, 10));    // back: it sinks again
        QVERIFY(b->Pressed());
        dragTo(b, QPoint(120, 10));
        QTest::mouseRelease(b, Qt::LeftButton, {}, QPoint(120, 10));
        QVERIFY(!b->Tracking());
        QVERIFY(!log.names.contains("click"));
        log.names.clear();
        log.watch(b, &TControl::OnMouseDown, "down");
        log.watch(b, &TControl::OnMouseUp, "up");
        QTest::mouseClick(b, Qt::LeftButton, {}, QPoint(10, 10));
        QCOMPARE(log.names, (QStringList{"down", "click", "up"}));
        QVERIFY(paints.count() >= 4);   // every change of state repainted
        // Other buttons change nothing.
        QTest::mousePress(b, Qt::RightButton, {}, QPoint(10, 10));
        QVERIFY(!b->Pressed() && !b->Tracking());
        QTest::mouseRelease(b, Qt::RightButton, {}, QPoint(10, 10));
        QCOMPARE(log.names.count("click"), 1);
    }

    void flatShowsItsBevelWhileHot()
    {
        ShownOnForm<TqColorBtn> f;
        TqColorBtn *b = f.control;
        b->move(50, 50);
        b->SetFlat(true);
        f.form.setFocus();
        // Over and off once, so that the pointer's place is known.
        QTest::mouseMove(b, QPoint(10, 10));
        QTest::mouseMove(&f.form, QPoint(5, 5));
        QTRY_VERIFY(!b->MouseIn());
        QCOMPARE(b->RenderImage().pixel(88, 10), rgb(b->Color()));   // flat: no bevel
        EventLog log;
        watch(log, b);
        QSignalSpy paints(b, &TqColorBtn::OnPaint);
        QTest::mouseMove(b, QPoint(10, 10));
        QTRY_VERIFY(b->MouseIn());
        QVERIFY(paints.count() > 0);                                 // repainted at once
        QCOMPARE(b->RenderImage().pixel(88, 10), rgb(clBlack));      // hot: bevel
        QTest::mouseMove(&f.form, QPoint(5, 5));
        QTRY_VERIFY(!b->MouseIn());
        QCOMPARE(b->RenderImage().pixel(88, 10), rgb(b->Color()));
        QCOMPARE(log.names, (QStringList{"enter", "leave"}));
        // A focused flat button keeps its focus rectangle.
        b->setFocus();
        QVERIFY(b->hasFocus());
        QVERIFY(b->RenderImage().pixel(3, 3) != rgb(b->Color()));
    }

    void enterEscapeAndAcceleratorsOnAForm()
    {
        QWidget form;
        auto *edit = new QLineEdit(&form);
        auto *ok = new TqColorBtn(&form), *cancel = new TqColorBtn(&form), *apply = new TqColorBtn(&form);
        ok->move(0, 40);
        cancel->move(100, 40);
        apply->move(200, 40);
        apply->SetCaption(QStringLiteral("&Apply"));
        cancel->SetCancel(true);
        ok->SetDefault(true);
        EventLog log;
        log.watch(ok, &TControl::OnClick, "ok");
        log.watch(cancel, &TControl::OnClick, "cancel");
        log.watch(apply, &TControl::OnClick, "apply");
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        edit->setFocus();
        QVERIFY(ok->Active() && !apply->Active());
        QTest::keyClick(edit, Qt::Key_Return, Qt::ShiftModifier);   // with a modifier: nothing
        QTest::keyClick(edit, Qt::Key_Return);   // the edit leaves Enter to the form
        QTest::keyClick(edit, Qt::Key_Escape);
        QTest::keyClick(edit, Qt::Key_A, Qt::AltModifier);
        QCOMPARE(log.names, (QStringList{"ok", "cancel", "apply"}));
        // A focused colour button is the one Enter clicks.
        log.names.clear();
        apply->setFocus();
        QVERIFY(apply->Active() && !ok->Active());
        QTest::keyClick(apply, Qt::Key_Return);
        QCOMPARE(log.names, QStringList{"apply"});
        QVERIFY(ok->RenderImage() != apply->RenderImage());
        // A focused button deleted: the focus moves on, the default takes
        // Enter again (nothing reaches the button on its way out).
        delete apply;
        QTRY_VERIFY(ok->Active());
        auto *gradient = new TqGradBtn(&form);
        gradient->show();
        gradient->setFocus();
        QVERIFY(gradient->Active());
        delete gradient;
        QVERIFY(ok->Active());
    }

    void spaceBarPressesAndReleaseClicks()
    {
        ShownOnForm<TqColorBtn> f;
        QSignalSpy clicks(f.control, &TControl::OnClick);
        QTest::keyPress(f.control, Qt::Key_Space);
        QVERIFY(f.control->Pressed());
        QTest::keyPress(f.control, Qt::Key_Space, {}, -1);   // repeat
        QCOMPARE(clicks.count(), 0);
        QTest::keyRelease(f.control, Qt::Key_Space);
        QCOMPARE(clicks.count(), 1);
        QVERIFY(!f.control->Pressed());
        // Losing the focus while the space bar is down cancels without a click.
        QTest::keyPress(f.control, Qt::Key_Space);
        f.form.setFocus();
        QVERIFY(!f.control->Pressed());
        QTest::keyRelease(f.control, Qt::Key_Space);
        QCOMPARE(clicks.count(), 1);
    }

    void modalResultClosesADialog()
    {
        QDialog dialog;
        auto *b = new TqColorBtn(&dialog);
        b->SetModalResult(TqColorBtn::mrOk);
        QVERIFY(shown(&dialog));
        QTest::mouseClick(b, Qt::LeftButton, {}, QPoint(10, 10));
        QCOMPARE(dialog.result(), int(TqColorBtn::mrOk));
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.property("ModalResult").toInt(), int(TqColorBtn::mrOk));
    }

    void disabledCaptionIsEngraved()
    {
        TqNWColorBtn b;
        b.SetCaption(QStringLiteral("Wg"));
        b.SetColor(clYellow);
        b.setEnabled(false);
        const QImage img = b.RenderImage();
        const QRect text = textBox(img, rgb(clYellow));
        QVERIFY(!text.isEmpty());
        // White a pixel down and right, grey over it.
        QVERIFY(pixelsOf(img.copy(text), rgb(clWhite)).count > 0 && pixelsOf(img.copy(text), rgb(clGray)).count > 0);
    }

    void seeThroughButtonAndGlass()
    {
        QWidget form;
        form.setPalette(QPalette(QColor(0x20, 0x40, 0x60)));
        auto *b = new TqNWColorBtn(&form);
        b->SetTransparent(true);
        form.resize(100, 40);
        QImage img = form.grab().toImage();
        QCOMPARE(img.pixel(40, 20), qRgb(0x20, 0x40, 0x60));   // the form shows through
        b->SetGlass(0x80);
        img = form.grab().toImage();
        QCOMPARE(img.pixel(40, 20), qRgb(0x20 | 0x80, 0x40 | 0x80, 0x60 | 0x80));
        b->SetGlass(255);
        QCOMPARE(form.grab().toImage().pixel(40, 20), qRgb(255, 255, 255));
        QCOMPARE(TqNWColorBtn::Grey(RGB(10, 20, 31)) & 0xFFFFFF, RGB(20, 20, 20));
    }

    void gradientFaceMovesWhenPressed()
    {
        ShownOnForm<TqGradBtn> f;
        TqGradBtn *b = f.control;
        f.form.setFocus();   // no focus rectangle in the way
        b->SetColor(clBlack);
        b->SetEndColor(clWhite);
        QImage up = b->RenderImage();
        QVERIFY(qRed(up.pixel(40, 4)) < 40 && qRed(up.pixel(40, 28)) > 215);   // dark to light downward
        QTest::mousePress(b, Qt::LeftButton, {}, QPoint(10, 10));
        const QImage down = b->RenderImage();
        for (int y = 3; y < 28; ++y)
            QCOMPARE(down.pixel(40, y + 1), up.pixel(40, y));
        QTest::mouseRelease(b, Qt::LeftButton, {}, QPoint(10, 10));
        f.form.setFocus();
        b->SetGrad(gHorz);
        up = b->RenderImage();
        QVERIFY(qRed(up.pixel(4, 16)) < qRed(up.pixel(80, 16)));
        b->SetGrad(gCenter);
        up = b->RenderImage();
        QVERIFY(qRed(up.pixel(4, 5)) < 30 && qRed(up.pixel(44, 16)) > 200);   // rings toward the centre
        // One colour: the plain colour button's face.
        b->SetEndColor(clBlack);
        QCOMPARE(b->RenderImage().pixel(40, 16), rgb(clBlack));
    }
};

QTEST_MAIN(tst_QColorBtn)
#include "tst_qcolorbtn.moc"
