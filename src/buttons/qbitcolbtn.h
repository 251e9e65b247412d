#pragma once
// The colour button with a bitmap glyph beside or above its caption (see
// qglyphbutton.h).

#include "buttons/qcolorbtn.h"
#include "buttons/qglyphbutton.h"

class TqBitColBtn : public TBitmapGlyphButton<TqColorBtn>
{
    Q_OBJECT
    Q_PROPERTY(Buttons::TButtonLayout Layout READ Layout WRITE SetLayout)
    Q_PROPERTY(int Spacing READ Spacing WRITE SetSpacing)
    Q_PROPERTY(int Margin READ Margin WRITE SetMargin)
    Q_PROPERTY(QPixmap Glyph READ Glyph WRITE SetGlyph)
    Q_PROPERTY(QPixmap GlyphDown READ GlyphDown WRITE SetGlyphDown)

public:
    explicit TqBitColBtn(QWidget *parent = nullptr) : TBitmapGlyphButton<TqColorBtn>(parent) {}
};
