#include "qshapebtn.h"

#include "buttons/qcolorbutton.h"

#include <vector>

namespace {

using Line = std::vector<TPoint>;

void lines(TCanvas &c, TColor color, std::initializer_list<Line> polylines)
{
    c.Pen.SetColor(color);
    for (const Line &l : polylines)
        c.Polyline(l);
}

TRegion polygon(std::vector<TPoint> points)
{
    points.push_back(points.front());   // closed, as the platform's callers list it
    return CreatePolygonRgn(points.data(), int(points.size()));
}

} // namespace

TqShapeBtn::TqShapeBtn(QWidget *parent) : TGraphicControl(parent)
{
    SetControlStyle(csCaptureMouse | csClickEvents);
    SetColor(clBtnFace);
    SetParentColor(true);
    SetBounds(x(), y(), 25, 25);
    FAccel = QStringLiteral(" ");
    if (parentWidget())
        window()->installEventFilter(this);
}

TRegion TqShapeBtn::ShapeRegion(sbType shape, int width, int height)
{
    const int R = width - 1, B = height - 1, cx = R / 2, cy = B / 2, a = R / 3, b = B / 3;
    switch (shape) {
    case sbUpTriangle: return polygon({{cx, 0}, {0, B}, {R, B}});
    case sbDnTriangle: return polygon({{0, 0}, {cx, B}, {R, 0}});
    case sbLTriangle: return polygon({{0, cy}, {R, 0}, {R, B}});
    case sbRTriangle: return polygon({{0, 0}, {R, cy}, {0, B}});
    case sbTLTriangle: return polygon({{0, B}, {0, 0}, {R, 0}});
    case sbTRTriangle: return polygon({{0, 0}, {R, 0}, {R, B}});
    case sbBLTriangle: return polygon({{0, 0}, {0, B}, {R, B}});
    case sbBRTriangle: return polygon({{R, 0}, {R, B}, {0, B}});
    case sbPlus:
        return polygon({{a, 0}, {2 * a, 0}, {2 * a, b}, {3 * a, b}, {3 * a, 2 * b}, {2 * a, 2 * b}, {2 * a, 3 * b},
                        {a, 3 * b}, {a, 2 * b}, {0, 2 * b}, {0, b}, {a, b}});
    case sbMinus: {
        // A bar with a short stub above and below it, b div 4 apart.
        const int T = b - b / 4, U = 2 * b + b / 4;
        return CreatePolyPolygonRgn({{{a, 0}, {2 * a, 0}, {2 * a, T}, {a, T}, {a, 0}},
                                     {{a, 3 * b}, {2 * a, 3 * b}, {2 * a, U}, {a, U}, {a, 3 * b}},
                                     {{0, b}, {0, 2 * b}, {R, 2 * b}, {R, b}, {0, b}}});
    }
    case sbCircle: return CreateRoundRectRgn(0, 0, R, B, R, B);
    default: return CreateRectRgn(0, 0, R, B);
    }
}

void TqShapeBtn::RgnFromShape()
{
    FRegionSize = size();
    if (FShape != sbOwnerDraw) {
        FRegion = ShapeRegion(FShape, width(), height());
        return;
    }
    TRegion region;
    emit OnGetRegion(this, region, width(), height());
    FRegion = region.IsEmpty() ? CreateRectRgn(0, 0, width() - 1, height() - 1) : region;
}

bool TqShapeBtn::HitTest(int X, int Y) const
{
    if (FRegionSize != size())
        const_cast<TqShapeBtn *>(this)->RgnFromShape();
    return PtInRegion(FRegion, X, Y);
}

void TqShapeBtn::SetTransparent(bool transparent)
{
    if (FTransparent == transparent)
        return;
    FTransparent = transparent;
    Invalidate();
}

QChar TqShapeBtn::GetAccelkey() const { return FAccel.size() < 2 ? QChar(u' ') : FAccel[1]; }

