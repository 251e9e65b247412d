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
        const int extent = type == gVert ? h : w;
        if (n < 0 || extent <= 0)
            return;
        // Band i spans edge(i) .. edge(i + 1): rounded as MulDiv rounds.
        const qint64 count = qint64(n) + 1;
        const auto edge = [&](qint64 i) { return int((i * extent + count / 2) / count); };
        const auto strip = [&](int from, int to, int i) {
            canvas.Brush.SetColor(blend.Step(i, n));
            if (type == gVert)
                canvas.PatBlt(x, y + from, w, to - from, PATCOPY);
            else
                canvas.PatBlt(x + from, y, to - from, h, PATCOPY);
        };
        // Only the rows (columns) on the picture, each band once: with more
        // bands than rows most are no row high, and a row shows the band
        // that covers it.
        int row = 0, end = extent;
        if (const QImage *image = canvas.Image()) {
            const qint64 origin = type == gVert ? y : x, size = type == gVert ? image->height() : image->width();
            row = int(std::clamp<qint64>(-origin, 0, extent));
            end = int(std::clamp<qint64>(size - origin, row, extent));
        }
        while (row < end) {
            // The covering band is the last to start at or before the row:
            // edge(i) <= row exactly while i * extent < (row + 1) * count - count / 2.
            const qint64 i = std::clamp<qint64>(((qint64(row) + 1) * count - count / 2 - 1) / extent, 0, n);
            const int next = std::min(edge(i + 1), end);
            strip(row, next, int(i));
            row = next;
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
