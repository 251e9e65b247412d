#pragma once
// The labels and hints: big, raised or lowered and turned captions, links,
// and the hint component with its window.

#include "labels/q3dlabel.h"
#include "labels/qanglelabel.h"
#include "labels/qbiglabel.h"
#include "labels/qhint.h"
#include "labels/qhintwindow.h"
#include "labels/qmousespot.h"
