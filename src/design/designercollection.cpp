#include "designercollection.h"

#include "componentregistry.h"
#include "designerwidget.h"

TDesignerCollection::TDesignerCollection(QObject *parent) : QObject(parent)
{
    for (const TComponentEntry &entry : Components())
        FWidgets << new TDesignerWidget(entry, this);
}
