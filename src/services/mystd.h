#pragma once
// The calculator unit: the expression calculator and its functions.

#include "services/calcmath.h"
#include "services/tqcalc.h"
