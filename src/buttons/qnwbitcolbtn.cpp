#include "qnwbitcolbtn.h"

void TqNWBitColBtn::SetGlyph(const QPixmap &glyph)
{
    FGlyph = glyph.toImage().convertToFormat(QImage::Format_RGB32);
    Invalidate();
}

void TqNWBitColBtn::SetGlyphDown(const QPixmap &glyph)
{
    FGlyphDown = glyph.toImage().convertToFormat(QImage::Format_RGB32);
    Invalidate();
}
