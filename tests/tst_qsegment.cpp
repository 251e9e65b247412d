// The sixteen-segment cell: its defaults, setter rules, element geometry,
// character table and picture.
#include "displays/qseg.h"
#include "testutil.h"

namespace {

class CountingSegment : public TqSegment
{
public:
    using TqSegment::TqSegment;
    int paints = 0;
protected:
    void Paint(TCanvas &canvas) override
    {
        ++paints;
        TqSegment::Paint(canvas);
    }
};

// A pixel that only element n covers at this size: the middle of its filled
// interior, or its first corner when the shape is too thin to have one.
QPoint samplePoint(int element, int size)
{
    const auto poly = SegmentElementPolygon(element, size);
    const Raster::Spans spans = Raster::PolygonSpans(poly.data(), int(poly.size()));
    if (spans.empty())
        return ToQPoint(poly.front());
    const Raster::Span &mid = spans[spans.size() / 2];
    return QPoint((mid.x0 + mid.x1) / 2, mid.y);
}

QList<int> litElements(TqSegment &seg)
{
    const QImage img = seg.RenderImage();
    QList<int> lit;
    for (int n = 1; n <= 16; ++n) {
        const QRgb p = img.pixel(samplePoint(n, seg.Size()));
        if (p == ColorToQRgb(seg.LitColor()))
            lit << n;
        else if (p != ColorToQRgb(seg.UnLitColor()))
            return {-n};   // neither colour: the picture is wrong there
    }
    return lit;
}

QList<int> elementsOf(TSegLook look)
{
    QList<int> out;
    for (int n = 0; n < 32; ++n)
        if (look & (1u << n))
            out << n;
    return out;
}

} // namespace

