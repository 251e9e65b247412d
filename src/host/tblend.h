#pragma once
// The colour blend of the gradient button, the form background and the
// blend painters: bands from a first to a last colour, top to bottom, left
// to right, or in rings toward the centre.

#include "tcanvas.h"

// gradType (gHorz, gVert, gCenter) is with the canvas's stored types.

// The steps between two colours, channel by channel, from the colours'
// bytes as they are given (a caller that wants system colours translated
// passes ColorToRGB of them).
class TBlend
{
public:
    TBlend() = default;
    TBlend(TColor from, TColor to);
    // Step i of n: per channel, start + MulDiv(i, delta, n), taken as a byte
    // (so n = 0 gives each channel start - 1).
    TColor Step(int i, int n) const;

private:
    int FStart[3] = {0, 0, 0};
    int FDelta[3] = {0, 0, 0};
};

// Paints the blend. gVert and gHorz: `bands` + 1 bands over w x h pixels at
// (x, y), band i spanning MulDiv(i, h, n + 1) .. MulDiv(i + 1, h, n + 1) (or
// w). gCenter: rings of `ring` inward, n = min(bands, w div 2, h div 2), ring
// i of dx = max(1, (w div 2) div n) by dy the same with h, the centre filled
// last. Negative `bands` paint nothing.
void PaintBlend(TCanvas &canvas, gradType type, int bands, const TBlend &blend, int x, int y, int w, int h,
                const TRect &ring);
