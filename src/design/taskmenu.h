#pragma once
// The component editor in Designer: the three verbs on the context menu of
// every component of the collection.

#include "componenteditor.h"

#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionFactory>

#include <QAction>
#include <QList>
#include <QObject>
#include <QPointer>

class TTaskMenu : public QObject, public QDesignerTaskMenuExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerTaskMenuExtension)

public:
    TTaskMenu(QWidget *component, int helpContext, QObject *parent);

    // A double-click opens the component's first property editor.
    QAction *preferredEditAction() const override { return FPreferred; }
    // The three verbs first, each with the component's help context number
    // as its data; then the component's property editors ("Caption
    // Style..."); then, for a component with colour properties, "Colours...".
    QList<QAction *> taskActions() const override { return FActions; }

private:
    void editColours();
    void writeBack(const QString &property, const QVariant &value);

    QPointer<QWidget> FComponent;
    TComponentEditor FEditor;
    QList<QAction *> FActions;
    QAction *FPreferred = nullptr;
};

class TTaskMenuFactory : public QExtensionFactory
{
    Q_OBJECT
public:
    explicit TTaskMenuFactory(QExtensionManager *parent);

protected:
    QObject *createExtension(QObject *object, const QString &iid, QObject *parent) const override;
};
