#pragma once
// The double knob: the rotary knob with an inner disc of its own value. Both
// discs share the range, the colours, the ticks and OnChange; the mouse picks
// a disc by where it is pressed, Shift picks the inner one from the keyboard.

#include "instruments/qknob.h"

class TqDblKnob : public TqKnob
{
    Q_OBJECT
    Q_PROPERTY(int Value2 READ Value2 WRITE SetKnobValue2)

public:
    explicit TqDblKnob(QWidget *parent = nullptr);

    int Value2() const { return FValue2; }
    // As SetKnobValue, with OnMinimum2 and OnMaximum2.
    void SetKnobValue2(int value);
    void NewPosition2(int X, int Y) { SetKnobValue2(Where(X, Y)); }

signals:
    void OnMinimum2(QObject *Sender);
    void OnMaximum2(QObject *Sender);

protected:
    int Discs() const override { return 2; }
    int DiscValue(int disc) const override { return disc == 2 ? FValue2 : TqKnob::DiscValue(disc); }
    void SetDiscValue(int disc, int value) override;
    // Every key goes to the chosen disc, handled or not.
    int KeyDisc(TShiftState Shift) const override { return (Shift & ssShift) ? 2 : 1; }

private:
    int FValue2 = 0;
};
