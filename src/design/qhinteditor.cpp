#include "qhinteditor.h"

#include "okcancel.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

TqHintEditor::TqHintEditor(const QString &hint, QWidget *parent) : QDialog(parent), FEdit(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("qcolHintEditor"));
    setWindowTitle(QStringLiteral("Hint"));
    auto *layout = new QVBoxLayout(this);
    auto *about = new QLabel(QStringLiteral("The tip shows every line; write \"short|long\" to give the "
                                            "application's status line a longer text."), this);
    about->setWordWrap(true);
    layout->addWidget(about);
    FEdit->setPlainText(hint);
    FEdit->setMinimumSize(320, 140);
    FEdit->setTabChangesFocus(true);
    layout->addWidget(FEdit);
    auto *ok = OkCancelButtons(this);
    layout->addWidget(ok);
}

QString TqHintEditor::Hint() const
{
    return FEdit->toPlainText();
}