void TqShapeBtn::SetAccelKey(QChar key)
{
    setAccel(key == QChar(u' ') ? QString() : QStringLiteral("&") + key);
}

// Alt with the key clicks the button wherever the focus is; the key alone
// where the focused control leaves it unused.
void TqShapeBtn::setAccel(const QString &accel)
{
    FAccel = accel;
    if (FShortcut)
        releaseShortcut(FShortcut);
    FShortcut = accel.size() == 2 ? grabShortcut(QKeySequence(Qt::ALT | accel[1].toUpper().unicode()), Qt::WindowShortcut)
                                  : 0;
}

void TqShapeBtn::SetShape(sbType shape)
{
    if (FShape == shape)
        return;
    FShape = shape;
    setAccel(shape == sbPlus ? QStringLiteral("&+") : shape == sbMinus ? QStringLiteral("&-") : QString());
    RgnFromShape();
    Invalidate();
}

void TqShapeBtn::SetHigh(TColor color)
{
    if (FHighLightColor == color)
        return;
    FHighLightColor = color;
    Invalidate();
}

void TqShapeBtn::SetShadow(TColor color)
{
    if (FShadowColor == color)
        return;
    FShadowColor = color;
    Invalidate();
}

void TqShapeBtn::Paint(TCanvas &canvas)
{
    if (!isEnabled()) {
        FPressed = false;
        if (!IsDesigning())
            FTracking = false;
    }
    RgnFromShape();
    canvas.Brush.SetColor(Color());
    canvas.Pen.SetWidth(1);
    if (!FTransparent) {
        switch (FShape) {
        case sbRectangle: drawRectangle(canvas); break;
        case sbPlus: drawPlus(canvas); break;
        case sbMinus: drawMinus(canvas); break;
        case sbCircle: drawEllipse(canvas); break;
        case sbOwnerDraw:
            if (isSignalConnected(QMetaMethod::fromSignal(&TqShapeBtn::OnOwnerDraw)))
                emit OnOwnerDraw(this, &canvas, FPressed, width(), height(), FRegion, FShadowColor, FHighLightColor);
            else
                drawRectangle(canvas);
            break;
        default: drawTriangle(canvas, int(FShape)); break;
        }
    } else if (IsDesigning()) {   // so that the invisible button can be found
        TBrush black;
        black.SetColor(clBlack);
        FrameRgn(canvas, FRegion, black, 1, 1);
    }
    emit OnPaint(this);
}

void TqShapeBtn::drawRectangle(TCanvas &c)
{
    const int R = width() - 1, B = height() - 1;
    c.Pen.SetStyle(psClear);
    PaintRgn(c, FRegion);
    c.Pen.SetStyle(psSolid);
    lines(c, FShadowColor, {{{0, B}, {0, 0}, {R, 0}}, {{R - 1, 1}, {R - 1, B - 1}, {1, B - 1}}});
    lines(c, light(), {{{1, B - 1}, {1, 1}, {R - 1, 1}}});
    lines(c, dark(), {{{R, 0}, {R, B}, {0, B}}});
}

void TqShapeBtn::drawEllipse(TCanvas &c)
{
    const int R = width() - 1, B = height() - 1, h = R / 2, q = h / 2;
    c.Pen.SetStyle(psClear);
    PaintRgn(c, FRegion);
    c.Pen.SetStyle(psSolid);
    c.Pen.SetColor(FShadowColor);
    c.Arc(0, 0, R, B, h + q, 0, q, B);
    c.Arc(1, 1, R - 1, B - 1, q - 2, B - 2, h + q - 2, 2);
    c.Pen.SetColor(light());
    c.Arc(1, 1, R - 1, B - 1, h + q - 2, 2, q - 2, B - 2);
    c.Pen.SetColor(dark());
    c.Arc(0, 0, R, B, q, B, h + q, 0);
}

