#pragma once
// The shape button's shape editor: the thirteen shapes as pictures of the
// button itself, the current one chosen; OK hands the chosen one back.

#include <QDialog>

class QListWidget;

class TqShapeBtnEditor : public QDialog
{
    Q_OBJECT
public:
    explicit TqShapeBtnEditor(int shape, QWidget *parent = nullptr);

    int Shape() const;
    void SetShape(int shape);

private:
    QListWidget *FList;
};
