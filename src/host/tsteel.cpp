#include "tsteel.h"

#include "tcolor.h"

namespace {

QImage makeSteel()
{
    QImage steel(8, 8, QImage::Format_RGB32);
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x)
            steel.setPixel(x, y, ColorToQRgb((x & 1) && (y & 1) ? clWhite : clSilver));
    return steel;
}

const QImage steelTexture = makeSteel();

} // namespace

const QImage &TSteel() { return steelTexture; }
