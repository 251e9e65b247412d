// The dot-matrix cell: geometry, font, styles and picture.
#include "displays/qseg.h"

#include <QtTest>

namespace {
TDotLook rows(std::initializer_list<int> r)
{
    std::array<quint8, 9> a{};
    int i = 0;
    for (int v : r)
        a[size_t(i++)] = quint8(v);
    return DotLookFromRows(a);
}
const QRgb kBlack = qRgb(0, 0, 0), kUnlit = qRgb(0, 0x20, 0), kLit = qRgb(0, 255, 0);
} // namespace

class tst_QcDotSegment : public QObject
{
    Q_OBJECT
private slots:
    void widthAndHeightUseFixedDivisors()
    {
        TqcDotSegment cell;
        cell.SetHeight(58);
        QCOMPARE(int(cell.Size()), 2);
        QCOMPARE(cell.size(), QSize(30, 38));
        cell.SetSize(4);
        cell.SetWidth(46 + 1);   // 47 div 23 = 2, although a Size 4 cell is 46 wide
        QCOMPARE(int(cell.Size()), 2);
        cell.SetWidth(5);
        QCOMPARE(int(cell.Size()), 1);
        cell.SetWidth(cell.width());   // unchanged: nothing
        QCOMPARE(int(cell.Size()), 1);
    }

    void everyCodeHasAGlyph()
    {
        for (int code = 33; code < 256; ++code) {
            if (code == 160)
                continue;
            const TDotLook look = DotCharLook(qChar(code));
            QVERIFY2(look != 0, qPrintable(QString::number(code)));
            QCOMPARE(look & 1, TDotLook(0));   // bit 0 is no dot
        }
        // Letters of both cases differ (small letters are small).
        QVERIFY(DotCharLook('a') != DotCharLook('A'));
        // Capitals and digits use the top row; small letters without ascenders do not.
        QVERIFY(DotCharLook('E') & rows({0x7F, 0, 0, 0, 0, 0, 0, 0, 0}));
        QCOMPARE(DotCharLook('o') & rows({0x7F, 0x7F, 0x7F, 0, 0, 0, 0, 0, 0}), TDotLook(0));
    }

    void zeroLightsItsRows()
    {
        TqcDotSegment cell;
        cell.SetChar('0');
        const QImage img = cell.RenderImage();
        const TDotGeometry g = DotGeometry(1);
        const auto dot = [&](int col, int row) { return img.pixel(g.X[size_t(col)], g.Y[size_t(row)]); };
        QCOMPARE(dot(3, 4), kLit);     // the centre dot of row 4
        QCOMPARE(dot(2, 4), kUnlit);
        QCOMPARE(dot(0, 3), kLit);     // outline
        QCOMPARE(dot(0, 0), kUnlit);
    }

    void stylesAndGap()
    {
        TqcDotSegment cell;
        cell.SetSize(8);   // extent 9, corner 4
        cell.SetChar(0x7F);
        const TDotGeometry g = DotGeometry(8);
        const QPoint origin(g.X[1], g.Y[1]);   // a lit dot of the box
        const auto render = [&](qcDotStyle style) {
            cell.SetStyle(style);
            return cell.RenderImage();
        };
        const QImage rect = render(qcdsRect), round = render(qcdsRound), dot = render(qcdsDot);
        const QPoint corner = origin, centre = origin + QPoint(4, 4), edge = origin + QPoint(4, 0);
        QCOMPARE(rect.pixel(corner), kLit);
        QCOMPARE(round.pixel(corner), kBlack);
        QCOMPARE(dot.pixel(corner), kBlack);
        for (const QImage &img : {rect, round, dot}) {
            QCOMPARE(img.pixel(centre), kLit);
            QCOMPARE(img.pixel(edge), kLit);
            QCOMPARE(img.pixel(origin + QPoint(9, 4)), kBlack);   // the gap
        }
        // A circle loses more of its corner than a rounded square.
        QCOMPARE(round.pixel(origin + QPoint(0, 1)), kLit);
        QCOMPARE(dot.pixel(origin + QPoint(0, 1)), kBlack);
        // Gap off at Size 4: extent 6 = the pitch, so neighbouring dots touch.
        cell.SetChar(' ');
        cell.SetSize(4);
        cell.SetStyle(qcdsRect);
        cell.SetGap(false);
        const QImage touching = cell.RenderImage();
        const TDotGeometry small = DotGeometry(4);
        for (int x = small.X[0]; x < small.X[2]; ++x)
            QCOMPARE(touching.pixel(x, small.Y[0] + 2), kUnlit);
    }

    void changeADotCharLook()
    {
        const TDotLook original = DotCharLook('Z');
        TqcDotSegment cell;
        cell.SetChar('Z');
        ChangeADotCharLook('Z', TDotLook(1) << 1);
        QCOMPARE(cell.Look(), original);   // nothing changes on a cell
        cell.SetChar('Y');
        cell.SetChar('Z');
        QCOMPARE(cell.Look(), TDotLook(1) << 1);
        ChangeADotCharLook(10, 2);         // no entry below 32
        QCOMPARE(DotCharLook(10), TDotLook(0));
        ChangeADotCharLook('Z', original);
    }
};

QTEST_MAIN(tst_QcDotSegment)
#include "tst_qdotsegment.moc"
