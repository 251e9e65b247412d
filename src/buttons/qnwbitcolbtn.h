#pragma once
// The non-windowed colour button with a bitmap glyph (see qglyphbutton.h).

#include "buttons/qnwcolorbtn.h"
#include "buttons/qglyphbutton.h"

class TqNWBitColBtn : public TBitmapGlyphButton<TqNWColorBtn>
{
    Q_OBJECT
    Q_PROPERTY(Buttons::TButtonLayout Layout READ Layout WRITE SetLayout)
    Q_PROPERTY(int Spacing READ Spacing WRITE SetSpacing)
    Q_PROPERTY(int Margin READ Margin WRITE SetMargin)
    Q_PROPERTY(QPixmap Glyph READ Glyph WRITE SetGlyph)
    Q_PROPERTY(QPixmap GlyphDown READ GlyphDown WRITE SetGlyphDown)

public:
    explicit TqNWBitColBtn(QWidget *parent = nullptr) : TBitmapGlyphButton<TqNWColorBtn>(parent) {}
};
