#include "tblend.h"

#include <algorithm>

TBlend::TBlend(TColor from, TColor to)
{
    const quint32 a = from, b = to;
    for (int c = 0; c < 3; ++c) {
        FStart[c] = int((a >> (8 * c)) & 0xFF);
        FDelta[c] = int((b >> (8 * c)) & 0xFF) - FStart[c];
    }
}

TColor TBlend::Step(int i, int n) const
{
    quint32 rgb = 0;
    for (int c = 0; c < 3; ++c)
        rgb |= quint32((FStart[c] + MulDiv(i, FDelta[c], n)) & 0xFF) << (8 * c);
    return rgb;
}

void PaintBlend(TCanvas &canvas, gradType type, int bands, const TBlend &blend, int x, int y, int w, int h,
                const TRect &ring)
{
    canvas.Brush.SetStyle(bsSolid);
    if (type != gCenter) {
        const int n = bands;
        for (int i = 0; i <= n; ++i) {
            canvas.Brush.SetColor(blend.Step(i, n));
            if (type == gVert) {
                const int top = MulDiv(i, h, n + 1);
                canvas.PatBlt(x, y + top, w, MulDiv(i + 1, h, n + 1) - top, PATCOPY);
            } else {
                const int left = MulDiv(i, w, n + 1);
                canvas.PatBlt(x + left, y, MulDiv(i + 1, w, n + 1) - left, h, PATCOPY);
            }
        }
        return;
    }
    const int n = std::min({bands, w / 2, h / 2});
    if (n < 0)
        return;
    // A blend too small for a ring is one fill.
    const int dx = n == 0 ? 1 : std::max(1, (w / 2) / n), dy = n == 0 ? 1 : std::max(1, (h / 2) / n);
    TRect r = ring;
    for (int i = 0; i <= n; ++i) {
        canvas.Brush.SetColor(blend.Step(i, n));
        if (i < n) {
            canvas.FillRect(Rect(r.Left, r.Top, r.Right, r.Top + dy));
            canvas.FillRect(Rect(r.Left, r.Top + dy, r.Left + dx, r.Bottom - dy));
            canvas.FillRect(Rect(r.Left, r.Bottom - dy, r.Right, r.Bottom));
            canvas.FillRect(Rect(r.Right - dx, r.Top + dy, r.Right, r.Bottom - dy));
        } else {
            canvas.FillRect(r);
        }
        InflateRect(r, -dx, -dy);
    }
}
