#include "tcanvas.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

using Raster::Span;
using Raster::Spans;

namespace {

constexpr quint32 kRgbMask = 0x00FFFFFF;

// Result of a ternary raster operation: bit i of `rop` (i = P*4 + S*2 + D)
// gives the output for that combination of pattern, source and destination.
inline quint32 rop3(quint8 rop, quint32 p, quint32 s, quint32 d)
{
    switch (rop) {
    case 0xCC: return s;
    case 0xF0: return p;
    case 0x00: return 0;
    case 0xFF: return kRgbMask;
    default: break;
    }
    quint32 r = 0;
    for (int i = 0; i < 8; ++i) {
        if (!(rop & (1 << i)))
            continue;
        r |= ((i & 4) ? p : ~p) & ((i & 2) ? s : ~s) & ((i & 1) ? d : ~d);
    }
    return r & kRgbMask;
}

// The binary mix of a pen mode, written as a ternary operation that ignores
// the source.
quint8 penModeRop(TPenMode mode)
{
    static const int r2[] = {1, 16, 11, 6, 13, 4, 14, 5, 12, 3, 15, 2, 9, 8, 7, 10};
    const int table = r2[mode] - 1;   // bit (P*2 + D) gives the result
    quint8 rop = 0;
    for (int i = 0; i < 8; ++i) {
        const int p = (i >> 2) & 1, d = i & 1;
        if (table & (1 << (p * 2 + d)))
            rop |= quint8(1 << i);
    }
    return rop;
}

const quint8 *hatchPattern(TBrushStyle style)
{
    // Eight rows of eight columns, bit 7 leftmost.
    static const quint8 horizontal[8] = {0, 0, 0, 0xFF, 0, 0, 0, 0};
    static const quint8 vertical[8] = {0x10, 0x10, 0x10, 0x10, 0x10, 0x10, 0x10, 0x10};
    static const quint8 fdiag[8] = {0x80, 0x40, 0x20, 0x10, 0x08, 0x04, 0x02, 0x01};
    static const quint8 bdiag[8] = {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80};
    static const quint8 cross[8] = {0x10, 0x10, 0x10, 0xFF, 0x10, 0x10, 0x10, 0x10};
    static const quint8 diagcross[8] = {0x81, 0x42, 0x24, 0x18, 0x18, 0x24, 0x42, 0x81};
    switch (style) {
    case bsHorizontal: return horizontal;
    case bsVertical: return vertical;
    case bsFDiagonal: return fdiag;
    case bsBDiagonal: return bdiag;
    case bsCross: return cross;
    case bsDiagCross: return diagcross;
    default: return nullptr;
    }
}

// Cosmetic dash patterns, on and off runs in pixels.
const std::vector<int> &dashPattern(TPenStyle style)
{
    static const std::vector<int> dash{18, 6}, dot{3, 3}, dashDot{9, 6, 3, 6},
        dashDotDot{9, 3, 3, 3, 3, 3}, solid;
    switch (style) {
    case psDash: return dash;
    case psDot: return dot;
    case psDashDot: return dashDot;
    case psDashDotDot: return dashDotDot;
    default: return solid;
    }
}

bool dashOn(const std::vector<int> &pattern, int phase)
{
    int total = 0;
    for (int n : pattern)
        total += n;
    phase %= total;
    for (size_t i = 0; i < pattern.size(); ++i) {
        if (phase < pattern[i])
            return (i % 2) == 0;
        phase -= pattern[i];
    }
    return true;
}

Spans rectSpans(int l, int t, int r, int b)
{
    Spans out;
    if (r < l)
        return out;
    for (int y = t; y <= b; ++y)
        out.push_back({y, l, r});
    return out;
}

QRect alignedBox(const QRect &box, int align, QSize size)
{
    int x = box.left(), y = box.top();
    if (align & Qt::AlignHCenter)
        x += (box.width() - size.width()) / 2;
    else if (align & Qt::AlignRight)
        x = box.left() + box.width() - size.width();
    if (align & Qt::AlignVCenter)
        y += (box.height() - size.height()) / 2;
    else if (align & Qt::AlignBottom)
        y = box.top() + box.height() - size.height();
    return QRect(QPoint(x, y), size);
}

} // namespace

// What a pixel gets painted with: a plain colour, or a brush's hatch or
// bitmap pattern (hatch gaps are left alone).
struct TCanvas::Source
{
    quint32 color = 0;
    const quint8 *hatch = nullptr;
    const QImage *bitmap = nullptr;

