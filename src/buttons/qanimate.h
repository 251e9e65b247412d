#pragma once
// The buttons and bitmaps: colour buttons (windowed and not, plain and
// with a bitmap or icon glyph), the gradient button, the shape button, the
// bitmap effects, the pictures (plain, from resources, of the desktop) and
// the animation, the frame and the divider.

#include "buttons/qanimated.h"
#include "buttons/qbitcolbtn.h"
#include "buttons/qbitmap.h"
#include "buttons/qbmpeffects.h"
#include "buttons/qcolorbtn.h"
#include "buttons/qdesktop.h"
#include "buttons/qdivider.h"
#include "buttons/qframe.h"
#include "buttons/qgradbtn.h"
#include "buttons/qiconcolbtn.h"
#include "buttons/qnwbitcolbtn.h"
#include "buttons/qnwcolorbtn.h"
#include "buttons/qnwiconcolbtn.h"
#include "buttons/qresbitmap.h"
#include "buttons/qshapebtn.h"
