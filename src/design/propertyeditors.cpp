#include "propertyeditors.h"

#include "qangleeditor.h"
#include "qbitmapeditor.h"
#include "qhinteditor.h"
#include "qgaugeeditor.h"
#include "qshapebtneditor.h"

#include <QWidget>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

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

// The picture now and, where the form has one, the file it came from.
QDialog *bitmapEditor(QWidget *component, const char *property, QWidget *parent)
{
    QString file;
    if (auto *form = QDesignerFormWindowInterface::findFormWindow(component))
        if (auto *sheet = qt_extension<QDesignerPropertySheetExtension *>(form->core()->extensionManager(), component))
            file = DesignerPixmapFile(sheet->property(sheet->indexOf(QLatin1String(property))));
    return new TqBitmapEditor(component->property(property).value<QPixmap>(), file, parent);
}

QDialog *createBitMapEditor(QWidget *component, QWidget *parent) { return bitmapEditor(component, "BitMap", parent); }
QDialog *createBitmapEditor(QWidget *component, QWidget *parent) { return bitmapEditor(component, "Bitmap", parent); }
QDialog *createGlyphEditor(QWidget *component, QWidget *parent) { return bitmapEditor(component, "Glyph", parent); }
QDialog *createGlyphDownEditor(QWidget *component, QWidget *parent) { return bitmapEditor(component, "GlyphDown", parent); }
QVariant bitmapEditorValue(QDialog *dialog) { return static_cast<TqBitmapEditor *>(dialog)->FileName(); }

QDialog *createAngleEditor(QWidget *component, QWidget *parent)
{
    return new TqAngleEditor(component->property("Angle").toInt(), qobject_cast<TqAngleLabel *>(component), parent);
}

QVariant angleEditorValue(QDialog *dialog) { return static_cast<TqAngleEditor *>(dialog)->Angle(); }

QDialog *createHintEditor(QWidget *component, QWidget *parent)
{
    return new TqHintEditor(component->property(HintPropertyOf(component)).toString(), parent);
}

QVariant hintEditorValue(QDialog *dialog) { return static_cast<TqHintEditor *>(dialog)->Hint(); }

const std::vector<TPropertyEditorEntry> kEditors = {
    {"TqShapeBtn", "Shape", "Shape...", createShapeEditor, shapeEditorValue},
    {"TqGauge", "CaptionStyle", "Caption Style...", createGaugeEditor, gaugeEditorValue},
    {"TqBitmap", "Bitmap", "Bitmap...", createBitmapEditor, bitmapEditorValue},
    {"TqBackground", "BitMap", "Bitmap...", createBitMapEditor, bitmapEditorValue},
    {"TqTileMap", "Bitmap", "Bitmap...", createBitmapEditor, bitmapEditorValue},
    {"TqNWTileMap", "Bitmap", "Bitmap...", createBitmapEditor, bitmapEditorValue},
    {"TqBitColBtn", "Glyph", "Glyph...", createGlyphEditor, bitmapEditorValue},
    {"TqBitColBtn", "GlyphDown", "Pressed Glyph...", createGlyphDownEditor, bitmapEditorValue},
    {"TqNWBitColBtn", "Glyph", "Glyph...", createGlyphEditor, bitmapEditorValue},
    {"TqNWBitColBtn", "GlyphDown", "Pressed Glyph...", createGlyphDownEditor, bitmapEditorValue},
    {"TqGauge", "Glyph", "Glyph...", createGlyphEditor, bitmapEditorValue},
    {"TqSplashForm", "Bitmap", "Bitmap...", createBitmapEditor, bitmapEditorValue},
    {"TqAngleLabel", "Angle", "Angle...", createAngleEditor, angleEditorValue},
    // Every component with a hint: its published Hint, or a control's tool
    // tip, which is its hint.
    {"QWidget", "Hint", "Hint...", createHintEditor, hintEditorValue},
};

} // namespace

const std::vector<TPropertyEditorEntry> &PropertyEditors() { return kEditors; }

const char *HintPropertyOf(const QWidget *component)
{
    if (component->metaObject()->indexOfProperty("Hint") >= 0)
        return "Hint";
    return component->inherits("TControl") ? "toolTip" : nullptr;
}

const char *EditedProperty(const TPropertyEditorEntry &editor, const QWidget *component)
{
    if (qstrcmp(editor.property, "Hint") == 0)
        return HintPropertyOf(component);
    return editor.property;
}

std::vector<const TPropertyEditorEntry *> PropertyEditorsFor(const QWidget *component)
{
    std::vector<const TPropertyEditorEntry *> out;
    for (const TPropertyEditorEntry &e : kEditors)
        if (component->inherits(e.className) && EditedProperty(e, component))
            out.push_back(&e);
    return out;
}
