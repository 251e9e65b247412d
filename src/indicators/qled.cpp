#include "qled.h"

#include "host/tsteel.h"

#include <QTimer>

#include <algorithm>

int LedScale(int width) { return std::clamp(width / 17, 1, 6); }

TqLed::TqLed(QWidget *parent) : TGraphicControl(parent)
{
    SetControlStyle(ControlStyle() | csOpaque);
    SetBounds(x(), y(), 17, 17);
}

TqLed::~TqLed() { dropTimer(); }

std::pair<TColor, TColor> TqLed::Colors(LedColorType color)
{
    switch (color) {
    case lctRed: return {clRed, clMaroon};
    case lctBlue: return {clBlue, clNavy};
    case lctGreen: return {clLime, clGreen};
    case lctyellow: return {clYellow, clOlive};
    case lctMangenta: return {clFuchsia, clPurple};
    case lctGrey: return {clSilver, clBlack};   // black, not a darker grey
    case lctCyan: return {clAqua, clTeal};
    case lctWhite: return {clWhite, clGray};
    }
    return {clRed, clMaroon};
}

void TqLed::SetStyle(LedStyleType style)
{
    if (FStyle == style)
        return;
    FStyle = style;
    Invalidate();
}

void TqLed::SetSteel(bool steel)
{
    FSteel = steel;
    Invalidate();
}

void TqLed::WriteLedColor(LedColorType color)
{
    FColor = color;
    Refresh();
}

void TqLed::writeLedOn(bool on)
{
    if (FOn == on)
        return;
    FOn = on;
    Refresh();
    emit OnChange(this);
}

void TqLed::dropTimer()
{
    delete FTimer;
    FTimer = nullptr;
}

// An interval of 0 or less makes a timer that never fires, as the
// framework's timer does.
void TqLed::makeTimer()
{
    FTimer = new QTimer(this);
    FTimer->setInterval(std::max(FInterval, 0));
    connect(FTimer, &QTimer::timeout, this, &TqLed::DoTheBlink);
    if (FInterval > 0)
        FTimer->start();
}

void TqLed::SetBlink(bool blink)
{
    if (FBlink == blink)
        return;
    dropTimer();
    FBlink = blink;
    if (blink)
        makeTimer();
    Refresh();
}

// Unlike Blink, a new interval starts no timer in the designer.
void TqLed::SetInterval(int interval)
{
    if (FInterval == interval)
        return;
    dropTimer();
    FInterval = interval;
    if (FBlink && !IsDesigning())
        makeTimer();
    Refresh();
}

void TqLed::DoTheBlink() { writeLedOn(!FOn); }

void TqLed::Paint(TCanvas &canvas)
{
    const int W = width(), H = height();
    const int f = LedScale(W);
    if (FSteel) {
        canvas.Brush.SetBitmap(TSteel());
        canvas.FillRect(Rect(0, 0, W, H));
        canvas.Brush.SetBitmap(QImage());
    } else {
        canvas.Brush.SetColor(Color());
        canvas.FillRect(Rect(0, 0, W, H));
    }
    const auto [lit, unlit] = Colors(FColor);
    canvas.Brush.SetColor(FOn ? lit : unlit);
    canvas.Pen.SetColor(clBlack);
    canvas.Pen.SetWidth(f);
    if (FStyle == lstRound)
        paintRound(canvas, f);
    else
        paintSquare(canvas, f);
    emit OnPaint(this);
}

void TqLed::paintRound(TCanvas &c, int f)
{
    const int W = width(), H = height(), g = std::max(f / 2, 1);
    c.Ellipse(0, 0, W, H);
    c.Pen.SetColor(clSilver);
    c.Ellipse(f, f, W - f, H - f);
    c.Pen.SetColor(clGray);   // the bezel's lower right half in shadow
    c.Arc(f, f, W - f, H - f, f, H - f, W - f, f);
    c.Pen.SetColor(clBlack);
    c.Ellipse(2 * f, 2 * f, W - 2 * f, H - 2 * f);
    // Notches in the bezel at the four compass points.
    const int cx = W / 2, cy = H / 2;
    c.Arc(f, f, W - f, H - f, cx + 3 * f, f, cx - 3 * f, f);
    c.Arc(f, f, W - f, H - f, cx - 3 * f, H - f, cx + 3 * f, H - f);
    c.Arc(f, f, W - f, H - f, f, cy - 3 * f, f, cy + 3 * f);
    c.Arc(f, f, W - f, H - f, W - f, cy + 3 * f, W - f, cy - 3 * f);
    // Shadow inside the glass, and the glint with its softer edge.
    c.Pen.SetWidth(g);
    c.Pen.SetColor(clGray);
    c.Arc(4 * f, 4 * f, W - 4 * f, H - 4 * f, W - 4 * f, H - 2 * f, W - 4 * f, H - 9 * f);
    c.Pen.SetColor(clWhite);
    c.Arc(4 * f, 4 * f, W - 4 * f, H - 4 * f, 8 * f, 0, 7 * f, 9 * f);
    c.Pen.SetColor(clSilver);
    c.Arc(4 * f, 4 * f, W - 4 * f, H - 4 * f, 8 * f, 0, 7 * f, 8 * f);
}

void TqLed::paintSquare(TCanvas &c, int f)
{
    const int W = width(), H = height();
    c.FillRect(Rect(0, 0, W, H));
    const TPoint outer[] = {{f - 1, f - 1}, {W - 1, f - 1}, {W - 1, H - 1}, {f - 1, H - 1}, {f - 1, f - 1}};
    c.Polyline(outer, 5);
    const TPoint inner[] = {{3 * f - 1, 3 * f - 1}, {W - 1 - 2 * f, 3 * f - 1}, {W - 1 - 2 * f, H - 1 - 2 * f},
                            {3 * f - 1, H - 1 - 2 * f}, {3 * f - 1, 3 * f - 1}};
    c.Polyline(inner, 5);
    c.Pen.SetColor(clSilver);
    const TPoint light[] = {{2 * f - 1, H - f - 1}, {2 * f - 1, 2 * f - 1}, {W - 2 * f + 1, 2 * f - 1}};
    c.Polyline(light, 3);
    c.Pen.SetColor(clGray);
    const TPoint shadow[] = {{W - f - 1, 3 * f - 1}, {W - f - 1, H - f - 1}, {2 * f - 1, H - f - 1}};
    c.Polyline(shadow, 3);
    // Two shadow marks given right to left and bottom to top, mirroring the
    // glints; the canvas fills such rectangles as the platform does.
    c.Brush.SetColor(clGray);
    c.FillRect(Rect(W - 4 * f, H - 4 * f, W - 6 * f, H - 5 * f));
    c.FillRect(Rect(W - 7 * f, H - 4 * f, W - 9 * f, H - 5 * f));
    c.Brush.SetColor(clWhite);
    c.Pen.SetColor(clWhite);
    c.FillRect(Rect(4 * f, 4 * f, 6 * f, 5 * f));
    c.Brush.SetColor(clSilver);
    c.Pen.SetColor(clSilver);
    c.FillRect(Rect(7 * f, 4 * f, 9 * f, 5 * f));
}
