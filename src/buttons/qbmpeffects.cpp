#include "qbmpeffects.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

// Every pixel of the bitmap through `f`.
template <class F>
void eachPixel(TBitmap &bitmap, F f)
{
    QImage image = bitmap.Image();
    for (int y = 0; y < image.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            row[x] = 0xFF000000u | (f(row[x], x, y) & 0xFFFFFFu);
    }
    bitmap.Assign(image);
}

int channelMap(QRgb p, int (*f)(int, int), int arg)
{
    return qRgb(f(qRed(p), arg), f(qGreen(p), arg), f(qBlue(p), arg));
}

QRgb toQRgb(TColor color) { return ColorToQRgb(color) | 0xFF000000u; }

} // namespace

TColor TransparentColorOf(const TBitmap &bitmap)
{
    return TransparentColorOf(bitmap.Image());
}

TColor TransparentColorOf(const QImage &image)
{
    if (image.isNull())
        return clBlack;
    return QColorToColor(QColor::fromRgb(image.pixel(0, image.height() - 1)));
}

void BMPRotate(TBitmap &bitmap, double degrees)
{
    if (bitmap.Empty())
        return;
    const QImage from = bitmap.Image();
    const int w = from.width(), h = from.height();
    double turns = std::fmod(degrees, 360.0);
    if (turns < 0)
        turns += 360.0;
    QImage to;
    if (turns == 0.0) {
        return;
    } else if (turns == 90.0 || turns == 270.0) {
        to = QImage(h, w, QImage::Format_RGB32);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                to.setPixel(turns == 90.0 ? h - 1 - y : y, turns == 90.0 ? x : w - 1 - x, from.pixel(x, y));
    } else if (turns == 180.0) {
        to = QImage(w, h, QImage::Format_RGB32);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                to.setPixel(w - 1 - x, h - 1 - y, from.pixel(x, y));
    } else {
        // Each pixel of the box takes the source pixel its centre came from.
        const double a = qDegreesToRadians(turns), c = std::cos(a), s = std::sin(a);
        const int W = int(std::ceil(std::abs(w * c) + std::abs(h * s) - 1e-9));
        const int H = int(std::ceil(std::abs(w * s) + std::abs(h * c) - 1e-9));
        to = QImage(W, H, QImage::Format_RGB32);
        to.fill(from.pixel(0, h - 1));
        for (int y = 0; y < H; ++y)
            for (int x = 0; x < W; ++x) {
                const double dx = x + 0.5 - W / 2.0, dy = y + 0.5 - H / 2.0;
                const double sx = c * dx + s * dy + w / 2.0, sy = -s * dx + c * dy + h / 2.0;
                const int ix = int(std::floor(sx)), iy = int(std::floor(sy));
                if (ix >= 0 && iy >= 0 && ix < w && iy < h)
                    to.setPixel(x, y, from.pixel(ix, iy));
            }
    }
    bitmap.Assign(to);
}

void DarkenBMP(TBitmap &bitmap, int percent)
{
    const int p = std::clamp(percent, 0, 100);
    eachPixel(bitmap, [p](QRgb c, int, int) {
        return channelMap(c, [](int v, int q) { return (v * (100 - q) + 50) / 100; }, p);
    });
}

void LightenBMP(TBitmap &bitmap, int percent)
{
    const int p = std::clamp(percent, 0, 100);
    eachPixel(bitmap, [p](QRgb c, int, int) {
        return channelMap(c, [](int v, int q) { return v + ((255 - v) * q + 50) / 100; }, p);
    });
}

void GreyBMP(TBitmap &bitmap)
{
    eachPixel(bitmap, [](QRgb c, int, int) {
        const int g = Luminance(c);
        return qRgb(g, g, g);
    });
}

void RasterBMP(TBitmap &bitmap, TColor color)
{
    if (bitmap.Empty())
        return;
    const QRgb key = toQRgb(TransparentColorOf(bitmap)), to = toQRgb(color);
    eachPixel(bitmap, [key, to](QRgb c, int x, int y) { return ((x + y) & 1) && (c | 0xFF000000u) != key ? to : c; });
}

void TransparentBlt(TCanvas &canvas, int x, int y, const TBitmap &source, TColor key)
{
    TransparentBlt(canvas, x, y, source.Image(), key);
}

void TransparentBlt(TCanvas &canvas, int x, int y, const QImage &source, TColor key)
{
    QImage *target = canvas.Image();
    if (!target || source.isNull())
        return;
    const QRgb k = toQRgb(key) & 0xFFFFFFu;
    const QImage from = source.convertToFormat(QImage::Format_RGB32);
    for (int sy = 0; sy < from.height(); ++sy) {
        const int ty = y + sy;
        if (ty < 0 || ty >= target->height())
            continue;
        const auto *in = reinterpret_cast<const QRgb *>(from.constScanLine(sy));
        auto *out = reinterpret_cast<QRgb *>(target->scanLine(ty));
        for (int sx = 0; sx < from.width(); ++sx) {
            const int tx = x + sx;
            if (tx >= 0 && tx < target->width() && (in[sx] & 0xFFFFFFu) != k)
                out[tx] = 0xFF000000u | in[sx];
        }
    }
}
