#pragma once
// The timer unit: the threaded timer, Delay, the size guard, the program
// runner and the shared steel texture.

#include "host/tsteel.h"
#include "services/delay.h"
#include "services/tqctimer.h"
#include "services/tqcrunprog.h"
#include "services/tqminmax.h"
