#pragma once
// A drawing captured once and laid over later pictures: the pixels it
// touches, as it painted them, and nothing else. Controls whose picture is
// mostly the same from one paint to the next keep their still parts as
// layers and redraw only what moves.

#include "tbitmap.h"

#include <functional>

class TLayer
{
public:
    // Runs `draw` on a canvas of w x h and keeps what it paints. The drawing
    // must not read what is beneath it (copy modes and opaque fills only).
    void Capture(int w, int h, const std::function<void(TCanvas &)> &draw);
    void Clear() { FImage = QImage(); FSpans.clear(); }
    bool IsEmpty() const { return FImage.isNull(); }
    // Puts the captured pixels on the canvas at the same places.
    void DrawOn(TCanvas &canvas) const { canvas.CopySpans(FSpans, FImage); }
    const Raster::Spans &Spans() const { return FSpans; }

private:
    QImage FImage;
    Raster::Spans FSpans;
};
