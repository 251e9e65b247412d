#include "qanglelabel.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>

#include <cmath>

TqAngle NormalAngle(int degrees)
{
    const int a = degrees % 360;
    return a < 0 ? a + 360 : a;
}

TAngleLayout AngleLayout(QSizeF text, TqAngle angle, QPointF about)
{
    const double r = qDegreesToRadians(double(NormalAngle(angle)));
    const double c = std::cos(r), s = std::sin(r);
    double minX = 0, minY = 0, maxX = 0, maxY = 0;
    const QPointF corners[] = {{0, 0}, {text.width(), 0}, {0, text.height()}, {text.width(), text.height()}};
    bool first = true;
    for (QPointF p : corners) {
        // Anticlockwise on a screen whose y runs down.
        const double x = (p.x() - about.x()) * c + (p.y() - about.y()) * s;
        const double y = -(p.x() - about.x()) * s + (p.y() - about.y()) * c;
        minX = first ? x : std::min(minX, x);
        maxX = first ? x : std::max(maxX, x);
        minY = first ? y : std::min(minY, y);
        maxY = first ? y : std::max(maxY, y);
        first = false;
    }
    // A pixel more on every side for glyphs that overhang their advance.
    const double eps = 1e-9;
    TAngleLayout layout;
    layout.pivot = QPoint(int(std::ceil(-minX - eps)) + 1, int(std::ceil(-minY - eps)) + 1);
    layout.size = QSize(layout.pivot.x() + int(std::ceil(maxX - eps)) + 1,
                        layout.pivot.y() + int(std::ceil(maxY - eps)) + 1);
    return layout;
}

TqAngleLabel::TqAngleLabel(QWidget *parent) : TCaptionLabel(parent)
{
    SetBounds(Left(), Top(), 65, 65);
}

void TqAngleLabel::SetAngle(int angle)
{
    angle = NormalAngle(angle);
    if (angle == FAngle)
        return;
    FAngle = angle;
    Changed();
}

void TqAngleLabel::SetRotateAbout(TqRotateAbout about)
{
    if (about == FAbout)
        return;
    FAbout = about;
    Changed();
}

QSizeF TqAngleLabel::captionSize() const
{
    const QFontMetricsF metrics(CanvasFont().ToQFont());
    return QSizeF(metrics.horizontalAdvance(Caption()), metrics.height());
}

QPointF TqAngleLabel::aboutPoint(QSizeF caption) const
{
    switch (FAbout) {
    case raLeft: return QPointF(0, caption.height() / 2);
    case raRight: return QPointF(caption.width(), caption.height() / 2);
    case raCenter: break;
    }
    return QPointF(caption.width() / 2, caption.height() / 2);
}

QPoint TqAngleLabel::Pivot() const
{
    if (!AutoSize() || Caption().isEmpty())
        return QPoint(width() / 2, height() / 2);
    const QSizeF caption = captionSize();
    return AngleLayout(caption, FAngle, aboutPoint(caption)).pivot;
}

// The turning point keeps its place in the parent while the box changes.
void TqAngleLabel::Fit()
{
    const QSizeF caption = captionSize();
    const TAngleLayout layout = AngleLayout(caption, FAngle, aboutPoint(caption));
    const QPoint origin = FShownPivot.isNull() ? pos() : pos() + FShownPivot - layout.pivot;
    SetBounds(origin.x(), origin.y(), layout.size.width(), layout.size.height());
    FShownPivot = layout.pivot;
}

void TqAngleLabel::PaintCaption(TCanvas &canvas, QPoint)
{
    if (Caption().isEmpty() || !canvas.Image())
        return;
    const QSizeF caption = captionSize();
    const QPointF about = aboutPoint(caption);
    const QFont font = canvas.Font.ToQFont();
    QPainter p(canvas.Image());
    p.setFont(font);
    p.setPen(ColorToQColor(FontColor()));
    p.translate(Pivot());
    p.rotate(-FAngle);
    p.drawText(QPointF(-about.x(), -about.y() + QFontMetricsF(font).ascent()), Caption());
}
