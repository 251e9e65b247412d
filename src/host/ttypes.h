#pragma once
// Points and rectangles as the drawing calls take them: a rectangle's right
// and bottom edges lie just outside it, so Rect(0, 0, 10, 10) covers the
// pixels 0..9 in both directions.

#include <QPoint>
#include <QRect>

struct TPoint
{
    int X = 0;
    int Y = 0;
    friend bool operator==(TPoint a, TPoint b) { return a.X == b.X && a.Y == b.Y; }
    friend bool operator!=(TPoint a, TPoint b) { return !(a == b); }
};

struct TRect
{
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;

    int Width() const { return Right - Left; }
    int Height() const { return Bottom - Top; }
    bool IsEmpty() const { return Right <= Left || Bottom <= Top; }
    friend bool operator==(const TRect &a, const TRect &b)
    {
        return a.Left == b.Left && a.Top == b.Top && a.Right == b.Right && a.Bottom == b.Bottom;
    }
    friend bool operator!=(const TRect &a, const TRect &b) { return !(a == b); }
};

inline TPoint Point(int x, int y) { return TPoint{x, y}; }
inline TRect Rect(int left, int top, int right, int bottom) { return TRect{left, top, right, bottom}; }
inline TRect Bounds(int left, int top, int width, int height)
{
    return TRect{left, top, left + width, top + height};
}

inline void InflateRect(TRect &r, int dx, int dy)
{
    r.Left -= dx; r.Top -= dy; r.Right += dx; r.Bottom += dy;
}
inline void OffsetRect(TRect &r, int dx, int dy)
{
    r.Left += dx; r.Top += dy; r.Right += dx; r.Bottom += dy;
}
// True when p lies inside: the right and bottom edges are outside.
inline bool PtInRect(const TRect &r, TPoint p)
{
    return p.X >= r.Left && p.X < r.Right && p.Y >= r.Top && p.Y < r.Bottom;
}

inline QRect ToQRect(const TRect &r) { return QRect(r.Left, r.Top, r.Width(), r.Height()); }
inline TRect FromQRect(const QRect &r) { return TRect{r.left(), r.top(), r.left() + r.width(), r.top() + r.height()}; }
inline QPoint ToQPoint(TPoint p) { return QPoint(p.X, p.Y); }
