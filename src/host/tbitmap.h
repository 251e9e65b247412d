#pragma once
// An off-screen picture with a canvas of its own.

#include "tcanvas.h"

#include <QImage>

class TBitmap
{
public:
    TBitmap() : FCanvas(&FImage) {}
    TBitmap(int width, int height) : TBitmap() { SetSize(width, height); }
    TBitmap(const TBitmap &) = delete;
    TBitmap &operator=(const TBitmap &) = delete;

    int Width() const { return FImage.width(); }
    int Height() const { return FImage.height(); }
    bool Empty() const { return FImage.isNull(); }
    // A new size keeps nothing of the old picture; the new one is white.
    void SetSize(int width, int height)
    {
        if (width == Width() && height == Height())
            return;
        if (width <= 0 || height <= 0) {
            FImage = QImage();
            return;
        }
        FImage = QImage(width, height, QImage::Format_RGB32);
        FImage.fill(Qt::white);
    }
    void Assign(const QImage &image) { FImage = image.convertToFormat(QImage::Format_RGB32); }

    TCanvas &Canvas() { return FCanvas; }
    const QImage &Image() const { return FImage; }

private:
    QImage FImage;
    TCanvas FCanvas;
};