    static Source solid(TColor c) { return Source{ColorToQRgb(c) & kRgbMask, nullptr, nullptr}; }
    static Source brush(const TBrush &b)
    {
        Source s = solid(b.Color());
        if (!b.Bitmap().isNull())
            s.bitmap = &b.Bitmap();
        else
            s.hatch = hatchPattern(b.Style());
        return s;
    }
    bool at(int x, int y, quint32 &p) const
    {
        if (bitmap) {
            const int w = bitmap->width(), h = bitmap->height();
            p = bitmap->pixel(((x % w) + w) % w, ((y % h) + h) % h) & kRgbMask;
            return true;
        }
        if (hatch && !(hatch[y & 7] & (0x80 >> (x & 7))))
            return false;
        p = color;
        return true;
    }
};

QFont TFont::ToQFont() const
{
    QFont f(FName);
    f.setPixelSize(std::max(1, -Height()));
    f.setBold(FStyle & fsBold);
    f.setItalic(FStyle & fsItalic);
    f.setUnderline(FStyle & fsUnderline);
    f.setStrikeOut(FStyle & fsStrikeOut);
    f.setStyleStrategy(QFont::NoAntialias);
    f.setHintingPreference(QFont::PreferFullHinting);
    return f;
}

TCanvas::TCanvas(QImage *image) : FImage(image) {}

TRect TCanvas::ClipRect() const
{
    if (!FImage)
        return TRect{};
    QRect r = FImage->rect();
    if (!FClip.isEmpty())
        r &= FClip.boundingRect();
    return FromQRect(r);
}

quint8 TCanvas::penRop() const { return penModeRop(Pen.Mode()); }

void TCanvas::plot(const Spans &spans, const Source &source, quint8 rop)
{
    if (!FImage || FImage->isNull())
        return;
    const int w = FImage->width(), h = FImage->height();
    const bool clipped = !FClip.isEmpty();
    for (const Span &s : spans) {
        if (s.y < 0 || s.y >= h)
            continue;
        auto *row = reinterpret_cast<QRgb *>(FImage->scanLine(s.y));
        const auto fill = [&](int x0, int x1) {
            x0 = std::max(x0, 0);
            x1 = std::min(x1, w - 1);
            if (x0 > x1)
                return;
            if (rop == 0xF0 && !source.hatch && !source.bitmap) {
                std::fill(row + x0, row + x1 + 1, 0xFF000000u | source.color);
                return;
            }
            for (int x = x0; x <= x1; ++x) {
                quint32 p;
                if (!source.at(x, s.y, p))
                    continue;
                row[x] = 0xFF000000u | rop3(rop, p, 0, row[x] & kRgbMask);
            }
        };
        if (!clipped) {
            fill(s.x0, s.x1);
            continue;
        }
        for (const QRect &c : FClip) {
            if (s.y < c.top() || s.y > c.bottom())
                continue;
            fill(std::max(s.x0, c.left()), std::min(s.x1, c.right()));
        }
    }
}

void TCanvas::FillSpans(const Spans &spans, const TBrush &brush, TCopyMode rop)
{
    if (brush.Style() == bsClear && brush.Bitmap().isNull() && ((rop >> 16) & 0xFF) != 0x55)
        return;
    plot(spans, Source::brush(brush), quint8(rop >> 16));
}

void TCanvas::penPixels(const std::vector<TPoint> &points, bool dashed)
{
    if (Pen.Style() == psClear)
        return;
    const Source pen = Source::solid(Pen.Color());
    const std::vector<int> &pattern = dashPattern(Pen.Style());
    const int w = Pen.Width();
    Spans spans;
    for (const TPoint &p : points) {
        const bool on = !dashed || pattern.empty() || w > 1 || dashOn(pattern, FDashPhase);
        ++FDashPhase;
        if (!on)
            continue;
        if (w <= 1) {
            spans.push_back({p.Y, p.X, p.X});
        } else {
            const int a = (w - 1) / 2, c = w / 2;
            const Spans dot = Raster::EllipseSpans(p.X - a, p.Y - a, p.X + c, p.Y + c);
            spans.insert(spans.end(), dot.begin(), dot.end());
        }
    }
    plot(spans, pen, penRop());
}

