// The labels and the hint window.
#include "labels/labels.h"

#include "host/tapplication.h"

#include "testutil.h"

#include <QPushButton>
#include <QToolTip>

namespace {

// The first and the last pixel, reading order, that is not the ground.
QPair<QRgb, QRgb> firstAndLast(const QImage &image, QRgb ground)
{
    QRgb first = ground, last = ground;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != ground) {
                if (first == ground)
                    first = image.pixel(x, y);
                last = image.pixel(x, y);
            }
    return {first, last};
}

int count(const QImage &image, QRgb colour) { return pixelsOf(image, colour).count; }
QRect boxOf(const QImage &image, QRgb colour) { return pixelsOf(image, colour).box; }

const QRgb white = qRgb(255, 255, 255), red = qRgb(255, 0, 0), green = qRgb(0, 128, 0), blue = qRgb(0, 0, 255);

} // namespace

class tst_Labels : public QObject
{
    Q_OBJECT
private slots:
    void raisedAndLowered()
    {
        Tq3DLabel label;
        label.SetFont(crisp(label.Font(), 30));
        label.SetCaption(QStringLiteral("I"));
        label.SetDepth(2);
        label.SetHighlightColor(clRed);
        label.SetShadowColor(clBlue);
        const QRgb white = qRgb(255, 255, 255);
        auto [first, last] = firstAndLast(label.RenderImage(white), white);
        QCOMPARE(first, qRgb(255, 0, 0));   // raised: highlight up and left
        QCOMPARE(last, qRgb(0, 0, 255));    // shadow down and right
        label.SetStyle(Tq3DLabel::ts3DLowered);
        std::tie(first, last) = firstAndLast(label.RenderImage(white), white);
        QCOMPARE(first, qRgb(0, 0, 255));
        QCOMPARE(last, qRgb(255, 0, 0));
    }

