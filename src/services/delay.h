#pragma once

#include <QtGlobal>

// Sleeps the calling thread without processing any events.
void Delay(quint16 milliseconds);
