// The peak-level meter.
#include "displays/qseg.h"

#include "testutil.h"

class tst_QPeakOMeter : public QObject
{
    Q_OBJECT
private slots:
    void blocksAndZones()
    {
        const auto blocks = PeakBlocks(120, 20, 1);   // 101 pixels shared out, 1 between
        QCOMPARE(blocks.size(), size_t(20));
        QCOMPARE(QList<int>({blocks.front().index, blocks.front().from, blocks.front().length}), QList<int>({0, 0, 5}));
        QCOMPARE(blocks.back().from + blocks.back().length, 120);
        // More blocks than pixels: a pixel each for the blocks that have one,
        // the last block at the end; at the largest count nothing overflows.
        const auto dense = PeakBlocks(10, 25, 0);
        QCOMPARE(dense.size(), size_t(10));
        QCOMPARE(dense.back().index, 24);
        QCOMPARE(dense.back().from, 9);
        QCOMPARE(PeakBlocks(120, INT_MAX, 0).size(), size_t(120));
        QVERIFY(PeakBlocks(120, INT_MAX, 1).empty());   // the gaps leave no room
        TqcPeakOmeter meter;
        meter.SetBlocks(10);
        QCOMPARE(meter.BlockColor(6), TColor(clLime));     // top at 70: not above YellowLevel
        QCOMPARE(meter.BlockColor(8), TColor(clYellow));   // top at 90
        QCOMPARE(meter.BlockColor(9), TColor(clRed));
    }

    void peakHoldsThenFalls()
    {
        QCOMPARE(PeakLevel(80, 10, 500, 1000, 50), 80.0);    // held
        QCOMPARE(PeakLevel(80, 10, 1400, 1000, 50), 60.0);   // 0.4 s at 50 a second
        QCOMPARE(PeakLevel(80, 10, 5000, 1000, 50), 10.0);   // never below the level
        TqcPeakOmeter meter;
        meter.SetPeakHold(50);
        meter.SetPeakFall(100);
        meter.Push(90);
        meter.Push(20);
        QCOMPARE(meter.LitBlocks(), 4);
        QVERIFY(meter.Peak() > 80);            // held at the top a while
        QCOMPARE(meter.PeakBlock(), 17);
        QTRY_COMPARE(meter.Peak(), 20.0);      // then down to the level
        QCOMPARE(meter.PeakBlock(), -1);
    }

    void pictureAndRepaints()
    {
        TqcPeakOmeter meter;
        meter.SetBounds(0, 0, 10, 100);
        meter.SetBlocks(10);
        meter.SetGap(0);
        meter.SetPeakHold(60000);
        meter.Push(95);
        meter.Push(30);
        const QImage shot = meter.RenderImage();
        QCOMPARE(shot.pixel(5, 95), qRgb(0, 255, 0));                   // lit, bottom block
        QCOMPARE(shot.pixel(5, 55), qRgb(0, 255 * 25 / 100, 0));        // unlit: darkened green
        QCOMPARE(shot.pixel(5, 5), qRgb(255, 0, 0));                    // the held peak, red zone
        meter.SetKind(TqcPeakOmeter::pkHorizontal);
        meter.SetBounds(0, 0, 100, 10);
        QCOMPARE(meter.RenderImage().pixel(5, 5), qRgb(0, 255, 0));     // from the left
        // Values that light the same blocks ask for no repaint.
        ShownOnForm<TqcPeakOmeter> shown;
        TqcPeakOmeter *live = shown.control;
        live->setGeometry(0, 0, 20, 100);
        live->SetPeakHold(60000);
        live->Push(50);
        live->repaint();
        EventCounter paints(live, QEvent::Paint);
        live->Push(51);   // still 10 of 20 blocks
        waitForRepaintOf(&shown.form, QRect(190, 190, 5, 5));
        QCOMPARE(paints.count, 0);
        live->Push(80);
        QTRY_VERIFY(paints.count > 0);
    }
};

QTEST_MAIN(tst_QPeakOMeter)
#include "tst_qpeakometer.moc"
