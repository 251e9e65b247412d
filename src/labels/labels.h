#pragma once
// The labels: raised or lowered captions and links.

#include "labels/q3dlabel.h"
#include "labels/qmousespot.h"
