// The canvas's pixel rules, checked pixel by pixel on small images.
#include "host/tbitmap.h"
#include "host/tregion.h"
#include "services/std2.h"
#include "host/tblend.h"
#include "testutil.h"

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
    int count(TColor c) const { return pixelsOf(image, ColorToQRgb(c) | 0xFF000000u).count; }
    // The bounding box of the pixels that are not `background`.
    QRect ink(TColor background = clWhite) const
    {
        const QRgb ground = ColorToQRgb(background) | 0xFF000000u;
        return pixelsWhere(image, [ground](QRgb p) { return p != ground; }).box;
    }
};

} // namespace

class tst_Canvas : public QObject
{
    Q_OBJECT
private slots:
    void mulDiv_data()
    {
        QTest::addColumn<int>("a");
        QTest::addColumn<int>("b");
        QTest::addColumn<int>("c");
        QTest::addColumn<int>("result");
        QTest::newRow("half up") << 5 << 3 << 2 << 8;
        QTest::newRow("half away from zero") << -5 << 3 << 2 << -8;
        QTest::newRow("negative divisor") << 10 << 1 << -4 << -3;
        QTest::newRow("zero divisor") << 1 << 1 << 0 << -1;
        QTest::newRow("64-bit middle") << 2000000000 << 3 << 4 << 1500000000;
        QTest::newRow("overflow") << INT_MAX << 2 << 1 << -1;
    }

    void mulDiv()
    {
        QFETCH(int, a);
        QFETCH(int, b);
        QFETCH(int, c);
        QFETCH(int, result);
        QCOMPARE(MulDiv(a, b, c), result);
    }

    void focusRectIsItsOwnInverse()
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

    void copyModes_data()
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

    void copyModes()
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

    void copyRectStretchesAndMirrors()
    {
        Surface src(2, 1);
        src.canvas.SetPixels(0, 0, clRed);
        src.canvas.SetPixels(1, 0, clBlue);
        Surface dst(8, 4);
        dst.canvas.CopyRect(Rect(0, 0, 4, 2), src.canvas, Rect(0, 0, 2, 1));
        QCOMPARE(dst.at(1, 1), clRed);
        QCOMPARE(dst.at(2, 0), clBlue);
        QCOMPARE(dst.at(4, 0), clWhite);
        dst.canvas.CopyRect(Rect(6, 2, 4, 3), src.canvas, Rect(0, 0, 2, 1));   // mirrored
        QCOMPARE(dst.at(4, 2), clBlue);
        QCOMPARE(dst.at(5, 2), clRed);
        // Copying a canvas onto itself reads the picture as it was.
        dst.canvas.CopyRect(Rect(1, 0, 5, 1), dst.canvas, Rect(0, 0, 4, 1));
        QCOMPARE(dst.at(2, 0), clRed);
        QCOMPARE(dst.at(3, 0), clBlue);
    }

    void brushBitmapTilesFromOrigin()
    {
        Surface s;
        s.canvas.Brush.SetBitmap(TSteel());
        s.canvas.FillRect(Rect(0, 0, 24, 24));
        QCOMPARE(s.at(1, 1), clWhite);
        QCOMPARE(s.at(17, 23), clWhite);
        QCOMPARE(s.count(clWhite), 12 * 12);
        // A pattern of odd size, filled from inside: still anchored at the origin.
        QImage odd(3, 2, QImage::Format_RGB32);
        for (int y = 0; y < 2; ++y)
            for (int x = 0; x < 3; ++x)
                odd.setPixel(x, y, qRgb(x * 100, y * 100, 7));
        s.canvas.Brush.SetBitmap(odd);
        s.canvas.FillRect(Rect(4, 5, 20, 9));
        for (const QPoint p : {QPoint(4, 5), QPoint(5, 5), QPoint(19, 8), QPoint(12, 6)})
            QCOMPARE(s.image.pixel(p), qRgb(p.x() % 3 * 100, p.y() % 2 * 100, 7));
        QCOMPARE(s.at(3, 5), clWhite);   // outside: the steel stays
        s.canvas.Brush.SetBitmap(QImage());
        s.canvas.FillRect(Rect(0, 0, 2, 2));
        QCOMPARE(s.at(1, 1), clBlue);
    }

