#pragma once
// A caption drawn at an angle: Angle degrees anticlockwise from the
// horizontal (0..359; other values are taken round the circle). The
// caption turns about RotateAbout: its centre, or the left or right end of
// its middle line. With AutoSize (default) the control is exactly the box
// of the turned caption, and that point keeps its place in the parent as
// the angle changes; without it, the point sits at the control's centre.
//
// Properties (defaults): Caption, Angle (0), RotateAbout (raCenter),
// FontColor (clWindowText), Font, Transparent (true), AutoSize (true),
// Color.

#include "labels/qcaptionlabel.h"

#include <QPointF>
#include <QSizeF>

// An angle in whole degrees, anticlockwise, 0..359.
using TqAngle = int;

// The angle within 0..359.
TqAngle NormalAngle(int degrees);

// Where a caption of `text` size turned by `angle` about `about` (a point
// of the caption's own box) lies: the smallest box of whole pixels holding
// it, with the turning point at a whole pixel inside it.
struct TAngleLayout
{
    QSize size;
    QPoint pivot;
};
TAngleLayout AngleLayout(QSizeF text, TqAngle angle, QPointF about);

class TqAngleLabel : public TCaptionLabel
{
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(TqAngle Angle READ Angle WRITE SetAngle)
    Q_PROPERTY(TqRotateAbout RotateAbout READ RotateAbout WRITE SetRotateAbout)
    Q_PROPERTY(TColor FontColor READ FontColor WRITE SetFontColor)
    Q_PROPERTY(QFont Font READ Font WRITE SetFont)
    Q_PROPERTY(bool Transparent READ Transparent WRITE SetTransparent)
    Q_PROPERTY(bool AutoSize READ AutoSize WRITE SetAutoSize)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(QString Hint READ Hint WRITE SetHint)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)

public:
    enum TqRotateAbout { raCenter, raLeft, raRight };
    Q_ENUM(TqRotateAbout)

    explicit TqAngleLabel(QWidget *parent = nullptr);

    TqAngle Angle() const { return FAngle; }
    void SetAngle(int angle);
    TqRotateAbout RotateAbout() const { return FAbout; }
    void SetRotateAbout(TqRotateAbout about);
    // The turning point in the control's coordinates.
    QPoint Pivot() const;

protected:
    void Fit() override;
    void PaintCaption(TCanvas &canvas, QPoint at) override;

private:
    QSizeF captionSize() const;
    QPointF aboutPoint(QSizeF caption) const;

    TqAngle FAngle = 0;
    TqRotateAbout FAbout = raCenter;
    // Where the turning point was when the box was last fitted (null until
    // then: the first fit keeps the top-left).
    QPoint FShownPivot;
};
