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
    void newCell();
    void publishedProperties();
    void geometry_data();
    void geometry();
    void widthAndHeightUseFixedDivisors();
    void fontTable_data();
    void fontTable();
    void everyCodeHasAGlyph();
    void zeroLightsItsRows();
    void styles();
    void gapOff();
    void transparent();
    void changeADotCharLook();
};

void tst_QcDotSegment::newCell()
{
    TqcDotSegment cell;
    QCOMPARE(cell.size(), QSize(23, 29));
    QCOMPARE(cell.Char(), qChar(' '));
    QCOMPARE(cell.Look(), TDotLook(0));
    QCOMPARE(cell.Style(), qcdsRound);
    QVERIFY(cell.UseGap());
    QCOMPARE(cell.LitColor(), clLime);
    QCOMPARE(cell.UnLitColor(), TColor(0x002000));
    QCOMPARE(cell.Color(), clBlack);
    const QImage img = cell.RenderImage(qRgb(255, 0, 255));
    // 63 dots of 2 x 2 at X = 1, 4 ... 19 and Y = 1, 4 ... 25, black between.
    int unlit = 0;
    for (int y = 0; y < 29; ++y)
        for (int x = 0; x < 23; ++x) {
            const bool dot = x >= 1 && x <= 20 && y >= 1 && y <= 26 && (x - 1) % 3 < 2 && (y - 1) % 3 < 2;
            QCOMPARE(img.pixel(x, y), dot ? kUnlit : kBlack);
            unlit += dot;
        }
    QCOMPARE(unlit, 63 * 4);
}

void tst_QcDotSegment::publishedProperties()
{
    const QMetaObject &mo = TqcDotSegment::staticMetaObject;
    QStringList names;
    for (int i = mo.propertyOffset(); i < mo.propertyCount(); ++i)
        names << QString::fromLatin1(mo.property(i).name());
    QCOMPARE(names, (QStringList{"Width", "Height", "Hint", "DragCursor", "DragMode", "Char", "Color", "LitColor",
                                 "ParentColor", "ParentShowHint", "ShowHint", "Transparent", "Visible",
                                 "UnLitColor", "Size", "UseGap", "Style"}));
    const QMetaEnum e = QMetaEnum::fromType<TqcDotSegment::qcDotStyle>();
    QCOMPARE(QString::fromLatin1(e.valueToKey(0)) + e.valueToKey(1) + e.valueToKey(2),
             QStringLiteral("qcdsDotqcdsRectqcdsRound"));
}

void tst_QcDotSegment::geometry_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("pitch");
    QTest::addColumn<QSize>("extent");
    QTest::newRow("1") << 1 << 1 << 3 << QSize(23, 29);
    QTest::newRow("2") << 2 << 1 << 4 << QSize(30, 38);
    QTest::newRow("4") << 4 << 2 << 6 << QSize(46, 58);
    QTest::newRow("25") << 25 << 12 << 27 << QSize(213, 267);
    QTest::newRow("0") << 0 << 1 << 2 << QSize(16, 20);
}

void tst_QcDotSegment::geometry()
{
    QFETCH(int, size);
    QFETCH(int, offset);
    QFETCH(int, pitch);
    QFETCH(QSize, extent);
    const TDotGeometry g = DotGeometry(size);
    for (int i = 0; i < 7; ++i)
        QCOMPARE(g.X[size_t(i)], offset + i * pitch);
    for (int j = 0; j < 9; ++j)
        QCOMPARE(g.Y[size_t(j)], offset + j * pitch);
    QCOMPARE(QSize(g.Width, g.Height), extent);
    TqcDotSegment cell;
    cell.move(7, 9);
    cell.SetSize(qcDotSegSize(size));
    QCOMPARE(cell.geometry(), QRect(QPoint(7, 9), extent));   // keeps its place
}

void tst_QcDotSegment::widthAndHeightUseFixedDivisors()
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

void tst_QcDotSegment::fontTable_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<quint64>("look");
    QTest::newRow("space") << 32 << quint64(0);
    QTest::newRow("no-break space") << 160 << quint64(0);
    QTest::newRow("zero") << int('0') << quint64(rows({0x1C, 0x22, 0x41, 0x41, 0x49, 0x41, 0x41, 0x22, 0x1C}));
    QTest::newRow("A grave") << 0xC0 << quint64(rows({0x10, 0x08, 0x04, 0x3E, 0x41, 0x41, 0x7F, 0x41, 0x41}));
    QTest::newRow("right double quote") << 0x94 << quint64(rows({0x24, 0x12, 0x36, 0x36, 0, 0, 0, 0, 0}));
    QTest::newRow("bullet") << 0x95 << quint64(rows({0, 0, 0x1C, 0x3E, 0x3E, 0x3E, 0x1C, 0, 0}));
    QTest::newRow("y diaeresis") << 0xFF << quint64(rows({0, 0x14, 0, 0x41, 0x22, 0x14, 0x08, 0x08, 0x08}));
    QTest::newRow("no glyph is a box") << 0x9D << quint64(rows({0, 0x3E, 0x22, 0x22, 0x22, 0x22, 0x22, 0x3E, 0}));
    QTest::newRow("DEL is a box too") << 0x7F << quint64(rows({0, 0x3E, 0x22, 0x22, 0x22, 0x22, 0x22, 0x3E, 0}));
    QTest::newRow("below space") << 31 << quint64(0);
}

void tst_QcDotSegment::fontTable()
{
    QFETCH(int, code);
    QFETCH(quint64, look);
    QCOMPARE(quint64(DotCharLook(qChar(code))), look);
}

void tst_QcDotSegment::everyCodeHasAGlyph()
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

void tst_QcDotSegment::zeroLightsItsRows()
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
    QCOMPARE(dot(2, 0), kLit);
    QCOMPARE(dot(6, 8), kUnlit);
}

void tst_QcDotSegment::styles()
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
}

void tst_QcDotSegment::gapOff()
{
    TqcDotSegment cell;
    cell.SetSize(4);
    cell.SetStyle(qcdsRect);
    cell.SetGap(false);
    const QImage img = cell.RenderImage();
    // Extent 6 = the pitch: neighbouring dots touch.
    const TDotGeometry g = DotGeometry(4);
    for (int x = g.X[0]; x < g.X[2]; ++x)
        QCOMPARE(img.pixel(x, g.Y[0] + 2), kUnlit);
}

void tst_QcDotSegment::transparent()
{
    TqcDotSegment cell;
    cell.SetTransparent(true);
    QVERIFY(!cell.testAttribute(Qt::WA_OpaquePaintEvent));
    const QImage img = cell.RenderImage(qRgb(9, 9, 9));
    QCOMPARE(img.pixel(0, 0), qRgb(9, 9, 9));
    QCOMPARE(img.pixel(1, 1), kUnlit);
}

void tst_QcDotSegment::changeADotCharLook()
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

QTEST_MAIN(tst_QcDotSegment)
#include "tst_qdotsegment.moc"
