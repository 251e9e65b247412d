#pragma once
// An animation cut from a strip: the frames lie side by side in Bitmap,
// Frames of them (0: as many square frames as the strip is wide for its
// height). While Play is true the next frame shows every Interval ms; at the
// last one it starts again with Loop, or else stops there (Play goes false).
// Frame is the frame shown; OnFrame follows each change of it.
//
// Properties (defaults): Bitmap (none), Frames (0), Frame (0), Interval
// (100), Loop (true), Play (false), Transparent (false: leave out the strip's
// bottom-left colour), Width and Height 32.

#include "host/tcontrol.h"

#include <QPixmap>
#include <QTimer>

class TqAnimated : public TGraphicControl
{
    Q_OBJECT
    Q_PROPERTY(int Width READ Width WRITE SetWidth STORED false)
    Q_PROPERTY(int Height READ Height WRITE SetHeight STORED false)
    Q_PROPERTY(QPixmap Bitmap READ Bitmap WRITE SetBitmap)
    Q_PROPERTY(int Frames READ Frames WRITE SetFrames)
    Q_PROPERTY(int Frame READ Frame WRITE SetFrame)
    Q_PROPERTY(int Interval READ Interval WRITE SetInterval)
    Q_PROPERTY(bool Loop READ Loop WRITE SetLoop)
    Q_PROPERTY(bool Play READ Play WRITE SetPlay)
    Q_PROPERTY(bool Transparent READ Transparent WRITE SetTransparent)
    Q_PROPERTY(Controls::TAlign Align READ Align WRITE SetAlign)
    Q_PROPERTY(QString Hint READ Hint WRITE SetHint)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)

public:
    explicit TqAnimated(QWidget *parent = nullptr);

    QPixmap Bitmap() const { return QPixmap::fromImage(FStrip); }
    void SetBitmap(const QPixmap &bitmap);
    int Frames() const { return FFrames; }
    void SetFrames(int frames);
    // The frames there are: Frames, or counted from the strip.
    int FrameCount() const;
    int Frame() const { return FFrame; }
    void SetFrame(int frame);
    int Interval() const { return FTimer.interval(); }
    void SetInterval(int millis);
    bool Loop() const { return FLoop; }
    void SetLoop(bool loop) { FLoop = loop; }
    bool Play() const { return FPlay; }
    void SetPlay(bool play);
    bool Transparent() const { return FTransparent; }
    void SetTransparent(bool transparent);

    // Frame `index` cut from the strip.
    QImage FrameImage(int index) const;

signals:
    void OnFrame(QObject *Sender);

protected:
    void Paint(TCanvas &canvas) override;

private:
    void next();

    QImage FStrip;
    int FFrames = 0;
    int FFrame = 0;
    bool FLoop = true;
    bool FPlay = false;
    bool FTransparent = false;
    QTimer FTimer;
};
