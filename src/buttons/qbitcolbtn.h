#pragma once
// The colour button with a bitmap glyph beside or above its caption (see
// qglyphbutton.h).

#include "buttons/qcolorbtn.h"
#include "buttons/qglyphbutton.h"

#include <QIcon>
#include <QPixmap>

class TqBitColBtn : public TGlyphButton<TqColorBtn>
{
    Q_OBJECT
    Q_PROPERTY(Buttons::TButtonLayout Layout READ Layout WRITE SetLayout)
    Q_PROPERTY(int Spacing READ Spacing WRITE SetSpacing)
    Q_PROPERTY(int Margin READ Margin WRITE SetMargin)
    Q_PROPERTY(QPixmap Glyph READ Glyph WRITE SetGlyph)
    Q_PROPERTY(QPixmap GlyphDown READ GlyphDown WRITE SetGlyphDown)

public:
    explicit TqBitColBtn(QWidget *parent = nullptr) : TGlyphButton<TqColorBtn>(parent) {}

    // The glyph, and the one shown while pressed (none: the glyph moves).
    QPixmap Glyph() const { return QPixmap::fromImage(FGlyph); }
    void SetGlyph(const QPixmap &glyph);
    QPixmap GlyphDown() const { return QPixmap::fromImage(FGlyphDown); }
    void SetGlyphDown(const QPixmap &glyph);

protected:
    QImage GlyphImage(bool pressed) const override { return pressed && !FGlyphDown.isNull() ? FGlyphDown : FGlyph; }

private:
    QImage FGlyph, FGlyphDown;
};
