#include "qanimated.h"

#include "buttons/qbmpeffects.h"

#include <algorithm>

TqAnimated::TqAnimated(QWidget *parent) : TGraphicControl(parent)
{
    SetBounds(Left(), Top(), 32, 32);
    FTimer.setInterval(100);
    connect(&FTimer, &QTimer::timeout, this, &TqAnimated::next);
}

void TqAnimated::SetBitmap(const QPixmap &bitmap)
{
    FStrip = bitmap.toImage().convertToFormat(QImage::Format_RGB32);
    if (FFrame >= FrameCount())
        FFrame = 0;
    Invalidate();
}

int TqAnimated::FrameCount() const
{
    if (FStrip.isNull())
        return 0;
    if (FFrames > 0)
        return FFrames;
    return std::max(1, FStrip.width() / std::max(1, FStrip.height()));
}

void TqAnimated::SetFrames(int frames)
{
    FFrames = std::max(0, frames);
    if (FFrame >= FrameCount())
        SetFrame(0);
    Invalidate();
}

void TqAnimated::SetFrame(int frame)
{
    const int count = FrameCount();
    frame = count ? std::clamp(frame, 0, count - 1) : 0;
    if (frame == FFrame)
        return;
    FFrame = frame;
    Invalidate();
    emit OnFrame(this);
}

void TqAnimated::SetInterval(int millis)
{
    FTimer.setInterval(std::max(1, millis));
}

void TqAnimated::SetPlay(bool play)
{
    FPlay = play;
    if (play && !IsDesigning())
        FTimer.start();
    else
        FTimer.stop();
}

void TqAnimated::SetTransparent(bool transparent)
{
    if (transparent == FTransparent)
        return;
    FTransparent = transparent;
    Invalidate();
}

void TqAnimated::next()
{
    const int count = FrameCount();
    if (count == 0)
        return;
    if (FFrame + 1 < count)
        SetFrame(FFrame + 1);
    else if (FLoop)
        SetFrame(0);
    else
        SetPlay(false);   // stays on the last frame
}

QImage TqAnimated::FrameImage(int index) const
{
    const int count = FrameCount();
    if (count == 0 || index < 0 || index >= count)
        return QImage();
    const int w = FStrip.width() / count;
    return FStrip.copy(index * w, 0, w, FStrip.height());
}

void TqAnimated::Paint(TCanvas &canvas)
{
    const QImage frame = FrameImage(FFrame);
    if (frame.isNull())
        return;
    if (FTransparent)
        TransparentBlt(canvas, 0, 0, frame, TransparentColorOf(FStrip));
    else
        canvas.Draw(0, 0, frame);
}
