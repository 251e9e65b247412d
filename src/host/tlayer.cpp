#include "tlayer.h"

// Drawn once over black and once over white: where the two pictures agree,
// the drawing painted the pixel.
void TLayer::Capture(int w, int h, const std::function<void(TCanvas &)> &draw)
{
    FSpans.clear();
    TBitmap onBlack(w, h), onWhite(w, h);
    if (onBlack.Empty()) {
        FImage = QImage();
        return;
    }
    onBlack.Canvas().Brush.SetColor(clBlack);
    onBlack.Canvas().FillRect(Rect(0, 0, w, h));
    onBlack.Canvas().Brush.SetColor(clWhite);
    draw(onBlack.Canvas());
    draw(onWhite.Canvas());
    FImage = onBlack.Image();
    for (int y = 0; y < h; ++y) {
        const auto *a = reinterpret_cast<const QRgb *>(FImage.constScanLine(y));
        const auto *b = reinterpret_cast<const QRgb *>(onWhite.Image().constScanLine(y));
        for (int x = 0; x < w; ++x) {
            if (a[x] != b[x])
                continue;
            if (!FSpans.empty() && FSpans.back().y == y && FSpans.back().x1 + 1 == x)
                FSpans.back().x1 = x;
            else
                FSpans.push_back({y, x, x});
        }
    }
}
