// The pixel geometry of the drawing primitives, without any canvas.
#include "host/raster.h"

#include <QtTest>

using namespace Raster;

namespace {
// Every pixel of a span list, for set comparisons.
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
    void lineLeavesEndPointOut_data();
    void lineLeavesEndPointOut();
    void lineToItselfIsEmpty();
    void polygonExcludesRightAndBottomEdges();
    void polygonEvenOddAndWinding();
    void polyPolygonHole();
    void ellipseIsSymmetricAndTouchesItsBox_data();
    void ellipseIsSymmetricAndTouchesItsBox();
    void smallCirclesAreRound();
    void roundRectCorners();
    void outlineAndInteriorPartitionTheShape();
    void sweepRunsCounterClockwise();
};

void tst_Raster::lineLeavesEndPointOut_data()
{
    QTest::addColumn<int>("x1");
    QTest::addColumn<int>("y1");
    QTest::addColumn<int>("count");
    QTest::newRow("horizontal") << 10 << 0 << 10;
    QTest::newRow("vertical") << 0 << 7 << 7;
    QTest::newRow("diagonal") << 5 << 5 << 5;
    QTest::newRow("shallow") << 9 << 3 << 9;
    QTest::newRow("backwards") << -6 << -2 << 6;
}

void tst_Raster::lineLeavesEndPointOut()
{
    QFETCH(int, x1);
    QFETCH(int, y1);
    QFETCH(int, count);
    const auto pts = LinePoints({0, 0}, {x1, y1});
    QCOMPARE(int(pts.size()), count);
    QCOMPARE(pts.front(), (TPoint{0, 0}));
    for (const TPoint &p : pts)
        QVERIFY(p != (TPoint{x1, y1}));
    // Consecutive points touch (8-connected).
    for (size_t i = 1; i < pts.size(); ++i) {
        QVERIFY(std::abs(pts[i].X - pts[i - 1].X) <= 1);
        QVERIFY(std::abs(pts[i].Y - pts[i - 1].Y) <= 1);
    }
}

void tst_Raster::lineToItselfIsEmpty()
{
    QVERIFY(LinePoints({3, 3}, {3, 3}).empty());
}

void tst_Raster::polygonExcludesRightAndBottomEdges()
{
    const TPoint square[] = {{1, 1}, {8, 1}, {8, 6}, {1, 6}};
    const auto set = pixels(PolygonSpans(square, 4));
    QCOMPARE(set.size(), 7 * 5);
    QVERIFY(set.contains({1, 1}));
    QVERIFY(set.contains({7, 5}));
    QVERIFY(!set.contains({8, 3}));
    QVERIFY(!set.contains({3, 6}));
}

void tst_Raster::polygonEvenOddAndWinding()
{
    // A pentagram: its centre is outside with even-odd, inside with winding.
    const TPoint star[] = {{50, 0}, {79, 90}, {2, 35}, {97, 35}, {21, 90}};
    const auto evenOdd = pixels(PolygonSpans(star, 5));
    const auto winding = pixels(PolygonSpans(star, 5, true));
    QVERIFY(!evenOdd.contains({50, 50}));
    QVERIFY(winding.contains({50, 50}));
    QVERIFY(evenOdd.contains({50, 10}));
    QVERIFY(winding.contains({50, 10}));
}

void tst_Raster::polyPolygonHole()
{
    const std::vector<std::vector<TPoint>> rings{{{0, 0}, {10, 0}, {10, 10}, {0, 10}},
                                                 {{3, 3}, {7, 3}, {7, 7}, {3, 7}}};
    const auto set = pixels(PolyPolygonSpans(rings));
    QVERIFY(set.contains({1, 1}));
    QVERIFY(!set.contains({5, 5}));
    QVERIFY(set.contains({7, 5}));
    QCOMPARE(set.size(), 100 - 16);
}

void tst_Raster::ellipseIsSymmetricAndTouchesItsBox_data()
{
    QTest::addColumn<int>("w");
    QTest::addColumn<int>("h");
    for (int w : {1, 2, 3, 5, 8, 13, 40})
        for (int h : {1, 2, 4, 7, 21})
            QTest::addRow("%dx%d", w, h) << w << h;
}