// Each triangle: its shadow lines, then the light line, then the dark one.
void TqShapeBtn::drawTriangle(TCanvas &c, int which)
{
    const int R = width() - 1, B = height() - 1, cx = R / 2, cy = B / 2;
    TBrush frame;
    frame.SetColor(FShadowColor);
    FrameRgn(c, FRegion, frame, 1, 1);
    c.Brush.SetColor(Color());
    c.Pen.SetStyle(psSolid);
    c.Pen.SetWidth(1);
    c.Pen.SetColor(FShadowColor);
    PaintRgn(c, FRegion);
    struct Lines
    {
        std::initializer_list<Line> shadow;
        Line light, dark;
    };
    const auto draw = [&](const Lines &l) {
        lines(c, FShadowColor, l.shadow);
        lines(c, light(), {l.light});
        lines(c, dark(), {l.dark});
    };
    switch (which) {
    case 1: draw({{{{cx, 0}, {0, B}}, {{cx, 2}, {R - 2, B - 1}, {1, B - 1}}}, {{cx, 2}, {2, B - 1}},
                  {{cx, 1}, {R, B}, {0, B}}});
        break;
    case 2: draw({{{{cx, B}, {0, 0}, {R, 0}}, {{R - 2, 1}, {cx - 1, B - 1}}}, {{cx, B - 2}, {2, 1}, {R - 2, 1}},
                  {{R, 0}, {cx, B}}});
        break;
    case 3: draw({{{{0, cy}, {R, 0}}, {{R - 1, 1}, {R - 1, B - 2}, {1, cy - 1}}}, {{2, cy}, {R - 1, 2}},
                  {{R, 0}, {R, B}, {0, cy}}});
        break;
    case 4: draw({{{{0, B}, {0, 0}, {R, cy}}, {{1, B - 1}, {R - 1, cy}}}, {{1, B - 1}, {1, 2}, {R - 2, cy}},
                  {{0, B}, {R, cy}}});
        break;
    case 5: draw({{{{0, B}, {0, 0}, {R, 0}}, {{R - 3, 2}, {2, B - 3}}}, {{1, B - 2}, {1, 1}, {R - 2, 1}},
                  {{R, 0}, {0, B}}});
        break;
    case 6: draw({{{{R, B}, {0, 0}, {R, 0}}, {{R - 1, 0}, {R - 1, B}}}, {{R - 2, B - 3}, {2, 1}, {R - 1, 1}},
                  {{R, 0}, {R, B}}});
        break;
    case 7: draw({{{{0, B}, {0, 0}}, {{2, 3}, {R - 2, B - 1}, {1, B - 1}}}, {{1, 2}, {1, B}},
                  {{2, 2}, {R, B}, {0, B}}});
        break;
    default: draw({{{{R, 0}, {0, B}}, {{R - 1, 2}, {R - 1, B - 1}, {1, B - 1}}}, {{1, B}, {R - 1, 2}},
                   {{1, B}, {R, B}, {R, 1}}});
        break;
    }
}

void TqShapeBtn::drawPlus(TCanvas &c)
{
    const int R = width() - 1, B = height() - 1, a = R / 3, b = B / 3;
    c.Pen.SetStyle(psClear);
    PaintRgn(c, FRegion);
    c.Pen.SetStyle(psSolid);
    lines(c, FShadowColor,
          {{{a, 3 * b}, {a, 2 * b}},
           {{0, 2 * b}, {0, b}, {a, b}, {a, 0}, {2 * a, 0}},
           {{2 * a, b}, {3 * a, b}},
           {{1, 2 * b - 1}, {a + 1, 2 * b - 1}},
           {{2 * a - 1, 1}, {2 * a - 1, b + 1}},
           {{3 * a - 1, b + 1}, {3 * a - 1, 2 * b - 1}, {2 * a - 1, 2 * b - 1}, {2 * a - 1, 3 * b - 1}, {a + 1, 3 * b - 1}}});
    lines(c, light(),
          {{{3 * a - 1, b + 1}, {2 * a - 1, b + 1}},
           {{2 * a - 1, 1}, {a + 1, 1}, {a + 1, b + 1}, {1, b + 1}, {1, 2 * b - 1}},
           {{a + 1, 2 * b - 1}, {a + 1, 3 * b - 1}}});
    lines(c, dark(),
          {{{2 * a, 0}, {2 * a, b}},
           {{3 * a, b}, {3 * a, 2 * b}, {2 * a, 2 * b}, {2 * a, 3 * b}, {a, 3 * b}},
           {{0, 2 * b}, {a, 2 * b}}});
}

