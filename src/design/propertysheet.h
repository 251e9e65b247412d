#pragma once
// What Designer's property editor sees of a component: its own property
// sheet, with every TColor property shown and edited as a colour (system
// colours kept, see ColorToFormColor), the read-only properties of the
// component's entry disabled, and Name left to Designer's objectName.

#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionFactory>

#include <QObject>
#include <QSet>

class TPropertySheet : public QObject, public QDesignerPropertySheetExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerPropertySheetExtension)

public:
    // `inner` is the sheet Designer would have used; it stays the owner of
    // the changed flags, groups and attributes.
    TPropertySheet(QObject *object, QDesignerPropertySheetExtension *inner, QObject *parent);

    int count() const override { return FInner->count(); }
    int indexOf(const QString &name) const override { return FInner->indexOf(name); }
    QString propertyName(int index) const override { return FInner->propertyName(index); }
    QString propertyGroup(int index) const override { return FInner->propertyGroup(index); }
    void setPropertyGroup(int index, const QString &group) override { FInner->setPropertyGroup(index, group); }
    bool hasReset(int index) const override { return FInner->hasReset(index); }
    bool reset(int index) override { return FInner->reset(index); }
    bool isVisible(int index) const override;
    void setVisible(int index, bool b) override { FInner->setVisible(index, b); }
    bool isAttribute(int index) const override { return FInner->isAttribute(index); }
    void setAttribute(int index, bool b) override { FInner->setAttribute(index, b); }
    QVariant property(int index) const override;
    void setProperty(int index, const QVariant &value) override;
    bool isChanged(int index) const override { return FInner->isChanged(index); }
    void setChanged(int index, bool changed) override { FInner->setChanged(index, changed); }
    bool isEnabled(int index) const override;

    bool isColorProperty(int index) const;

private:
    QObject *FObject;
    QDesignerPropertySheetExtension *FInner;
    QSet<QString> FReadOnly;
};

// Makes a TPropertySheet for each of the collection's components, wrapped
// round the sheet the other factories would give.
class TPropertySheetFactory : public QExtensionFactory
{
    Q_OBJECT
public:
    explicit TPropertySheetFactory(QExtensionManager *parent);

protected:
    QObject *createExtension(QObject *object, const QString &iid, QObject *parent) const override;

private:
    mutable bool FAskingOthers = false;
};
