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

#include <QIcon>
#include <QPainter>
#include <QPixmap>

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
            // Measured as drawn: the style is bold while the button has the
            // focus or is the default, and plain otherwise.
            TFont drawn = this->CanvasFont();
            drawn.SetStyle(this->BoldCaption() ? fsBold : 0);
            const QFont font = drawn.ToQFont();
            const QFontMetrics metrics(font);
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
                        const int g = Luminance(p);
                        grey.setPixel(x, y, qRgba(g, g, g, (x + y) & 1 ? 0 : qAlpha(p)));
                    }
                glyph = grey;
            }
            QPainter painter(canvas.Image());
            painter.drawImage(at, glyph);
            return;
        }
        const TColor key = TransparentColorOf(glyph);
        if (!enabled) {
            TBitmap b;
            b.Assign(glyph);
            GreyBMP(b);
            // The key stays the key: greyed the same way, it is known again.
            const TColor greyKey = TransparentColorOf(b);
            RasterBMP(b, this->Color());
            TransparentBlt(canvas, at.x(), at.y(), b, greyKey);
            return;
        }
        TransparentBlt(canvas, at.x(), at.y(), glyph, key);
    }

private:
    Buttons::TButtonLayout FLayout = Buttons::blGlyphLeft;
    int FSpacing = 4;
    int FMargin = -1;
};

// The bitmap glyph and the glyph for pressed (none: the glyph moves).
template <class Base>
class TBitmapGlyphButton : public TGlyphButton<Base>
{
public:
    QPixmap Glyph() const { return QPixmap::fromImage(FGlyph); }
    void SetGlyph(const QPixmap &glyph) { setGlyph(FGlyph, glyph); }
    QPixmap GlyphDown() const { return QPixmap::fromImage(FGlyphDown); }
    void SetGlyphDown(const QPixmap &glyph) { setGlyph(FGlyphDown, glyph); }

protected:
    explicit TBitmapGlyphButton(QWidget *parent) : TGlyphButton<Base>(parent) {}
    QImage GlyphImage(bool pressed) const override { return pressed && !FGlyphDown.isNull() ? FGlyphDown : FGlyph; }

private:
    void setGlyph(QImage &field, const QPixmap &glyph)
    {
        field = glyph.toImage().convertToFormat(QImage::Format_RGB32);
        this->Invalidate();
    }

    QImage FGlyph, FGlyphDown;
};

// The icon, drawn at IconSize pixels (the icon's nearest size).
template <class Base>
class TIconGlyphButton : public TGlyphButton<Base>
{
public:
    QIcon Icon() const { return FIcon; }
    void SetIcon(const QIcon &icon)
    {
        FIcon = icon;
        pick();
    }
    int IconSize() const { return FIconSize; }
    void SetIconSize(int size)
    {
        FIconSize = qMax(1, size);
        pick();
    }

protected:
    explicit TIconGlyphButton(QWidget *parent) : TGlyphButton<Base>(parent) {}
    QImage GlyphImage(bool) const override { return FImage; }
    bool GlyphHasAlpha() const override { return true; }

private:
    void pick()
    {
        FImage = FIcon.isNull()
                     ? QImage()
                     : FIcon.pixmap(QSize(FIconSize, FIconSize)).toImage().convertToFormat(QImage::Format_ARGB32);
        this->Invalidate();
    }

    QIcon FIcon;
    int FIconSize = 16;
    QImage FImage;
};
