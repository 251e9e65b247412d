// The labels: a raised caption with its highlight up-left and its shadow
// down-right (and the other way lowered), and a link that lights while the
// mouse is over it and clicks.
#include "labels/labels.h"

#include "testutil.h"

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

} // namespace

class tst_Labels : public QObject
{
    Q_OBJECT
private slots:
    void raisedAndLowered();
    void linkLightsAndClicks();
};

void tst_Labels::raisedAndLowered()
{
    Tq3DLabel label;
    QFont big = label.Font();
    big.setPixelSize(30);
    big.setStyleStrategy(QFont::NoAntialias);
    label.SetFont(big);
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
    QVERIFY(label.width() >= 4);   // sized to the caption and its depth
}

void tst_Labels::linkLightsAndClicks()
{
    ShownOnForm<TqMouseSpot> shown;
    TqMouseSpot *link = shown.control;
    QFont plain = link->Font();
    plain.setPixelSize(16);
    plain.setStyleStrategy(QFont::NoAntialias);
    link->SetFont(plain);
    link->SetCaption(QStringLiteral("Calibrate"));
    link->move(20, 20);
    QSignalSpy clicks(link, &TControl::OnClick);
    const auto has = [&](QRgb colour) {
        const QImage shot = link->RenderImage(qRgb(255, 255, 255));
        for (int y = 0; y < shot.height(); ++y)
            for (int x = 0; x < shot.width(); ++x)
                if (shot.pixel(x, y) == colour)
                    return true;
        return false;
    };
    QTest::mouseMove(link, QPoint(5, 5));
    QTRY_VERIFY(link->Hot());
    QVERIFY(has(qRgb(255, 0, 0)));
    QCOMPARE(link->cursor().shape(), Qt::PointingHandCursor);
    QTest::mouseClick(link, Qt::LeftButton, {}, QPoint(5, 5));
    QCOMPARE(clicks.count(), 1);
    QTest::mouseMove(&shown.form, QPoint(190, 190));   // the mouse away: plain again
    QTRY_VERIFY(!link->Hot());
    QVERIFY(has(qRgb(0, 0, 255)) && !has(qRgb(255, 0, 0)));
}

QTEST_MAIN(tst_Labels)
#include "tst_labels.moc"
