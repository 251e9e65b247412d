#include "qnwtilemap.h"

TqNWTileMap::TqNWTileMap(QWidget *parent) : TTilePainter<TGraphicControl>(parent)
{
}