void TCanvas::strokeLine(TPoint a, TPoint b, bool withEnd)
{
    std::vector<TPoint> pts = Raster::LinePoints(a, b);
    // A wide pen is a brush stroke with round ends: its end is always drawn.
    if (withEnd || Pen.Width() > 1)
        pts.push_back(b);
    penPixels(pts, true);
}

void TCanvas::LineTo(int x, int y)
{
    FDashPhase = 0;
    strokeLine(FPenPos, {x, y}, false);
    FPenPos = {x, y};
}

void TCanvas::Polyline(const TPoint *points, int count)
{
    if (!points || count < 2)
        return;
    FDashPhase = 0;
    for (int i = 0; i + 1 < count; ++i)
        strokeLine(points[i], points[i + 1], false);
}

void TCanvas::Polygon(const TPoint *points, int count)
{
    if (!points || count < 2)
        return;
    plot(Raster::PolygonSpans(points, count), Source::brush(Brush),
         Brush.Style() == bsClear && Brush.Bitmap().isNull() ? 0xAA : penRop());
    FDashPhase = 0;
    for (int i = 0; i < count; ++i)
        strokeLine(points[i], points[(i + 1) % count], false);
}

// Rectangles, ellipses and rounded rectangles share one rule: the shape
// touches x1..x2-1 and y1..y2-1, its outline drawn by the pen and its inside
// by the brush; without a pen it is one pixel smaller each way.
void TCanvas::drawShape(int x1, int y1, int x2, int y2,
                        const std::function<Spans(int, int, int, int)> &make)
{
    if (x2 < x1) std::swap(x1, x2);
    if (y2 < y1) std::swap(y1, y2);
    const bool hasBrush = !(Brush.Style() == bsClear && Brush.Bitmap().isNull());
    const Source brush = Source::brush(Brush);
    if (Pen.Style() == psClear) {
        if (hasBrush)
            plot(make(x1, y1, x2 - 2, y2 - 2), brush, penRop());
        return;
    }
    const int w = Pen.Width();
    Spans outline, inside;
    if (w <= 1) {
        Raster::SplitOutline(make(x1, y1, x2 - 1, y2 - 1), outline, inside);
    } else {
        const int a = (w - 1) / 2, c = w / 2;
        const Spans outer = make(x1 - a, y1 - a, x2 - 1 + c, y2 - 1 + c);
        inside = make(x1 - a + w, y1 - a + w, x2 - 1 + c - w, y2 - 1 + c - w);
        outline = Raster::Subtract(outer, inside);
    }
    if (hasBrush)
        plot(inside, brush, penRop());
    if (Pen.Style() == psSolid || Pen.Style() == psInsideFrame || w > 1) {
        plot(outline, Source::solid(Pen.Color()), penRop());
    } else {
        // Dashes along the outline, pixel by pixel.
        std::vector<TPoint> pts;
        for (const Span &s : outline)
            for (int x = s.x0; x <= s.x1; ++x)
                pts.push_back({x, s.y});
        FDashPhase = 0;
        penPixels(pts, true);
    }
}

void TCanvas::Rectangle(int x1, int y1, int x2, int y2)
{
    drawShape(x1, y1, x2, y2, rectSpans);
}

void TCanvas::Ellipse(int x1, int y1, int x2, int y2)
{
    drawShape(x1, y1, x2, y2, Raster::EllipseSpans);
}

void TCanvas::RoundRect(int x1, int y1, int x2, int y2, int cornerWidth, int cornerHeight)
{
    drawShape(x1, y1, x2, y2, [&](int l, int t, int r, int b) {
        return Raster::RoundRectSpans(l, t, r, b, cornerWidth, cornerHeight);
    });
}

