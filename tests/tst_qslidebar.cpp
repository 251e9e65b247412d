// The slide bar.
#include "slidebar/slidebar.h"
#include "testutil.h"

namespace {

void watch(EventLog &log, TqSlideBar &bar)
{
    log.watch(&bar, &TqSlideBar::OnChange, "change");
    log.watch(&bar, &TqSlideBar::OnMinimum, "min");
    log.watch(&bar, &TqSlideBar::OnMaximum, "max");
}

// On a shown form, the thumb placed.
struct OnForm : ShownOnForm<TqSlideBar>
{
    TqSlideBar *bar = control;
    OnForm() { bar->RenderImage(); }
};

} // namespace

class tst_QSlideBar : public QObject
{
    Q_OBJECT
private slots:
    void thumbGrooveAndTicksWhereTheGeometrySays()
    {
        const TSlideGeometry g{100, 20, 10, 20, false};
        QCOMPARE(g.Groove(2), Rect(5, 8, 95, 11));
        QCOMPARE(g.Thumb(5, 0, 10), Rect(45, 0, 55, 20));
        QCOMPARE(g.ValueAt(49, 3, 0, 10), 5);   // Round(4.9)
        QCOMPARE(g.TickAt(1, 0, 10, g.Groove(2)), 14);
        QCOMPARE(g.TickAt(10, 0, 10, g.Groove(2)), 94);   // the last pinned to the groove's end
        const TSlideGeometry v{20, 100, 20, 10, true};
        QCOMPARE(v.Thumb(0, 0, 10), Rect(0, 90, 20, 100));   // values grow upward
        QCOMPARE(v.ValueAt(5, 0, 0, 10), 10);

        QWidget form;
        form.setPalette(QPalette(QColor(0, 0, 0x60)));
        TqSlideBar bar(&form);
        bar.SetNonFocusColor(clRed);
        bar.SetPosition(3);
        const QImage img = bar.RenderImage();
        // The form's palette is the bar's: its system colours come from it.
        const TSystemColorScope formColours(bar.palette());
        QCOMPARE(img.pixel(60, 8), rgb(clBtnShadow));      // lowered groove: shadow above...
        QCOMPARE(img.pixel(60, 11), rgb(clBtnHighlight));  // ...light below
        QCOMPARE(img.pixel(60, 9), rgb(clRed));            // filled while unfocused
        QCOMPARE(img.pixel(60, 0), qRgb(0, 0, 0x60));      // the parent's colour around it
        QCOMPARE(img.pixel(15, 14), rgb(clBtnHighlight));  // tick of value 1 below the groove...
        QCOMPARE(img.pixel(14, 5), rgb(clBtnShadow));      // ...and above it
        QCOMPARE(img.pixel(14, 1), qRgb(0, 0, 0x60));      // four long, from three away
        QCOMPARE(img.pixel(27, 0), rgb(clGray));           // the thumb at Round(3 * 9)
        QCOMPARE(img.pixel(36, 19), rgb(clBlack));
    }

    void everyThumbKeepsTheMaskConvention()
    {
        for (int style = TqSlideBar::tsHorzHigh; style <= TqSlideBar::tsSquarehollowVLine; ++style) {
            const TThumbBitmaps t = MakeThumb(style, clBtnFace);
            QCOMPARE(t.thumb.size(), ThumbSize(style));
            QCOMPARE(t.mask.size(), t.thumb.size());
            int opaque = 0;
            for (int y = 0; y < t.mask.height(); ++y)
                for (int x = 0; x < t.mask.width(); ++x) {
                    const QRgb m = t.mask.pixel(x, y) & 0xFFFFFF;
                    QVERIFY2(m == 0 || m == 0xFFFFFF, qPrintable(QString::number(style)));
                    if (m)
                        QVERIFY2((t.thumb.pixel(x, y) & 0xFFFFFF) == 0, qPrintable(QString::number(style)));
                    else
                        ++opaque;
                }
            QVERIFY(opaque > t.mask.width() * t.mask.height() / 3);
        }
        // Pointed and round thumbs are see-through at their corners; hollow
        // ones in the middle.
        QCOMPARE(MakeThumb(TqSlideBar::tsLeft, clBtnFace).mask.pixel(0, 0), qRgb(255, 255, 255));
        QCOMPARE(MakeThumb(TqSlideBar::tsSquarehollow, clBtnFace).mask.pixel(10, 10), qRgb(255, 255, 255));
        // Around a round thumb the bar's background shows through.
        QWidget form;
        form.setPalette(QPalette(QColor(0, 0, 0x60)));
        TqSlideBar bar(&form);
        bar.SetThumbStyle(TqSlideBar::tsRound);
        bar.SetColor(clYellow);
        const QImage img = bar.RenderImage();
        QCOMPARE(img.pixel(0, 2), qRgb(0, 0, 0x60));
        QCOMPARE(img.pixel(7, 10), rgb(clYellow));
    }

