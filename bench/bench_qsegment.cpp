// Repaints per second of one segment cell, beside the cheapest possible
// repaint of the same area: one CopyRect of a finished picture.
#include "benchutil.h"

#include "displays/qseg.h"
#include "host/tbitmap.h"

#include <QApplication>

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    std::printf("%-32s %14s %14s %8s\n", "TqSegment repaint", "repaints/s", "CopyRect/s", "ratio");
    for (qSegSize size : {qSegSize(1), qSegSize(5)}) {
        TqSegment seg;
        seg.SetSize(size);
        seg.SetChar('8');
        seg.SetPunktur(spColon);
        QImage target(seg.size(), QImage::Format_RGB32);
        char c = '0';
        // A real repaint: the character changes, the cell paints off-screen.
        const double paints = ratePerSecond([&] {
            seg.SetChar(c = (c == '9' ? '0' : c + 1));
            target = seg.RenderImage();
        });
        TBitmap source(seg.width(), seg.height()), dest(seg.width(), seg.height());
        const TRect r = Rect(0, 0, seg.width(), seg.height());
        const double copies = ratePerSecond([&] { dest.Canvas().CopyRect(r, source.Canvas(), r); });
        char label[64];
        std::snprintf(label, sizeof label, "Size %d (%dx%d)", int(size), seg.width(), seg.height());
        std::printf("%-32s %14.0f %14.0f %7.1fx\n", label, paints, copies, copies / paints);
    }
    std::printf("(ratio: how many CopyRects of the same area fit in one repaint)\n");
    return 0;
}
