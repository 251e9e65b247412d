#include "tregion.h"

#include <algorithm>

TRegion::TRegion(const Raster::Spans &spans)
{
    std::vector<QRect> rects;
    rects.reserve(spans.size());
    for (const Raster::Span &s : spans)
        if (s.x1 >= s.x0)
            rects.emplace_back(s.x0, s.y, s.x1 - s.x0 + 1, 1);
    FRegion.setRects(rects.data(), int(rects.size()));
}

TRegion CreateRectRgn(int x1, int y1, int x2, int y2)
{
    if (x2 < x1) std::swap(x1, x2);
    if (y2 < y1) std::swap(y1, y2);
    return TRegion(QRegion(x1, y1, x2 - x1, y2 - y1));
}

TRegion CreateEllipticRgn(int x1, int y1, int x2, int y2)
{
    return TRegion(Raster::RoundRectRegionSpans(x1, y1, x2, y2, x2 - x1, y2 - y1));
}

TRegion CreateRoundRectRgn(int x1, int y1, int x2, int y2, int cornerWidth, int cornerHeight)
{
    return TRegion(Raster::RoundRectRegionSpans(x1, y1, x2, y2, cornerWidth, cornerHeight));
}

TRegion CreatePolygonRgn(const TPoint *points, int count)
{
    return TRegion(Raster::PolygonSpans(points, count));
}

TRegion CreatePolyPolygonRgn(const std::vector<std::vector<TPoint>> &polygons)
{
    return TRegion(Raster::PolyPolygonSpans(polygons));
}

TRegion CombineRgn(const TRegion &a, const TRegion &b, TCombineMode mode)
{
    const QRegion &qa = a.ToQRegion(), &qb = b.ToQRegion();
    switch (mode) {
    case RGN_AND: return TRegion(qa & qb);
    case RGN_OR: return TRegion(qa | qb);
    case RGN_XOR: return TRegion(qa ^ qb);
    case RGN_DIFF: return TRegion(qa - qb);
    case RGN_COPY: return a;
    }
    return a;
}

TRegion OffsetRgn(const TRegion &r, int dx, int dy)
{
    return TRegion(r.ToQRegion().translated(dx, dy));
}

bool PtInRegion(const TRegion &r, int x, int y)
{
    return r.ToQRegion().contains(QPoint(x, y));
}

void FillRgn(TCanvas &canvas, const TRegion &r, const TBrush &brush)
{
    canvas.FillRegion(r.ToQRegion(), brush);
}

void PaintRgn(TCanvas &canvas, const TRegion &r)
{
    FillRgn(canvas, r, canvas.Brush);
}

void FrameRgn(TCanvas &canvas, const TRegion &r, const TBrush &brush, int width, int height)
{
    const QRegion &q = r.ToQRegion();
    // What stays inside after moving the region by the frame size in each
    // direction is the part the frame does not cover.
    const QRegion inner = q & q.translated(width, 0) & q.translated(-width, 0)
                          & q.translated(0, height) & q.translated(0, -height);
    FillRgn(canvas, TRegion(q - inner), brush);
}
