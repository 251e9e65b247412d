#include "qblendpaint.h"

TqBlendPaint::TqBlendPaint(QWidget *parent) : TBlendPainter<TCustomControl>(parent)
{
    SetControlStyle(ControlStyle() | csOpaque);
    UpdateOpacity();
}
