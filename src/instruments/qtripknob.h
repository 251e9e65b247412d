#pragma once
// The triple knob: the double knob with an innermost third disc, picked by
// the mouse where it is pressed or from the keyboard with Ctrl (Shift still
// picks the second disc, and wins).

#include "instruments/qdblknob.h"

class TqTripKnob : public TqDblKnob
{
    Q_OBJECT
    Q_PROPERTY(int Value3 READ Value3 WRITE SetKnobValue3)

public:
    explicit TqTripKnob(QWidget *parent = nullptr);

    int Value3() const { return FValue3; }
    // As SetKnobValue, with OnMinimum3 and OnMaximum3.
    void SetKnobValue3(int value);
    void NewPosition3(int X, int Y) { SetKnobValue3(Where(X, Y)); }

signals:
    void OnMinimum3(QObject *Sender);
    void OnMaximum3(QObject *Sender);

protected:
    int Discs() const override { return 3; }
    int DiscValue(int disc) const override { return disc == 3 ? FValue3 : TqDblKnob::DiscValue(disc); }
    void SetDiscValue(int disc, int value) override;
    int KeyDisc(TShiftState Shift) const override
    {
        return (Shift & ssShift) ? 2 : (Shift & ssCtrl) ? 3 : 1;
    }

private:
    int FValue3 = 0;
};
