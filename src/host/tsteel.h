#pragma once
// The 8 x 8 steel texture: silver with a white pixel wherever x and y are
// both odd. Made once when the library loads; controls use it as a brush
// bitmap and clear the brush bitmap afterwards.

#include <QImage>

const QImage &TSteel();
