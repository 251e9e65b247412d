#include "qcell.h"

#include "host/tcodepage.h"

#include <algorithm>

TqCustomCell::TqCustomCell(QSize unit, QWidget *parent) : TGraphicControl(parent), FUnit(unit)
{
    SetControlStyle(ControlStyle() | csOpaque);
    SetColor(clBlack);
}

void TqCustomCell::SetWidth(int value)
{
    // Stored in 8 bits without an upper clamp: 256 units wrap to Size 0.
    if (value != width())
        SetSize(quint8(std::max(value / FUnit.width(), 1)));
}

void TqCustomCell::SetHeight(int value)
{
    if (value != height())
        SetSize(quint8(std::max(value / FUnit.height(), 1)));
}

void TqCustomCell::SetChar(qChar c)
{
    if (c == FChar)
        return;
    FChar = c;
    CharChanged(c);
    LookChanged();
}

QChar TqCustomCell::UnicodeChar() const { return Win1252ToUnicode(FChar); }
void TqCustomCell::SetUnicodeChar(QChar c) { SetChar(UnicodeToWin1252(c)); }

void TqCustomCell::SetLitColor(TColor color)
{
    if (color == FLitColor)
        return;
    FLitColor = color;
    LookChanged();
}

void TqCustomCell::SetUnLitColor(TColor color)
{
    if (color == FUnLitColor)
        return;
    FUnLitColor = color;
    LookChanged();
}

void TqCustomCell::SetTransparent(bool transparent)
{
    if (transparent == FTransparent)
        return;
    FTransparent = transparent;
    UpdateOpacity();
    InvalidateParentArea();
    Update();
}

void TqCustomCell::SetSize(quint8 size)
{
    if (size == FSize)
        return;
    FSize = size;
    DoUpdate();
}

bool TqCustomCell::PaintsOpaque() const
{
    return TGraphicControl::PaintsOpaque() && !FTransparent;
}

void TqCustomCell::PaintBackground(TCanvas &canvas)
{
    if (!FTransparent) {
        canvas.Brush.SetColor(Color());
        canvas.Brush.SetStyle(bsSolid);
        canvas.FillRect(ClientRect());
    }
    canvas.Brush.SetStyle(bsClear);
}
