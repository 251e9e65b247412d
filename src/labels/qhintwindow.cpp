#include "qhintwindow.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

THintLayout HintLayout(QSize text, int margin, TqHint::TqHintShape shape, int shadowDepth, QPoint cursor,
                       const QRect &screen)
{
    THintLayout layout;
    const int bw = text.width() + 2 * margin + 2, bh = text.height() + 2 * margin + 2;
    const bool balloon = shape == TqHint::hsBalloon;
    const int tail = balloon ? kHintTailHeight : 0;
    const QSize size(bw + shadowDepth, bh + tail + shadowDepth);
    // Below: a box under the pointer's picture, or a balloon pointing up at
    // the pointer's tip.
    QPoint at = balloon ? cursor + QPoint(-kHintTailAt, 4) : cursor + QPoint(0, 20);
    layout.below = at.y() + size.height() <= screen.bottom() + 1;
    if (!layout.below)
        at.setY(balloon ? cursor.y() - 4 - (bh + tail - 1) : cursor.y() - 4 - size.height());
    at.setX(qMax(screen.left(), qMin(at.x(), screen.right() + 1 - size.width())));
    layout.geometry = QRect(at, size);
    layout.body = QRect(0, layout.below ? tail : 0, bw, bh);
    if (balloon) {
        const int x = kHintTailAt;
        if (layout.below)
            layout.tail << QPoint(x, tail + 1) << QPoint(x, 0) << QPoint(x + kHintTailBase, tail + 1);
        else
            layout.tail << QPoint(x, bh - 2) << QPoint(x, bh + tail - 1) << QPoint(x + kHintTailBase, bh - 2);
    }
    return layout;
}

TRegion HintShapeRegion(const THintLayout &layout, TqHint::TqHintShape shape, int roundSize)
{
    const QRect &b = layout.body;
    if (shape == TqHint::hsRectangle)
        return CreateRectRgn(b.left(), b.top(), b.right() + 1, b.bottom() + 1);
    // A round-rect region leaves out the right and bottom lines of its box.
    TRegion region = CreateRoundRectRgn(b.left(), b.top(), b.right() + 2, b.bottom() + 2, roundSize, roundSize);
    if (!layout.tail.isEmpty()) {
        std::vector<TPoint> points;
        for (QPoint p : layout.tail)
            points.push_back({p.x(), p.y()});
        // A polygon region leaves out its right edge and its point: one
        // more pixel right, and the upright edge up to the point itself.
        TRegion tail = CreatePolygonRgn(points.data(), int(points.size()));
        tail = CombineRgn(tail, OffsetRgn(tail, 1, 0), RGN_OR);
        const QPoint a = layout.tail[0], tip = layout.tail[1];
        tail = CombineRgn(tail, CreateRectRgn(tip.x(), qMin(a.y(), tip.y()), tip.x() + 1, qMax(a.y(), tip.y()) + 1), RGN_OR);
        region = CombineRgn(region, tail, RGN_OR);
    }
    return region;
}

TqHintWindow::TqHintWindow(const TqHint *hint)
    : QWidget(nullptr, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus),
      FHint(hint)
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setObjectName(QStringLiteral("qcolHintWindow"));
}

void TqHintWindow::Prepare(const QString &text, QPoint cursor, TColor color)
{
    FText = text;
    TCanvas measure;
    measure.Font = TFont::FromQFont(FHint->Font(), FHint->FontColor());
    TRect r = Rect(0, 0, FHint->MaxWidth(), 0);
    measure.DrawText(text, r, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
    QScreen *screen = QGuiApplication::screenAt(cursor);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    const QRect area = screen ? screen->geometry() : QRect(0, 0, 1 << 16, 1 << 16);
    const int depth = FHint->Shadow() ? FHint->ShadowDepth() : 0;
    FLayout = HintLayout(QSize(r.Width(), r.Height()), FHint->Margin(), FHint->Shape(), depth, cursor, area);

    const TRegion shape = HintShapeRegion(FLayout, FHint->Shape(), FHint->RoundSize());
    FPicture = QImage(FLayout.geometry.size(), QImage::Format_RGB32);
    FPicture.fill(Qt::black);
    TCanvas canvas(&FPicture);
    TBrush brush;
    const TRegion shadow = OffsetRgn(shape, depth, depth);
    if (depth > 0) {
        brush.SetColor(FHint->ShadowColor());
        FillRgn(canvas, shadow, brush);
    }
    brush.SetColor(color);
    FillRgn(canvas, shape, brush);
    brush.SetColor(FHint->FrameColor());
    FrameRgn(canvas, shape, brush, 1, 1);
    canvas.Font = measure.Font;
    canvas.Brush.SetStyle(bsClear);
    const int inset = 1 + FHint->Margin();
    TRect inner = FromQRect(FLayout.body.adjusted(inset, inset, -inset, -inset));
    canvas.DrawText(FText, inner, DT_WORDBREAK | DT_NOPREFIX | DT_NOCLIP);
    setMask(depth > 0 ? CombineRgn(shape, shadow, RGN_OR).ToQRegion() : shape.ToQRegion());
}

void TqHintWindow::ActivateHint(const QString &text, const THintInfo &info)
{
    Prepare(text, info.HintPos, info.HintColor == Application()->HintColor() ? FHint->Color() : info.HintColor);
    setGeometry(FLayout.geometry);
    show();
    raise();
    update();
}

void TqHintWindow::HideHint()
{
    hide();
}

void TqHintWindow::paintEvent(QPaintEvent *)
{
    QPainter(this).drawImage(0, 0, FPicture);
}
