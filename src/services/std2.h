#pragma once
// The timer unit: the threaded timer, Delay, the size guard, the program
// runner, the component canvas and the shared steel texture.

#include "host/tsteel.h"
#include "services/delay.h"
#include "services/tqctimer.h"
#include "services/tqcompcanvas.h"
#include "services/tqcrunprog.h"
#include "services/tqminmax.h"
