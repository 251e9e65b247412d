#include "qbitcolbtn.h"

void TqBitColBtn::SetGlyph(const QPixmap &glyph)
{
    FGlyph = glyph.toImage().convertToFormat(QImage::Format_RGB32);
    Invalidate();
}

void TqBitColBtn::SetGlyphDown(const QPixmap &glyph)
{
    FGlyphDown = glyph.toImage().convertToFormat(QImage::Format_RGB32);
    Invalidate();
}
