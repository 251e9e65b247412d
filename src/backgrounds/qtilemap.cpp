#include "qtilemap.h"

TqTileMap::TqTileMap(QWidget *parent) : TTilePainter<TCustomControl>(parent)
{
    SetControlStyle(ControlStyle() | csOpaque);
    UpdateOpacity();
}
