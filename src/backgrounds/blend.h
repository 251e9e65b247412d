#pragma once
// The backgrounds unit: the form background, the blend painters and the
// tile maps, and the blend they share.

#include "backgrounds/qbackground.h"
#include "backgrounds/qblendpaint.h"
#include "backgrounds/qnwblendpaint.h"
#include "backgrounds/qnwtilemap.h"
#include "backgrounds/qtilemap.h"
#include "host/tblend.h"
