#pragma once
// The registration unit: which components the designer offers, where, and
// the plugin that offers them.

#include "design/componenticon.h"
#include "design/componentregistry.h"
#include "design/designercollection.h"
#include "design/designerwidget.h"