class tst_QSegment : public QObject
{
    Q_OBJECT
private slots:
    void newCellShowsTheDarkPattern()
    {
        TqSegment seg;
        const QImage img = seg.RenderImage(qRgb(255, 0, 255));
        QCOMPARE(img.size(), QSize(19, 29));
        QCOMPARE(img.pixel(18, 0), qRgb(0, 0, 0));
        QCOMPARE(litElements(seg), QList<int>());
        // Every element shows, in the unlit colour, and only those two colours appear.
        int dark = 0;
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width(); ++x) {
                const QRgb p = img.pixel(x, y);
                QVERIFY(p == qRgb(0, 0, 0) || p == qRgb(0, 0x20, 0));
                dark += p == qRgb(0, 0x20, 0);
            }
        QVERIFY(dark > 60);
    }

    void digitEightLightsItsElements()
    {
        for (int size : {1, 3}) {
            TqSegment seg;
            seg.SetSize(qSegSize(size));
            seg.SetChar('8');
            QCOMPARE(litElements(seg), (QList<int>{1, 2, 4, 5, 6, 7, 9, 10}));
        }
    }

    void punkturAndCharInterplay()
    {
        TqSegment seg;
        seg.SetPunktur(spPunktum);
        QCOMPARE(elementsOf(seg.Look()), QList<int>{16});
        // Char replaces the look whole: the point goes, Punktur stays.
        seg.SetChar('3');
        QCOMPARE(seg.Punktur(), spPunktum);
        QVERIFY(!(seg.Look() & SegLook({16})));
        QCOMPARE(litElements(seg), (QList<int>{1, 4, 5, 6, 9, 10}));
        // Setting the same Punktur again does nothing...
        seg.SetPunktur(spPunktum);
        QVERIFY(!(seg.Look() & SegLook({16})));
        // ...a change away and back lights it again.
        seg.SetPunktur(spNone);
        seg.SetPunktur(spPunktum);
        QCOMPARE(litElements(seg), (QList<int>{1, 4, 5, 6, 9, 10, 16}));

        seg.SetPunktur(spColon);
        QCOMPARE(elementsOf(seg.Look() & SegLook({15, 16})), (QList<int>{15, 16}));
        seg.SetPunktur(spNone);
        QCOMPARE(seg.Look() & SegLook({15, 16}), TSegLook(0));

        // A character's own dots show while Punktur says nothing.
        seg.SetChar(':');
        QCOMPARE(seg.Punktur(), spNone);
        QCOMPARE(elementsOf(seg.Look()), (QList<int>{15, 16}));
    }

    void widthAndHeightPickTheSize_data()
    {
        QTest::addColumn<bool>("width");
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("size");
        QTest::newRow("width 100") << true << 100 << 5;
        QTest::newRow("width -50") << true << -50 << 1;
        QTest::newRow("width 38") << true << 38 << 2;
        QTest::newRow("height 435") << false << 435 << 15;
        QTest::newRow("beyond 15") << true << 19 * 20 << 20;
    }

    void widthAndHeightPickTheSize()
    {
        QFETCH(bool, width);
        QFETCH(int, value);
        QFETCH(int, size);
        TqSegment seg;
        if (width)
            seg.SetWidth(value);
        else
            seg.SetHeight(value);
        QCOMPARE(int(seg.Size()), size);
        QCOMPARE(seg.width(), 19 * size);
        QCOMPARE(seg.height(), 29 * size);
    }

    void sizeEdgeCases()
    {
        TqSegment seg;
        seg.resize(50, 40);   // from outside, as a layout would
        seg.SetWidth(50);
        QCOMPARE(seg.Size(), qSegSize(1));
        QCOMPARE(seg.width(), 50);
        // The next setter that runs restores the computed extent.
        seg.SetLitColor(clRed);
        QCOMPARE(seg.size(), QSize(19, 29));
        // Size wraps in eight bits.
        seg.SetWidth(19 * 256);
        QCOMPARE(seg.Size(), qSegSize(0));
        QCOMPARE(seg.size(), QSize(0, 0));
        seg.SetWidth(19 * 257);
        QCOMPARE(seg.Size(), qSegSize(1));
        seg.SetSize(0);
        QCOMPARE(seg.size(), QSize(0, 0));
        QVERIFY(!seg.RenderImage().isNull());   // painting a collapsed cell is harmless
    }

    void changeACharLook()
    {
        const TSegLook original = CharLook('A');
        TqSegment seg;
        seg.SetChar('A');
        const QImage before = seg.RenderImage();
        ChangeACharLook('A', SegLook({1, 10}));
        QCOMPARE(CharLook('A'), SegLook({1, 10}));
        QCOMPARE(seg.RenderImage(), before);   // the cell keeps its look
        seg.SetChar('A');                      // unchanged: ignored
        QCOMPARE(seg.RenderImage(), before);
        seg.SetChar('B');
        seg.SetChar('A');
        QCOMPARE(litElements(seg), (QList<int>{1, 10}));
        // Codes below 32 have no entry to change and light nothing.
        ChangeACharLook(5, SegLook({1}));
        QCOMPARE(CharLook(5), TSegLook(0));
        seg.SetChar(qChar(5));
        QCOMPARE(seg.Look(), TSegLook(0));
        ChangeACharLook('A', original);
    }

    void transparentShowsTheParent()
    {
        QWidget parent;
        parent.resize(40, 40);
        parent.setPalette(QPalette(Qt::red));
        auto *seg = new TqSegment(&parent);
        seg->SetChar('1');
        QCOMPARE(QColor(parent.grab().toImage().pixel(0, 0)), QColor(Qt::black));
        seg->SetTransparent(true);
        QVERIFY(!seg->testAttribute(Qt::WA_OpaquePaintEvent));
        const QImage shot = parent.grab().toImage();
        QCOMPARE(QColor(shot.pixel(0, 0)), QColor(Qt::red));
        QCOMPARE(shot.pixel(samplePoint(4, 1)), qRgb(0, 255, 0));
        // The cell's own picture leaves the background untouched.
        QCOMPARE(seg->RenderImage(qRgb(1, 2, 3)).pixel(0, 0), qRgb(1, 2, 3));
    }

    void onPaintComesLastAndCanDraw()
    {
        TqSegment seg;
        seg.SetChar('8');
        int calls = 0;
        connect(&seg, &TqSegment::OnPaint, this, [&](QObject *sender) {
            ++calls;
            QCOMPARE(sender, &seg);
            QVERIFY(seg.Canvas());
            seg.Canvas()->SetPixels(9, 3, clRed);   // over the lit top bar
        });
        const QImage img = seg.RenderImage();
        QCOMPARE(calls, 1);
        QCOMPARE(img.pixel(9, 3), qRgb(255, 0, 0));
        QVERIFY(!seg.Canvas());
    }

    void unchangedValuesDoNotRepaint()
    {
        CountingSegment seg;
        QVERIFY(shown(&seg));
        QTRY_VERIFY(seg.paints > 0);
        QCoreApplication::processEvents();
        seg.paints = 0;
        seg.SetChar(' ');
        seg.SetLitColor(clLime);
        seg.SetUnLitColor(0x002000);
        seg.SetPunktur(spNone);
        seg.SetSize(1);
        seg.SetTransparent(false);
        seg.SetWidth(19);
        QCoreApplication::processEvents();
        QCOMPARE(seg.paints, 0);
        // Several changes before the event loop runs make one repaint.
        seg.SetChar('5');
        seg.SetLitColor(clRed);
        QTRY_COMPARE(seg.paints, 1);
        QCoreApplication::processEvents();
        QCOMPARE(seg.paints, 1);
    }

    // Cells that look alike share one picture; a colour of their own, or a
    // system colour after a palette change, makes another.
    void sharedPicturesFollowColoursAndPalette()
    {
        TqSegment a, b;
        a.SetChar('8');
        b.SetChar('8');
        const QImage first = a.RenderImage();
        QCOMPARE(b.RenderImage(), first);
        const QPoint lit = samplePoint(1, 1);   // the top bar
        QCOMPARE(first.pixel(lit), qRgb(0, 255, 0));
        b.SetLitColor(clRed);
        QCOMPARE(b.RenderImage().pixel(lit), qRgb(255, 0, 0));
        QCOMPARE(a.RenderImage().pixel(lit), qRgb(0, 255, 0));
        a.SetColor(clBtnFace);
        const QPalette before = QGuiApplication::palette();
        QCOMPARE(a.RenderImage().pixel(0, 0), before.color(QPalette::Button).rgb());
        // The same look after a palette change: a new picture in the new colour.
        QPalette other = before;
        other.setColor(QPalette::Button, QColor(10, 20, 30));
        QApplication::setPalette(other);
        TqSegment c;
        c.SetChar('8');
        c.SetColor(clBtnFace);
        QCOMPARE(c.RenderImage().pixel(0, 0), qRgb(10, 20, 30));
        QApplication::setPalette(before);
    }
};

QTEST_MAIN(tst_QSegment)
#include "tst_qsegment.moc"
