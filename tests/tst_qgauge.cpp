// The gauge: bar geometry and picture, blocks, glyph, the value rules with
// their end events, the percentage repaint rule and the caption.
#include "indicators/qgauge.h"
#include "testutil.h"

class tst_QGauge : public QObject
{
    Q_OBJECT
private slots:
    void defaultBarFillsToTheValue()
    {
        const TGaugeLayout l = GaugeLayout(75, 30, 1, 0, 0, 1, 50, 0, 100);
        QCOMPARE(l.bar, Rect(2, 2, 73, 28));
        QCOMPARE(l.fillEnd, 37);

        TqGauge gauge;
        gauge.SetValue(50);
        const QImage img = gauge.RenderImage();
        QCOMPARE(img.pixel(0, 0), rgb(clBtnHighlight));   // raised outer bevel
        QCOMPARE(img.pixel(74, 29), rgb(clBtnShadow));
        QCOMPARE(img.pixel(1, 15), rgb(clBtnFace));       // the margin
        QCOMPARE(img.pixel(2, 15), rgb(0xFF00FF));        // the bar from its left edge...
        QCOMPARE(img.pixel(37, 2), rgb(clBtnFace));       // ...to the fill end
        // A lowered bevel swaps the greys; a frame sits between the bevels.
        gauge.SetBevelOuter(bvLowered);
        gauge.SetFrameWidth(2);
        gauge.SetColor(clNavy);
        const QImage lowered = gauge.RenderImage();
        QCOMPARE(lowered.pixel(0, 0), rgb(clBtnShadow));
        QCOMPARE(lowered.pixel(2, 15), rgb(clNavy));
        QCOMPARE(lowered.pixel(4, 15), rgb(0xFF00FF));    // bar at 1 + 2 + 1
    }

    void blocksAndTheirGaps()
    {
        const TGaugeBlocks b = GaugeBlocks(Rect(0, 0, 100, 10), 100, 10, 1);
        QCOMPARE(b.lit.size(), size_t(10));
        QCOMPARE(b.lit[0], Rect(0, 0, 9, 10));
        QCOMPARE(b.lit[1], Rect(10, 0, 19, 10));          // pitch 10
        // Only the blocks that start before the fill end light up.
        QCOMPARE(GaugeBlocks(Rect(0, 0, 100, 10), 35, 10, 1).lit.size(), size_t(4));

        TqGauge gauge;
        gauge.SetBounds(0, 0, 104, 20);                   // bar 2..102
        gauge.SetNumberOfLed(10);
        gauge.SetCaption(QStringLiteral("%d%%"));         // not drawn in block mode
        gauge.SetValue(35);
        const QImage img = gauge.RenderImage();
        QCOMPARE(img.pixel(10, 10), rgb(0xFF00FF));
        QCOMPARE(img.pixel(11, 10), rgb(clBtnFace));      // first gap
        QCOMPARE(img.pixel(32, 10), rgb(0xFF00FF));       // fourth block
        QCOMPARE(img.pixel(42, 10), rgb(clBtnFace));      // fifth stays dark
        QVERIFY(gauge.CaptionText().isEmpty());
    }

    void glyphIsTiledUnderTheFill()
    {
        QImage glyph(4, 3, QImage::Format_RGB32);
        glyph.fill(qRgb(0, 0, 200));
        glyph.setPixel(0, 0, qRgb(200, 0, 0));
        TqGauge gauge;
        gauge.SetGlyph(QPixmap::fromImage(glyph));
        gauge.SetValue(100);
        const QImage prepared = gauge.PreparedBitmap().Image();
        QCOMPARE(prepared.size(), QSize(75, 30));
        QCOMPARE(prepared.pixel(8, 6), qRgb(200, 0, 0));   // every tile from (0, 0)
        // The bar shows the picture from its own origin.
        QCOMPARE(gauge.RenderImage().pixel(6, 5), qRgb(200, 0, 0));
        // A new size prepares the picture again.
        gauge.SetBounds(0, 0, 40, 20);
        gauge.RenderImage();
        QCOMPARE(gauge.PreparedBitmap().Image().size(), QSize(40, 20));
    }

