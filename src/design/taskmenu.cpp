#include "taskmenu.h"

#include "componentregistry.h"

#include <QWidget>

TTaskMenu::TTaskMenu(QWidget *component, int helpContext, QObject *parent)
    : QObject(parent), FComponent(component), FEditor(helpContext)
{
    for (int i = 0; i < FEditor.GetVerbCount(); ++i) {
        auto *action = new QAction(FEditor.GetVerb(i), this);
        action->setData(helpContext);
        connect(action, &QAction::triggered, this, [this, i] {
            FEditor.ExecuteVerb(i, FComponent ? FComponent->window() : nullptr);
        });
        FActions << action;
    }
}

TTaskMenuFactory::TTaskMenuFactory(QExtensionManager *parent) : QExtensionFactory(parent) {}

QObject *TTaskMenuFactory::createExtension(QObject *object, const QString &iid, QObject *parent) const
{
    if (iid != QLatin1String(Q_TYPEID(QDesignerTaskMenuExtension)))
        return nullptr;
    auto *widget = qobject_cast<QWidget *>(object);
    const TComponentEntry *entry = FindComponent(QString::fromLatin1(object->metaObject()->className()));
    if (!widget || !entry)
        return nullptr;
    return new TTaskMenu(widget, entry->helpContext, parent);
}
