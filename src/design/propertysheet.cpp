#include "propertysheet.h"

#include "componentregistry.h"

#include "host/tcolor.h"
#include "host/tcomponent.h"

#include <QtDesigner/QExtensionManager>

#include <QColor>
#include <QMetaProperty>

TPropertySheet::TPropertySheet(QObject *object, QDesignerPropertySheetExtension *inner, QObject *parent)
    : QObject(parent), FObject(object), FInner(inner)
{
    if (const TComponentEntry *entry = FindComponent(object))
        for (const QString &name : ReadOnlyProperties(*entry))
            FReadOnly.insert(name);
}

bool TPropertySheet::isColorProperty(int index) const
{
    const QMetaObject *meta = FObject->metaObject();
    const int p = meta->indexOfProperty(FInner->propertyName(index).toLatin1().constData());
    return p >= 0 && IsColorProperty(meta->property(p));
}

bool TPropertySheet::isVisible(int index) const
{
    // A non-visual component's Name is its objectName, which Designer shows.
    if (qobject_cast<TComponent *>(FObject) && FInner->propertyName(index) == QLatin1String("Name"))
        return false;
    return FInner->isVisible(index);
}

QVariant TPropertySheet::property(int index) const
{
    const QVariant value = FInner->property(index);
    if (isColorProperty(index))
        return ColorToFormColor(value.value<TColor>());
    return value;
}

void TPropertySheet::setProperty(int index, const QVariant &value)
{
    if (isColorProperty(index) && value.metaType().id() == QMetaType::QColor) {
        FInner->setProperty(index, QVariant::fromValue(FormColorToColor(value.value<QColor>())));
        return;
    }
    FInner->setProperty(index, value);
}

bool TPropertySheet::isEnabled(int index) const
{
    return !FReadOnly.contains(FInner->propertyName(index)) && FInner->isEnabled(index);
}

TPropertySheetFactory::TPropertySheetFactory(QExtensionManager *parent) : QExtensionFactory(parent) {}

QObject *TPropertySheetFactory::createExtension(QObject *object, const QString &iid, QObject *parent) const
{
    if (FAskingOthers || iid != QLatin1String(Q_TYPEID(QDesignerPropertySheetExtension))
        || !FindComponent(object))
        return nullptr;
    FAskingOthers = true;
    auto *inner = qt_extension<QDesignerPropertySheetExtension *>(
        static_cast<QAbstractExtensionManager *>(extensionManager()), object);
    FAskingOthers = false;
    if (!inner)
        return nullptr;
    return new TPropertySheet(object, inner, parent);
}
