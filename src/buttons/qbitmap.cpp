#include "qbitmap.h"

#include "buttons/qbmpeffects.h"

QRect BitmapPlace(QSize control, QSize picture, bool stretch, bool proportional, bool center)
{
    if (picture.isEmpty())
        return QRect();
    QSize size = picture;
    if (stretch)
        size = proportional ? picture.scaled(control, Qt::KeepAspectRatio) : control;
    const QPoint at = center ? QPoint((control.width() - size.width()) / 2, (control.height() - size.height()) / 2)
                             : QPoint(0, 0);
    return QRect(at, size);
}

TqBitmap::TqBitmap(QWidget *parent) : TGraphicControl(parent)
{
    SetBounds(Left(), Top(), 100, 100);
}

void TqBitmap::set(bool &field, bool value)
{
    if (field == value)
        return;
    field = value;
    Invalidate();
}

void TqBitmap::SetBitmap(const QPixmap &bitmap)
{
    FPicture = bitmap.toImage().convertToFormat(QImage::Format_RGB32);
    fit();
    Invalidate();
}

void TqBitmap::SetAutoSize(bool autoSize)
{
    FAutoSize = autoSize;
    fit();
}

void TqBitmap::fit()
{
    if (FAutoSize && !FPicture.isNull())
        SetBounds(Left(), Top(), FPicture.width(), FPicture.height());
}

void TqBitmap::Paint(TCanvas &canvas)
{
    const QRect place = BitmapPlace(size(), FPicture.size(), FStretch, FProportional, FCenter);
    if (!place.isEmpty()) {
        // Stretched pictures by nearest pixel: no colour of their own appears.
        const QImage shown = place.size() == FPicture.size()
                                 ? FPicture
                                 : FPicture.scaled(place.size(), Qt::IgnoreAspectRatio, Qt::FastTransformation);
        if (FTransparent)
            TransparentBlt(canvas, place.x(), place.y(), shown, TransparentColorOf(FPicture));
        else
            canvas.Draw(place.x(), place.y(), shown);
    } else if (IsDesigning()) {
        PaintDesignOutline(canvas, width(), height());   // found on the form without a picture
    }
    emit OnPaint(this);
}
