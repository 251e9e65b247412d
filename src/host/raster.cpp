#include "raster.h"

#include <algorithm>
#include <cmath>

namespace Raster {

namespace {

constexpr double kEps = 1e-9;
constexpr double kTwoPi = 6.283185307179586476925286766559;

// Floor and ceiling of n / d for d > 0, exactly.
long long floorDiv(long long n, long long d) { return n >= 0 ? n / d : -((-n + d - 1) / d); }
long long ceilDiv(long long n, long long d) { return -floorDiv(-n, d); }

// Half the extent of an ellipse row (or column) at offset `off` from the centre.
double halfChord(double radius, double otherRadius, double off)
{
    if (otherRadius <= 0)
        return radius;
    const double t = off / otherRadius;
    return radius * std::sqrt(std::max(0.0, 1.0 - t * t));
}

// Pixels p with |2p - twiceCentre| <= 2 * half + 1: those nearest the chord.
void chordRange(int twiceCentre, double half, int &lo, int &hi)
{
    const double lim = 2.0 * half + 1.0 + kEps;
    lo = int(std::ceil((twiceCentre - lim) / 2.0));
    hi = int(std::floor((twiceCentre + lim) / 2.0));
}

} // namespace

std::vector<TPoint> LinePoints(TPoint a, TPoint b)
{
    std::vector<TPoint> out;
    int dx = std::abs(b.X - a.X), dy = -std::abs(b.Y - a.Y);
    const int sx = a.X < b.X ? 1 : -1, sy = a.Y < b.Y ? 1 : -1;
    int err = dx + dy;
    int x = a.X, y = a.Y;
    out.reserve(size_t(std::max(dx, -dy)));
    while (x != b.X || y != b.Y) {
        out.push_back({x, y});
        const int e2 = 2 * err;
        if (e2 >= dy) { err += dy; x += sx; }
        if (e2 <= dx) { err += dx; y += sy; }
    }
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

Spans EllipseSpans(int left, int top, int right, int bottom)
{
    Spans out;
    if (right < left || bottom < top)
        return out;
    const int cx2 = left + right, cy2 = top + bottom;
    const double ra = (right - left) / 2.0, rb = (bottom - top) / 2.0;
    out.reserve(size_t(bottom - top + 1));
    // Rows give the flat parts of the curve, columns the steep ones; the
    // union of both keeps the outline closed at any aspect ratio.
    for (int y = top; y <= bottom; ++y) {
        Span s{y, 0, 0};
        chordRange(cx2, halfChord(ra, rb, y - cy2 / 2.0), s.x0, s.x1);
        out.push_back(s);
    }
    for (int x = left; x <= right; ++x) {
        int y0, y1;
        chordRange(cy2, halfChord(rb, ra, x - cx2 / 2.0), y0, y1);
        for (int y = std::max(y0, top); y <= std::min(y1, bottom); ++y) {
            Span &s = out[size_t(y - top)];
            s.x0 = std::min(s.x0, x);
            s.x1 = std::max(s.x1, x);
        }
    }
    for (Span &s : out) {
        s.x0 = std::max(s.x0, left);
        s.x1 = std::min(s.x1, right);
    }
    return out;
}

Spans RoundRectSpans(int left, int top, int right, int bottom, int cornerWidth, int cornerHeight)
{
    Spans out;
    if (right < left || bottom < top)
        return out;
    const int w = std::clamp(cornerWidth, 0, right - left + 1);
    const int h = std::clamp(cornerHeight, 0, bottom - top + 1);
    const Spans corner = (w > 1 && h > 1) ? EllipseSpans(0, 0, w - 1, h - 1) : Spans();
    const int cornerRows = corner.empty() ? 0 : (h + 1) / 2;
    for (int y = top; y <= bottom; ++y) {
        int inset = 0;
        if (y - top < cornerRows)
            inset = std::max(inset, corner[size_t(y - top)].x0);
        if (bottom - y < cornerRows)
            inset = std::max(inset, corner[size_t(bottom - y)].x0);
        out.push_back({y, left + inset, right - inset});
    }
    return out;
}

void SplitOutline(const Spans &shape, Spans &outline, Spans &interior)
{
    outline.clear();
    interior.clear();
    for (size_t i = 0; i < shape.size(); ++i) {
        const Span &s = shape[i];
        const bool hasPrev = i > 0 && shape[i - 1].y == s.y - 1;
        const bool hasNext = i + 1 < shape.size() && shape[i + 1].y == s.y + 1;
        int in0 = s.x0 + 1, in1 = s.x1 - 1;
        if (hasPrev && hasNext) {
            in0 = std::max({in0, shape[i - 1].x0, shape[i + 1].x0});
            in1 = std::min({in1, shape[i - 1].x1, shape[i + 1].x1});
        }
        if (!hasPrev || !hasNext || in0 > in1) {
            outline.push_back(s);
            continue;
        }
        outline.push_back({s.y, s.x0, in0 - 1});
        interior.push_back({s.y, in0, in1});
        outline.push_back({s.y, in1 + 1, s.x1});
    }
}

Spans Outline(const Spans &shape)
{
    Spans outline, interior;
    SplitOutline(shape, outline, interior);
    return outline;
}

Spans Subtract(const Spans &shape, const Spans &hole)
{
    Spans out;
    size_t h = 0;
    for (const Span &s : shape) {
        while (h < hole.size() && hole[h].y < s.y)
            ++h;
        if (h >= hole.size() || hole[h].y != s.y || hole[h].x1 < s.x0 || hole[h].x0 > s.x1) {
            out.push_back(s);
            continue;
        }
        if (hole[h].x0 > s.x0)
            out.push_back({s.y, s.x0, hole[h].x0 - 1});
        if (hole[h].x1 < s.x1)
            out.push_back({s.y, hole[h].x1 + 1, s.x1});
    }
    return out;
}

double RayAngle(double cx, double cy, double x, double y)
{
    double a = std::atan2(cy - y, x - cx);
    if (a < 0)
        a += kTwoPi;
    return a;
}

bool InSweep(double a, double from, double to)
{
    double sweep = std::fmod(to - from + 2 * kTwoPi, kTwoPi);
    if (sweep < kEps)
        return true;
    const double d = std::fmod(a - from + 2 * kTwoPi, kTwoPi);
    return d <= sweep + kEps;
}

} // namespace Raster
