#pragma once
// Regions: sets of whole pixels, made from the same shapes the canvas draws.
// A rectangle region covers left..right-1 and top..bottom-1; a region is a
// value and frees itself.

#include "tcanvas.h"

#include <QRegion>

#include <vector>

class TRegion
{
public:
    TRegion() = default;
    explicit TRegion(const QRegion &r) : FRegion(r) {}
    explicit TRegion(const Raster::Spans &spans);

    const QRegion &ToQRegion() const { return FRegion; }
    bool IsEmpty() const { return FRegion.isEmpty(); }
    TRect BoundingBox() const { return FromQRect(FRegion.boundingRect()); }

private:
    QRegion FRegion;
};

enum TCombineMode { RGN_AND = 1, RGN_OR, RGN_XOR, RGN_DIFF, RGN_COPY };

TRegion CreateRectRgn(int x1, int y1, int x2, int y2);
TRegion CreateEllipticRgn(int x1, int y1, int x2, int y2);
TRegion CreateRoundRectRgn(int x1, int y1, int x2, int y2, int cornerWidth, int cornerHeight);
// Even-odd filling, as the platform's alternate mode.
TRegion CreatePolygonRgn(const TPoint *points, int count);
TRegion CreatePolyPolygonRgn(const std::vector<std::vector<TPoint>> &polygons);

TRegion CombineRgn(const TRegion &a, const TRegion &b, TCombineMode mode);
TRegion OffsetRgn(const TRegion &r, int dx, int dy);
bool PtInRegion(const TRegion &r, int x, int y);

// Fills the region with the canvas's brush.
void PaintRgn(TCanvas &canvas, const TRegion &r);
void FillRgn(TCanvas &canvas, const TRegion &r, const TBrush &brush);
// A border `width` pixels wide and `height` pixels high inside the region's edge.
void FrameRgn(TCanvas &canvas, const TRegion &r, const TBrush &brush, int width, int height);
