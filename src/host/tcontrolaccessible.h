#pragma once
// The accessible face of every control: role, name, description and, for a
// control that holds a number, the value interface (read and set), with
// press, increase and decrease actions where they mean something.

#include <QAccessibleWidget>

class TControl;

class TControlAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit TControlAccessible(TControl *control);

    QString text(QAccessible::Text t) const override;
    QAccessible::Role role() const override;
    void *interface_cast(QAccessible::InterfaceType t) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

    QStringList actionNames() const override;
    void doAction(const QString &actionName) override;

    // Made for every TControl by a factory installed with the first one.
    static void Install();

private:
    TControl *control() const;
};
