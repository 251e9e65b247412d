#pragma once
// The panel instruments: needle meter and trace display.

#include "instruments/qpanelmeter.h"
#include "instruments/qscope.h"