namespace {

struct ArcGeometry
{
    int l, t, r, b;
    double cx, cy, from, to;
};

ArcGeometry arcGeometry(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    if (x2 < x1) std::swap(x1, x2);
    if (y2 < y1) std::swap(y1, y2);
    ArcGeometry g{x1, y1, x2 - 1, y2 - 1, 0, 0, 0, 0};
    g.cx = (g.l + g.r) / 2.0;
    g.cy = (g.t + g.b) / 2.0;
    g.from = Raster::RayAngle(g.cx, g.cy, x3, y3);
    g.to = Raster::RayAngle(g.cx, g.cy, x4, y4);
    return g;
}

Spans inSweep(const Spans &spans, const ArcGeometry &g)
{
    Spans out;
    for (const Span &s : spans) {
        for (int x = s.x0; x <= s.x1; ++x) {
            if (!Raster::InSweep(Raster::RayAngle(g.cx, g.cy, x, s.y), g.from, g.to))
                continue;
            if (!out.empty() && out.back().y == s.y && out.back().x1 == x - 1)
                out.back().x1 = x;
            else
                out.push_back({s.y, x, x});
        }
    }
    return out;
}

// Where the ray at `angle` from the centre meets the ellipse.
TPoint rayEnd(const ArcGeometry &g, double angle)
{
    const double ra = (g.r - g.l) / 2.0, rb = (g.b - g.t) / 2.0;
    const double c = std::cos(angle), s = std::sin(angle);
    const double qa = ra > 0 ? c / ra : 0, qb = rb > 0 ? s / rb : 0;
    const double q = std::sqrt(qa * qa + qb * qb);
    const double t = q > 0 ? 1.0 / q : 0;
    return {int(std::lround(g.cx + t * c)), int(std::lround(g.cy - t * s))};
}

} // namespace

void TCanvas::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    if (Pen.Style() == psClear)
        return;
    const ArcGeometry g = arcGeometry(x1, y1, x2, y2, x3, y3, x4, y4);
    plot(inSweep(Raster::Outline(Raster::EllipseSpans(g.l, g.t, g.r, g.b)), g),
         Source::solid(Pen.Color()), penRop());
}

void TCanvas::Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    const ArcGeometry g = arcGeometry(x1, y1, x2, y2, x3, y3, x4, y4);
    const Spans ellipse = Raster::EllipseSpans(g.l, g.t, g.r, g.b);
    if (!(Brush.Style() == bsClear && Brush.Bitmap().isNull()))
        plot(inSweep(ellipse, g), Source::brush(Brush), penRop());
    if (Pen.Style() == psClear)
        return;
    plot(inSweep(Raster::Outline(ellipse), g), Source::solid(Pen.Color()), penRop());
    const TPoint centre{int(std::floor(g.cx)), int(std::floor(g.cy))};
    strokeLine(centre, rayEnd(g, g.from), true);
    strokeLine(centre, rayEnd(g, g.to), true);
}

void TCanvas::FillRect(const TRect &r)
{
    if (r.IsEmpty())
        return;
    FillSpans(rectSpans(r.Left, r.Top, r.Right - 1, r.Bottom - 1), Brush);
}

void TCanvas::FrameRect(const TRect &r)
{
    if (r.IsEmpty())
        return;
    Spans outline, inside;
    Raster::SplitOutline(rectSpans(r.Left, r.Top, r.Right - 1, r.Bottom - 1), outline, inside);
    FillSpans(outline, Brush);
}

void TCanvas::DrawFocusRect(const TRect &r)
{
    if (r.IsEmpty())
        return;
    Spans outline, inside, dots;
    Raster::SplitOutline(rectSpans(r.Left, r.Top, r.Right - 1, r.Bottom - 1), outline, inside);
    for (const Span &s : outline)
        for (int x = s.x0; x <= s.x1; ++x)
            if (((x + s.y) & 1) == 0)
                dots.push_back({s.y, x, x});
    plot(dots, Source::solid(clWhite), 0x5A);   // pattern XOR destination
}

void TCanvas::PatBlt(int x, int y, int width, int height, TCopyMode rop)
{
    TRect r = Bounds(x, y, width, height);
    if (r.Right < r.Left) std::swap(r.Left, r.Right);
    if (r.Bottom < r.Top) std::swap(r.Top, r.Bottom);
    if (r.IsEmpty())
        return;
    plot(rectSpans(r.Left, r.Top, r.Right - 1, r.Bottom - 1), Source::brush(Brush), quint8(rop >> 16));
}

void TCanvas::CopyRect(const TRect &dest, const TCanvas &source, const TRect &src)
{
    if (!source.FImage)
        return;
    if (source.FImage == FImage) {
        const QImage copy = FImage->copy();   // overlapping copies read the old picture
        CopyRect(dest, copy, src);
        return;
    }
    CopyRect(dest, *source.FImage, src);
}