void TqShapeBtn::drawMinus(TCanvas &c)
{
    const int R = width() - 1, B = height() - 1, a = R / 3, b = B / 3, T = b - b / 4, U = 2 * b + b / 4;
    c.Pen.SetStyle(psClear);
    PaintRgn(c, FRegion);
    c.Pen.SetStyle(psSolid);
    lines(c, FShadowColor,
          {{{a, T}, {a, 0}, {2 * a, 0}},
           {{a + 1, T - 1}, {2 * a - 1, T - 1}, {2 * a - 1, 0}},
           {{a, B}, {a, U}, {2 * a, U}},
           {{a + 1, B - 1}, {2 * a - 1, B - 1}, {2 * a - 1, U}},
           {{0, 2 * b}, {0, b}, {R, b}},
           {{1, 2 * b - 1}, {R - 1, 2 * b - 1}, {R - 1, b}}});
    lines(c, light(),
          {{{a + 1, T - 1}, {a + 1, 1}, {2 * a - 1, 1}},
           {{a + 1, B - 1}, {a + 1, U + 1}, {2 * a - 1, U + 1}},
           {{1, 2 * b - 1}, {1, b + 1}, {R - 1, b + 1}}});
    lines(c, dark(),
          {{{2 * a, 0}, {2 * a, T}, {a, T}},
           {{2 * a, U}, {2 * a, B}, {a, B}},
           {{R, b}, {R, 2 * b}, {0, 2 * b}}});
}

void TqShapeBtn::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    TGraphicControl::MouseDown(Button, Shift, X, Y);
    if (Button != mbLeft || !isEnabled() || !PtInRegion(FRegion, X, Y))
        return;
    if (!FPressed) {
        FPressed = true;
        Repaint();
    }
    FTracking = true;
}

void TqShapeBtn::MouseMove(TShiftState Shift, int X, int Y)
{
    TGraphicControl::MouseMove(Shift, X, Y);
    if (!FTracking)
        return;
    const bool inside = PtInRegion(FRegion, X, Y);
    if (inside != FPressed) {
        FPressed = inside;
        Repaint();
    }
}

void TqShapeBtn::MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    TGraphicControl::MouseUp(Button, Shift, X, Y);
    FPressed = false;
    FTracking = false;
    Repaint();
}

void TqShapeBtn::Click()
{
    if (FPressed)
        TGraphicControl::Click();
}

// The accelerator clicks the button whatever its state.
bool TqShapeBtn::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == window() && event->type() == QEvent::KeyPress && !IsDesigning() && isEnabled() && isVisible()) {
        const QChar key = TypedChar(static_cast<QKeyEvent *>(event));
        if (!key.isNull() && IsAccel(key, FAccel)) {
            TGraphicControl::Click();
            return true;
        }
    }
    return TGraphicControl::eventFilter(watched, event);
}

bool TqShapeBtn::event(QEvent *event)
{
    if (event->type() == QEvent::Shortcut) {
        if (isEnabled() && !IsDesigning())
            TGraphicControl::Click();
        return true;
    }
    if (event->type() == QEvent::ParentChange && parentWidget())
        window()->installEventFilter(this);
    return TGraphicControl::event(event);
}
