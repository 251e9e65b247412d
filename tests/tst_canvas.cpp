// The canvas's pixel rules, checked pixel by pixel on small images.
#include "host/tbitmap.h"
#include "host/tregion.h"
#include "services/std2.h"

#include <QGuiApplication>
#include <QtTest>

namespace {

struct Surface
{
    QImage image;
    TCanvas canvas;
    explicit Surface(int w = 24, int h = 24, TColor fill = clWhite)
        : image(w, h, QImage::Format_RGB32), canvas(&image)
    {
        image.fill(ColorToQRgb(fill));
        canvas.Pen.SetColor(clRed);
        canvas.Brush.SetColor(clBlue);
    }
    TColor at(int x, int y) const { return canvas.Pixels(x, y); }
    int count(TColor c) const
    {
        int n = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                n += at(x, y) == c;
        return n;
    }
    // The bounding box of the pixels that are not `background`.
    QRect ink(TColor background = clWhite) const
    {
        QRect r;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (at(x, y) != background)
                    r |= QRect(x, y, 1, 1);
        return r;
    }
};

} // namespace

class tst_Canvas : public QObject
{
    Q_OBJECT
private slots:
    void colourHelpers();
    void mulDiv_data();
    void mulDiv();
    void rectangleStopsShortOfRightAndBottom();
    void clearPenMakesShapesOnePixelSmaller();
    void clearBrushLeavesInsideAlone();
    void widePenRing();
    void ellipseStaysInItsBox();
    void lineToLeavesLastPointOut();
    void polylineAndPolygon();
    void dashedPenLeavesGaps();
    void arcRunsCounterClockwise();
    void pieFillsItsSector();
    void fillAndFrameRect();
    void focusRectIsItsOwnInverse();
    void patBlt();
    void penModes();
    void copyModes_data();
    void copyModes();
    void copyRectStretchesAndMirrors();
    void brushBitmapTilesFromOrigin();
    void hatchLeavesGaps();
    void regions();
    void frameRegion();
    void clipRegionLimitsDrawing();
    void pixels();
    void frame3D();
    void textStaysInItsBox();
    void drawTextMeasuresAndAligns();
};

void tst_Canvas::colourHelpers()
{
    QCOMPARE(RGB(1, 2, 3), TColor(0x030201));
    QCOMPARE(GetRValue(0x030201), 1);
    QCOMPARE(GetGValue(0x030201), 2);
    QCOMPARE(GetBValue(0x030201), 3);
    QCOMPARE(ColorToQRgb(clLime), qRgb(0, 255, 0));
    QCOMPARE(ColorToQRgb(0x002000), qRgb(0, 0x20, 0));
    QVERIFY(IsSystemColor(clBtnFace));
    QCOMPARE(ColorToRGB(clBtnFace), QColorToColor(QGuiApplication::palette().color(QPalette::Button)));
    QCOMPARE(ColorToRGB(clWindow), QColorToColor(QGuiApplication::palette().color(QPalette::Base)));
    QCOMPARE(ColorToRGB(clRed), clRed);
}

void tst_Canvas::mulDiv_data()
{
    QTest::addColumn<int>("a");
    QTest::addColumn<int>("b");
    QTest::addColumn<int>("c");
    QTest::addColumn<int>("result");
    QTest::newRow("exact") << 6 << 4 << 3 << 8;
    QTest::newRow("half up") << 5 << 3 << 2 << 8;
    QTest::newRow("half away from zero") << -5 << 3 << 2 << -8;
    QTest::newRow("below half") << 10 << 1 << 3 << 3;
    QTest::newRow("negative divisor") << 10 << 1 << -4 << -3;
    QTest::newRow("zero divisor") << 1 << 1 << 0 << -1;
    QTest::newRow("64-bit middle") << 2000000000 << 3 << 4 << 1500000000;
    QTest::newRow("overflow") << INT_MAX << 2 << 1 << -1;
    QTest::newRow("points to pixels") << 8 << 96 << 72 << 11;
}

void tst_Canvas::mulDiv()
{
    QFETCH(int, a);
    QFETCH(int, b);
    QFETCH(int, c);
    QFETCH(int, result);
    QCOMPARE(MulDiv(a, b, c), result);
}

