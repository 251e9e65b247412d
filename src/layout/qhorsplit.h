#pragma once
// The splitter panel with a bar that moves up and down.

#include "layout/qversplit.h"

class TqHorSplit : public TqVerSplit
{
    Q_OBJECT
public:
    explicit TqHorSplit(QWidget *parent = nullptr);
};
