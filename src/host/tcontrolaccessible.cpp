#include "tcontrolaccessible.h"

#include "tapplication.h"
#include "tcontrol.h"

namespace {

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    if (auto *control = qobject_cast<TControl *>(object))
        return new TControlAccessible(control);
    return nullptr;
}

} // namespace

void TControlAccessible::Install()
{
    static const bool installed = [] {
        QAccessible::installFactory(makeAccessible);
        return true;
    }();
    Q_UNUSED(installed);
}

TControlAccessible::TControlAccessible(TControl *control) : QAccessibleWidget(control) {}

TControl *TControlAccessible::control() const
{
    return static_cast<TControl *>(widget());
}

QString TControlAccessible::text(QAccessible::Text t) const
{
    switch (t) {
    case QAccessible::Name:
        return control()->AccessibleName();
    case QAccessible::Value: {
        TControl::TAccessibleRange range;
        return control()->AccessibleRange(range) ? QString::number(range.Value) : QString();
    }
    case QAccessible::Description: {
        if (!widget()->accessibleDescription().isEmpty())
            return widget()->accessibleDescription();
        return GetLongHint(widget()->toolTip());
    }
    default:
        return QAccessibleWidget::text(t);
    }
}

QAccessible::Role TControlAccessible::role() const
{
    return control()->AccessibleRole();
}

void *TControlAccessible::interface_cast(QAccessible::InterfaceType t)
{
    TControl::TAccessibleRange range;
    if (t == QAccessible::ValueInterface && control()->AccessibleRange(range))
        return static_cast<QAccessibleValueInterface *>(this);
    return QAccessibleWidget::interface_cast(t);
}

QVariant TControlAccessible::currentValue() const
{
    TControl::TAccessibleRange range;
    return control()->AccessibleRange(range) ? QVariant(range.Value) : QVariant();
}

void TControlAccessible::setCurrentValue(const QVariant &value)
{
    TControl::TAccessibleRange range;
    if (control()->AccessibleRange(range) && !range.ReadOnly && value.canConvert<double>())
        control()->SetAccessibleValue(qBound(range.Min, value.toDouble(), range.Max));
}

QVariant TControlAccessible::maximumValue() const
{
    TControl::TAccessibleRange range;
    return control()->AccessibleRange(range) ? QVariant(range.Max) : QVariant();
}

QVariant TControlAccessible::minimumValue() const
{
    TControl::TAccessibleRange range;
    return control()->AccessibleRange(range) ? QVariant(range.Min) : QVariant();
}

QVariant TControlAccessible::minimumStepSize() const
{
    TControl::TAccessibleRange range;
    return control()->AccessibleRange(range) ? QVariant(range.Step) : QVariant();
}

QStringList TControlAccessible::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    TControl::TAccessibleRange range;
    const QAccessible::Role role = control()->AccessibleRole();
    if (role == QAccessible::Button || role == QAccessible::Link)
        names.prepend(pressAction());
    else if (control()->AccessibleRange(range) && !range.ReadOnly)
        names << increaseAction() << decreaseAction();
    return names;
}

void TControlAccessible::doAction(const QString &actionName)
{
    TControl::TAccessibleRange range;
    if (actionName == pressAction())
        control()->AccessiblePress();
    else if ((actionName == increaseAction() || actionName == decreaseAction()) && control()->AccessibleRange(range)
             && !range.ReadOnly)
        setCurrentValue(range.Value + (actionName == increaseAction() ? range.Step : -range.Step));
    else
        QAccessibleWidget::doAction(actionName);
}
