#pragma once
// Effects on bitmaps, for glyphs and pictures: each works on the bitmap in
// place (the transparent blit draws one bitmap onto a canvas).
//
//   BMPRotate      turns the picture clockwise by any angle in degrees:
//                  exactly for the right angles (90: pixel (x, y) goes to
//                  (h - 1 - y, x)); otherwise around its centre into the box
//                  that holds the turned picture, nearest pixel, the corners
//                  left over in the transparent colour (the bottom-left
//                  pixel's, as glyphs have it)
//   DarkenBMP      every channel c becomes c * (100 - p) / 100, rounded
//   LightenBMP     every channel c becomes c + (255 - c) * p / 100, rounded
//                  (p, a percentage, is kept between 0 and 100)
//   GreyBMP        every pixel becomes the grey of its luminance,
//                  (299 R + 587 G + 114 B) / 1000, rounded
//   RasterBMP      the checker pattern of a disabled glyph: the pixels with
//                  x + y odd become `color`; the transparent ones stay
//   TransparentBlt draws `source` at (x, y) on a canvas, all but the pixels
//                  of the key colour

#include "host/tbitmap.h"

void BMPRotate(TBitmap &bitmap, double degrees);
void DarkenBMP(TBitmap &bitmap, int percent);
void LightenBMP(TBitmap &bitmap, int percent);
void GreyBMP(TBitmap &bitmap);
void RasterBMP(TBitmap &bitmap, TColor color);
void TransparentBlt(TCanvas &canvas, int x, int y, const TBitmap &source, TColor key);
void TransparentBlt(TCanvas &canvas, int x, int y, const QImage &source, TColor key);

// The grey of a pixel, as GreyBMP makes it.
inline int Luminance(QRgb p) { return (299 * qRed(p) + 587 * qGreen(p) + 114 * qBlue(p) + 500) / 1000; }

// The transparent colour of a glyph: its bottom-left pixel.
TColor TransparentColorOf(const TBitmap &bitmap);
TColor TransparentColorOf(const QImage &image);
