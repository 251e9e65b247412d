#include "qdblknob.h"

TqDblKnob::TqDblKnob(QWidget *parent) : TqKnob(parent)
{
    SetheightWidth(75);
}

void TqDblKnob::SetKnobValue2(int value)
{
    ApplyValue(FValue2, value, [this] { emit OnMinimum2(this); }, [this] { emit OnMaximum2(this); });
}

void TqDblKnob::SetDiscValue(int disc, int value)
{
    if (disc == 2)
        SetKnobValue2(value);
    else
        TqKnob::SetDiscValue(disc, value);
}
