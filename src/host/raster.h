#pragma once
// The pixel geometry of the drawing primitives, as plain functions: which
// pixels a line covers, the traced outline of an ellipse or rounded corner,
// the rows of a polygon or elliptic region. The canvas strokes and fills
// these; regions are built from them; tests check them directly.

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
using Points = std::vector<TPoint>;

// The pixels of a one-pixel line from a towards b, b itself left out.
// Bresenham with the error starting at 2 * minor - major; in the octants that
// run against the axes the minor step waits for a strictly positive error, so
// a line covers the same pixels whichever way it is drawn.
Points LinePoints(TPoint a, TPoint b);
// The same pixels, only those inside `clip`: a line reaching far outside
// costs no more than the part that shows.
Points LinePoints(TPoint a, TPoint b, const TRect &clip);

// The interior of a polygon: pixel (x, y) is inside when the point (x, y)
// lies inside the outline, with points on a left or top edge inside and on
// a right or bottom edge outside. Alternate (even-odd) or winding rule.
Spans PolygonSpans(const TPoint *points, int count, bool winding = false);

// Several polygons filled as one: a pixel is inside when the crossings of
// all their edges together say so (even-odd, or winding).
Spans PolyPolygonSpans(const std::vector<Points> &polygons, bool winding = false);

// Rows top..bottom of the columns left..right (all included).
Spans RectSpans(int left, int top, int right, int bottom);

// One quadrant of an ellipse `width` by `height` pixels, traced by an
// integer midpoint walk through the pixel centres: from (width - 1, height / 2)
// to (width / 2, height - 1), each point a king's move from the last.
Points EllipseQuadrant(int width, int height);

// The closed outline of a rounded rectangle covering the pixels
// r.Left..r.Right-1 and r.Top..r.Bottom-1, with corners `cornerWidth` by
// `cornerHeight` (at least 3, at most the rectangle), counter-clockwise from
// the top right corner. An ellipse is the rounded rectangle whose corners are
// the whole rectangle.
Points RoundRectOutline(const TRect &r, int cornerWidth, int cornerHeight);

// The rows of an elliptic or rounded-rectangle region made from the bounds
// left, top, right, bottom (exclusive, in any order): the same pixels the
// outline above and its inside cover for the rectangle one smaller.
Spans RoundRectRegionSpans(int left, int top, int right, int bottom, int cornerWidth, int cornerHeight);

// The traced points of the ellipse in r (as RoundRectOutline) counter-clockwise
// from the ray through `start` to the ray through `end`, both given relative
// to the ellipse centre (r.Left + w / 2, r.Top + h / 2). Equal rays give the
// whole ellipse.
Points ArcPoints(const TRect &r, TPoint start, TPoint end);

} // namespace Raster