void tst_Canvas::rectangleStopsShortOfRightAndBottom()
{
    Surface s;
    s.canvas.Rectangle(2, 2, 8, 6);
    QCOMPARE(s.ink(), QRect(QPoint(2, 2), QPoint(7, 5)));
    QCOMPARE(s.at(2, 2), clRed);
    QCOMPARE(s.at(7, 5), clRed);
    QCOMPARE(s.at(7, 3), clRed);
    QCOMPARE(s.at(3, 3), clBlue);
    QCOMPARE(s.at(6, 4), clBlue);
    QCOMPARE(s.count(clBlue), 4 * 2);
    // Corners given the other way round draw the same.
    Surface t;
    t.canvas.Rectangle(8, 6, 2, 2);
    QCOMPARE(t.image, s.image);
}

void tst_Canvas::clearPenMakesShapesOnePixelSmaller()
{
    Surface s;
    s.canvas.Pen.SetStyle(psClear);
    s.canvas.Rectangle(2, 2, 8, 6);
    QCOMPARE(s.ink(), QRect(QPoint(2, 2), QPoint(6, 4)));
    QCOMPARE(s.count(clRed), 0);
    Surface e;
    e.canvas.Pen.SetStyle(psClear);
    e.canvas.Ellipse(0, 0, 11, 11);
    QCOMPARE(e.ink(), QRect(0, 0, 10, 10));
}

void tst_Canvas::clearBrushLeavesInsideAlone()
{
    Surface s;
    s.canvas.Brush.SetStyle(bsClear);
    s.canvas.Rectangle(2, 2, 8, 6);
    QCOMPARE(s.at(4, 3), clWhite);
    QCOMPARE(s.at(2, 3), clRed);
    // Giving a clear brush a colour makes it solid again.
    s.canvas.Brush.SetColor(clYellow);
    QCOMPARE(s.canvas.Brush.Style(), bsSolid);
    s.canvas.Rectangle(2, 2, 8, 6);
    QCOMPARE(s.at(4, 3), clYellow);
}

void tst_Canvas::widePenRing()
{
    Surface s;
    s.canvas.Pen.SetWidth(3);
    s.canvas.Rectangle(5, 5, 15, 15);
    // Centred on the outline: one pixel outside, one on, one inside.
    QCOMPARE(s.ink(), QRect(QPoint(4, 4), QPoint(15, 15)));
    QCOMPARE(s.at(6, 10), clRed);
    QCOMPARE(s.at(7, 10), clBlue);
}

void tst_Canvas::ellipseStaysInItsBox()
{
    Surface s;
    s.canvas.Ellipse(2, 3, 14, 11);
    QCOMPARE(s.ink(), QRect(QPoint(2, 3), QPoint(13, 10)));
    QCOMPARE(s.at(2, 3), clWhite);       // corners stay outside
    QCOMPARE(s.at(8, 7), clBlue);        // centre is filled
    QCOMPARE(s.at(2, 7), clRed);         // the leftmost column is outline
    QCOMPARE(s.at(13, 6), clRed);
}

void tst_Canvas::lineToLeavesLastPointOut()
{
    Surface s;
    s.canvas.MoveTo(1, 1);
    s.canvas.LineTo(6, 1);
    QCOMPARE(s.ink(), QRect(QPoint(1, 1), QPoint(5, 1)));
    QCOMPARE(s.canvas.PenPos(), (TPoint{6, 1}));
    s.canvas.LineTo(6, 4);   // continues from the pen position: (6,1) now drawn
    QCOMPARE(s.at(6, 1), clRed);
    QCOMPARE(s.at(6, 3), clRed);
    QCOMPARE(s.at(6, 4), clWhite);
}

void tst_Canvas::polylineAndPolygon()
{
    Surface s;
    const TPoint pts[] = {{2, 2}, {10, 2}, {10, 8}};
    s.canvas.Polyline(pts, 3);
    QCOMPARE(s.at(10, 2), clRed);     // inner corner drawn
    QCOMPARE(s.at(10, 7), clRed);
    QCOMPARE(s.at(10, 8), clWhite);   // last point left out
    QCOMPARE(s.count(clBlue), 0);     // a polyline fills nothing

    Surface p;
    const TPoint square[] = {{2, 2}, {10, 2}, {10, 8}, {2, 8}};
    p.canvas.Polygon(square, 4);
    // The closing outline covers every vertex and edge, right and bottom too.
    QCOMPARE(p.ink(), QRect(QPoint(2, 2), QPoint(10, 8)));
    QCOMPARE(p.at(10, 8), clRed);
    QCOMPARE(p.at(5, 5), clBlue);
    p.canvas.Pen.SetStyle(psClear);
    p.canvas.Brush.SetColor(clLime);
    p.canvas.Polygon(square, 4);
    QCOMPARE(p.at(9, 7), clLime);
    QCOMPARE(p.at(10, 8), clRed);     // no outline this time
}

