#pragma once
// The drawing surface every component paints on: pen, brush and font over an
// off-screen image, with the platform's pixel rules. Shapes stop one pixel
// short of their right and bottom bounds, lines leave their end point out,
// arcs run counter-clockwise, and raster operations combine pattern, source
// and destination bit by bit. Nothing is anti-aliased, so pictures are exact.

#include "raster.h"
#include "tcolor.h"
#include "ttypes.h"

#include <QFont>
#include <QImage>
#include <QObject>
#include <QRegion>
#include <QString>

#include <vector>

enum TPenStyle { psSolid, psDash, psDot, psDashDot, psDashDotDot, psClear, psInsideFrame };
enum TPenMode {
    pmBlack, pmWhite, pmNop, pmNot, pmCopy, pmNotCopy, pmMergePenNot, pmMaskPenNot,
    pmMergeNotPen, pmMaskNotPen, pmMerge, pmNotMerge, pmMask, pmNotMask, pmXor, pmNotXor
};

// Brush styles and blend directions are stored with forms, so the form
// loader and the designer know them by name.
namespace Graphics {
Q_NAMESPACE
enum TBrushStyle { bsSolid, bsClear, bsHorizontal, bsVertical, bsFDiagonal, bsBDiagonal, bsCross, bsDiagCross };
Q_ENUM_NS(TBrushStyle)
// The direction of a colour blend (see tblend.h).
enum gradType { gHorz, gVert, gCenter };
Q_ENUM_NS(gradType)
} // namespace Graphics
using namespace Graphics;

enum TFontStyle { fsBold = 1, fsItalic = 2, fsUnderline = 4, fsStrikeOut = 8 };
using TFontStyles = int;

// Ternary raster operations (pattern, source, destination).
using TCopyMode = quint32;
constexpr TCopyMode cmBlackness   = 0x00000042;
constexpr TCopyMode cmDstInvert   = 0x00550009;
constexpr TCopyMode cmMergeCopy   = 0x00C000CA;
constexpr TCopyMode cmMergePaint  = 0x00BB0226;
constexpr TCopyMode cmNotSrcCopy  = 0x00330008;
constexpr TCopyMode cmNotSrcErase = 0x001100A6;
constexpr TCopyMode cmPatCopy     = 0x00F00021;
constexpr TCopyMode cmPatInvert   = 0x005A0049;
constexpr TCopyMode cmPatPaint    = 0x00FB0A09;
constexpr TCopyMode cmSrcAnd      = 0x008800C6;
constexpr TCopyMode cmSrcCopy     = 0x00CC0020;
constexpr TCopyMode cmSrcErase    = 0x00440328;
constexpr TCopyMode cmSrcInvert   = 0x00660046;
constexpr TCopyMode cmSrcPaint    = 0x00EE0086;
constexpr TCopyMode cmWhiteness   = 0x00FF0062;
// The platform's names for the pattern-only operations of PatBlt.
constexpr TCopyMode PATCOPY = cmPatCopy;
constexpr TCopyMode PATINVERT = cmPatInvert;
constexpr TCopyMode DSTINVERT = cmDstInvert;
constexpr TCopyMode BLACKNESS = cmBlackness;
constexpr TCopyMode WHITENESS = cmWhiteness;

// DrawText flags.
constexpr unsigned DT_TOP = 0x0, DT_LEFT = 0x0, DT_CENTER = 0x1, DT_RIGHT = 0x2, DT_VCENTER = 0x4,
    DT_BOTTOM = 0x8, DT_WORDBREAK = 0x10, DT_SINGLELINE = 0x20, DT_EXPANDTABS = 0x40,
    DT_NOCLIP = 0x100, DT_CALCRECT = 0x400, DT_NOPREFIX = 0x800, DT_END_ELLIPSIS = 0x8000;

class TPen
{
public:
    TColor Color() const { return FColor; }
    void SetColor(TColor c) { FColor = c; }
    int Width() const { return FWidth; }
    void SetWidth(int w) { FWidth = w < 1 ? 1 : w; }
    TPenStyle Style() const { return FStyle; }
    void SetStyle(TPenStyle s) { FStyle = s; }
    TPenMode Mode() const { return FMode; }
    void SetMode(TPenMode m) { FMode = m; }

private:
    TColor FColor = clBlack;
    int FWidth = 1;
    TPenStyle FStyle = psSolid;
    TPenMode FMode = pmCopy;
};

class TBrush
{
public:
    TColor Color() const { return FColor; }
    // As on the platform, giving a clear brush a colour makes it solid again.
    void SetColor(TColor c)
    {
        FColor = c;
        if (FStyle == bsClear)
            FStyle = bsSolid;
    }
    TBrushStyle Style() const { return FStyle; }
    void SetStyle(TBrushStyle s) { FStyle = s; }
    // A pattern bitmap, tiled from the surface's origin; a null image clears it.
    const QImage &Bitmap() const { return FBitmap; }
    void SetBitmap(const QImage &bitmap) { FBitmap = bitmap; }

private:
    TColor FColor = clWhite;
    TBrushStyle FStyle = bsSolid;
    QImage FBitmap;
};

