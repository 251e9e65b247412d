#pragma once
// One component as Qt Designer's widget box knows it, made from its entry.

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <QtDesigner/QDesignerFormEditorInterface>

#include <QObject>
#include <QPointer>

struct TComponentEntry;

class TDesignerWidget : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    TDesignerWidget(const TComponentEntry &entry, QObject *parent);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget *createWidget(QWidget *parent) override;
    // Set up by a Designer core (which then makes components in design
    // mode); a form loader that finds the plugin makes run-time ones.
    bool isInitialized() const override { return !FCore.isNull(); }
    void initialize(QDesignerFormEditorInterface *core) override;
    QString domXml() const override;

    const TComponentEntry &Entry() const { return FEntry; }

private:
    QString propertySpecifications(const QWidget *sample) const;

    const TComponentEntry &FEntry;
    QPointer<QDesignerFormEditorInterface> FCore;
};
