#include "propertysheet.h"

#include "componentregistry.h"

#include "host/tcolor.h"
#include "host/tcomponent.h"
#include "host/tcontrol.h"

#include <QtDesigner/QExtensionManager>
#include <QtDesigner/private/qdesigner_utils_p.h>

#include <QColor>
#include <QMetaProperty>

bool IsTextForReaders(const QString &property)
{
    static const QStringList readable = {QStringLiteral("Caption"), QStringLiteral("Hint"), QStringLiteral("Title"),
                                         QStringLiteral("ToolTip")};
    return readable.contains(property);
}

TPropertySheet::TPropertySheet(QObject *object, QObject *parent) : QDesignerPropertySheet(object, parent)
{
    if (const TComponentEntry *entry = FindComponent(object))
        for (const QString &name : ReadOnlyProperties(*entry))
            FReadOnly.insert(name);
}

QMetaProperty TPropertySheet::declared(int index) const
{
    const QMetaObject *meta = object()->metaObject();
    return meta->property(meta->indexOfProperty(propertyName(index).toLatin1().constData()));
}

bool TPropertySheet::isColorProperty(int index) const
{
    const QMetaProperty p = declared(index);
    return p.isValid() && IsColorProperty(p);
}

// One row for each thing the user sets: a non-visual component's face has
// no widget properties (only its name and place), its Name is Designer's
// objectName; a control's Width and Height are in its geometry, its Hint is
// its tool tip and its Enabled the widget's own.
bool TPropertySheet::isVisible(int index) const
{
    if (!QDesignerPropertySheet::isVisible(index))
        return false;
    const QString name = propertyName(index);
    const QMetaObject *meta = object()->metaObject();
    const QMetaProperty p = declared(index);
    const bool widgets = p.isValid() && p.propertyIndex() < QWidget::staticMetaObject.propertyCount();
    if (qobject_cast<TComponent *>(object()))
        return name != QLatin1String("Name")
            && (!widgets || name == QLatin1String("objectName") || name == QLatin1String("geometry"));
    if (widgets)
        return !((name == QLatin1String("toolTip") && meta->indexOfProperty("Hint") >= 0)
                 || (name == QLatin1String("enabled") && meta->indexOfProperty("Enabled") >= 0));
    return !(p.isValid() && !p.isStored() && (name == QLatin1String("Width") || name == QLatin1String("Height")));
}

QVariant TPropertySheet::property(int index) const
{
    const QVariant value = QDesignerPropertySheet::property(index);
    if (isColorProperty(index))
        return ColorToFormColor(value.value<TColor>());
    return value;
}

void TPropertySheet::setProperty(int index, const QVariant &value)
{
    // Refused from any editor, not only greyed in Designer's.
    if (FReadOnly.contains(propertyName(index)))
        return;
    // A technical text is stored as it is, kept from translators.
    if (value.canConvert<qdesigner_internal::PropertySheetStringValue>() || value.metaType() == QMetaType::fromType<QString>()) {
        const QMetaProperty p = declared(index);
        if (p.isValid() && p.metaType() == QMetaType::fromType<QString>() && !IsTextForReaders(propertyName(index))) {
            qdesigner_internal::PropertySheetStringValue text =
                value.metaType() == QMetaType::fromType<QString>()
                    ? qdesigner_internal::PropertySheetStringValue(value.toString())
                    : value.value<qdesigner_internal::PropertySheetStringValue>();
            text.setTranslatable(false);
            QDesignerPropertySheet::setProperty(index, QVariant::fromValue(text));
            return;
        }
    }
    if (isColorProperty(index) && value.metaType().id() == QMetaType::QColor) {
        QDesignerPropertySheet::setProperty(index, QVariant::fromValue(FormColorToColor(value.value<QColor>())));
        return;
    }
    QDesignerPropertySheet::setProperty(index, value);
}

bool TPropertySheet::isChanged(int index) const
{
    if (QDesignerPropertySheet::isChanged(index))
        return true;
    const auto *control = qobject_cast<const TControl *>(object());
    return control && (control->ControlStyle() & csSetCaption) && !control->Text().isEmpty()
        && propertyName(index) == QLatin1String("Caption");
}

bool TPropertySheet::isEnabled(int index) const
{
    return !FReadOnly.contains(propertyName(index)) && QDesignerPropertySheet::isEnabled(index);
}

TPropertySheetFactory::TPropertySheetFactory(QExtensionManager *parent) : QDesignerAbstractPropertySheetFactory(parent) {}

void TPropertySheetFactory::Register(QExtensionManager *manager)
{
    auto *factory = new TPropertySheetFactory(manager);
    manager->registerExtensions(factory, Q_TYPEID(QDesignerPropertySheetExtension));
    manager->registerExtensions(factory, Q_TYPEID(QDesignerDynamicPropertySheetExtension));
}

QObject *TPropertySheetFactory::createPropertySheet(QObject *object, QObject *parent) const
{
    return FindComponent(object) ? new TPropertySheet(object, parent) : nullptr;
}