void tst_Canvas::dashedPenLeavesGaps()
{
    Surface s(40, 4);
    s.canvas.Pen.SetStyle(psDash);
    s.canvas.MoveTo(0, 1);
    s.canvas.LineTo(40, 1);
    QCOMPARE(s.at(0, 1), clRed);
    QCOMPARE(s.at(17, 1), clRed);
    QCOMPARE(s.at(18, 1), clWhite);
    QCOMPARE(s.at(23, 1), clWhite);
    QCOMPARE(s.at(24, 1), clRed);
}

void tst_Canvas::arcRunsCounterClockwise()
{
    // From the ray to the right round to the ray upwards: the upper-right quarter.
    Surface s(21, 21);
    s.canvas.Arc(0, 0, 21, 21, 20, 10, 10, 0);
    QCOMPARE(s.at(20, 10), clRed);
    QCOMPARE(s.at(10, 0), clRed);
    QCOMPARE(s.at(0, 10), clWhite);
    QCOMPARE(s.at(10, 20), clWhite);
    QVERIFY(s.ink().left() >= 10 && s.ink().bottom() <= 10);
    QCOMPARE(s.count(clBlue), 0);
    // The same points the other way round give the other three quarters.
    Surface t(21, 21);
    t.canvas.Arc(0, 0, 21, 21, 10, 0, 20, 10);
    QCOMPARE(t.at(0, 10), clRed);
    QCOMPARE(t.at(10, 20), clRed);
    QCOMPARE(t.at(17, 3), clWhite);
}

void tst_Canvas::pieFillsItsSector()
{
    Surface s(21, 21);
    s.canvas.Pie(0, 0, 21, 21, 20, 10, 10, 0);
    QCOMPARE(s.at(15, 5), clBlue);    // inside the upper-right quarter
    QCOMPARE(s.at(5, 15), clWhite);   // lower-left stays empty
    QCOMPARE(s.at(5, 5), clWhite);
    QCOMPARE(s.at(10, 10), clRed);    // the two radii meet at the centre
    QCOMPARE(s.at(15, 10), clRed);    // radius to the right
    QCOMPARE(s.at(10, 5), clRed);     // radius upwards
}

void tst_Canvas::fillAndFrameRect()
{
    Surface s;
    s.canvas.FillRect(Rect(1, 1, 4, 3));
    QCOMPARE(s.ink(), QRect(QPoint(1, 1), QPoint(3, 2)));
    QCOMPARE(s.count(clBlue), 6);
    Surface inverted;
    inverted.canvas.FillRect(Rect(8, 8, 2, 2));
    inverted.canvas.FrameRect(Rect(8, 8, 2, 2));
    QCOMPARE(inverted.count(clWhite), 24 * 24);
    Surface frame;
    frame.canvas.FrameRect(Rect(2, 2, 7, 6));
    QCOMPARE(frame.ink(), QRect(QPoint(2, 2), QPoint(6, 5)));
    QCOMPARE(frame.at(4, 4), clWhite);
    QCOMPARE(frame.count(clBlue), 2 * 5 + 2 * 2);
}

void tst_Canvas::focusRectIsItsOwnInverse()
{
    Surface s;
    const QImage before = s.image;
    s.canvas.DrawFocusRect(Rect(2, 2, 12, 9));
    QCOMPARE(s.at(2, 2), clBlack);    // inverted white
    QCOMPARE(s.at(3, 2), clWhite);    // dotted: every other pixel
    QCOMPARE(s.at(5, 5), clWhite);    // inside untouched
    QCOMPARE(s.ink(), QRect(QPoint(2, 2), QPoint(11, 8)));
    s.canvas.DrawFocusRect(Rect(2, 2, 12, 9));
    QCOMPARE(s.image, before);
}