class TFont
{
public:
    QString Name() const { return FName; }
    void SetName(const QString &name) { FMade = FMade && name == FName; FName = name; }
    // Point size at 96 pixels per inch; Height is the character height in
    // pixels, negative as the platform writes it.
    int Size() const { return FSize; }
    void SetSize(int points) { FMade = FMade && points == FSize; FSize = points; }
    int Height() const { return -MulDiv(FSize, 96, 72); }
    void SetHeight(int height) { SetSize(-MulDiv(height, 72, 96)); }
    TColor Color() const { return FColor; }
    void SetColor(TColor c) { FColor = c; }
    TFontStyles Style() const { return FStyle; }
    void SetStyle(TFontStyles s) { FMade = FMade && s == FStyle; FStyle = s; }
    QFont ToQFont() const;
    // A widget's font in these terms: family, size in points, styles.
    static TFont FromQFont(const QFont &font, TColor color);

private:
    QString FName = QStringLiteral("DejaVu Sans");
    int FSize = 8;
    TColor FColor = clWindowText;
    TFontStyles FStyle = 0;
    // The Qt font, made once until the font changes.
    mutable QFont FQFont;
    mutable bool FMade = false;
};

class TCanvas
{
public:
    explicit TCanvas(QImage *image = nullptr);

    QImage *Image() const { return FImage; }
    void SetImage(QImage *image) { FImage = image; }

    TPen Pen;
    TBrush Brush;
    TFont Font;
    TCopyMode CopyMode = cmSrcCopy;

    // Drawing is limited to this region (null: the whole image).
    void SetClipRegion(const QRegion &region) { FClip = region; }
    const QRegion &ClipRegion() const { return FClip; }
    TRect ClipRect() const;

    TPoint PenPos() const { return FPenPos; }
    void SetPenPos(TPoint p) { FPenPos = p; }
    void MoveTo(int x, int y) { FPenPos = {x, y}; }
    void LineTo(int x, int y);
    void Polyline(const TPoint *points, int count);
    void Polyline(const std::vector<TPoint> &points) { Polyline(points.data(), int(points.size())); }
    void Polygon(const TPoint *points, int count);
    void Polygon(const std::vector<TPoint> &points) { Polygon(points.data(), int(points.size())); }
    void Rectangle(int x1, int y1, int x2, int y2);
    void Rectangle(const TRect &r) { Rectangle(r.Left, r.Top, r.Right, r.Bottom); }
    void RoundRect(int x1, int y1, int x2, int y2, int cornerWidth, int cornerHeight);
    void Ellipse(int x1, int y1, int x2, int y2);
    void Ellipse(const TRect &r) { Ellipse(r.Left, r.Top, r.Right, r.Bottom); }
    void Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    void Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);

    void FillRect(const TRect &r);
    void FrameRect(const TRect &r);
    void DrawFocusRect(const TRect &r);
    void PatBlt(int x, int y, int width, int height, TCopyMode rop);
    void FillSpans(const Raster::Spans &spans, const TBrush &brush, TCopyMode rop = cmPatCopy);
    // Fills every pixel of the region with the brush, combined by the pen mode.
    void FillRegion(const QRegion &region, const TBrush &brush);

    void CopyRect(const TRect &dest, const TCanvas &source, const TRect &src);
    void CopyRect(const TRect &dest, const QImage &source, const TRect &src);
    void Draw(int x, int y, const QImage &image);
    // Copies the pixels of `spans` from `source` at the same places: how a
    // control lays a picture made earlier over part of its drawing.
    void CopySpans(const Raster::Spans &spans, const QImage &source);
    void StretchDraw(const TRect &dest, const QImage &image);

    TColor Pixels(int x, int y) const;
    void SetPixels(int x, int y, TColor color);

    void TextOut(int x, int y, const QString &text);
    void TextRect(const TRect &r, int x, int y, const QString &text);
    int TextWidth(const QString &text) const;
    int TextHeight(const QString &text) const;
    // Returns the height of the text; with DT_CALCRECT only measures, and
    // widens or narrows `r` to the text.
    int DrawText(const QString &text, TRect &r, unsigned flags);

private:
    struct Source;
    void plot(const Raster::Spans &spans, const Source &source, quint8 rop3);
    static bool hasBrush(const TBrush &brush);
    int penWidth() const;
    bool widePen() const;
    bool penRect(int x1, int y1, int x2, int y2, TRect &r) const;
    QRegion wideOutline(const Raster::Points &points, bool close) const;
    void thinLines(const Raster::Points &points, bool close);
    void thinLines(const TPoint *points, size_t count, bool close);
    void strokeOpen(const Raster::Points &points);
    void fillAndStroke(const Raster::Points &outline, bool close, const Raster::Spans &inside);
    Raster::Points arcPoints(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4, TRect &r) const;
    void textBackground(const QRect &r);
    quint8 penRop() const;

    QImage *FImage = nullptr;
    QRegion FClip;
    TPoint FPenPos;
    int FDashPhase = 0;
    Raster::Spans FScratch;   // reused by each stroke
};

// Raised or sunken frame: top and left in `top`, bottom and right in
// `bottom`, `width` pixels deep; `r` comes back shrunk by the frame.
void Frame3D(TCanvas &canvas, TRect &r, TColor top, TColor bottom, int width);
// The dashed outline that finds an empty-looking control on a designed form
// (the pen and brush styles are left as they were).
void PaintDesignOutline(TCanvas &canvas, int w, int h);