void tst_Raster::ellipseIsSymmetricAndTouchesItsBox()
{
    QFETCH(int, w);
    QFETCH(int, h);
    const auto set = pixels(EllipseSpans(10, 20, 10 + w - 1, 20 + h - 1));
    int minX = INT_MAX, maxX = INT_MIN, minY = INT_MAX, maxY = INT_MIN;
    for (const auto &p : set) {
        minX = std::min(minX, p.first);
        maxX = std::max(maxX, p.first);
        minY = std::min(minY, p.second);
        maxY = std::max(maxY, p.second);
        QVERIFY(set.contains({10 + 10 + w - 1 - p.first, p.second}));
        QVERIFY(set.contains({p.first, 20 + 20 + h - 1 - p.second}));
    }
    QCOMPARE(minX, 10);
    QCOMPARE(maxX, 10 + w - 1);
    QCOMPARE(minY, 20);
    QCOMPARE(maxY, 20 + h - 1);
}

void tst_Raster::smallCirclesAreRound()
{
    // 3 x 3 is a plus; 5 x 5 loses only its four corners.
    const auto three = pixels(EllipseSpans(0, 0, 2, 2));
    QCOMPARE(three.size(), 5);
    QVERIFY(!three.contains({0, 0}));
    const auto five = pixels(EllipseSpans(0, 0, 4, 4));
    QCOMPARE(five.size(), 21);
    QVERIFY(!five.contains({0, 0}) && !five.contains({4, 4}));
    QVERIFY(five.contains({1, 0}) && five.contains({0, 1}));
}

void tst_Raster::roundRectCorners()
{
    const auto square = pixels(RoundRectSpans(0, 0, 9, 9, 1, 1));
    QCOMPARE(square.size(), 100);
    const auto round = pixels(RoundRectSpans(0, 0, 9, 9, 5, 5));
    QVERIFY(!round.contains({0, 0}) && !round.contains({9, 0}) && !round.contains({0, 9}) && !round.contains({9, 9}));
    QVERIFY(round.contains({2, 0}) && round.contains({7, 0}) && round.contains({0, 5}));
    // Corners as big as the box give the ellipse itself.
    QCOMPARE(pixels(RoundRectSpans(0, 0, 9, 6, 10, 7)), pixels(EllipseSpans(0, 0, 9, 6)));
}

void tst_Raster::outlineAndInteriorPartitionTheShape()
{
    const Spans shape = EllipseSpans(0, 0, 14, 9);
    Spans outline, interior;
    SplitOutline(shape, outline, interior);
    const auto all = pixels(shape), out = pixels(outline), in = pixels(interior);
    QCOMPARE(out + in, all);
    QVERIFY((out & in).isEmpty());
    // Every interior pixel has its four neighbours in the shape.
    for (const auto &p : in) {
        QVERIFY(all.contains({p.first - 1, p.second}) && all.contains({p.first + 1, p.second}));
        QVERIFY(all.contains({p.first, p.second - 1}) && all.contains({p.first, p.second + 1}));
    }
    // Every outline pixel has one outside.
    for (const auto &p : out) {
        const bool edge = !all.contains({p.first - 1, p.second}) || !all.contains({p.first + 1, p.second})
                          || !all.contains({p.first, p.second - 1}) || !all.contains({p.first, p.second + 1});
        QVERIFY(edge);
    }
}

void tst_Raster::sweepRunsCounterClockwise()
{
    const double right = RayAngle(0, 0, 10, 0), up = RayAngle(0, 0, 0, -10);
    const double left = RayAngle(0, 0, -10, 0), down = RayAngle(0, 0, 0, 10);
    QVERIFY(right < up && up < left && left < down);
    QVERIFY(InSweep(up, right, left));        // right -> up -> left
    QVERIFY(!InSweep(down, right, left));
    QVERIFY(InSweep(down, left, right));      // left -> down -> right
    QVERIFY(InSweep(down, right, right));     // equal rays: the full circle
}

QTEST_APPLESS_MAIN(tst_Raster)
#include "tst_raster.moc"
