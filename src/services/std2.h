#pragma once
// The timer unit: the threaded timer, Delay, the size guard and the shared
// steel texture.

#include "host/tsteel.h"
#include "services/delay.h"
#include "services/tqctimer.h"
#include "services/tqminmax.h"
