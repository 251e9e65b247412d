#include "qglyphbutton.h"

TGlyphPlaces GlyphPlaces(const QRect &client, QSize glyph, QSize text, Buttons::TButtonLayout layout, int margin,
                         int spacing)
{
    using namespace Buttons;
    const bool across = layout == blGlyphLeft || layout == blGlyphRight;
    const int gap = text.isEmpty() || glyph.isEmpty() ? 0 : spacing;
    // Along the layout: glyph, gap, caption.
    const int along = across ? client.width() : client.height();
    const int glyphAlong = across ? glyph.width() : glyph.height();
    const int textAlong = across ? text.width() : text.height();
    const int start = margin < 0 ? (along - glyphAlong - gap - textAlong) / 2 : margin;
    const bool glyphFirst = layout == blGlyphLeft || layout == blGlyphTop;
    const int glyphAt = glyphFirst ? start : along - start - glyphAlong;
    const int textAt = glyphFirst ? start + glyphAlong + gap : glyphAt - gap - textAlong;
    TGlyphPlaces p;
    if (across) {
        p.glyph = QRect(client.left() + glyphAt, client.top() + (client.height() - glyph.height()) / 2, glyph.width(),
                        glyph.height());
        p.caption = QRect(client.left() + textAt, client.top(), textAlong, client.height());
    } else {
        p.glyph = QRect(client.left() + (client.width() - glyph.width()) / 2, client.top() + glyphAt, glyph.width(),
                        glyph.height());
        p.caption = QRect(client.left(), client.top() + textAt, client.width(), textAlong);
    }
    return p;
}
