#pragma once
// The unit of the calculator and the application services: the expression
// calculator and its functions, application information, FindForm.

#include "host/tform.h"
#include "services/calcmath.h"
#include "services/tqcalc.h"
#include "services/tqshowapp.h"
