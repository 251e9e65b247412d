#pragma once
// What Designer's property editor sees of a component: Designer's own
// property sheet, with every TColor property shown and edited as a colour
// (system colours kept, see ColorToFormColor), the read-only properties of
// the component's entry shown greyed and refusing edits, and Name left to
// Designer's objectName. It is Designer's sheet class itself, since the
// property editor asks only that class whether a property is enabled.

#include <QtDesigner/private/qdesigner_propertysheet_p.h>

#include <QMetaProperty>
#include <QObject>
#include <QSet>

// Whether a text property holds text for the user to read (a caption, a
// hint, a title, a tip), which translators translate; the others hold
// expressions, command lines, names and formats, stored as they are.
bool IsTextForReaders(const QString &property);

class TPropertySheet : public QDesignerPropertySheet
{
    Q_OBJECT

public:
    TPropertySheet(QObject *object, QObject *parent);

    bool isVisible(int index) const override;
    bool isEnabled(int index) const override;
    // A caption that follows the object name counts as set: the form
    // stores what the designer shows.
    bool isChanged(int index) const override;
    QVariant property(int index) const override;
    void setProperty(int index, const QVariant &value) override;

    bool isColorProperty(int index) const;

private:
    // The component's own declaration of the property (invalid for
    // Designer's fake and dynamic ones).
    QMetaProperty declared(int index) const;

    QSet<QString> FReadOnly;
};

// Makes a TPropertySheet for each of the collection's components, for the
// property sheet and the dynamic property sheet alike; other objects get
// the sheets of the other factories.
class TPropertySheetFactory : public QDesignerAbstractPropertySheetFactory
{
    Q_OBJECT
public:
    explicit TPropertySheetFactory(QExtensionManager *parent);
    // Registered for both kinds of sheet, ahead of Designer's own.
    static void Register(QExtensionManager *manager);

private:
    QObject *createPropertySheet(QObject *object, QObject *parent) const override;
};
