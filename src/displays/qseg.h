#pragma once
// The segment and dot-matrix displays: single cells, labels and clocks.

#include "displays/qdotlabel.h"
#include "displays/qdotsegment.h"
#include "displays/qseglabel.h"
#include "displays/qsegment.h"
