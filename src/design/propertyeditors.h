#pragma once
// The editors of single properties that open a dialog of their own: each
// is a verb on its component's context menu in Designer (and what a
// double-click on the component opens); OK writes the value back to the
// form as one undoable change.

#include <QString>
#include <QVariant>

#include <vector>

class QDialog;
class QWidget;

struct TPropertyEditorEntry
{
    const char *className;   // the component class (derived classes share it)
    const char *property;
    const char *verb;
    // The dialog, showing the property's current value.
    QDialog *(*create)(QWidget *component, QWidget *parent);
    // The value chosen in the dialog, read after OK.
    QVariant (*value)(QDialog *dialog);
};

const std::vector<TPropertyEditorEntry> &PropertyEditors();
// The property an editor edits on a component (the hint editor edits a
// control's tool tip where the control publishes no Hint); null when the
// editor does not apply.
const char *EditedProperty(const TPropertyEditorEntry &editor, const QWidget *component);
const char *HintPropertyOf(const QWidget *component);
// The editors that apply to a component.
std::vector<const TPropertyEditorEntry *> PropertyEditorsFor(const QWidget *component);
