#include "componenticon.h"

#include "componentregistry.h"

#include "host/tcomponent.h"

#include <QPainter>
#include <QWidget>

#include <memory>

QImage ComponentIconImage(const TComponentEntry &entry, int side)
{
    std::unique_ptr<QWidget> component;
    {
        DesignTimeCreation designing;   // faces show, captions are the designer's
        component.reset(entry.create(nullptr));
    }
    if (entry.poseForIcon)
        entry.poseForIcon(component.get());
    if (component->size().isEmpty() || !entry.visual)
        component->resize(component->sizeHint());
    QImage picture = component->grab().toImage();
    // A long row shows its first cells: an icon of a sliver says nothing.
    if (picture.width() > 2 * picture.height())
        picture = picture.copy(0, 0, 2 * picture.height(), picture.height());
    QImage icon(side, side, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    if (picture.isNull())
        return icon;
    const QImage scaled = picture.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPainter p(&icon);
    p.drawImage((side - scaled.width()) / 2, (side - scaled.height()) / 2, scaled);
    return icon;
}

QIcon ComponentIcon(const TComponentEntry &entry)
{
    QIcon icon;
    for (int side : {24, 48})
        icon.addPixmap(QPixmap::fromImage(ComponentIconImage(entry, side)));
    return icon;
}
