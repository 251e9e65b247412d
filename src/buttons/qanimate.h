#pragma once
// The buttons: colour buttons (windowed and not), the gradient button and
// the shape button.

#include "buttons/qcolorbtn.h"
#include "buttons/qgradbtn.h"
#include "buttons/qnwcolorbtn.h"
#include "buttons/qshapebtn.h"
