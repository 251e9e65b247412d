#pragma once
// The unit of the calculator and the application services: the expression
// calculator and its functions, application information, the title bar,
// the tray icon, the splash form, the move panel, FindForm.

#include "host/tform.h"
#include "layout/qmovepanel.h"
#include "services/calcmath.h"
#include "services/tqcalc.h"
#include "services/tqshowapp.h"
#include "services/tqsplashform.h"
#include "services/tqtitlebar.h"
#include "services/tqtrayicon.h"