    void linkLightsAndClicks()
    {
        ShownOnForm<TqMouseSpot> shown;
        TqMouseSpot *link = shown.control;
        link->SetFont(crisp(link->Font(), 16));
        link->SetCaption(QStringLiteral("Calibrate"));
        link->move(20, 20);
        QSignalSpy clicks(link, &TControl::OnClick);
        const auto has = [&](QRgb colour) { return count(link->RenderImage(qRgb(255, 255, 255)), colour) > 0; };
        QTest::mouseMove(link, QPoint(5, 5));
        QTRY_VERIFY(link->Hot());
        QVERIFY(has(qRgb(255, 0, 0)));
        QCOMPARE(link->cursor().shape(), Qt::PointingHandCursor);
        QTest::mouseClick(link, Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(clicks.count(), 1);
        QTest::mouseMove(&shown.form, QPoint(190, 190));   // the mouse away: plain again
        QTRY_VERIFY(!link->Hot());
        QVERIFY(has(qRgb(0, 0, 255)) && !has(qRgb(255, 0, 0)));
        // From the keyboard: reached with Tab, clicked with Enter or Space.
        auto *before = new QPushButton(&shown.form);
        before->move(0, 150);
        before->show();
        QWidget::setTabOrder(before, link);
        shown.form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&shown.form));
        before->setFocus();
        QTest::keyClick(before, Qt::Key_Tab);
        QTRY_VERIFY(link->hasFocus());
        QTest::keyClick(link, Qt::Key_Return);
        QTest::keyClick(link, Qt::Key_Space);
        QCOMPARE(clicks.count(), 3);
    }

    void bigCaptionOutlineAndShadow()
    {
        TqBigLabel label;
        label.SetFont(crisp(label.Font(), 30));
        label.SetCaption(QStringLiteral("I"));
        label.SetFontColor(clGreen);
        label.SetOutlineColor(clRed);
        label.SetOutlineWidth(2);
        label.SetShadowColor(clBlue);
        label.SetShadowDepth(4);
        const QImage shot = label.RenderImage(white);
        // The outline rings the face: two red pixels left of the first green
        // one, and up from it; the shadow lies down and right of everything.
        const QRect face = boxOf(shot, green), outline = boxOf(shot, red), shadow = boxOf(shot, blue);
        QVERIFY(!face.isEmpty());
        QCOMPARE(outline.left(), face.left() - 2);
        QCOMPARE(outline.top(), face.top() - 2);
        QCOMPARE(shadow.right(), outline.right() + 4);
        QCOMPARE(shadow.bottom(), outline.bottom() + 4);
        // The control fits it all.
        QVERIFY(shadow.right() < label.width() && shadow.bottom() < label.height());
        const int wide = label.width();
        label.SetShadowDepth(0);
        QCOMPARE(count(label.RenderImage(white), blue), 0);
        QCOMPARE(label.width(), wide - 4);
    }

    void turnedCaptionStaysInside()
    {
        // Whatever the angle and the turning point, the fitted control shows
        // every pixel of the caption that a large control shows.
        for (auto about : {TqAngleLabel::raCenter, TqAngleLabel::raLeft, TqAngleLabel::raRight})
            for (int angle : {0, 30, 90, 135, 200, 270, 333}) {
                TqAngleLabel fitted, large;
                for (TqAngleLabel *l : {&fitted, &large}) {
                    l->SetFont(crisp(l->Font(), 18));
                    l->SetFontColor(clRed);
                    l->SetRotateAbout(about);
                    l->SetCaption(QStringLiteral("Volts 230"));
                    l->SetAngle(angle);
                }
                large.SetAutoSize(false);
                large.SetBounds(0, 0, 300, 300);
                const int all = count(large.RenderImage(white), red);
                QVERIFY(all > 50);
                QCOMPARE(count(fitted.RenderImage(white), red), all);
                // ...and is no bigger than the turned line needs (its ink is
                // lower than the line by the descent and the leading).
                const QRect ink = boxOf(fitted.RenderImage(white), red);
                const int slack = QFontMetrics(fitted.Font()).height() / 2 + 2;
                if (angle % 90 == 0)
                    QVERIFY2(fitted.width() - ink.width() <= slack && fitted.height() - ink.height() <= slack,
                         qPrintable(QStringLiteral("%1 degrees").arg(angle)));
            }
    }

    void turnedCaptionKeepsItsPoint()
    {
        QWidget parent;
        parent.resize(300, 300);
        auto *label = new TqAngleLabel(&parent);
        label->SetFont(crisp(label->Font(), 16));
        label->SetFontColor(clRed);
        label->SetRotateAbout(TqAngleLabel::raLeft);
        label->SetCaption(QStringLiteral("Gain"));
        label->move(100, 100);
        const QPoint point = label->pos() + label->Pivot();
        // Anticlockwise: at 90 degrees the caption runs up from its left end.
        label->SetAngle(90);
        QCOMPARE(label->pos() + label->Pivot(), point);
        QVERIFY(label->height() > label->width());
        const QRect ink = boxOf(label->RenderImage(white), red);
        QVERIFY(ink.bottom() <= label->Pivot().y() + 1);
        label->SetAngle(-90);   // the same as 270: down from the left end
        QCOMPARE(label->Angle(), 270);
        QCOMPARE(label->pos() + label->Pivot(), point);
        QVERIFY(boxOf(label->RenderImage(white), red).top() >= label->Pivot().y() - 1);
    }

    void hintLayoutAndPicture()
    {
        const QRect screen(0, 0, 800, 600);
        // A box hangs below the pointer; near the bottom it goes above it; it
        // never leaves the screen sideways.
        THintLayout box = HintLayout(QSize(50, 14), 4, TqHint::hsRectangle, 3, QPoint(100, 100), screen);
        QVERIFY(box.below);
        QCOMPARE(box.geometry, QRect(100, 120, 50 + 10 + 3, 14 + 10 + 3));
        box = HintLayout(QSize(50, 14), 4, TqHint::hsRectangle, 3, QPoint(790, 590), screen);
        QVERIFY(!box.below);
        QCOMPARE(box.geometry.bottom(), 590 - 4 - 1);
        QCOMPARE(box.geometry.right(), 799);
        // A balloon's tail points at the mouse, from below or from above.
        THintLayout balloon = HintLayout(QSize(50, 14), 4, TqHint::hsBalloon, 0, QPoint(100, 100), screen);
        QCOMPARE(balloon.geometry.topLeft() + balloon.tail[1], QPoint(100, 104));
        balloon = HintLayout(QSize(50, 14), 4, TqHint::hsBalloon, 0, QPoint(100, 590), screen);
        QVERIFY(!balloon.below);
        QCOMPARE(balloon.geometry.topLeft() + balloon.tail[1], QPoint(100, 586));

        // The picture: frame, fill, shadow and tail where the layout puts them.
        TqHint hint;
        hint.SetActive(false);
        hint.SetColor(clYellow);
        hint.SetFrameColor(clBlue);
        hint.SetShadowColor(clRed);
        hint.SetShadowDepth(3);
        hint.SetShape(TqHint::hsBalloon);
        TqHintWindow *window = hint.Window();
        window->Prepare(QStringLiteral("Limit"), QPoint(200, 200), hint.Color());
        const QImage &p = window->Picture();
        const QRect body = window->Layout().body;
        const int mid = body.center().y();
        QCOMPARE(p.pixel(body.left(), mid), blue);
        QCOMPARE(p.pixel(body.left() + 1, mid), qRgb(255, 255, 0));
        QCOMPARE(p.pixel(body.right() + 2, mid), red);            // the shadow, right of the body
        QCOMPARE(p.pixel(body.center().x(), body.bottom() + 2), red);
        QCOMPARE(p.pixel(kHintTailAt, 0), blue);                  // the tail's point
        QVERIFY(window->mask().contains(QPoint(body.right() + 3, mid)));
        QVERIFY(!window->mask().contains(QPoint(p.width() - 1, 0)));   // beside the tail: see-through
        // Rectangles have square corners, rounded ones not.
        hint.SetShape(TqHint::hsRectangle);
        window->Prepare(QStringLiteral("Limit"), QPoint(200, 200), hint.Color());
        QCOMPARE(window->Picture().pixel(0, 0), blue);
        hint.SetShape(TqHint::hsRounded);
        window->Prepare(QStringLiteral("Limit"), QPoint(200, 200), hint.Color());
        QVERIFY(!window->mask().contains(QPoint(0, 0)));
    }

    void hintWindowShowsAndGoes()
    {
        TipForm form;
        QWidget *tipped = form.tipped, *plain = form.plain;
        auto hint = std::make_unique<TqHint>(&form.window);
        hint->SetPause(20);
        QCOMPARE(Application()->HintPause(), 20);
        QTest::mouseMove(plain, QPoint(50, 50));
        QTest::mouseMove(tipped, QPoint(50, 50));
        TqHintWindow *window = hint->Window();
        QTRY_VERIFY(window->isVisible());
        QCOMPARE(window->Text(), QStringLiteral("Volts"));
        QVERIFY(!QToolTip::isVisible());
        // The mouse leaves the control: the tip goes.
        QTest::mouseMove(plain, QPoint(50, 50));
        QTRY_VERIFY(!window->isVisible());
        // A press takes it away too.
        QTest::mouseMove(tipped, QPoint(40, 40));
        QTRY_VERIFY(window->isVisible());
        QTest::mousePress(tipped, Qt::LeftButton, {}, QPoint(40, 40));
        QVERIFY(!window->isVisible());
        QTest::mouseRelease(tipped, Qt::LeftButton, {}, QPoint(40, 40));
        // Inactive, or gone: Qt's own tool tip again.
        hint->SetActive(false);
        QCOMPARE(Application()->HintWindow(), nullptr);
        hint->SetActive(true);
        QCOMPARE(Application()->HintWindow(), static_cast<THintWindow *>(window));
        hint.reset();
        QCOMPARE(Application()->HintWindow(), nullptr);
        QTest::mouseMove(plain, QPoint(50, 50));
        QTest::mouseMove(tipped, QPoint(50, 50));
        QTRY_VERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), QStringLiteral("Volts"));
    }
};

QTEST_MAIN(tst_Labels)
#include "tst_labels.moc"
