#include "qslidethumbs.h"

#include "host/tbitmap.h"

#include <functional>

#include <vector>

namespace {

// Style ordinals, as the slide bar numbers them.
enum Style {
    HorzHigh, VertHigh, HorzLow, VertLow, Square, Squarehollow, Left, Right, Top, Bottom, Round, HorzRound,
    SquarehollowHorz, SquarehollowVert, SquarehollowHLine, SquarehollowVLine
};

// An image and its mask being drawn: the mask starts all black (every
// pixel opaque) and the image all face colour.
struct Builder
{
    TBitmap thumb;
    TBitmap mask;
    TColor face;

    Builder(int w, int h, TColor faceColor) : thumb(w, h), mask(w, h), face(faceColor)
    {
        DoMask();
        TCanvas &c = thumb.Canvas();
        c.Pen.SetColor(face);
        c.Brush.SetColor(face);
        c.FillRect(Rect(0, 0, w, h));
    }
    void DoMask()
    {
        TCanvas &m = mask.Canvas();
        m.Pen.SetColor(clBlack);
        m.Brush.SetColor(clBlack);
        m.FillRect(Rect(0, 0, mask.Width(), mask.Height()));
    }
    void line(TColor color, std::initializer_list<TPoint> points)
    {
        TCanvas &c = thumb.Canvas();
        c.Pen.SetColor(color);
        c.Polyline(std::vector<TPoint>(points));
    }
    // Makes everything outside the shape `draw` paints transparent: white
    // in the mask, black in the image.
    void cutTo(const std::function<void(TCanvas &)> &draw)
    {
        const auto cut = [&](TCanvas &c, TColor outside, TColor inside) {
            c.Pen.SetColor(outside);
            c.Brush.SetColor(outside);
            c.FillRect(Rect(0, 0, thumb.Width(), thumb.Height()));
            c.Pen.SetColor(inside);
            c.Brush.SetColor(inside);
            draw(c);
        };
        cut(mask.Canvas(), clWhite, clBlack);
        cut(thumb.Canvas(), clBlack, face);
    }
    // A see-through window: black in the image, white in the mask.
    void hole(const TRect &r)
    {
        thumb.Canvas().Brush.SetColor(clBlack);
        thumb.Canvas().FillRect(r);
        mask.Canvas().Brush.SetColor(clWhite);
        mask.Canvas().FillRect(r);
    }
    // Solid again: the face colour in the image, black in the mask.
    void fill(const TRect &r)
    {
        thumb.Canvas().Brush.SetColor(face);
        thumb.Canvas().FillRect(r);
        mask.Canvas().Brush.SetColor(clBlack);
        mask.Canvas().FillRect(r);
    }
    TThumbBitmaps result() const { return {thumb.Image(), mask.Image()}; }
};

// The grooved, raised handle standing upright (10 x 20), and lying (20 x 10).
TThumbBitmaps MakeType2(TColor face)
{
    Builder b(10, 20, face);
    b.line(clGray, {{0, 19}, {0, 0}, {9, 0}, {5, 0}, {5, 18}, {2, 18}, {8, 18}, {8, 2}});
    b.line(clBlack, {{1, 19}, {9, 19}, {9, 0}});
    b.line(clWhite, {{6, 1}, {8, 1}});
    b.line(clWhite, {{1, 18}, {1, 1}, {4, 1}, {4, 17}});
    return b.result();
}

// The same thumb lying on its side: every builder whose pairs differ only
// in direction draws with horizontal and vertical lines alone, so the
// turned picture is exactly the other one's.
QImage transposed(const QImage &image)
{
    QImage out(image.height(), image.width(), image.format());
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            out.setPixel(y, x, image.pixel(x, y));
    return out;
}

TThumbBitmaps transposed(const TThumbBitmaps &t) { return {transposed(t.thumb), transposed(t.mask)}; }

TThumbBitmaps MakeType1(TColor face) { return transposed(MakeType2(face)); }

// The sunken handle: dark above and left, light below and right, with a
// raised ridge along its middle.
TThumbBitmaps MakeType4(TColor face)
{
    Builder b(10, 20, face);
    b.line(clBlack, {{0, 19}, {0, 0}, {9, 0}});
    b.line(clGray, {{1, 18}, {1, 1}, {8, 1}});
    b.line(clWhite, {{1, 19}, {9, 19}, {9, 0}});
    b.line(clWhite, {{4, 3}, {4, 17}});
    b.line(clGray, {{5, 3}, {5, 17}});
    return b.result();
}

TThumbBitmaps MakeType3(TColor face) { return transposed(MakeType4(face)); }

// A raised square button (20 x 20).
void square(Builder &b)
{
    b.line(clWhite, {{0, 19}, {0, 0}, {19, 0}});
    b.line(clBlack, {{0, 19}, {19, 19}, {19, -1}});
    b.line(clGray, {{1, 18}, {18, 18}, {18, 0}});
    b.line(clWhite, {{1, 17}, {1, 1}, {18, 1}});
}

// ...with an upright grip line.
TThumbBitmaps MakeType5(TColor face)
{
    Builder b(20, 20, face);
    square(b);
    b.line(clGray, {{9, 4}, {9, 16}});
    b.line(clWhite, {{10, 4}, {10, 16}});
    return b.result();
}

// The square frame with a see-through middle.
void hollow(Builder &b)
{
    square(b);
    b.hole(Rect(3, 3, 17, 17));
}

TThumbBitmaps MakeType6(TColor face)
{
    Builder b(20, 20, face);
    hollow(b);
    return b.result();
}

// Rails above and below narrow the window to a horizontal slot; with
// `hairline`, a line across the slot's middle marks the value.
TThumbBitmaps MakeTypeC(TColor face, bool hairline)
{
    Builder b(20, 20, face);
    hollow(b);
    b.fill(Rect(3, 3, 17, 7));
    b.fill(Rect(3, 13, 17, 17));
    b.line(clGray, {{3, 6}, {17, 6}});    // the top rail's shadowed lower edge
    b.line(clWhite, {{3, 13}, {17, 13}});  // the bottom rail's lit upper edge
    if (hairline) {
        b.fill(Rect(3, 9, 17, 11));
        b.line(clBlack, {{3, 9}, {17, 9}});
        b.line(clGray, {{3, 10}, {17, 10}});
    }
    return b.result();
}

// The same turned upright: a vertical slot, and an upright hairline.
TThumbBitmaps MakeTypeD(TColor face, bool hairline) { return transposed(MakeTypeC(face, hairline)); }

// A pointer: a raised body with a point toward the track. The outline runs
// clockwise from the tip; edges facing up or left are lit, the others dark.
TThumbBitmaps pointer(int w, int h, const std::vector<TPoint> &outline, TColor face)
{
    Builder b(w, h, face);
    b.cutTo([&](TCanvas &c) { c.Polygon(outline); });
    const size_t n = outline.size();
    for (size_t i = 0; i < n; ++i) {
        const TPoint p = outline[i], q = outline[(i + 1) % n];
        // The outward normal of a clockwise edge (y down) is (dy, -dx).
        const int nx = q.Y - p.Y, ny = -(q.X - p.X);
        const bool lit = ny < 0 || (ny == 0 && nx < 0);
        b.line(lit ? clWhite : clBlack, {p, q});
    }
    return b.result();
}

TThumbBitmaps MakeType7(TColor face)   // pointing left
{
    return pointer(27, 11, {{0, 5}, {5, 0}, {26, 0}, {26, 10}, {5, 10}}, face);
}

TThumbBitmaps MakeType8(TColor face)   // pointing right
{
    return pointer(27, 11, {{26, 5}, {21, 10}, {0, 10}, {0, 0}, {21, 0}}, face);
}

TThumbBitmaps MakeType0(TColor face)   // pointing up
{
    return pointer(11, 27, {{5, 0}, {10, 5}, {10, 26}, {0, 26}, {0, 5}}, face);
}

TThumbBitmaps MakeType9(TColor face)   // pointing down
{
    return pointer(11, 27, {{5, 26}, {0, 21}, {0, 0}, {10, 0}, {10, 21}}, face);
}

// A round knob (15 x 15), lit from the upper left; the second kind has a
// groove across.
void round(Builder &b)
{
    b.cutTo([&](TCanvas &c) { c.Ellipse(0, 0, c.Image()->width(), c.Image()->height()); });
    TCanvas &c = b.thumb.Canvas();
    c.Pen.SetColor(clWhite);
    c.Arc(0, 0, 15, 15, 15, 0, 0, 15);
    c.Pen.SetColor(clBlack);
    c.Arc(0, 0, 15, 15, 0, 15, 15, 0);
    c.Pen.SetColor(clGray);
    c.Arc(1, 1, 14, 14, 0, 15, 15, 0);
}

TThumbBitmaps MakeTypeA(TColor face)
{
    Builder b(15, 15, face);
    round(b);
    return b.result();
}

TThumbBitmaps MakeTypeB(TColor face)
{
    Builder b(15, 15, face);
    round(b);
    b.line(clGray, {{3, 7}, {12, 7}});
    b.line(clWhite, {{3, 8}, {12, 8}});
    return b.result();
}

} // namespace