void TCanvas::CopyRect(const TRect &dest, const QImage &source, const TRect &src)
{
    if (!FImage || source.isNull())
        return;
    const int dw = dest.Width(), dh = dest.Height(), sw = src.Width(), sh = src.Height();
    if (dw == 0 || dh == 0 || sw == 0 || sh == 0)
        return;
    const QImage rgb = (source.format() == QImage::Format_RGB32 || source.format() == QImage::Format_ARGB32
                        || source.format() == QImage::Format_ARGB32_Premultiplied)
                           ? source
                           : source.convertToFormat(QImage::Format_RGB32);
    // A negative extent on one side only mirrors the picture.
    const bool flipX = (dw < 0) != (sw < 0), flipY = (dh < 0) != (sh < 0);
    const int adw = std::abs(dw), adh = std::abs(dh), asw = std::abs(sw), ash = std::abs(sh);
    const int dx0 = std::min(dest.Left, dest.Right), dy0 = std::min(dest.Top, dest.Bottom);
    const int sx0 = std::min(src.Left, src.Right), sy0 = std::min(src.Top, src.Bottom);
    const quint8 rop = quint8(CopyMode >> 16);
    // Only operations whose result depends on the pattern read the brush.
    const bool usesPattern = ((rop >> 4) & 0x0F) != (rop & 0x0F);
    const Source pattern = Source::brush(Brush);

    // The source column of every destination column, or -1 outside.
    std::vector<int> columns(size_t(adw), -1);
    for (int i = 0; i < adw; ++i) {
        const int x = dx0 + i;
        int si = int((long long)i * asw / adw);
        if (flipX) si = asw - 1 - si;
        const int sx = sx0 + si;
        if (x >= 0 && x < FImage->width() && sx >= 0 && sx < rgb.width())
            columns[size_t(i)] = sx;
    }
    const bool clipped = !FClip.isEmpty();
    for (int j = 0; j < adh; ++j) {
        const int y = dy0 + j;
        if (y < 0 || y >= FImage->height())
            continue;
        int sj = int((long long)j * ash / adh);
        if (flipY) sj = ash - 1 - sj;
        const int sy = sy0 + sj;
        if (sy < 0 || sy >= rgb.height())
            continue;
        const auto *from = reinterpret_cast<const QRgb *>(rgb.constScanLine(sy));
        auto *row = reinterpret_cast<QRgb *>(FImage->scanLine(y));
        for (int i = 0; i < adw; ++i) {
            const int sx = columns[size_t(i)];
            if (sx < 0)
                continue;
            const int x = dx0 + i;
            if (clipped && !FClip.contains(QPoint(x, y)))
                continue;
            const quint32 s = from[sx] & kRgbMask;
            if (rop == 0xCC) {
                row[x] = 0xFF000000u | s;
                continue;
            }
            quint32 p = 0;
            if (usesPattern)
                pattern.at(x, y, p);
            row[x] = 0xFF000000u | rop3(rop, p, s, row[x] & kRgbMask);
        }
    }
}

void TCanvas::StretchDraw(const TRect &dest, const QImage &image)
{
    if (image.isNull() || !FImage)
        return;
    if (image.hasAlphaChannel()) {
        // Pictures with their own transparency are blended, not copied.
        QPainter p(FImage);
        if (!FClip.isEmpty())
            p.setClipRegion(FClip);
        p.drawImage(ToQRect(dest), image);
        return;
    }
    CopyRect(dest, image, Rect(0, 0, image.width(), image.height()));
}

void TCanvas::Draw(int x, int y, const QImage &image)
{
    StretchDraw(Bounds(x, y, image.width(), image.height()), image);
}

TColor TCanvas::Pixels(int x, int y) const
{
    if (!FImage || !FImage->valid(x, y))
        return 0xFFFFFFFFu;
    return QRgbToColor(FImage->pixel(x, y));
}

void TCanvas::SetPixels(int x, int y, TColor color)
{
    plot({{y, x, x}}, Source::solid(color), 0xF0);
}

void TCanvas::textBackground(const QRect &r)
{
    if (Brush.Style() != bsSolid || !Brush.Bitmap().isNull())
        return;
    FillRect(FromQRect(r));
}

int TCanvas::TextWidth(const QString &text) const
{
    return QFontMetrics(Font.ToQFont()).horizontalAdvance(text);
}

int TCanvas::TextHeight(const QString &text) const
{
    Q_UNUSED(text);
    return QFontMetrics(Font.ToQFont()).height();
}

