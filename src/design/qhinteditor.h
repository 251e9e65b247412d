#pragma once
// The hint editor: the hint as several lines of text. A hint "short|long"
// shows its short part as the tip and its long part in the application's
// Hint; the editor keeps both in the one text. OK hands the text back.

#include <QDialog>

class QPlainTextEdit;

class TqHintEditor : public QDialog
{
    Q_OBJECT
public:
    explicit TqHintEditor(const QString &hint, QWidget *parent = nullptr);

    QString Hint() const;
    QPlainTextEdit *Editor() const { return FEdit; }

private:
    QPlainTextEdit *FEdit;
};