TThumbBitmaps MakeThumb(int style, TColor face)
{
    switch (style) {
    case HorzHigh: return MakeType1(face);
    case VertHigh: return MakeType2(face);
    case HorzLow: return MakeType3(face);
    case VertLow: return MakeType4(face);
    case Square: return MakeType5(face);
    case Squarehollow: return MakeType6(face);
    case Left: return MakeType7(face);
    case Right: return MakeType8(face);
    case Top: return MakeType0(face);
    case Bottom: return MakeType9(face);
    case Round: return MakeTypeA(face);
    case HorzRound: return MakeTypeB(face);
    case SquarehollowHorz: return MakeTypeC(face, false);
    case SquarehollowVert: return MakeTypeD(face, false);
    case SquarehollowHLine: return MakeTypeC(face, true);
    case SquarehollowVLine: return MakeTypeD(face, true);
    default: return MakeType2(face);
    }
}

QSize ThumbSize(int style)
{
    switch (style) {
    case HorzHigh:
    case HorzLow: return QSize(20, 10);
    case VertHigh:
    case VertLow: return QSize(10, 20);
    case Left:
    case Right: return QSize(27, 11);
    case Top:
    case Bottom: return QSize(11, 27);
    case Round:
    case HorzRound: return QSize(15, 15);
    default: return QSize(20, 20);
    }
}
