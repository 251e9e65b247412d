#include "raster.h"

#include <algorithm>
#include <climits>
#include <cstdlib>

namespace Raster {

namespace {

// Floor and ceiling of n / d for d > 0, exactly.
long long floorDiv(long long n, long long d) { return n >= 0 ? n / d : -((-n + d - 1) / d); }
long long ceilDiv(long long n, long long d) { return -floorDiv(-n, d); }

} // namespace

Points LinePoints(TPoint a, TPoint b)
{
    Points out;
    WalkLine(a, b, Rect(INT_MIN / 2, INT_MIN / 2, INT_MAX / 2, INT_MAX / 2), [&](int x, int y) { out.push_back({x, y}); });
    return out;
}

Points LinePoints(TPoint a, TPoint b, const TRect &clip)
{
    Points out;
    WalkLine(a, b, clip, [&](int x, int y) { out.push_back({x, y}); });
    return out;
}

namespace {

struct Edge { TPoint top; TPoint bottom; int dir; };

void addEdges(std::vector<Edge> &edges, const TPoint *points, int count)
{
    for (int i = 0; i < count; ++i) {
        const TPoint p = points[i], q = points[(i + 1) % count];
        if (p.Y < q.Y)
            edges.push_back({p, q, 1});
        else if (p.Y > q.Y)
            edges.push_back({q, p, -1});
    }
}

Spans fillEdges(const std::vector<Edge> &edges, bool winding)
{
    Spans out;
    if (edges.empty())
        return out;
    int minY = edges[0].top.Y, maxY = edges[0].bottom.Y;
    for (const Edge &e : edges) {
        minY = std::min(minY, e.top.Y);
        maxY = std::max(maxY, e.bottom.Y);
    }
    struct Crossing { int x; int dir; };
    std::vector<Crossing> xs;
    for (int y = minY; y < maxY; ++y) {
        xs.clear();
        for (const Edge &e : edges) {
            if (y < e.top.Y || y >= e.bottom.Y)
                continue;
            // First pixel at or right of the crossing.
            const long long n = (long long)(y - e.top.Y) * (e.bottom.X - e.top.X);
            xs.push_back({int(e.top.X + ceilDiv(n, e.bottom.Y - e.top.Y)), e.dir});
        }
        std::sort(xs.begin(), xs.end(), [](const Crossing &a, const Crossing &b) { return a.x < b.x; });
        int wind = 0;
        for (size_t k = 0; k + 1 < xs.size(); ++k) {
            wind += winding ? xs[k].dir : 1;
            const bool inside = winding ? wind != 0 : (wind & 1);
            if (!inside || xs[k + 1].x <= xs[k].x)
                continue;
            if (!out.empty() && out.back().y == y && out.back().x1 + 1 >= xs[k].x)
                out.back().x1 = std::max(out.back().x1, xs[k + 1].x - 1);
            else
                out.push_back({y, xs[k].x, xs[k + 1].x - 1});
        }
    }
    return out;
}

} // namespace

Spans PolygonSpans(const TPoint *points, int count, bool winding)
{
    std::vector<Edge> edges;
    if (points && count >= 2)
        addEdges(edges, points, count);
    return fillEdges(edges, winding);
}

Spans PolyPolygonSpans(const std::vector<std::vector<TPoint>> &polygons, bool winding)
{
    std::vector<Edge> edges;
    for (const auto &poly : polygons)
        if (poly.size() >= 2)
            addEdges(edges, poly.data(), int(poly.size()));
    return fillEdges(edges, winding);
}

Spans RectSpans(int left, int top, int right, int bottom)
{
    Spans out;
    if (right < left)
        return out;
    out.reserve(size_t(std::max(0, bottom - top + 1)));
    for (int y = top; y <= bottom; ++y)
        out.push_back({y, left, right});
    return out;
}

Points EllipseQuadrant(int width, int height)
{
    // Midpoint walk after Alois Zingl's ellipse through pixel centres, in
    // 64-bit integers so large ellipses stay exact.
    const long long a = width - 1, b = height - 1;
    const long long asq = 8 * a * a, bsq = 8 * b * b;
    long long dx = 4 * b * b * (1 - a);
    long long dy = 4 * a * a * (1 + (b % 2));
    long long err = dx + dy + a * a * (b % 2);
    Points out;
    TPoint p{width - 1, height / 2};
    while (p.X >= width / 2) {
        const long long e2 = 2 * err;
        out.push_back(p);
        if (e2 >= dx) {
            --p.X;
            dx += bsq;
            err += dx;
        }
        if (e2 <= dy) {
            ++p.Y;
            dy += asq;
            err += dy;
        }
    }
    return out;
}

Points RoundRectOutline(const TRect &r, int cornerWidth, int cornerHeight)
{
    // The top right corner, walked upwards from its right end...
    Points pts = EllipseQuadrant(cornerWidth, cornerHeight);
    for (TPoint &p : pts)
        p = {r.Right - cornerWidth + p.X, r.Top + cornerHeight - 1 - p.Y};
    // ...mirrored to the left, then the top half mirrored downwards. Where the
    // corner is the whole width or height and odd, the middle point is shared.
    for (int pass = 0; pass < 2; ++pass) {
        const int count = int(pts.size());
        const bool horizontal = pass == 0;
        const int corner = horizontal ? cornerWidth : cornerHeight;
        const int extent = horizontal ? r.Width() : r.Height();
        const int end = 2 * count - 1 - ((corner % 2 && corner == extent) ? 1 : 0);
        pts.resize(size_t(end + 1));
        for (int i = 0; i < count; ++i) {
            const TPoint p = pts[size_t(i)];
            pts[size_t(end - i)] = horizontal ? TPoint{r.Left + r.Right - 1 - p.X, p.Y}
                                              : TPoint{p.X, r.Top + r.Bottom - 1 - p.Y};
        }
    }
    return pts;
}

Spans RoundRectRegionSpans(int left, int top, int right, int bottom, int cornerWidth, int cornerHeight)
{
    if (left > right) std::swap(left, right);
    if (top > bottom) std::swap(top, bottom);
    // The region covers the rectangle one pixel smaller on the right and bottom.
    --right;
    --bottom;
    const int ew = std::min(right - left, std::abs(cornerWidth));
    const int eh = std::min(bottom - top, std::abs(cornerHeight));
    if (ew < 2 || eh < 2) {
        // A plain rectangle; one that shrank past nothing turns round, so a
        // region made from equal bounds still covers the pixel before them.
        return RectSpans(std::min(left, right), std::min(top, bottom), std::max(left, right) - 1,
                         std::max(top, bottom) - 1);
    }

    // Insets of the corner rows from the middle row outwards, by the same walk
    // as EllipseQuadrant seen from the other side.
    std::vector<int> inset(size_t(eh), 0);
    const long long a = ew - 1, b = eh - 1;
    const long long asq = 8 * a * a, bsq = 8 * b * b;
    long long dx = 4 * b * b * (1 - a);
    long long dy = 4 * a * a * (1 + (b % 2));
    long long err = dx + dy + a * a * (b % 2);
    int x = 0, y = eh / 2;
    while (x <= ew / 2) {
        const long long e2 = 2 * err;
        if (e2 >= dx) {
            ++x;
            dx += bsq;
            err += dx;
        }
        if (e2 <= dy) {
            ++y;
            dy += asq;
            err += dy;
            if (y < eh)
                inset[size_t(y)] = x;
        }
    }
    Spans out;
    out.reserve(size_t(bottom - top));
    for (int i = 0; i < eh / 2; ++i)
        out.push_back({top + i, left + inset[size_t(b - i)], right - 1 - inset[size_t(b - i)]});
    // The middle row of the corner stretches over the straight sides.
    for (int row = top + eh / 2; row <= bottom - eh + eh / 2; ++row)
        out.push_back({row, left, right - 1});
    for (int i = eh / 2 + 1; i < eh; ++i)
        out.push_back({bottom - eh + i, left + inset[size_t(i)], right - 1 - inset[size_t(i)]});
    return out;
}

namespace {

// Where the ray from the centre through (x, y) (y upwards in the walk's
// frame) meets the sequence of four mirrored quadrants of `q`.
int rayIndex(const Points &q, int x, int y)
{
    const int count = int(q.size());
    int i = 0;
    if (y >= 0) {
        if (x >= 0) {
            while (i < count && !((long long)q[size_t(i)].X * y <= (long long)q[size_t(i)].Y * x)) ++i;
            return i;
        }
        while (i < count && !((long long)q[size_t(i)].X * y < (long long)q[size_t(i)].Y * -x)) ++i;
        return 2 * count - i;
    }
    if (x >= 0) {
        while (i < count && !((long long)q[size_t(i)].X * -y <= (long long)q[size_t(i)].Y * x)) ++i;
        return 4 * count - i;
    }
    while (i < count && !((long long)q[size_t(i)].X * -y < (long long)q[size_t(i)].Y * -x)) ++i;
    return 2 * count + i;
}

} // namespace

Points ArcPoints(const TRect &r, TPoint start, TPoint end)
{
    const int w = r.Width(), h = r.Height();
    Points q = EllipseQuadrant(w, h);
    for (TPoint &p : q)
        p = {p.X - w / 2, p.Y - h / 2};
    const int count = int(q.size());
    if (count == 0)
        return {};
    // Counter-clockwise on the screen is clockwise with y turned upwards.
    const int from = rayIndex(q, start.X, -start.Y);
    int to = rayIndex(q, end.X, -end.Y);
    if (to <= from)
        to += 4 * count;
    Points out;
    out.reserve(size_t(to - from));
    for (int i = from; i < to; ++i) {
        const int k = i % count;
        const TPoint a = q[size_t(k)], m = q[size_t(count - 1 - k)];
        switch ((i / count) % 4) {
        case 0: out.push_back({r.Left + w / 2 + a.X, r.Bottom - 1 - h / 2 - a.Y}); break;
        case 1: out.push_back({r.Right - 1 - w / 2 - m.X, r.Bottom - 1 - h / 2 - m.Y}); break;
        case 2: out.push_back({r.Right - 1 - w / 2 - a.X, r.Top + h / 2 + a.Y}); break;
        default: out.push_back({r.Left + w / 2 + m.X, r.Top + h / 2 + m.Y}); break;
        }
    }
    return out;
}

} // namespace Raster
