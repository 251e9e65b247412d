#include "qresbitmap.h"

TqResBitmap::TqResBitmap(QWidget *parent) : TqBitmap(parent) {}

bool TqResBitmap::load(const QString &name)
{
    const QString path = name.startsWith(QLatin1Char(':')) ? name : QStringLiteral(":/") + name;
    const QPixmap picture(path);
    FFound = !picture.isNull();
    SetBitmap(picture);
    return FFound;
}

void TqResBitmap::SetResName(const QString &name)
{
    FResName = name;
    if (name.isEmpty()) {
        FFound = false;
        SetBitmap(QPixmap());
        return;
    }
    if (!load(name))
        emit OnResourceMissing(this, name);
}

void TqResBitmap::LoadFromResourceName(const QString &name)
{
    if (!load(name))
        throw EResNotFound(name);
    FResName = name;
}
