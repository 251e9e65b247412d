#include "componenticon.h"

#include "componentregistry.h"

#include "host/tcontrol.h"

#include <QPainter>
#include <QWidget>

#include <memory>

namespace {

// The posed component's picture, cut to at most twice as wide as high: a
// long row shows its first cells, as an icon of a sliver says nothing.
QImage iconPicture(const TComponentEntry &entry)
{
    const std::unique_ptr<QWidget> component = CreateSample(entry);   // faces show, captions are the designer's
    if (entry.poseForIcon)
        entry.poseForIcon(component.get());
    // A control that leaves its background alone shows on the button face
    // (a grab would show black), with the controls on it over it.
    QImage picture;
    if (auto *control = qobject_cast<TControl *>(component.get())) {
        picture = control->RenderImage(ColorToQRgb(clBtnFace));
        for (QWidget *child : control->findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
            if (!child->isHidden())
                child->render(&picture, child->pos());
    } else {
        picture = component->grab().toImage();
    }
    if (picture.width() > 2 * picture.height())
        picture = picture.copy(0, 0, 2 * picture.height(), picture.height());
    return picture;
}

QImage fitted(const QImage &picture, int side)
{
    QImage icon(side, side, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    if (picture.isNull())
        return icon;
    const QImage scaled = picture.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPainter p(&icon);
    p.drawImage((side - scaled.width()) / 2, (side - scaled.height()) / 2, scaled);
    return icon;
}

} // namespace

QImage ComponentIconImage(const TComponentEntry &entry, int side) { return fitted(iconPicture(entry), side); }

QIcon ComponentIcon(const TComponentEntry &entry)
{
    const QImage picture = iconPicture(entry);
    QIcon icon;
    for (int side : {24, 48})
        icon.addPixmap(QPixmap::fromImage(fitted(picture, side)));
    return icon;
}
