// Every call list under data/gdi-reference replayed through TCanvas and the
// regions, and compared pixel for pixel with the picture the platform drew.
#include "host/tcanvas.h"
#include "host/tregion.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTextStream>
#include <QtTest>

namespace {

const QString kDataDir = QStringLiteral(QC_GDI_REFERENCE_DIR);

TColor colorArg(const QString &s) { return TColor(s.toUInt(nullptr, 0)); }

TPenStyle penStyle(const QString &s)
{
    static const QStringList names{"solid", "dash", "dot", "dashdot", "dashdotdot", "clear", "insideframe"};
    return TPenStyle(std::max(0, int(names.indexOf(s))));
}

TPenMode penMode(const QString &s)
{
    static const QStringList names{"black", "white", "nop", "not", "copy", "notcopy", "mergepennot",
                                   "maskpennot", "mergenotpen", "masknotpen", "merge", "notmerge",
                                   "mask", "notmask", "xor", "notxor"};
    return TPenMode(std::max(0, int(names.indexOf(s))));
}

TBrushStyle brushStyle(const QString &s)
{
    static const QStringList names{"solid", "clear", "horizontal", "vertical", "fdiagonal",
                                   "bdiagonal", "cross", "diagcross"};
    return TBrushStyle(std::max(0, int(names.indexOf(s))));
}

std::vector<TPoint> pointArgs(const QStringList &a, int from)
{
    std::vector<TPoint> pts;
    for (int i = from; i + 1 < a.size(); i += 2)
        pts.push_back({a[i].toInt(), a[i + 1].toInt()});
    return pts;
}

// Draws the call list; returns an empty string or the first call it could not read.
QString replay(const QString &path, QImage &image)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text))
        return QStringLiteral("cannot open");
    const QStringList lines = QString::fromUtf8(f.readAll()).split('\n');
    image = QImage(64, 64, QImage::Format_RGB32);
    image.fill(Qt::white);
    TCanvas c(&image);
    std::vector<TRegion> regions;
    for (QString line : lines) {
        line = line.section('#', 0, 0).trimmed();
        if (line.isEmpty())
            continue;
        const QStringList a = line.split(' ', Qt::SkipEmptyParts);
        const QString &op = a[0];
        auto n = [&](int i) { return a[i].toInt(); };
        if (op == "size") {
            image = QImage(n(1), n(2), QImage::Format_RGB32);
            image.fill(Qt::white);
            c.SetImage(&image);
        } else if (op == "clear") {
            image.fill(ColorToQRgb(colorArg(a[1])));
        } else if (op == "pen") {
            c.Pen.SetColor(colorArg(a[1]));
            c.Pen.SetWidth(n(2));
            c.Pen.SetStyle(penStyle(a[3]));
        } else if (op == "penmode") {
            c.Pen.SetMode(penMode(a[1]));
        } else if (op == "brush") {
            c.Brush.SetColor(colorArg(a[1]));
            c.Brush.SetStyle(brushStyle(a[2]));
        } else if (op == "moveto") {
            c.MoveTo(n(1), n(2));
        } else if (op == "lineto") {
            c.LineTo(n(1), n(2));
        } else if (op == "polyline") {
            c.Polyline(pointArgs(a, 1));
        } else if (op == "polygon") {
            c.Polygon(pointArgs(a, 1));
        } else if (op == "rectangle") {
            c.Rectangle(n(1), n(2), n(3), n(4));
        } else if (op == "ellipse") {
            c.Ellipse(n(1), n(2), n(3), n(4));
        } else if (op == "roundrect") {
            c.RoundRect(n(1), n(2), n(3), n(4), n(5), n(6));
        } else if (op == "arc") {
            c.Arc(n(1), n(2), n(3), n(4), n(5), n(6), n(7), n(8));
        } else if (op == "pie") {
            c.Pie(n(1), n(2), n(3), n(4), n(5), n(6), n(7), n(8));
        } else if (op == "fillrect") {
            c.FillRect(Rect(n(1), n(2), n(3), n(4)));
        } else if (op == "framerect") {
            c.FrameRect(Rect(n(1), n(2), n(3), n(4)));
        } else if (op == "drawfocusrect") {
            c.DrawFocusRect(Rect(n(1), n(2), n(3), n(4)));
        } else if (op == "patblt") {
            c.PatBlt(n(1), n(2), n(3), n(4), TCopyMode(a[5].toUInt(nullptr, 0)));
        } else if (op == "pixel") {
            c.SetPixels(n(1), n(2), colorArg(a[3]));
        } else if (op == "rgn_rect") {
            regions.push_back(CreateRectRgn(n(1), n(2), n(3), n(4)));
        } else if (op == "rgn_ellipse") {
            regions.push_back(CreateEllipticRgn(n(1), n(2), n(3), n(4)));
        } else if (op == "rgn_roundrect") {
            regions.push_back(CreateRoundRectRgn(n(1), n(2), n(3), n(4), n(5), n(6)));
        } else if (op == "rgn_polygon") {
            const auto pts = pointArgs(a, 1);
            regions.push_back(CreatePolygonRgn(pts.data(), int(pts.size())));
        } else if (op == "rgn_polypoly") {
            const int k = n(1);
            std::vector<std::vector<TPoint>> polys;
            int at = 2 + k;
            for (int i = 0; i < k; ++i) {
                const int count = n(2 + i);
                std::vector<TPoint> poly;
                for (int j = 0; j < count; ++j, at += 2)
                    poly.push_back({n(at), n(at + 1)});
                polys.push_back(poly);
            }
            regions.push_back(CreatePolyPolygonRgn(polys));
        } else if (op == "rgn_combine") {
            static const QStringList modes{"and", "or", "xor", "diff"};
            if (regions.size() < 2)
                return line;
            const TRegion b = regions.back();
            regions.pop_back();
            regions.back() = CombineRgn(regions.back(), b, TCombineMode(RGN_AND + modes.indexOf(a[1])));
        } else if (op == "paintrgn") {
            PaintRgn(c, regions.back());
        } else if (op == "framergn") {
            FrameRgn(c, regions.back(), c.Brush, n(1), n(2));
        } else {
            return line;
        }
    }
    return QString();
}

} // namespace

