#pragma once
// The segment and dot-matrix displays: single cells, labels and clocks; the
// peak-level meter.

#include "displays/qdotlabel.h"
#include "displays/qdotsegment.h"
#include "displays/qpeakometer.h"
#include "displays/qseglabel.h"
#include "displays/qsegment.h"
