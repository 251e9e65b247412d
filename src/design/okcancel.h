#pragma once
// The OK and Cancel buttons of the collection's dialogs, accepting and
// rejecting the dialog.

#include <QDialog>
#include <QDialogButtonBox>

inline QDialogButtonBox *OkCancelButtons(QDialog *dialog)
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    return buttons;
}
