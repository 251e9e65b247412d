#include "taskmenu.h"

#include "qbitmapeditor.h"

#include "colorsdialog.h"
#include "componentregistry.h"
#include "propertyeditors.h"

#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

#include <QMetaProperty>

#include <QWidget>

// Designer keeps a text property in a value of its own, which also carries
// the text's translation data; its one setter is all this needs of it.
namespace qdesigner_internal {
class PropertySheetStringValue
{
public:
    void setValue(const QString &value);
};
} // namespace qdesigner_internal

namespace {

// `current` (the sheet's value of a text property) holding `text` instead.
QVariant designerText(QVariant current, const QString &text)
{
    if (qstrcmp(current.metaType().name(), "qdesigner_internal::PropertySheetStringValue") != 0)
        return text;
    static_cast<qdesigner_internal::PropertySheetStringValue *>(current.data())->setValue(text);
    return current;
}

} // namespace

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
    const auto editors = PropertyEditorsFor(component);
    if (!editors.empty()) {
        auto *separator = new QAction(this);
        separator->setSeparator(true);
        FActions << separator;
    }
    for (const TPropertyEditorEntry *editor : editors) {
        const QString property = QString::fromLatin1(EditedProperty(*editor, component));
        auto *action = new QAction(QString::fromLatin1(editor->verb), this);
        action->setObjectName(QStringLiteral("qcolEdit") + QLatin1String(editor->property));
        connect(action, &QAction::triggered, this, [this, editor, property] {
            if (!FComponent)
                return;
            QDialog *dialog = editor->create(FComponent, FComponent->window());
            dialog->setAttribute(Qt::WA_DeleteOnClose);
            connect(dialog, &QDialog::accepted, this, [this, editor, dialog, property] {
                writeBack(property, editor->value(dialog));
            });
            dialog->open();
        });
        FActions << action;
        // A double-click opens the component's own editor, not the hint's.
        if (!FPreferred && qstrcmp(editor->property, "Hint") != 0)
            FPreferred = action;
    }
    // Where the component has colour properties: the dialog that also
    // offers the system colours.
    const QMetaObject *meta = component->metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i)
        if (IsColorProperty(meta->property(i))) {
            auto *separator = new QAction(this);
            separator->setSeparator(true);
            auto *colours = new QAction(QStringLiteral("Colours..."), this);
            colours->setObjectName(QStringLiteral("qcolColoursAction"));
            connect(colours, &QAction::triggered, this, &TTaskMenu::editColours);
            FActions << separator << colours;
            break;
        }
}

void TTaskMenu::editColours()
{
    if (!FComponent)
        return;
    auto *dialog = new TColorsDialog(FComponent, FComponent->window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        if (!FComponent)
            return;
        // All the dialog's changes are one step to undo.
        QDesignerFormWindowInterface *form = QDesignerFormWindowInterface::findFormWindow(FComponent);
        if (form)
            form->beginCommand(QStringLiteral("Colours"));
        for (const auto &[name, color] : dialog->Changes())
            writeBack(name, QVariant::fromValue(color));
        if (form)
            form->endCommand();
    });
    dialog->open();
}

// Through the form window's cursor: one undoable change, marked as changed
// so the form stores it.
void TTaskMenu::writeBack(const QString &property, const QVariant &given)
{
    if (!FComponent)
        return;
    QDesignerFormWindowInterface *form = QDesignerFormWindowInterface::findFormWindow(FComponent);
    // A picture comes as its file: the form keeps the reference.
    QVariant value = given;
    const QMetaObject *meta = FComponent->metaObject();
    const int index = meta->indexOfProperty(property.toLatin1().constData());
    if (index >= 0 && meta->property(index).metaType() == QMetaType::fromType<QPixmap>()
        && given.metaType() == QMetaType::fromType<QString>())
        value = form ? DesignerPixmapValue(given.toString())
                     : QVariant::fromValue(given.toString().isEmpty() ? QPixmap() : QPixmap(given.toString()));
    if (form && index >= 0 && meta->property(index).metaType() == QMetaType::fromType<QString>())
        if (auto *sheet = qt_extension<QDesignerPropertySheetExtension *>(form->core()->extensionManager(), FComponent)) {
            const int at = sheet->indexOf(property);
            if (at >= 0)
                value = designerText(sheet->property(at), given.toString());
        }
    if (form)
        form->cursor()->setWidgetProperty(FComponent, property,
                                          value.metaType() == QMetaType::fromType<TColor>()
                                              ? ColorToFormColor(value.value<TColor>())
                                              : value);
    else
        FComponent->setProperty(property.toLatin1().constData(), value);
}

TTaskMenuFactory::TTaskMenuFactory(QExtensionManager *parent) : QExtensionFactory(parent) {}

QObject *TTaskMenuFactory::createExtension(QObject *object, const QString &iid, QObject *parent) const
{
    if (iid != QLatin1String(Q_TYPEID(QDesignerTaskMenuExtension)))
        return nullptr;
    auto *widget = qobject_cast<QWidget *>(object);
    const TComponentEntry *entry = FindComponent(object);
    if (!widget || !entry)
        return nullptr;
    return new TTaskMenu(widget, entry->helpContext, parent);
}