void tst_Canvas::patBlt()
{
    Surface s;
    s.canvas.PatBlt(0, 0, 4, 4, PATCOPY);
    QCOMPARE(s.at(3, 3), clBlue);
    s.canvas.PatBlt(0, 0, 2, 2, DSTINVERT);
    QCOMPARE(s.at(1, 1), clYellow);   // blue inverted
    QCOMPARE(s.at(2, 2), clBlue);
    s.canvas.PatBlt(0, 0, 1, 1, BLACKNESS);
    QCOMPARE(s.at(0, 0), clBlack);
    s.canvas.PatBlt(3, 3, -2, -2, WHITENESS);   // negative extents go left and up
    QCOMPARE(s.at(1, 1), clWhite);
    QCOMPARE(s.at(2, 2), clWhite);
    QCOMPARE(s.at(3, 3), clBlue);
}

void tst_Canvas::penModes()
{
    Surface s;
    const QImage before = s.image;
    s.canvas.Pen.SetMode(pmXor);
    s.canvas.MoveTo(0, 5);
    s.canvas.LineTo(20, 5);
    QCOMPARE(s.at(3, 5), TColor(0xFFFF00));   // white xor red
    s.canvas.MoveTo(0, 5);
    s.canvas.LineTo(20, 5);
    QCOMPARE(s.image, before);
    s.canvas.Pen.SetMode(pmNot);
    s.canvas.MoveTo(0, 6);
    s.canvas.LineTo(3, 6);
    QCOMPARE(s.at(1, 6), clBlack);
}

void tst_Canvas::copyModes_data()
{
    QTest::addColumn<quint32>("mode");
    QTest::addColumn<quint32>("expected");
    // Source 0x00F0F0, destination 0x0F0FF0.
    QTest::newRow("copy") << quint32(cmSrcCopy) << quint32(0x00F0F0);
    QTest::newRow("and") << quint32(cmSrcAnd) << quint32(0x0000F0);
    QTest::newRow("or") << quint32(cmSrcPaint) << quint32(0x0FFFF0);
    QTest::newRow("xor") << quint32(cmSrcInvert) << quint32(0x0FFF00);
    QTest::newRow("not source") << quint32(cmNotSrcCopy) << quint32(0xFF0F0F);
    QTest::newRow("erase") << quint32(cmSrcErase) << quint32(0x00F000);
}

void tst_Canvas::copyModes()
{
    QFETCH(quint32, mode);
    QFETCH(quint32, expected);
    Surface src(4, 4, 0x00F0F0), dst(4, 4, 0x0F0FF0);
    dst.canvas.CopyMode = mode;
    dst.canvas.CopyRect(Rect(1, 1, 3, 3), src.canvas, Rect(0, 0, 2, 2));
    QCOMPARE(dst.at(1, 1), TColor(expected));
    QCOMPARE(dst.at(2, 2), TColor(expected));
    QCOMPARE(dst.at(3, 3), TColor(0x0F0FF0));   // right and bottom edges stay
    QCOMPARE(dst.at(0, 0), TColor(0x0F0FF0));
}

void tst_Canvas::copyRectStretchesAndMirrors()
{
    Surface src(2, 1);
    src.canvas.SetPixels(0, 0, clRed);
    src.canvas.SetPixels(1, 0, clBlue);
    Surface dst(8, 4);
    dst.canvas.CopyRect(Rect(0, 0, 4, 2), src.canvas, Rect(0, 0, 2, 1));
    QCOMPARE(dst.at(0, 0), clRed);
    QCOMPARE(dst.at(1, 1), clRed);
    QCOMPARE(dst.at(2, 0), clBlue);
    QCOMPARE(dst.at(3, 1), clBlue);
    QCOMPARE(dst.at(4, 0), clWhite);
    dst.canvas.CopyRect(Rect(6, 2, 4, 3), src.canvas, Rect(0, 0, 2, 1));   // mirrored
    QCOMPARE(dst.at(4, 2), clBlue);
    QCOMPARE(dst.at(5, 2), clRed);
    // Copying a canvas onto itself reads the picture as it was.
    dst.canvas.CopyRect(Rect(1, 0, 5, 1), dst.canvas, Rect(0, 0, 4, 1));
    QCOMPARE(dst.at(1, 0), clRed);
    QCOMPARE(dst.at(2, 0), clRed);
    QCOMPARE(dst.at(3, 0), clBlue);
}

