#pragma once
// The slide bar and its thumbs.

#include "slidebar/qslidebar.h"
#include "slidebar/qslidethumbs.h"