    void clipRegionLimitsDrawing()
    {
        Surface s;
        s.canvas.SetClipRegion(QRegion(0, 0, 5, 24));
        s.canvas.FillRect(Rect(0, 0, 24, 24));
        s.canvas.MoveTo(0, 20);
        s.canvas.LineTo(24, 20);
        QCOMPARE(s.ink(), QRect(0, 0, 5, 24));
        QCOMPARE(s.canvas.ClipRect(), Rect(0, 0, 5, 24));
    }

    void frame3D()
    {
        Surface s(24, 24, clBlack);
        TRect r = Rect(1, 1, 11, 9);
        Frame3D(s.canvas, r, clWhite, clGray, 2);
        QCOMPARE(r, Rect(3, 3, 9, 7));
        QCOMPARE(s.at(1, 1), clWhite);    // top-left corner is the top colour
        QCOMPARE(s.at(10, 1), clGray);    // top-right corner belongs to the bottom colour
        QCOMPARE(s.at(1, 8), clGray);     // the bottom edge is drawn last, over the left one
        QCOMPARE(s.at(2, 2), clWhite);    // second ring
        QCOMPARE(s.at(9, 7), clGray);
        QCOMPARE(s.at(5, 5), clBlack);
        QCOMPARE(s.at(11, 5), clBlack);
    }

    void textStaysInItsBox()
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

    // Numbers far beyond the picture cost no more than the picture: a bevel
    // as wide as the ints go, a pen as wide, a blend of two billion bands.
    void hostileNumbersStayWithinThePicture()
    {
        Surface bevel(40, 30);
        TRect r = Rect(0, 0, 40, 30);
        Frame3D(bevel.canvas, r, clWhite, clBlack, 16777216);
        QCOMPARE(bevel.at(0, 0), clWhite);
        QCOMPARE(bevel.at(39, 29), clBlack);
        Surface framedOnce(40, 30);
        TRect once = Rect(0, 0, 40, 30);
        Frame3D(framedOnce.canvas, once, clWhite, clBlack, 16);
        QCOMPARE(bevel.image, framedOnce.image);   // framed to the middle, then no more rounds

        Surface pen(40, 30);
        pen.canvas.Pen.SetWidth(INT_MAX / 2);
        pen.canvas.Ellipse(5, 5, 35, 25);
        QCOMPARE(pen.count(clRed), 40 * 30);   // the pen covers all

        Surface bands(20, 50);
        PaintBlend(bands.canvas, gVert, 1881981191, TBlend(clBlack, clWhite), 0, 0, 20, 50, Rect(0, 0, 20, 50));
        // Each row shows the band covering it: the first rows belong to the
        // bands of no height, so the first row shown is band 18819811's.
        QCOMPARE(bands.at(5, 0), TColor(0x00030303));
        QCOMPARE(bands.at(5, 49), TColor(0x00FCFCFC));
        Surface all(20, 50);
        PaintBlend(all.canvas, gHorz, INT_MAX, TBlend(clBlack, clWhite), 0, 0, 20, 50, Rect(0, 0, 20, 50));
        QCOMPARE(all.at(0, 5), TColor(0x00060606));
    }

    void drawTextMeasuresAndAligns()
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

        // One line wins over word breaks: measured and drawn on one line.
        const QString words = QStringLiteral("one two three four five");
        TRect narrow = Rect(0, 0, 30, 60);
        const int single = s.canvas.DrawText(words, narrow, DT_CALCRECT | DT_SINGLELINE | DT_WORDBREAK);
        QCOMPARE(single, s.canvas.TextHeight(words));
        QCOMPARE(narrow.Width(), s.canvas.TextWidth(words));
        TRect wrapped = Rect(0, 0, 30, 60);
        QVERIFY(s.canvas.DrawText(words, wrapped, DT_CALCRECT | DT_WORDBREAK) > single);
        Surface line(200, 60);
        line.canvas.Brush.SetStyle(bsClear);
        line.canvas.Font.SetColor(clBlack);
        TRect cell = Rect(0, 0, 60, 60);
        line.canvas.DrawText(words, cell, DT_SINGLELINE | DT_WORDBREAK | DT_NOCLIP);
        QVERIFY(line.ink().height() <= single);
        QVERIFY(line.ink().width() > 60);
    }
};

QTEST_MAIN(tst_Canvas)
#include "tst_canvas.moc"
