#pragma once
// A wallpaper for the client area of the form it is on: a tiled bitmap, a
// colour blend in bands (top to bottom, left to right, or rings toward the
// centre), the steel texture, or the form's own background. The form
// paints it before its children, as an erased background; on a form with
// an MDI area it goes on the area, behind the sub-windows. Nothing is done
// to a form in the designer, nor to a form minimised.
//
// The wallpaper is kept as a picture of the client area's size, made again
// only when the size or a property changes; OnPaint draws over it on each
// paint. A wallpaper that covers a whole window stands in for the
// window's own background, which is then not painted under it. A ring
// blend of no ring at all (Bands 0, or a client area less than 2 pixels
// wide or high) divides by zero: the error goes to the application
// object, and the form paints its own background.

#include "host/tblend.h"
#include "host/tcomponent.h"

#include <QImage>
#include <QPixmap>
#include <QPointer>

class TCanvas;
class TFormHook;

class TqBackground : public TComponent
{
    Q_OBJECT
    Q_PROPERTY(Graphics::gradType FillType READ FillType WRITE SetGrad)
    Q_PROPERTY(QPixmap BitMap READ BitMap WRITE SetBitMap)
    Q_PROPERTY(TqBackType BackType READ BackType WRITE SetBackType)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(TColor EndColor READ EndColor WRITE SetEndColor)
    Q_PROPERTY(int Bands READ Bands WRITE SetBands)

public:
    enum TqBackType { btBitmap, btBlend, btNormal, btSteel };
    Q_ENUM(TqBackType)

    explicit TqBackground(QWidget *owner = nullptr);
    ~TqBackground() override;

    gradType FillType() const { return FFillType; }
    void SetGrad(gradType type);
    QPixmap BitMap() const { return QPixmap::fromImage(FBitmap); }
    void SetBitMap(const QPixmap &bitmap);
    TqBackType BackType() const { return FBackType; }
    void SetBackType(TqBackType type);
    TColor Color() const { return FColor; }
    void SetColor(TColor color);
    TColor EndColor() const { return FEndColor; }
    void SetEndColor(TColor color);
    int Bands() const { return FBands; }
    void SetBands(int bands);

    // The widget the wallpaper is on (the form, or its MDI area's
    // viewport); null until loaded at run time.
    QWidget *Target() const { return FTarget; }
    // The wallpaper of a w x h client area as this component paints it
    // (without OnPaint); a null picture where the form paints its own.
    QImage WallPaper(int w, int h) const;
    // Whether the properties make a wallpaper at all (a bitmap to tile, a
    // blend of some bands, the steel).
    bool HasWallPaper() const;

signals:
    // After the wallpaper is painted, with a canvas on the form's picture
    // (the canvas comes first).
    void OnPaint(TCanvas *Canvas, QObject *Sender);
    // The form's client area changed size.
    void OnResize(QObject *Sender);

protected:
    void Loaded() override;
    virtual void DoResize();
    virtual void DoPaint(QPainter &painter);

private:
    void DoColor();
    void changed();
    bool paintWallPaper();
    void coverTarget();

    gradType FFillType = gVert;
    QImage FBitmap;
    TqBackType FBackType = btBitmap;
    TColor FColor = 0x00FF00FF;
    TColor FEndColor = clBlack;
    int FBands = 255;
    TBlend FBlend;
    QImage FPicture;                // the wallpaper at the target's size
    QPointer<QWidget> FTarget;
    TFormHook *FHook = nullptr;
    bool FCovering = false;         // the window's own background is left out
};
