#pragma once
// The component editors: the verbs, the help and the about box.

#include "design/aboutbox.h"
#include "design/colorsdialog.h"
#include "design/componenteditor.h"
#include "design/helpviewer.h"
#include "design/taskmenu.h"