class tst_GdiReference : public QObject
{
    Q_OBJECT
private slots:
    void matchesThePlatform_data()
    {
        QTest::addColumn<QString>("path");
        const QDir root(kDataDir);
        const QStringList kinds = root.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        QVERIFY2(kinds.size() > 40, qPrintable(kDataDir));
        for (const QString &kind : kinds) {
            const QDir dir(root.filePath(kind));
            for (const QString &name : dir.entryList({"*.txt"}, QDir::Files, QDir::Name))
                QTest::newRow(qPrintable(kind + '/' + name.chopped(4))) << dir.filePath(name);
        }
    }

    void matchesThePlatform()
    {
        QFETCH(QString, path);
        QImage drawn;
        const QString unread = replay(path, drawn);
        QVERIFY2(unread.isEmpty(), qPrintable("cannot replay: " + unread));
        const QImage expected = QImage(path.chopped(4) + ".png").convertToFormat(QImage::Format_RGB32);
        QCOMPARE(drawn.size(), expected.size());
        int wrong = 0;
        QString first;
        for (int y = 0; y < expected.height(); ++y)
            for (int x = 0; x < expected.width(); ++x)
                if ((drawn.pixel(x, y) & 0xFFFFFF) != (expected.pixel(x, y) & 0xFFFFFF)) {
                    if (!wrong++)
                        first = QStringLiteral("(%1,%2) drew %3, expected %4").arg(x).arg(y)
                                    .arg(drawn.pixel(x, y) & 0xFFFFFF, 6, 16, QChar('0'))
                                    .arg(expected.pixel(x, y) & 0xFFFFFF, 6, 16, QChar('0'));
                }
        if (wrong && qEnvironmentVariableIsSet("QC_DUMP_DIR")) {
            const QString base = qEnvironmentVariable("QC_DUMP_DIR") + '/' + QString(QTest::currentDataTag()).replace('/', '_');
            drawn.save(base + "_drawn.png");
            expected.save(base + "_expected.png");
        }
        QVERIFY2(wrong == 0, qPrintable(QStringLiteral("%1 pixels differ, first %2").arg(wrong).arg(first)));
    }
};

QTEST_GUILESS_MAIN(tst_GdiReference)
#include "tst_gdireference.moc"
