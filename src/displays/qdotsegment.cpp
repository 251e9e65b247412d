#include "qdotsegment.h"

#include <algorithm>

TDotLook DotLookFromRows(const std::array<quint8, 9> &rows)
{
    TDotLook look = 0;
    for (int j = 0; j < 9; ++j)
        for (int i = 0; i < 7; ++i)
            if (rows[size_t(j)] & (0x40 >> i))
                look |= TDotLook(1) << (j * 7 + i + 1);
    return look;
}

TDotGeometry DotGeometry(int size)
{
    TDotGeometry g;
    const int pitch = size + 2;
    const int h = std::max(size / 2, 1);
    for (int i = 0; i < 7; ++i)
        g.X[size_t(i)] = pitch * i + h;
    for (int j = 0; j < 9; ++j)
        g.Y[size_t(j)] = pitch * j + h;
    g.Width = 7 * pitch + 2 * h;
    g.Height = 9 * pitch + 2 * h;
    return g;
}

TqcDotSegment::TqcDotSegment(QWidget *parent) : TqCustomCell(QSize(23, 29), parent)
{
    SetSize(1);
}

void TqcDotSegment::SetGap(bool gap)
{
    if (gap == FUseGap)
        return;
    FUseGap = gap;
    Invalidate();
}

void TqcDotSegment::SetStyle(qcDotStyle style)
{
    if (style == FStyle)
        return;
    FStyle = style;
    Invalidate();
}

void TqcDotSegment::DoUpdate()
{
    FGeometry = DotGeometry(Size());
    SetBounds(x(), y(), FGeometry.Width, FGeometry.Height);
    Invalidate();
}

void TqcDotSegment::Paint(TCanvas &canvas)
{
    PaintCell(canvas, 1, FLook, quint32(FStyle) << 1 | quint32(FUseGap), [this](TCanvas &c) {
        const int extent = Size() + 2 - (FUseGap ? 1 : 0);
        const int corner = std::max(Size() / 2, 1);
        int k = 1;
        // Unlit dots are drawn too, so the whole matrix always shows.
        for (int j = 0; j < 9; ++j) {
            for (int i = 0; i < 7; ++i, ++k) {
                c.Pen.SetColor((FLook & (TDotLook(1) << k)) ? LitColor() : UnLitColor());
                c.Brush.SetColor(c.Pen.Color());
                const int x = FGeometry.X[size_t(i)], y = FGeometry.Y[size_t(j)];
                switch (FStyle) {
                case qcdsDot: c.Ellipse(x, y, x + extent, y + extent); break;
                case qcdsRect: c.Rectangle(x, y, x + extent, y + extent); break;
                case qcdsRound: c.RoundRect(x, y, x + extent, y + extent, corner, corner); break;
                }
            }
        }
    });
    DoOnPaint();
}
