#pragma once
// The sixteen thumbs of the slide bar, each an image and a mask of the same
// size: the mask is black inside the thumb's shape and white outside, the
// image black outside, so that ANDing the mask over the background and then
// ORing the image over that leaves the background around the shape.

#include "host/tcolor.h"

#include <QImage>
#include <QSize>

struct TThumbBitmaps
{
    QImage thumb;
    QImage mask;
};

// Builders, by the style they draw (in the slide bar's style order:
// HorzHigh, VertHigh, HorzLow, VertLow, Square, Squarehollow, Left, Right,
// Top, Bottom, Round, HorzRound, SquarehollowHorz, SquarehollowVert,
// SquarehollowHLine, SquarehollowVLine). `face` is the control's colour.
TThumbBitmaps MakeThumb(int style, TColor face);
// The size of a style's thumb.
QSize ThumbSize(int style);
