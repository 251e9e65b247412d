#pragma once
// What the bitmap and icon colour buttons add to the colour buttons: a
// glyph beside or above the caption.
//
//   Layout   blGlyphLeft (default), blGlyphRight, blGlyphTop, blGlyphBottom:
//            where the glyph is, the caption taking the other side
//   Spacing  pixels between glyph and caption (4)
//   Margin   pixels from the edge to the glyph; -1 (default) centres glyph
//            and caption together
// A glyph of a bitmap leaves out its transparent colour (its bottom-left
// pixel's); an icon's own transparency is kept. Disabled, the glyph turns
// grey with the checker pattern in the button's colour; pressed, it moves
// with the caption, or gives way to the pressed glyph where there is one.

#include "buttons/qbmpeffects.h"
#include "buttons/qcolorbutton.h"

#include <QPainter>

struct TGlyphPlaces
{
    QRect glyph;
    QRect caption;
};

// Where glyph and caption go inside `client`, as above (`text` is the
// caption's extent, empty without one).
TGlyphPlaces GlyphPlaces(const QRect &client, QSize glyph, QSize text, Buttons::TButtonLayout layout, int margin,
                         int spacing);

template <class Base>
class TGlyphButton : public Base
{
public:
    Buttons::TButtonLayout Layout() const { return FLayout; }
    void SetLayout(Buttons::TButtonLayout layout) { set(FLayout, layout); }
    int Spacing() const { return FSpacing; }
    void SetSpacing(int spacing) { set(FSpacing, spacing); }
    int Margin() const { return FMargin; }
    void SetMargin(int margin) { set(FMargin, margin); }

    // Where the glyph and the caption go now.
    TGlyphPlaces Places() const
    {
        const QImage glyph = GlyphImage(false);
        QSize text;
        if (!this->Caption().isEmpty()) {
            const QFontMetrics metrics(this->CanvasFont().ToQFont());
            text = QSize(metrics.horizontalAdvance(this->Caption()), metrics.height());
        }
        return GlyphPlaces(QRect(3, 3, this->width() - 6, this->height() - 6), glyph.size(), text, FLayout, FMargin,
                           FSpacing);
    }

protected:
    explicit TGlyphButton(QWidget *parent) : Base(parent) {}

    // The glyph, pressed or not (null: none).
    virtual QImage GlyphImage(bool pressed) const = 0;
    // True for a glyph with its own transparency (an icon).
    virtual bool GlyphHasAlpha() const { return false; }

    template <class T>
    void set(T &field, T value)
    {
        if (field == value)
            return;
        field = value;
        this->Invalidate();
    }

    TRect CaptionRect() const override
    {
        if (GlyphImage(false).isNull())
            return Base::CaptionRect();
        const QRect c = Places().caption;
        return Rect(c.left(), c.top(), c.right() + 1, c.bottom() + 1);
    }

    void PaintGlyph(TCanvas &canvas, bool enabled) override
    {
        const bool pressed = enabled && this->Pressed();
        QImage glyph = GlyphImage(pressed);
        if (glyph.isNull())
            return;
        QPoint at = Places().glyph.topLeft();
        if (pressed && GlyphImage(true).cacheKey() == GlyphImage(false).cacheKey())
            at += QPoint(1, 1);   // no glyph of its own for pressed: it moves
        if (GlyphHasAlpha()) {
            if (!enabled) {
                QImage grey = glyph.convertToFormat(QImage::Format_ARGB32);
                for (int y = 0; y < grey.height(); ++y)
                    for (int x = 0; x < grey.width(); ++x) {
                        const QRgb p = grey.pixel(x, y);
                        const int g = (299 * qRed(p) + 587 * qGreen(p) + 114 * qBlue(p) + 500) / 1000;
                        grey.setPixel(x, y, qRgba(g, g, g, (x + y) & 1 ? 0 : qAlpha(p)));
                    }
                glyph = grey;
            }
            QPainter painter(canvas.Image());
            painter.drawImage(at, glyph);
            return;
        }
        TBitmap b;
        b.Assign(glyph);
        const TColor key = TransparentColorOf(b);
        if (!enabled) {
            GreyBMP(b);
            TBitmap grey;
            grey.Assign(b.Image());
            RasterBMP(b, this->Color());
            // The key stays the key: grey it the same way to know it again.
            TransparentBlt(canvas, at.x(), at.y(), b, TransparentColorOf(grey));
            return;
        }
        TransparentBlt(canvas, at.x(), at.y(), b, key);
    }

private:
    Buttons::TButtonLayout FLayout = Buttons::blGlyphLeft;
    int FSpacing = 4;
    int FMargin = -1;
};