void tst_Canvas::brushBitmapTilesFromOrigin()
{
    Surface s;
    s.canvas.Brush.SetBitmap(TSteel());
    s.canvas.FillRect(Rect(0, 0, 24, 24));
    QCOMPARE(s.at(0, 0), clSilver);
    QCOMPARE(s.at(1, 1), clWhite);
    QCOMPARE(s.at(1, 2), clSilver);
    QCOMPARE(s.at(9, 9), clWhite);
    QCOMPARE(s.at(17, 23), clWhite);
    QCOMPARE(s.count(clWhite), 12 * 12);
    s.canvas.Brush.SetBitmap(QImage());
    s.canvas.FillRect(Rect(0, 0, 2, 2));
    QCOMPARE(s.at(1, 1), clBlue);
}

void tst_Canvas::hatchLeavesGaps()
{
    Surface s(16, 16);
    s.canvas.Brush.SetStyle(bsCross);
    s.canvas.FillRect(Rect(0, 0, 16, 16));
    const int blue = s.count(clBlue);
    QVERIFY(blue > 0 && blue < 16 * 16 / 2);
    // The pattern repeats every eight pixels.
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x)
            QCOMPARE(s.at(x, y), s.at(x + 8, y + 8));
}

void tst_Canvas::regions()
{
    const TRegion rect = CreateRectRgn(0, 0, 10, 10);
    QVERIFY(PtInRegion(rect, 0, 0));
    QVERIFY(PtInRegion(rect, 9, 9));
    QVERIFY(!PtInRegion(rect, 10, 5));
    QVERIFY(!PtInRegion(rect, 5, 10));

    const TRegion ellipse = CreateEllipticRgn(0, 0, 20, 10);
    QVERIFY(PtInRegion(ellipse, 10, 5));
    QVERIFY(!PtInRegion(ellipse, 0, 0));
    QVERIFY(PtInRegion(ellipse, 0, 5));
    QVERIFY(!PtInRegion(ellipse, 20, 5));

    // Alternate filling leaves the middle of a five-pointed star out.
    const TPoint star[] = {{50, 0}, {79, 90}, {2, 35}, {97, 35}, {21, 90}};
    const TRegion starRgn = CreatePolygonRgn(star, 5);
    QVERIFY(!PtInRegion(starRgn, 50, 50));
    QVERIFY(PtInRegion(starRgn, 50, 10));

    const TRegion ring = CreatePolyPolygonRgn({{{0, 0}, {10, 0}, {10, 10}, {0, 10}},
                                               {{3, 3}, {7, 3}, {7, 7}, {3, 7}}});
    QVERIFY(PtInRegion(ring, 1, 1));
    QVERIFY(!PtInRegion(ring, 5, 5));

    const TRegion round = CreateRoundRectRgn(0, 0, 20, 20, 8, 8);
    QVERIFY(!PtInRegion(round, 0, 0));
    QVERIFY(PtInRegion(round, 10, 0));
    QVERIFY(!PtInRegion(round, 19, 19));

    Surface s;
    s.canvas.Brush.SetColor(clLime);
    PaintRgn(s.canvas, CombineRgn(rect, CreateRectRgn(5, 5, 20, 20), RGN_DIFF));
    QCOMPARE(s.at(2, 2), clLime);
    QCOMPARE(s.at(6, 6), clWhite);
    QCOMPARE(s.at(12, 12), clWhite);
    QCOMPARE(s.count(clLime), 100 - 25);
}

void tst_Canvas::frameRegion()
{
    Surface s;
    TBrush brush;
    brush.SetColor(clMaroon);
    FrameRgn(s.canvas, CreateRectRgn(2, 2, 12, 12), brush, 2, 1);
    QCOMPARE(s.at(2, 5), clMaroon);
    QCOMPARE(s.at(3, 5), clMaroon);   // two wide at the sides
    QCOMPARE(s.at(4, 5), clWhite);
    QCOMPARE(s.at(6, 2), clMaroon);   // one high at top and bottom
    QCOMPARE(s.at(6, 3), clWhite);
    QCOMPARE(s.at(6, 11), clMaroon);
    QCOMPARE(s.at(12, 6), clWhite);
}

void tst_Canvas::clipRegionLimitsDrawing()
{
    Surface s;
    s.canvas.SetClipRegion(QRegion(0, 0, 5, 24));
    s.canvas.FillRect(Rect(0, 0, 24, 24));
    s.canvas.MoveTo(0, 20);
    s.canvas.LineTo(24, 20);
    QCOMPARE(s.ink(), QRect(0, 0, 5, 24));
    QCOMPARE(s.canvas.ClipRect(), Rect(0, 0, 5, 24));
}

