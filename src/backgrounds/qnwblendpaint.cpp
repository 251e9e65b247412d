#include "qnwblendpaint.h"

TqNWBlendPaint::TqNWBlendPaint(QWidget *parent) : TBlendPainter<TGraphicControl>(parent)
{
}