    void valueClampsAndRaisesEndEvents()
    {
        TqGauge gauge;
        QSignalSpy min(&gauge, &TqGauge::OnMinimum), max(&gauge, &TqGauge::OnMaximum);
        gauge.SetValue(150);
        QCOMPARE(gauge.Value(), 100);
        QCOMPARE(max.count(), 1);
        gauge.SetValue(100);   // no change: nothing
        QCOMPARE(max.count(), 1);
        gauge.SetValue(50);
        gauge.SetValue(-5);
        QCOMPARE(gauge.Value(), 0);
        QCOMPARE(min.count(), 1);
        gauge.AddValue(100);
        QCOMPARE(max.count(), 2);
        QCOMPARE(min.count(), 1);
    }

    void rangeAndPercent()
    {
        TqGauge gauge;
        gauge.SetMin(100);
        QCOMPARE(gauge.Max(), 101);
        gauge.SetMax(50);
        QCOMPARE(gauge.Max(), 101);
        // Value is left below a raised Min until it is next set; the bar is empty.
        QCOMPARE(gauge.Value(), 0);
        QCOMPARE(gauge.RenderImage().pixel(2, 15), rgb(clBtnFace));
        gauge.SetMin(0);
        gauge.SetMax(200);
        gauge.SetPercent(200);
        QCOMPARE(gauge.Value(), 200);
        gauge.SetPercent(25);
        QCOMPARE(gauge.Value(), 50);
        QCOMPARE(gauge.Percent(), 25);
    }

    void repaintOnlyWhenThePercentageChanges()
    {
        TqGauge gauge;
        QVERIFY(shown(&gauge));
        gauge.SetMax(1000);
        gauge.SetValue(500);
        QSignalSpy paints(&gauge, &TqGauge::OnPaint);
        gauge.SetValue(505);
        QCOMPARE(paints.count(), 1);   // every set repaints at once...
        gauge.SetDrawOnlyWhenPCTChange(true);
        gauge.SetValue(509);
        QCOMPARE(paints.count(), 1);   // ...unless only the percentage may
        gauge.SetValue(510);
        QCOMPARE(paints.count(), 2);
        // In the designer the percentage rule always holds.
        gauge.SetDrawOnlyWhenPCTChange(false);
        gauge.SetDesigning(true);
        QCoreApplication::processEvents();
        paints.clear();
        gauge.SetValue(512);
        QCOMPARE(paints.count(), 0);
    }

    void captionFormats()
    {
        TqGauge gauge;
        gauge.SetCaption(QStringLiteral("%d%%"));
        gauge.SetValue(42);
        QCOMPARE(gauge.CaptionText(), QStringLiteral("42%"));
        gauge.SetMax(200);
        gauge.SetCaptionStyle(TqGauge::gaTotPct);
        gauge.SetCaption(QStringLiteral("%d = %d%%"));
        QCOMPARE(gauge.CaptionText(), QStringLiteral("42 = 21%"));
        gauge.SetCaptionStyle(TqGauge::gaTotalBar);
        gauge.SetCaption(QStringLiteral("[%4d] %x"));   // a second number is missing
        QCOMPARE(gauge.CaptionText(), QStringLiteral("Format '[%4d] %x' invalid or incompatible with argument"));
        gauge.SetCaptionStyle(TqGauge::gaTotPct);
        gauge.SetCaption(QStringLiteral("[%4d|%-3x|%0:.3d]"));
        QCOMPARE(gauge.CaptionText(), QStringLiteral("[  42|15 |042]"));
        // The caption's halves swap colours at the fill end: where the text
        // crosses it, both colours appear on either side.
        gauge.SetCaption(QStringLiteral("WWWWWWWW"));
        gauge.SetBounds(0, 0, 200, 30);
        gauge.SetMax(100);
        gauge.SetValue(50);
        const QImage img = gauge.RenderImage();
        const int fillEnd = GaugeLayout(200, 30, 1, 0, 0, 1, 50, 0, 100).fillEnd;
        QVERIFY(pixelsOf(img.copy(QRect(QPoint(2, 2), QPoint(fillEnd - 1, 27))), rgb(clBtnFace)).count > 0);
        QVERIFY(pixelsOf(img.copy(QRect(QPoint(fillEnd, 2), QPoint(197, 27))), rgb(0xFF00FF)).count > 0);
    }
};

QTEST_MAIN(tst_QGauge)
#include "tst_qgauge.moc"
