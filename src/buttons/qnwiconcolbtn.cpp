#include "qnwiconcolbtn.h"

void TqNWIconColBtn::SetIcon(const QIcon &icon)
{
    FIcon = icon;
    pick();
}

void TqNWIconColBtn::SetIconSize(int size)
{
    FIconSize = qMax(1, size);
    pick();
}

// The icon's picture nearest the size asked for.
void TqNWIconColBtn::pick()
{
    FImage = FIcon.isNull() ? QImage()
                            : FIcon.pixmap(QSize(FIconSize, FIconSize)).toImage().convertToFormat(QImage::Format_ARGB32);
    Invalidate();
}
