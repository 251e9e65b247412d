#include "qdotsegment.h"

#include "host/tcodepage.h"

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

TqcDotSegment::TqcDotSegment(QWidget *parent) : TGraphicControl(parent)
{
    SetControlStyle(ControlStyle() | csOpaque);
    SetColor(clBlack);
    SetSize(1);
}

void TqcDotSegment::SetWidth(int value)
{
    if (value != width())
        SetSize(qcDotSegSize(std::max(value / 23, 1)));
}

void TqcDotSegment::SetHeight(int value)
{
    if (value != height())
        SetSize(qcDotSegSize(std::max(value / 29, 1)));
}

void TqcDotSegment::SetChar(qChar c)
{
    if (c == FChar)
        return;
    FChar = c;
    FLook = DotCharLook(c);
    Invalidate();
}

QChar TqcDotSegment::UnicodeChar() const { return Win1252ToUnicode(FChar); }
void TqcDotSegment::SetUnicodeChar(QChar c) { SetChar(UnicodeToWin1252(c)); }

void TqcDotSegment::SetLitColor(TColor color)
{
    if (color == FLitColor)
        return;
    FLitColor = color;
    Invalidate();
}

void TqcDotSegment::SetUnLitColor(TColor color)
{
    if (color == FUnLitColor)
        return;
    FUnLitColor = color;
    Invalidate();
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

void TqcDotSegment::SetTransparent(bool transparent)
{
    if (transparent == FTransparent)
        return;
    FTransparent = transparent;
    UpdateOpacity();
    InvalidateParentArea();
    Update();
}

void TqcDotSegment::SetSize(qcDotSegSize size)
{
    if (size == FSize)
        return;
    FSize = size;
    DoUpdate();
}

void TqcDotSegment::DoUpdate()
{
    FGeometry = DotGeometry(FSize);
    setGeometry(x(), y(), FGeometry.Width, FGeometry.Height);
    Invalidate();
}

bool TqcDotSegment::PaintsOpaque() const
{
    return TGraphicControl::PaintsOpaque() && !FTransparent;
}

void TqcDotSegment::Paint(TCanvas &canvas)
{
    if (!FTransparent) {
        canvas.Brush.SetColor(Color());
        canvas.Brush.SetStyle(bsSolid);
        canvas.FillRect(ClientRect());
    }
    canvas.Brush.SetStyle(bsClear);
    const int extent = FSize + 2 - (FUseGap ? 1 : 0);
    const int corner = std::max(FSize / 2, 1);
    int k = 1;
    // Unlit dots are drawn too, so the whole matrix always shows.
    for (int j = 0; j < 9; ++j) {
        for (int i = 0; i < 7; ++i, ++k) {
            canvas.Pen.SetColor((FLook & (TDotLook(1) << k)) ? FLitColor : FUnLitColor);
            canvas.Brush.SetColor(canvas.Pen.Color());
            const int x = FGeometry.X[size_t(i)], y = FGeometry.Y[size_t(j)];
            switch (FStyle) {
            case qcdsDot: canvas.Ellipse(x, y, x + extent, y + extent); break;
            case qcdsRect: canvas.Rectangle(x, y, x + extent, y + extent); break;
            case qcdsRound: canvas.RoundRect(x, y, x + extent, y + extent, corner, corner); break;
            }
        }
    }
    emit OnPaint(this);
}
