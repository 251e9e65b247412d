#pragma once
// A picture on a form: at its own size in the top-left corner or centred,
// or stretched over the control, keeping its proportions if asked;
// Transparent leaves out the pixels of the picture's transparent colour
// (its bottom-left pixel's), so what lies beneath shows there. Where the
// picture does not cover the control, what lies beneath shows too.
//
// Properties (defaults): Bitmap (none), Center (false), Stretch (false),
// Proportional (false), Transparent (false), AutoSize (false: true makes
// the control the picture's size), Width 100, Height 100; OnPaint after
// the picture is drawn.

#include "host/tcontrol.h"

#include <QPixmap>

// Where the picture goes in the control.
QRect BitmapPlace(QSize control, QSize picture, bool stretch, bool proportional, bool center);

class TqBitmap : public TGraphicControl
{
    Q_OBJECT
    Q_PROPERTY(int Width READ Width WRITE SetWidth STORED false)
    Q_PROPERTY(int Height READ Height WRITE SetHeight STORED false)
    Q_PROPERTY(QPixmap Bitmap READ Bitmap WRITE SetBitmap)
    Q_PROPERTY(bool Center READ Center WRITE SetCenter)
    Q_PROPERTY(bool Stretch READ Stretch WRITE SetStretch)
    Q_PROPERTY(bool Proportional READ Proportional WRITE SetProportional)
    Q_PROPERTY(bool Transparent READ Transparent WRITE SetTransparent)
    Q_PROPERTY(bool AutoSize READ AutoSize WRITE SetAutoSize)
    Q_PROPERTY(Controls::TAlign Align READ Align WRITE SetAlign)
    Q_PROPERTY(QString Hint READ Hint WRITE SetHint)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)

public:
    explicit TqBitmap(QWidget *parent = nullptr);

    QPixmap Bitmap() const { return QPixmap::fromImage(FPicture); }
    void SetBitmap(const QPixmap &bitmap);
    bool Center() const { return FCenter; }
    void SetCenter(bool center) { set(FCenter, center); }
    bool Stretch() const { return FStretch; }
    void SetStretch(bool stretch) { set(FStretch, stretch); }
    bool Proportional() const { return FProportional; }
    void SetProportional(bool proportional) { set(FProportional, proportional); }
    bool Transparent() const { return FTransparent; }
    void SetTransparent(bool transparent) { set(FTransparent, transparent); }
    bool AutoSize() const { return FAutoSize; }
    void SetAutoSize(bool autoSize);

signals:
    void OnPaint(QObject *Sender);

protected:
    void Paint(TCanvas &canvas) override;

private:
    void set(bool &field, bool value);
    void fit();

    QImage FPicture;
    bool FCenter = false, FStretch = false, FProportional = false, FTransparent = false, FAutoSize = false;
};