void tst_Canvas::pixels()
{
    Surface s(4, 4);
    s.canvas.SetPixels(2, 3, clFuchsia);
    QCOMPARE(s.at(2, 3), clFuchsia);
    QCOMPARE(s.canvas.Pixels(4, 0), TColor(0xFFFFFFFF));
    s.canvas.SetPixels(-1, 0, clRed);   // outside: ignored
    QCOMPARE(s.count(clRed), 0);
}

void tst_Canvas::frame3D()
{
    Surface s;
    TRect r = Rect(1, 1, 11, 9);
    Frame3D(s.canvas, r, clWhite, clGray, 1);
    s.image.fill(ColorToQRgb(clBlack));
    r = Rect(1, 1, 11, 9);
    Frame3D(s.canvas, r, clWhite, clGray, 2);
    QCOMPARE(r, Rect(3, 3, 9, 7));
    QCOMPARE(s.at(1, 1), clWhite);    // top-left corner is the top colour
    QCOMPARE(s.at(10, 1), clGray);    // top-right corner belongs to the bottom colour
    QCOMPARE(s.at(1, 7), clWhite);
    QCOMPARE(s.at(1, 8), clGray);     // the bottom edge is drawn last, over the left one
    QCOMPARE(s.at(5, 8), clGray);
    QCOMPARE(s.at(10, 5), clGray);
    QCOMPARE(s.at(2, 2), clWhite);    // second ring
    QCOMPARE(s.at(9, 7), clGray);
    QCOMPARE(s.at(5, 5), clBlack);
    QCOMPARE(s.at(11, 5), clBlack);
}

void tst_Canvas::textStaysInItsBox()
{
    Surface s(120, 40);
    s.canvas.Brush.SetColor(clYellow);
    s.canvas.Font.SetColor(clBlack);
    const int w = s.canvas.TextWidth(QStringLiteral("Hello")), h = s.canvas.TextHeight(QStringLiteral("Hello"));
    QVERIFY(w > 10 && h > 5);
    s.canvas.TextOut(10, 5, QStringLiteral("Hello"));
    // The brush paints the text's cell, the font colour its letters.
    QCOMPARE(s.ink(), QRect(10, 5, w, h));
    QVERIFY(s.count(clBlack) > 10);
    QCOMPARE(s.canvas.PenPos(), (TPoint{10 + w, 5}));

    Surface clear(120, 40);
    clear.canvas.Brush.SetStyle(bsClear);
    clear.canvas.Font.SetColor(clBlack);
    clear.canvas.TextRect(Rect(0, 0, 20, 40), 10, 5, QStringLiteral("Hello"));
    QVERIFY(clear.ink().right() < 20);
    QCOMPARE(clear.count(clYellow), 0);
}

void tst_Canvas::drawTextMeasuresAndAligns()
{
    Surface s(200, 60);
    s.canvas.Brush.SetStyle(bsClear);
    s.canvas.Font.SetColor(clBlack);
    TRect r = Rect(10, 10, 10, 10);
    const int h = s.canvas.DrawText(QStringLiteral("Measure"), r, DT_CALCRECT | DT_SINGLELINE);
    QCOMPARE(r.Width(), s.canvas.TextWidth(QStringLiteral("Measure")));
    QCOMPARE(h, r.Height());
    QCOMPARE(s.count(clBlack), 0);   // measuring draws nothing

    TRect box = Rect(0, 0, 200, 60);
    s.canvas.DrawText(QStringLiteral("Mid"), box, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    const QRect ink = s.ink();
    QVERIFY(qAbs(ink.center().x() - 100) <= 3);
    QVERIFY(qAbs(ink.center().y() - 30) <= 4);

    // The prefix character underlines; with DT_NOPREFIX it is shown.
    TRect m = Rect(0, 0, 0, 0);
    s.canvas.DrawText(QStringLiteral("&File"), m, DT_CALCRECT | DT_SINGLELINE);
    TRect n = Rect(0, 0, 0, 0);
    s.canvas.DrawText(QStringLiteral("&File"), n, DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX);
    QVERIFY(n.Width() > m.Width());
}

QTEST_MAIN(tst_Canvas)
#include "tst_canvas.moc"