void TCanvas::TextOut(int x, int y, const QString &text)
{
    if (!FImage)
        return;
    const QFont font = Font.ToQFont();
    const QFontMetrics fm(font);
    textBackground(QRect(x, y, fm.horizontalAdvance(text), fm.height()));
    {
        QPainter p(FImage);
        if (!FClip.isEmpty())
            p.setClipRegion(FClip);
        p.setFont(font);
        p.setPen(ColorToQColor(Font.Color()));
        p.drawText(x, y + fm.ascent(), text);
    }
    FPenPos = {x + fm.horizontalAdvance(text), y};
}

void TCanvas::TextRect(const TRect &r, int x, int y, const QString &text)
{
    if (!FImage)
        return;
    textBackground(ToQRect(r));
    const QFont font = Font.ToQFont();
    QPainter p(FImage);
    QRegion clip(ToQRect(r));
    if (!FClip.isEmpty())
        clip &= FClip;
    p.setClipRegion(clip);
    p.setFont(font);
    p.setPen(ColorToQColor(Font.Color()));
    p.drawText(x, y + QFontMetrics(font).ascent(), text);
}

int TCanvas::DrawText(const QString &text, TRect &r, unsigned flags)
{
    const QFont font = Font.ToQFont();
    const QFontMetrics fm(font);
    int qt = 0;
    qt |= (flags & DT_CENTER) ? Qt::AlignHCenter : (flags & DT_RIGHT) ? Qt::AlignRight : Qt::AlignLeft;
    if (flags & DT_SINGLELINE) {
        qt |= Qt::TextSingleLine;
        qt |= (flags & DT_VCENTER) ? Qt::AlignVCenter : (flags & DT_BOTTOM) ? Qt::AlignBottom : Qt::AlignTop;
    } else {
        qt |= Qt::AlignTop;
    }
    if (flags & DT_WORDBREAK)
        qt |= Qt::TextWordWrap;
    if (flags & DT_EXPANDTABS)
        qt |= Qt::TextExpandTabs;
    qt |= (flags & DT_NOPREFIX) ? 0 : Qt::TextShowMnemonic;

    QString shown = text;
    if ((flags & DT_END_ELLIPSIS) && (flags & DT_SINGLELINE))
        shown = fm.elidedText(text, Qt::ElideRight, r.Width(), qt);

    const int wrapWidth = (flags & DT_WORDBREAK) ? std::max(r.Width(), 1) : 1 << 20;
    const QRect measured = fm.boundingRect(QRect(r.Left, r.Top, wrapWidth, 1 << 20), qt & ~(Qt::AlignVCenter | Qt::AlignBottom), shown);
    const int height = shown.isEmpty() ? 0 : measured.height();
    if (flags & DT_CALCRECT) {
        r.Right = r.Left + (shown.isEmpty() ? 0 : measured.width());
        r.Bottom = r.Top + height;
        return height;
    }
    if (!FImage)
        return height;
    QRect box = ToQRect(r);
    textBackground(alignedBox(box, qt, QSize(measured.width(), height)));
    QPainter p(FImage);
    QRegion clip = (flags & DT_NOCLIP) ? QRegion(FImage->rect()) : QRegion(box);
    if (!FClip.isEmpty())
        clip &= FClip;
    p.setClipRegion(clip);
    p.setFont(font);
    p.setPen(ColorToQColor(Font.Color()));
    p.drawText(box, qt, shown);
    return height;
}

void Frame3D(TCanvas &canvas, TRect &r, TColor top, TColor bottom, int width)
{
    const TPenStyle oldStyle = canvas.Pen.Style();
    const int oldWidth = canvas.Pen.Width();
    canvas.Pen.SetWidth(1);
    canvas.Pen.SetStyle(psSolid);
    r.Bottom -= 1;
    r.Right -= 1;
    while (width-- > 0) {
        const TPoint topLeft{r.Left, r.Top}, topRight{r.Right, r.Top};
        const TPoint bottomLeft{r.Left, r.Bottom}, bottomRight{r.Right, r.Bottom};
        canvas.Pen.SetColor(top);
        const TPoint upper[] = {bottomLeft, topLeft, topRight};
        canvas.Polyline(upper, 3);
        canvas.Pen.SetColor(bottom);
        const TPoint lower[] = {topRight, bottomRight, {bottomLeft.X - 1, bottomLeft.Y}};
        canvas.Polyline(lower, 3);
        InflateRect(r, -1, -1);
    }
    r.Bottom += 1;
    r.Right += 1;
    canvas.Pen.SetWidth(oldWidth);
    canvas.Pen.SetStyle(oldStyle);
}
