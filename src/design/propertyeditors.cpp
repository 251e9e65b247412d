#include "propertyeditors.h"

#include "qgaugeeditor.h"
#include "qshapebtneditor.h"

#include <QWidget>

namespace {

QDialog *createGaugeEditor(QWidget *component, QWidget *parent)
{
    return new TqGaugeEditor(component->property("CaptionStyle").toInt(), parent);
}

QVariant gaugeEditorValue(QDialog *dialog) { return static_cast<TqGaugeEditor *>(dialog)->CaptionStyle(); }

QDialog *createShapeEditor(QWidget *component, QWidget *parent)
{
    return new TqShapeBtnEditor(component->property("Shape").toInt(), parent);
}

QVariant shapeEditorValue(QDialog *dialog) { return static_cast<TqShapeBtnEditor *>(dialog)->Shape(); }

const std::vector<TPropertyEditorEntry> kEditors = {
    {"TqShapeBtn", "Shape", "Shape...", createShapeEditor, shapeEditorValue},
    {"TqGauge", "CaptionStyle", "Caption Style...", createGaugeEditor, gaugeEditorValue},
};

} // namespace

const std::vector<TPropertyEditorEntry> &PropertyEditors() { return kEditors; }

std::vector<const TPropertyEditorEntry *> PropertyEditorsFor(const QWidget *component)
{
    std::vector<const TPropertyEditorEntry *> out;
    for (const TPropertyEditorEntry &e : kEditors)
        if (component->inherits(e.className))
            out.push_back(&e);
    return out;
}
