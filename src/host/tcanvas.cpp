#include "tcanvas.h"
#include "tregion.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <climits>
#include <cstring>
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
    static const quint8 vertical[8] = {0x08, 0x08, 0x08, 0x08, 0x08, 0x08, 0x08, 0x08};
    static const quint8 fdiag[8] = {0x80, 0x40, 0x20, 0x10, 0x08, 0x04, 0x02, 0x01};
    static const quint8 bdiag[8] = {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80};
    static const quint8 cross[8] = {0x08, 0x08, 0x08, 0xFF, 0x08, 0x08, 0x08, 0x08};
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
    if (FMade)
        return FQFont;
    QFont f(FName);
    f.setPixelSize(std::max(1, -Height()));
    f.setBold(FStyle & fsBold);
    f.setItalic(FStyle & fsItalic);
    f.setUnderline(FStyle & fsUnderline);
    f.setStrikeOut(FStyle & fsStrikeOut);
    f.setStyleStrategy(QFont::NoAntialias);
    f.setHintingPreference(QFont::PreferFullHinting);
    FQFont = f;
    FMade = true;
    return f;
}

TFont TFont::FromQFont(const QFont &font, TColor color)
{
    TFont f;
    f.FName = font.family();
    if (font.pixelSize() > 0)
        f.SetHeight(-font.pixelSize());
    else
        f.FSize = qRound(font.pointSizeF());
    f.FColor = color;
    f.FStyle = (font.bold() ? fsBold : 0) | (font.italic() ? fsItalic : 0) | (font.underline() ? fsUnderline : 0)
        | (font.strikeOut() ? fsStrikeOut : 0);
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

namespace {

// True when the operation's result depends on the pattern.
bool usesPattern(quint8 rop) { return ((rop >> 4) & 0x0F) != (rop & 0x0F); }

Spans regionSpans(const QRegion &r)
{
    Spans spans;
    for (const QRect &rect : r)
        for (int y = rect.top(); y <= rect.bottom(); ++y)
            spans.push_back({y, rect.left(), rect.right()});
    std::sort(spans.begin(), spans.end(), [](const Span &a, const Span &b) {
        return a.y != b.y ? a.y < b.y : a.x0 < b.x0;
    });
    return spans;
}

} // namespace

void TCanvas::plot(const Spans &spans, const Source &source, quint8 rop)
{
    if (!FImage || FImage->isNull())
        return;
    const int w = FImage->width(), h = FImage->height();
    const bool clipped = !FClip.isEmpty();
    uchar *const bits = FImage->bits();   // detached once, not per row
    const qsizetype stride = FImage->bytesPerLine();
    // Hatch gaps stay untouched only where the pattern takes part.
    const bool gaps = usesPattern(rop);
    if (!clipped && rop == 0xF0 && !source.hatch && !source.bitmap) {   // plain copy: the common case
        const quint32 colour = 0xFF000000u | source.color;
        for (const Span &s : spans) {
            if (s.y < 0 || s.y >= h)
                continue;
            const int x0 = std::max(s.x0, 0), x1 = std::min(s.x1, w - 1);
            auto *row = reinterpret_cast<QRgb *>(bits + s.y * stride);
            for (int x = x0; x <= x1; ++x)
                row[x] = colour;
        }
        return;
    }
    for (const Span &s : spans) {
        if (s.y < 0 || s.y >= h)
            continue;
        auto *row = reinterpret_cast<QRgb *>(bits + s.y * stride);
        const auto fill = [&](int x0, int x1) {
            x0 = std::max(x0, 0);
            x1 = std::min(x1, w - 1);
            if (x0 > x1)
                return;
            if (rop == 0xF0 && !source.hatch && !source.bitmap) {
                std::fill(row + x0, row + x1 + 1, 0xFF000000u | source.color);
                return;
            }
            if (rop == 0xF0 && source.bitmap
                && (source.bitmap->format() == QImage::Format_RGB32 || source.bitmap->format() == QImage::Format_ARGB32)) {
                // A pattern copied: its pixels as they are stored.
                const int bw = source.bitmap->width(), bh = source.bitmap->height();
                const auto *pattern = reinterpret_cast<const QRgb *>(source.bitmap->constScanLine(((s.y % bh) + bh) % bh));
                for (int x = x0, px = ((x0 % bw) + bw) % bw; x <= x1; ++x) {
                    row[x] = 0xFF000000u | (pattern[px] & kRgbMask);
                    if (++px == bw)
                        px = 0;
                }
                return;
            }
            for (int x = x0; x <= x1; ++x) {
                quint32 p = 0;
                if (!source.at(x, s.y, p) && gaps)
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
    const quint8 r = quint8(rop >> 16);
    if (!hasBrush(brush) && usesPattern(r))
        return;
    plot(spans, Source::brush(brush), r);
}

void TCanvas::FillRegion(const QRegion &region, const TBrush &brush)
{
    FillSpans(regionSpans(region), brush, quint32(penRop()) << 16);
}

bool TCanvas::hasBrush(const TBrush &brush) { return brush.Style() != bsClear || !brush.Bitmap().isNull(); }

int TCanvas::penWidth() const { return Pen.Style() == psClear ? 0 : Pen.Width(); }

bool TCanvas::widePen() const { return Pen.Style() != psClear && Pen.Width() > 1; }

// A wide pen is a brush stroke: each segment a band Width pixels across,
// with a round blob (the pen's tip) at every end and joint. The whole outline
// is one region, so raster operations touch each pixel once.
QRegion TCanvas::wideOutline(const Raster::Points &points, bool close) const
{
    Raster::Points pts = points;
    while (pts.size() > 2 && pts[0] == pts[1])
        pts.erase(pts.begin());
    while (pts.size() > 2 && pts[pts.size() - 1] == pts[pts.size() - 2])
        pts.pop_back();
    const int w = Pen.Width();
    // A pen so wide that one tip, wherever on the path, covers the path and
    // the whole picture paints all of the picture: no wider one is drawn.
    if (FImage && !pts.empty()) {
        QRect reach = FImage->rect();
        for (const TPoint &p : pts)
            reach |= QRect(p.X, p.Y, 1, 1);
        if (qint64(w) / 2 > qint64(reach.width()) + reach.height() + 2)
            return QRegion(FImage->rect());
    }
    const QRegion tip = TRegion(Raster::RoundRectRegionSpans(
        -(w / 2), -(w / 2), (w + 1) / 2 + 1, (w + 1) / 2 + 1, w + 1, w + 1)).ToQRegion();
    QRegion out;
    const size_t n = pts.size();
    const size_t segments = close ? n : n - 1;
    for (size_t i = 0; i < n; ++i)
        out += tip.translated(pts[i].X, pts[i].Y);
    for (size_t i = 0; i < segments; ++i) {
        const TPoint p = pts[i], q = pts[(i + 1) % n];
        const int dx = q.X - p.X, dy = q.Y - p.Y;
        if (dx == 0 && dy == 0)
            continue;
        if (dy == 0) {
            out += QRect(std::min(p.X, q.X), p.Y - w / 2, std::abs(dx), w);
        } else if (dx == 0) {
            out += QRect(p.X - w / 2, std::min(p.Y, q.Y), w, std::abs(dy));
        } else {
            // A parallelogram across the line, its half widths rounded so
            // that odd widths are centred and even ones lean up and left.
            const double len = std::hypot(double(dx), double(dy));
            const double wx = w * std::abs(dy) / len, wy = w * std::abs(dx) / len;
            TPoint narrow{int(std::floor(wx / 2 + 0.5)), int(std::floor(wy / 2 + 0.5))};
            TPoint wide{int(std::floor((wx + 1) / 2 + 0.5)), int(std::floor((wy + 1) / 2 + 0.5))};
            if (dx < 0) {
                wide.Y = -wide.Y;
                narrow.Y = -narrow.Y;
            }
            if (dy < 0) {
                std::swap(narrow, wide);
                narrow.X = -narrow.X;
                wide.X = -wide.X;
            }
            const TPoint band[4] = {{p.X - narrow.X, p.Y + narrow.Y}, {p.X + wide.X, p.Y - wide.Y},
                                    {q.X + wide.X, q.Y - wide.Y}, {q.X - narrow.X, q.Y + narrow.Y}};
            out += TRegion(Raster::PolygonSpans(band, 4)).ToQRegion();
        }
    }
    return out;
}

// A one-pixel pen: each segment from its start up to (not including) its
// end; dashes run on along the whole path from where the call began.
void TCanvas::thinLines(const Raster::Points &pts, bool close) { thinLines(pts.data(), pts.size(), close); }

void TCanvas::thinLines(const TPoint *pts, size_t n, bool close)
{
    if (Pen.Style() == psClear || n < 2)
        return;
    const std::vector<int> &pattern = dashPattern(Pen.Style());
    Spans &spans = FScratch;
    spans.clear();
    const auto add = [&](int x, int y) {
        if (!spans.empty() && spans.back().y == y && spans.back().x1 + 1 == x)
            spans.back().x1 = x;
        else
            spans.push_back({y, x, x});
    };
    const size_t segments = close ? n : n - 1;
    if (pattern.empty()) {
        const TRect clip = ClipRect();
        for (size_t i = 0; i < segments; ++i)
            Raster::WalkLine(pts[i], pts[(i + 1) % n], clip, add);
    } else {
        // Dashes count every pixel of the path, shown or not.
        const TRect all = Rect(INT_MIN / 2, INT_MIN / 2, INT_MAX / 2, INT_MAX / 2);
        for (size_t i = 0; i < segments; ++i)
            Raster::WalkLine(pts[i], pts[(i + 1) % n], all, [&](int x, int y) {
                if (dashOn(pattern, FDashPhase++))
                    add(x, y);
            });
    }
    plot(spans, Source::solid(Pen.Color()), penRop());
}

// The shape's inside with the brush and its outline with the pen. A thin pen
// goes over the filled inside; a wide pen's outline is cut out of the inside
// first, so that each pixel is painted once.
void TCanvas::fillAndStroke(const Raster::Points &outline, bool close, const Spans &inside)
{
    FDashPhase = 0;
    const bool brush = hasBrush(Brush);
    if (!widePen()) {
        if (brush)
            plot(inside, Source::brush(Brush), penRop());
        thinLines(outline, close);
        return;
    }
    const QRegion pen = wideOutline(outline, close);
    if (brush)
        plot(regionSpans(TRegion(inside).ToQRegion() - pen), Source::brush(Brush), penRop());
    plot(regionSpans(pen), Source::solid(Pen.Color()), penRop());
}

// An open path with the pen alone: lines, polylines, arcs.
void TCanvas::strokeOpen(const Raster::Points &pts)
{
    FDashPhase = 0;
    if (widePen())
        plot(regionSpans(wideOutline(pts, false)), Source::solid(Pen.Color()), penRop());
    else
        thinLines(pts, false);
}

void TCanvas::LineTo(int x, int y)
{
    const TPoint segment[] = {FPenPos, {x, y}};
    if (!widePen() && Pen.Style() == psSolid) {   // the common case, without a path to build
        FDashPhase = 0;
        thinLines(segment, 2, false);
    } else {
        Polyline(segment, 2);
    }
    FPenPos = {x, y};
}

void TCanvas::Polyline(const TPoint *points, int count)
{
    if (!points || count < 2)
        return;
    strokeOpen(Raster::Points(points, points + count));
}

void TCanvas::Polygon(const TPoint *points, int count)
{
    if (!points || count < 2)
        return;
    fillAndStroke(Raster::Points(points, points + count), true,
                  hasBrush(Brush) ? Raster::PolygonSpans(points, count) : Spans());
}

bool TCanvas::penRect(int x1, int y1, int x2, int y2, TRect &r) const
{
    r = Rect(std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2));
    if (r.Left == r.Right || r.Top == r.Bottom)
        return false;
    if (Pen.Style() == psInsideFrame) {
        // The whole of a wide pen's stroke stays within the bounds.
        r.Left += Pen.Width() / 2;
        r.Top += Pen.Width() / 2;
        r.Right -= (Pen.Width() - 1) / 2;
        r.Bottom -= (Pen.Width() - 1) / 2;
    }
    return true;
}

void TCanvas::Rectangle(int x1, int y1, int x2, int y2)
{
    TRect r;
    if (!penRect(x1, y1, x2, y2, r))
        return;
    --r.Right;
    --r.Bottom;
    // Counter-clockwise from the top right corner.
    const Raster::Points corners{{r.Right, r.Top}, {r.Left, r.Top}, {r.Left, r.Bottom}, {r.Right, r.Bottom}};
    Spans inside;
    if (hasBrush(Brush)) {
        // Inside a thin pen's outline; without a pen the fill stops one pixel
        // short on the right and bottom; a wide pen's outline is cut out later.
        const int w = widePen() ? 0 : penWidth();
        inside = Raster::RectSpans(r.Left + (w + 1) / 2, r.Top + (w + 1) / 2, r.Right - w / 2 - 1, r.Bottom - w / 2 - 1);
    }
    fillAndStroke(corners, true, inside);
}

void TCanvas::Ellipse(int x1, int y1, int x2, int y2)
{
    RoundRect(x1, y1, x2, y2, x2 - x1, y2 - y1);
}

void TCanvas::RoundRect(int x1, int y1, int x2, int y2, int cornerWidth, int cornerHeight)
{
    TRect r;
    if (!penRect(x1, y1, x2, y2, r))
        return;
    const int ew = std::min(r.Width(), std::abs(cornerWidth));
    const int eh = std::min(r.Height(), std::abs(cornerHeight));
    if (ew <= 2 || eh <= 2) {
        Rectangle(x1, y1, x2, y2);
        return;
    }
    fillAndStroke(Raster::RoundRectOutline(r, ew, eh), true,
                  hasBrush(Brush) ? Raster::RoundRectRegionSpans(r.Left, r.Top, r.Right + 1, r.Bottom + 1, ew, eh)
                                  : Spans());
}

// The points of an arc of the ellipse in x1..x2, y1..y2, and the rectangle
// it lies in.
Raster::Points TCanvas::arcPoints(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4, TRect &r) const
{
    if (!penRect(x1, y1, x2, y2, r))
        return {};
    const TPoint centre{r.Left + r.Width() / 2, r.Top + r.Height() / 2};
    return Raster::ArcPoints(r, {x3 - centre.X, y3 - centre.Y}, {x4 - centre.X, y4 - centre.Y});
}

void TCanvas::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    TRect r;
    const Raster::Points pts = arcPoints(x1, y1, x2, y2, x3, y3, x4, y4, r);
    if (pts.size() >= 2)
        strokeOpen(pts);
}

void TCanvas::Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    TRect r;
    Raster::Points pts = arcPoints(x1, y1, x2, y2, x3, y3, x4, y4, r);
    if (pts.empty())
        return;
    pts.push_back({r.Left + r.Width() / 2, r.Top + r.Height() / 2});
    fillAndStroke(pts, true,
                  hasBrush(Brush) ? Raster::PolygonSpans(pts.data(), int(pts.size()), true) : Spans());
}

void TCanvas::FillRect(const TRect &r)
{
    PatBlt(r.Left, r.Top, r.Right - r.Left, r.Bottom - r.Top, PATCOPY);
}

void TCanvas::FrameRect(const TRect &r)
{
    if (r.IsEmpty())
        return;
    PatBlt(r.Left, r.Top, 1, r.Height(), PATCOPY);
    PatBlt(r.Right - 1, r.Top, 1, r.Height(), PATCOPY);
    PatBlt(r.Left, r.Top, r.Width(), 1, PATCOPY);
    PatBlt(r.Left, r.Bottom - 1, r.Width(), 1, PATCOPY);
}

void TCanvas::DrawFocusRect(const TRect &r)
{
    if (r.IsEmpty())
        return;
    Spans dots;
    const auto dot = [&](int x, int y) {
        if (((x + y) & 1) == 0)
            dots.push_back({y, x, x});
    };
    for (int y = r.Top; y < r.Bottom; ++y) {
        const bool edge = y == r.Top || y == r.Bottom - 1;
        for (int x = r.Left; x < r.Right; ++x)
            if (edge || x == r.Left || x == r.Right - 1)
                dot(x, y);
    }
    plot(dots, Source::solid(clWhite), 0x5A);   // pattern XOR destination
}

void TCanvas::PatBlt(int x, int y, int width, int height, TCopyMode rop)
{
    // A negative extent counts back from the pixel after the start point.
    int l = x, r = x + width, t = y, b = y + height;
    if (l > r) {
        std::swap(l, r);
        ++l;
        ++r;
    }
    if (t > b) {
        std::swap(t, b);
        ++t;
        ++b;
    }
    if (l == r || t == b)
        return;
    if (quint8(rop >> 16) == 0xF0 && FImage && FClip.isEmpty() && Brush.Style() == bsSolid && Brush.Bitmap().isNull()) {
        // One colour over a rectangle: straight into the rows.
        const QRect area = QRect(l, t, r - l, b - t) & FImage->rect();
        if (area.isEmpty())
            return;
        const QRgb colour = 0xFF000000u | Source::solid(Brush.Color()).color;
        uchar *const bits = FImage->bits();
        for (int row = area.top(); row <= area.bottom(); ++row) {
            auto *line = reinterpret_cast<QRgb *>(bits + row * FImage->bytesPerLine());
            std::fill(line + area.left(), line + area.right() + 1, colour);
        }
        return;
    }
    FillSpans(Raster::RectSpans(l, t, r - 1, b - 1), Brush, rop);
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
    if (rop == 0xCC && dw == sw && dh == sh && dw > 0 && dh > 0 && FClip.isEmpty()) {
        // A plain copy at the same size: row by row.
        const int x0 = std::max({0, dx0, dx0 - sx0}), x1 = std::min({FImage->width(), dx0 + dw, dx0 - sx0 + rgb.width()});
        const int y0 = std::max({0, dy0, dy0 - sy0}), y1 = std::min({FImage->height(), dy0 + dh, dy0 - sy0 + rgb.height()});
        const bool opaque = rgb.format() == QImage::Format_RGB32;   // already 0xFFrrggbb
        for (int y = y0; y < y1; ++y) {
            const auto *from = reinterpret_cast<const QRgb *>(rgb.constScanLine(y - dy0 + sy0)) + (x0 - dx0 + sx0);
            auto *row = reinterpret_cast<QRgb *>(FImage->scanLine(y)) + x0;
            if (opaque && x1 > x0) {
                std::memcpy(row, from, size_t(x1 - x0) * sizeof(QRgb));
                continue;
            }
            for (int x = x0; x < x1; ++x)
                *row++ = 0xFF000000u | (*from++ & kRgbMask);
        }
        return;
    }
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

void TCanvas::CopySpans(const Spans &spans, const QImage &source)
{
    if (!FImage || source.isNull())
        return;
    const int w = std::min(FImage->width(), source.width()), h = std::min(FImage->height(), source.height());
    for (const Span &s : spans) {
        if (s.y < 0 || s.y >= h)
            continue;
        const int x0 = std::max(s.x0, 0), x1 = std::min(s.x1, w - 1);
        const auto *from = reinterpret_cast<const QRgb *>(source.constScanLine(s.y));
        auto *row = reinterpret_cast<QRgb *>(FImage->scanLine(s.y));
        for (int x = x0; x <= x1; ++x)
            row[x] = 0xFF000000u | (from[x] & kRgbMask);
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
    // One line wins over word breaks, as the platform's DrawText has it.
    const bool wrap = (flags & DT_WORDBREAK) && !(flags & DT_SINGLELINE);
    if (wrap)
        qt |= Qt::TextWordWrap;
    if (flags & DT_EXPANDTABS)
        qt |= Qt::TextExpandTabs;
    if (flags & DT_NOCLIP)
        qt |= Qt::TextDontClip;
    qt |= (flags & DT_NOPREFIX) ? 0 : Qt::TextShowMnemonic;

    QString shown = text;
    if ((flags & DT_END_ELLIPSIS) && (flags & DT_SINGLELINE))
        shown = fm.elidedText(text, Qt::ElideRight, r.Width(), qt);
    const auto draw = [&](QRect *drawn) {
        QPainter p(FImage);
        QRegion clip = (flags & DT_NOCLIP) ? QRegion(FImage->rect()) : QRegion(ToQRect(r));
        if (!FClip.isEmpty())
            clip &= FClip;
        p.setClipRegion(clip);
        p.setFont(font);
        p.setPen(ColorToQColor(Font.Color()));
        p.drawText(ToQRect(r), qt, shown, drawn);
    };
    if (!(flags & DT_CALCRECT) && FImage && (Brush.Style() != bsSolid || !Brush.Bitmap().isNull())) {
        // No background to fill first: lay the text out once, while drawing.
        QRect drawn;
        draw(&drawn);
        return shown.isEmpty() ? 0 : drawn.height();
    }

    const int wrapWidth = wrap ? std::max(r.Width(), 1) : 1 << 20;
    const QRect measured = fm.boundingRect(QRect(r.Left, r.Top, wrapWidth, 1 << 20), qt & ~(Qt::AlignVCenter | Qt::AlignBottom), shown);
    const int height = shown.isEmpty() ? 0 : measured.height();
    if (flags & DT_CALCRECT) {
        r.Right = r.Left + (shown.isEmpty() ? 0 : measured.width());
        r.Bottom = r.Top + height;
        return height;
    }
    if (!FImage)
        return height;
    textBackground(alignedBox(ToQRect(r), qt, QSize(measured.width(), height)));
    draw(nullptr);
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
    // Each round frames the rectangle one pixel further in: once nothing is
    // left inside, more rounds have nothing left to frame.
    width = int(std::min<qint64>(width, (std::min<qint64>(qint64(r.Right) - r.Left, qint64(r.Bottom) - r.Top) + 1) / 2 + 1));
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

void PaintDesignOutline(TCanvas &canvas, int w, int h)
{
    const TPenStyle pen = canvas.Pen.Style();
    const TBrushStyle brush = canvas.Brush.Style();
    canvas.Pen.SetStyle(psDash);
    canvas.Brush.SetStyle(bsClear);
    canvas.Rectangle(0, 0, w, h);
    canvas.Pen.SetStyle(pen);
    canvas.Brush.SetStyle(brush);
}
