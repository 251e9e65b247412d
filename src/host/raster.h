#pragma once
// The pixel geometry of the drawing primitives, as plain functions: which
// pixels a line, polygon, ellipse or rounded rectangle covers. The canvas
// paints these sets; regions are built from them; tests check them directly.

#include "ttypes.h"

#include <vector>

namespace Raster {

// A run of pixels x0..x1 (both included) on row y.
struct Span
{
    int y;
    int x0;
    int x1;
};
using Spans = std::vector<Span>;

// The points of a one-pixel line from a towards b, b itself left out.
std::vector<TPoint> LinePoints(TPoint a, TPoint b);

// The interior of a polygon: pixel (x, y) is inside when the point (x, y)
// lies inside the outline, with points on a left or top edge inside and on
// a right or bottom edge outside. Alternate (even-odd) or winding rule.
Spans PolygonSpans(const TPoint *points, int count, bool winding = false);

// Several polygons filled as one: a pixel is inside when the crossings of
// all their edges together say so (even-odd, or winding).
Spans PolyPolygonSpans(const std::vector<std::vector<TPoint>> &polygons, bool winding = false);

// An ellipse that touches the pixels left..right and top..bottom (all
// included): one run a row, symmetric about both axes.
Spans EllipseSpans(int left, int top, int right, int bottom);

// A rectangle left..right, top..bottom (included) whose corners are
// quarters of an ellipse cornerWidth by cornerHeight pixels.
Spans RoundRectSpans(int left, int top, int right, int bottom, int cornerWidth, int cornerHeight);

// The pixels of a shape with one run a row that have a neighbour above,
// below, left or right outside the shape: its one-pixel outline.
Spans Outline(const Spans &shape);
// The same outline, and what it encloses.
void SplitOutline(const Spans &shape, Spans &outline, Spans &interior);

// The pixels of `shape` not in `hole` (both with at most one run a row).
Spans Subtract(const Spans &shape, const Spans &hole);

// Angle of the ray from the centre (cx, cy) through (x, y), counter-clockwise
// from the positive x axis with y growing downwards, in [0, 2pi).
double RayAngle(double cx, double cy, double x, double y);

// True when angle a lies on the counter-clockwise sweep from `from` to `to`;
// equal rays sweep the full circle.
bool InSweep(double a, double from, double to);

} // namespace Raster
