#include "tcontrolaccessible.h"

#include "tapplication.h"
#include "tcontrol.h"

#include <optional>

namespace {

// The control's range, where it holds a number.
std::optional<TControl::TAccessibleRange> rangeOf(const TControl *control)
{
    TControl::TAccessibleRange range;
    if (control->AccessibleRange(range))
        return range;
    return std::nullopt;
}

// One number of the control's range; none where it holds no number.
QVariant rangeValue(const TControl *control, double TControl::TAccessibleRange::*number)
{
    const auto range = rangeOf(control);
    return range ? QVariant((*range).*number) : QVariant();
}

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
        const auto range = rangeOf(control());
        return range ? QString::number(range->Value) : QString();
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
    if (t == QAccessible::ValueInterface && rangeOf(control()))
        return static_cast<QAccessibleValueInterface *>(this);
    return QAccessibleWidget::interface_cast(t);
}

QVariant TControlAccessible::currentValue() const
{
    return rangeValue(control(), &TControl::TAccessibleRange::Value);
}

void TControlAccessible::setCurrentValue(const QVariant &value)
{
    const auto range = rangeOf(control());
    if (range && !range->ReadOnly && value.canConvert<double>())
        control()->SetAccessibleValue(qBound(range->Min, value.toDouble(), range->Max));
}

QVariant TControlAccessible::maximumValue() const
{
    return rangeValue(control(), &TControl::TAccessibleRange::Max);
}

QVariant TControlAccessible::minimumValue() const
{
    return rangeValue(control(), &TControl::TAccessibleRange::Min);
}

QVariant TControlAccessible::minimumStepSize() const
{
    return rangeValue(control(), &TControl::TAccessibleRange::Step);
}

QStringList TControlAccessible::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    const QAccessible::Role role = control()->AccessibleRole();
    const auto range = rangeOf(control());
    if (role == QAccessible::Button || role == QAccessible::Link)
        names.prepend(pressAction());
    else if (range && !range->ReadOnly)
        names << increaseAction() << decreaseAction();
    return names;
}

void TControlAccessible::doAction(const QString &actionName)
{
    const auto range = rangeOf(control());
    if (actionName == pressAction())
        control()->AccessiblePress();
    else if ((actionName == increaseAction() || actionName == decreaseAction()) && range && !range->ReadOnly)
        setCurrentValue(range->Value + (actionName == increaseAction() ? range->Step : -range->Step));
    else
        QAccessibleWidget::doAction(actionName);
}
