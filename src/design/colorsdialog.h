#pragma once
// Every colour property of a component in one dialog, by the names the
// framework gives them: plain colours, system colours (clBtnFace ...) or any
// colour picked. Designer's property editor shows each as a swatch; this is
// where a system colour is chosen.

#include "host/tcolor.h"

#include <QDialog>
#include <QList>
#include <QPair>

class QComboBox;

class TColorsDialog : public QDialog
{
    Q_OBJECT
public:
    explicit TColorsDialog(QWidget *component, QWidget *parent = nullptr);

    // The colour properties whose value the user changed, with the new values.
    QList<QPair<QString, TColor>> Changes() const;
    // Picks a value for a property, as choosing it in the dialog does.
    bool SetValue(const QString &property, TColor color);

private:
    struct Row
    {
        QString property;
        TColor original;
        TColor value;
        QComboBox *box;
    };
    void showValue(Row &row);
    QList<Row> FRows;
};
