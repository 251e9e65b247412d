// The pixel geometry of the drawing primitives, without a canvas. The whole
// pictures are checked against the platform's in tst_gdireference; these
// cases pin the rules that the shapes are built from.
#include "host/raster.h"
#include "host/tcanvas.h"

#include <QtTest>

using namespace Raster;

namespace {
QSet<QPair<int, int>> pixels(const Spans &spans)
{
    QSet<QPair<int, int>> out;
    for (const Span &s : spans)
        for (int x = s.x0; x <= s.x1; ++x)
            out.insert({x, s.y});
    return out;
}
} // namespace

class tst_Raster : public QObject
{
    Q_OBJECT
private slots:
    void lineCoversTheSamePixelsBothWays_data();
    void lineCoversTheSamePixelsBothWays();
    void polygonEvenOddAndWinding();
    void ellipseRows();
    void regionCoversWhatTheEllipseDraws();
    void arcRunsCounterClockwise();
};

void tst_Raster::lineCoversTheSamePixelsBothWays_data()
{
    QTest::addColumn<int>("x1");
    QTest::addColumn<int>("y1");
    for (int x = -7; x <= 7; ++x)
        for (int y = -7; y <= 7; ++y)
            if (x || y)
                QTest::addRow("%d,%d", x, y) << x << y;
}

void tst_Raster::lineCoversTheSamePixelsBothWays()
{
    QFETCH(int, x1);
    QFETCH(int, y1);
    const Points there = LinePoints({0, 0}, {x1, y1});
    Points back = LinePoints({x1, y1}, {0, 0});
    QCOMPARE(int(there.size()), std::max(std::abs(x1), std::abs(y1)));
    // Drawn back, the line swaps which end it leaves out and nothing else.
    back.erase(back.begin());
    back.push_back({0, 0});
    std::sort(back.begin(), back.end(), [](TPoint a, TPoint b) { return a.X != b.X ? a.X < b.X : a.Y < b.Y; });
    Points sorted = there;
    std::sort(sorted.begin(), sorted.end(), [](TPoint a, TPoint b) { return a.X != b.X ? a.X < b.X : a.Y < b.Y; });
    QVERIFY(sorted == back);
    if (x1 == 2 && y1 == 1)   // the tie goes along the major axis first
        QVERIFY(there == (Points{{0, 0}, {1, 0}}));
}

void tst_Raster::polygonEvenOddAndWinding()
{
    // A pentagram: its centre is outside with even-odd, inside with winding;
    // right and bottom edges stay outside.
    const TPoint star[] = {{50, 0}, {79, 90}, {2, 35}, {97, 35}, {21, 90}};
    QVERIFY(!pixels(PolygonSpans(star, 5)).contains({50, 50}));
    QVERIFY(pixels(PolygonSpans(star, 5, true)).contains({50, 50}));
    const TPoint square[] = {{1, 1}, {8, 1}, {8, 6}, {1, 6}};
    QCOMPARE(pixels(PolygonSpans(square, 4)), pixels(RectSpans(1, 1, 7, 5)));
}

void tst_Raster::ellipseRows()
{
    // Ellipse(2, 2, 8, 8): rows of 2, 4, 6, 6, 4, 2 pixels.
    QImage image(12, 12, QImage::Format_RGB32);
    image.fill(Qt::white);
    TCanvas c(&image);
    c.Brush.SetColor(clBlack);
    c.Ellipse(2, 2, 8, 8);
    QList<int> widths;
    for (int y = 0; y < 12; ++y) {
        int n = 0;
        for (int x = 0; x < 12; ++x)
            n += image.pixel(x, y) != qRgb(255, 255, 255);
        if (n)
            widths << n;
    }
    QCOMPARE(widths, (QList<int>{2, 4, 6, 6, 4, 2}));
    // Every step of the traced quadrant is a king's move.
    const Points q = EllipseQuadrant(23, 11);
    QCOMPARE(q.front(), (TPoint{22, 5}));
    QCOMPARE(q.back().Y, 10);
    for (size_t i = 1; i < q.size(); ++i)
        QVERIFY(std::abs(q[i].X - q[i - 1].X) <= 1 && std::abs(q[i].Y - q[i - 1].Y) <= 1);
}

void tst_Raster::regionCoversWhatTheEllipseDraws()
{
    for (int w = 1; w <= 24; ++w) {
        for (int h = w == 1 ? 4 : 1; h <= 24; h += 3) {   // 1 x 1 draws nothing
            QImage image(30, 30, QImage::Format_RGB32);
            image.fill(Qt::white);
            TCanvas c(&image);
            c.Pen.SetColor(clBlack);
            c.Brush.SetColor(clBlack);
            c.Ellipse(2, 3, 2 + w, 3 + h);
            QSet<QPair<int, int>> drawn;
            for (int y = 0; y < 30; ++y)
                for (int x = 0; x < 30; ++x)
                    if (image.pixel(x, y) != qRgb(255, 255, 255))
                        drawn.insert({x, y});
            QCOMPARE(pixels(RoundRectRegionSpans(2, 3, 3 + w, 4 + h, w + 1, h + 1)), drawn);
        }
    }
}

void tst_Raster::arcRunsCounterClockwise()
{
    // From the ray to the right to the ray upwards: the top right quarter.
    const Points arc = ArcPoints(Rect(0, 0, 21, 21), {10, 0}, {0, -10});
    QCOMPARE(arc.front(), (TPoint{20, 10}));
    QVERIFY(std::abs(arc.back().X - 10) <= 1 && arc.back().Y == 0);
    for (const TPoint &p : arc)
        QVERIFY(p.X >= 10 && p.Y <= 10);
    // Equal rays: the whole ellipse.
    QCOMPARE(int(ArcPoints(Rect(0, 0, 21, 21), {10, 0}, {10, 0}).size()), 4 * int(EllipseQuadrant(21, 21).size()));
}

QTEST_GUILESS_MAIN(tst_Raster)
#include "tst_raster.moc"
