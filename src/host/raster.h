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
// Calls visit(x, y) for each of those pixels in order, without collecting them.
template <class Visit>
void WalkLine(TPoint a, TPoint b, const TRect &clip, Visit visit);

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

template <class Visit>
void WalkLine(TPoint a, TPoint b, const TRect &clip, Visit visit)
{
    if (clip.IsEmpty())
        return;
    const long long dx = (long long)b.X - a.X, dy = (long long)b.Y - a.Y;
    int octant;
    if (dy > 0)
        octant = dx > 0 ? (dx > dy ? 1 : 2) : (-dx > dy ? 4 : 3);
    else
        octant = dx < 0 ? (-dx > -dy ? 5 : 6) : (dx > -dy ? 8 : 7);
    const long long bias = (octant == 3 || octant == 5 || octant == 6 || octant == 8) ? 1 : 0;
    const bool xMajor = octant == 1 || octant == 4 || octant == 5 || octant == 8;
    const long long major = xMajor ? (dx < 0 ? -dx : dx) : (dy < 0 ? -dy : dy);
    const long long minor = xMajor ? (dy < 0 ? -dy : dy) : (dx < 0 ? -dx : dx);
    const long long sx = (octant == 1 || octant == 2 || octant == 7 || octant == 8) ? 1 : -1;
    const long long sy = octant <= 4 ? 1 : -1;
    if (major == 0)
        return;
    // The steps whose major coordinate lies inside the clip.
    const long long start = xMajor ? a.X : a.Y, step = xMajor ? sx : sy;
    const long long lo = xMajor ? clip.Left : clip.Top, hi = (xMajor ? clip.Right : clip.Bottom) - 1;
    long long first = step > 0 ? lo - start : start - hi;
    long long last = step > 0 ? hi - start : start - lo;
    if (first < 0)
        first = 0;
    if (last > major - 1)
        last = major - 1;
    if (first > last)
        return;
    // The walk's state after `first` steps: its minor offset and error.
    long long m = (2 * minor * first + major + bias - 1) / (2 * major);
    long long err = 2 * minor - major + 2 * minor * first - 2 * major * m;
    long long x = xMajor ? a.X + sx * first : a.X + sx * m;
    long long y = xMajor ? a.Y + sy * m : a.Y + sy * first;
    for (long long i = first; i <= last; ++i) {
        if (x >= clip.Left && x < clip.Right && y >= clip.Top && y < clip.Bottom)
            visit(int(x), int(y));
        const bool stepMinor = err + bias > 0;
        err += stepMinor ? 2 * minor - 2 * major : 2 * minor;
        if (xMajor) {
            x += sx;
            if (stepMinor)
                y += sy;
        } else {
            y += sy;
            if (stepMinor)
                x += sx;
        }
    }
}

} // namespace Raster
