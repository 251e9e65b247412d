#include "qblendpainter.h"

#include <algorithm>

void PaintBackgroundBlend(TCanvas &canvas, gradType type, int bands, const TBlend &blend, int w, int h)
{
    if (type == gCenter && bands >= 0 && std::min({bands, w / 2, h / 2}) == 0)
        throw std::domain_error("Division by zero");
    PaintBlend(canvas, type, bands, blend, 0, 0, w, h, Rect(0, 0, w, h));
}
