#include "qtripknob.h"

TqTripKnob::TqTripKnob(QWidget *parent) : TqDblKnob(parent)
{
    SetheightWidth(75);   // builds the third disc's region as well
}

void TqTripKnob::SetKnobValue3(int value)
{
    ApplyValue(FValue3, value, [this] { emit OnMinimum3(this); }, [this] { emit OnMaximum3(this); });
}

void TqTripKnob::SetDiscValue(int disc, int value)
{
    if (disc == 3)
        SetKnobValue3(value);
    else
        TqDblKnob::SetDiscValue(disc, value);
}
