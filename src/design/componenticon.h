#pragma once

#include <QIcon>
#include <QImage>

struct TComponentEntry;

// The component's palette icon, drawn by the component itself as the
// designer would show it: 24 x 24, and 48 x 48 for high-density screens.
QIcon ComponentIcon(const TComponentEntry &entry);
// One size of it (transparent around a picture that is not square).
QImage ComponentIconImage(const TComponentEntry &entry, int side);
