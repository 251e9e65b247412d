#include "qcell.h"

#include <QHash>

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

namespace {

struct TCellPictureKey
{
    int kind, width, height;
    quint64 look;
    quint32 variant;
    QRgb lit, unlit, ground;
    bool operator==(const TCellPictureKey &o) const
    {
        return kind == o.kind && width == o.width && height == o.height && look == o.look && variant == o.variant
               && lit == o.lit && unlit == o.unlit && ground == o.ground;
    }
};

size_t qHash(const TCellPictureKey &k, size_t seed = 0)
{
    return qHashMulti(seed, k.kind, k.width, k.height, k.look, k.variant, k.lit, k.unlit, k.ground);
}

// Enough for every character of a few colour schemes; emptied when full.
constexpr qsizetype kMostCellPictures = 2048;

QHash<TCellPictureKey, QImage> &cellPictures()
{
    static QHash<TCellPictureKey, QImage> pictures;
    return pictures;
}

} // namespace

void TqCustomCell::PaintCell(TCanvas &canvas, int kind, quint64 look, quint32 variant,
                             const std::function<void(TCanvas &)> &draw)
{
    if (FTransparent || !canvas.Image()) {
        PaintBackground(canvas);
        draw(canvas);
        return;
    }
    // Colours as they are now: a system colour follows the palette.
    const TCellPictureKey key{kind, width(), height(), look, variant, ColorToQRgb(FLitColor),
                              ColorToQRgb(FUnLitColor), ColorToQRgb(Color())};
    auto &pictures = cellPictures();
    auto found = pictures.constFind(key);
    if (found == pictures.constEnd()) {
        if (pictures.size() >= kMostCellPictures)
            pictures.clear();
        QImage picture(size(), QImage::Format_RGB32);
        TCanvas cell(&picture);
        PaintBackground(cell);
        draw(cell);
        found = pictures.insert(key, picture);
    }
    canvas.Draw(0, 0, *found);
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
