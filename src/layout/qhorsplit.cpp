#include "qhorsplit.h"

#include "layout/tqsplit.h"

TqHorSplit::TqHorSplit(QWidget *parent) : TqVerSplit(parent)
{
    FBar->SetVertical(false);
    FBar->SetBounds(0, 0, width(), 6);
    FBar->SetCursor(-15);   // crVSplit
    DoSize();
}
