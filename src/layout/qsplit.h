#pragma once
// The splitter unit: the panels and their bar.

#include "layout/qhorsplit.h"
#include "layout/qversplit.h"
#include "layout/tqsplit.h"
