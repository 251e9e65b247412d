#pragma once
// The angle label's angle editor: a small dial turned with the mouse or
// the keys, a spin box for the exact degrees and a preview of the caption
// at that angle; OK hands the angle back.

#include "labels/qanglelabel.h"

#include <QDialog>

class QDial;
class QSpinBox;

class TqAngleEditor : public QDialog
{
    Q_OBJECT
public:
    TqAngleEditor(TqAngle angle, const TqAngleLabel *label, QWidget *parent = nullptr);

    TqAngle Angle() const { return FAngle; }
    void SetAngle(int angle);

    QDial *Dial() const { return FDial; }

    // The dial turns clockwise from six o'clock; angles run anticlockwise
    // from three o'clock.
    static int DialValue(TqAngle angle);
    static TqAngle AngleOfDial(int value);

private:
    TqAngle FAngle = 0;
    QDial *FDial;
    QSpinBox *FSpin;
    TqAngleLabel *FPreview;
};
