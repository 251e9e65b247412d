// The trace display: samples to pixels, the grid anchored at the right
// edge, pushing both channels together, the veto, and the size limits.
#include "instruments/qpanel.h"
#include "testutil.h"

class tst_QScope : public QObject
{
    Q_OBJECT
private slots:
    void newestSampleAtTheRightEdge()
    {
        QCOMPARE(ScopeLevel(50, 0, 0, 100, 100), 50);
        QCOMPARE(ScopeLevel(50, 10, 0, 100, 100), 60);   // the adjustment is added
        QCOMPARE(ScopeLevel(1, 0, 0, 3, 100), 33);        // divides in floating point
        QCOMPARE(ScopeGridLevel(1, 0, 3, 100), 33);

        TqScope scope;
        scope.SetStepX(0);   // no grid in the way
        scope.SetStepY(0);
        scope.SetIn1(50);
        scope.Push();
        const QImage img = scope.RenderImage();
        QCOMPARE(img.pixel(121, 49), rgb(clLime));   // 100 - 50 - 1
        QCOMPARE(img.pixel(121, 99), rgb(clBlack));
        QCOMPARE(img.pixel(0, 99), rgb(clLime));     // older samples: zero, on the bottom row
        // The second beam only when asked, over the first.
        scope.SetUse2(true);
        scope.SetIn2(50);
        scope.Push();
        QCOMPARE(scope.RenderImage().pixel(121, 49), rgb(clYellow));
    }

    void gridCountsFromTheRight()
    {
        TqScope scope;
        scope.SetUse1(false);
        const QImage img = scope.RenderImage();
        for (int x = 112; x >= 2; x -= 10) {
            QCOMPARE(img.pixel(x, 5), rgb(clGreen));
            QCOMPARE(img.pixel(x + 1, 5), rgb(clBlack));
        }
        QCOMPARE(img.pixel(0, 5), rgb(clBlack));
        // Rows at multiples of GridYstep between Min and Max, none on the edges.
        QCOMPARE(img.pixel(5, 100 - 90), rgb(clGreen));
        QCOMPARE(img.pixel(5, 95), rgb(clBlack));
        QCOMPARE(img.pixel(121, 90), rgb(clBlack));   // rows stop one short of the right edge
    }

    void pushMovesBothChannels()
    {
        TqScope scope;
        scope.SetPush(true);
        scope.SetIn2(7);   // pushes (0, 7)
        scope.SetIn1(3);   // pushes (3, 7): channel 2 repeats its value
        QCOMPARE(scope.Sample(1, 0), 3);
        QCOMPARE(scope.Sample(2, 0), 7);
        // The oldest sample falls off after 1000 pushes.
        std::vector<int> history(1000);
        for (int i = 0; i < 1000; ++i)
            history[size_t(i)] = i + 1;
        scope.SetAllChannel1(history.data(), 999);
        scope.SetPush(false);
        scope.Push();
        QCOMPARE(scope.Sample(1, 1000), 1000);
        QCOMPARE(scope.Sample(1, 1), 1);
        QCOMPARE(scope.Sample(1, 0), 3);
    }

    void beforePushCanVeto()
    {
        TqScope scope;
        QVERIFY(shown(&scope));
        QSignalSpy paints(&scope, &TqScope::OnPaint);
        connect(&scope, &TqScope::OnBeforePush, [](QObject *, bool &doPush) { doPush = false; });
        scope.SetIn1(60);
        scope.SetIn2(60);
        scope.Push();
        QCOMPARE(scope.Sample(1, 0), 0);
        QCOMPARE(scope.Sample(2, 0), 0);
        QCOMPARE(paints.count(), 0);
    }

    void limitsOfSizeAndRange()
    {
        TqScope scope;
        scope.SetWidth(2000);
        QCOMPARE(scope.width(), 1000);
        scope.SetHeight(10);
        QCOMPARE(scope.height(), 35);
        scope.show();
        scope.resize(5, 500);   // a layout or the designer goes the same way
        QCOMPARE(scope.size(), QSize(20, 500));
        scope.SetStepX(50);
        QCOMPARE(scope.GridXstep(), 20);
        scope.SetMin(150);
        QCOMPARE(scope.Min(), 99);
        scope.SetMax(-4);
        QCOMPARE(scope.Max(), 100);
    }

    void samplesFarOutsideAreClipped()
    {
        TqScope scope;
        scope.SetStepX(0);
        scope.SetStepY(0);
        scope.SetIn1(2000000000);
        scope.Push();
        scope.SetIn1(-2000000000);
        scope.Push();
        scope.SetIn1(50);
        scope.Push();
        const QImage img = scope.RenderImage();
        // Down from the newest sample, through the whole height and back: each
        // steep segment turns a column halfway along its (far-off) length.
        QCOMPARE(img.pixel(121, 99), rgb(clLime));
        QCOMPARE(img.pixel(118, 10), rgb(clLime));
        QCOMPARE(img.pixel(110, 99), rgb(clLime));
    }
};

QTEST_MAIN(tst_QScope)
#include "tst_qscope.moc"
