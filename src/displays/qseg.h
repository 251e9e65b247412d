#pragma once
// The segment and dot-matrix displays.

#include "displays/qsegment.h"
