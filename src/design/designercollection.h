#pragma once
// The Qt Designer plugin: every component of the collection in the widget
// box, in its group and order, with its component editor and property sheet.

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <QObject>

class TDesignerCollection : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit TDesignerCollection(QObject *parent = nullptr);
    QList<QDesignerCustomWidgetInterface *> customWidgets() const override { return FWidgets; }

private:
    QList<QDesignerCustomWidgetInterface *> FWidgets;
};