    void dragAndClickBesideTheThumb()
    {
        OnForm f;
        EventLog log;
        watch(log, *f.bar);
        QTest::mousePress(f.bar, Qt::LeftButton, {}, QPoint(3, 10));   // on the thumb at 0
        dragTo(f.bar, QPoint(50, 10));
        QCOMPARE(f.bar->Value(), 5);
        QTest::mouseRelease(f.bar, Qt::LeftButton, {}, QPoint(49, 10));
        QCOMPARE(f.bar->Value(), 5);
        QCOMPARE(log.names, (QStringList{"change"}));   // 0 -> 5, then nothing new
        // A click beside the thumb steps by one toward it, however far.
        log.names.clear();
        QTest::mouseClick(f.bar, Qt::LeftButton, {}, QPoint(2, 10));
        QCOMPARE(f.bar->Value(), 4);
        QTest::mouseClick(f.bar, Qt::LeftButton, {}, QPoint(99, 10));
        QCOMPARE(f.bar->Value(), 5);
        QCOMPARE(log.names, (QStringList{"change", "change"}));
    }

    void keysMoveTheValue()
    {
        OnForm f;
        EventLog log;
        watch(log, *f.bar);
        QSignalSpy keys(f.bar, &TqSlideBar::OnKeyDown);
        QTest::keyClick(f.bar, Qt::Key_Right);
        QTest::keyClick(f.bar, Qt::Key_Up);
        QTest::keyClick(f.bar, Qt::Key_Down);
        QCOMPARE(f.bar->Value(), 1);
        QTest::keyClick(f.bar, Qt::Key_PageUp);   // step 1 on 0..10
        QCOMPARE(f.bar->Value(), 2);
        QTest::keyClick(f.bar, Qt::Key_End);
        QTest::keyClick(f.bar, Qt::Key_Right);    // at Max: nothing
        QTest::keyClick(f.bar, Qt::Key_Home);
        QTest::keyClick(f.bar, Qt::Key_Left);     // at Min: nothing
        QCOMPARE(log.names, (QStringList{"change", "change", "change", "change", "change", "max", "change", "min"}));
        QCOMPARE(keys.count(), 8);   // OnKeyDown after each
        // The groove takes the focus colour while the bar has the focus.
        QCOMPARE(f.bar->RenderImage().pixel(60, 9), rgb(clActiveCaption));
        f.form.setFocus();
        QCOMPARE(f.bar->RenderImage().pixel(60, 9), rgb(clBtnFace));
    }

    void outOfRangeValuesAndRangeRules()
    {
        TqSlideBar bar;
        EventLog log;
        watch(log, bar);
        bar.SetPosition(10);
        log.names.clear();
        bar.SetPosition(11);   // not taken, yet announced
        QCOMPARE(bar.Value(), 10);
        QCOMPARE(log.names, (QStringList{"change", "max"}));
        bar.SetMin(10);        // not below Max: ignored
        QCOMPARE(bar.Min(), 0);
        bar.SetPosition(2);
        bar.SetMin(5);         // Value is not clamped again
        QCOMPARE(bar.Value(), 2);
        bar.SetThickness(11);
        QCOMPARE(bar.Thickness(), 2);
        bar.SetLabels({"a", "b", "c"});
        bar.SetMin(0);
        QCOMPARE(bar.CurrentLabel(), QStringLiteral("c"));
        bar.SetPosition(3);
        QVERIFY(bar.CurrentLabel().isEmpty());
        // In the designer the value changes silently.
        bar.SetDesigning(true);
        log.names.clear();
        bar.SetPosition(4);
        QCOMPARE(bar.Value(), 4);
        QVERIFY(log.names.isEmpty());
    }

    void shapeDecidesTheOrientation()
    {
        OnForm f;
        f.bar->SetBounds(0, 0, 20, 100);
        QCOMPARE(f.bar->Orientation(), TqSlideBar::orVertical);
        f.bar->SetPosition(10);
        f.bar->RenderImage();
        QCOMPARE(f.bar->ThumbRect(), Rect(5, 0, 15, 20));   // Max at the top
        f.form.resize(300, 300);
        f.bar->resize(50, 50);   // square is horizontal
        QTRY_COMPARE(f.bar->Orientation(), TqSlideBar::orHorizontal);
    }

    void ownerDrawnTicks()
    {
        TqSlideBar bar;
        bar.SetTickStyle(TqSlideBar::tsOwnerDraw);
        bar.SetTickWhere(TqSlideBar::ttsBoth);
        bar.SetStepPerTick(5);
        QList<QList<int>> ticks;
        connect(&bar, &TqSlideBar::OnOwnerDraw, [&](TCanvas *, int x, int y, bool left, int n) {
            ticks << QList<int>{x, y, left, n};
        });
        const QImage before = bar.RenderImage();
        // Values 0, 5, 10: bottom before top, the last pinned to the groove's end.
        QCOMPARE(ticks, (QList<QList<int>>{{5, 14, 0, 0}, {5, 5, 1, 0}, {50, 14, 0, 1}, {50, 5, 1, 1},
                                            {94, 14, 0, 2}, {94, 5, 1, 2}}));
        QCOMPARE(before.pixel(50, 16), before.pixel(50, 1));   // nothing drawn for them
    }
};

QTEST_MAIN(tst_QSlideBar)
#include "tst_qslidebar.moc"
