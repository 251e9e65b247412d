#pragma once
// The panel instruments: rotary knobs with one, two and three discs, the
// needle meter and the trace display.

#include "instruments/qdblknob.h"
#include "instruments/qknob.h"
#include "instruments/qpanelmeter.h"
#include "instruments/qscope.h"
#include "instruments/qtripknob.h"
