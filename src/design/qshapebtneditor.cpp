#include "qshapebtneditor.h"

#include "okcancel.h"

#include "buttons/qshapebtn.h"

#include <QListWidget>
#include <QMetaEnum>
#include <QPixmap>
#include <QVBoxLayout>

TqShapeBtnEditor::TqShapeBtnEditor(int shape, QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("qcolShapeBtnEditor"));
    setWindowTitle(QStringLiteral("Shape"));
    auto *layout = new QVBoxLayout(this);
    FList = new QListWidget(this);
    FList->setViewMode(QListView::IconMode);
    FList->setIconSize(QSize(40, 40));
    FList->setGridSize(QSize(110, 70));
    FList->setMovement(QListView::Static);
    // Every shape in view at once, five to a row, without scrolling.
    FList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int frame = 2 * FList->frameWidth() + 2 * FList->spacing() + 24;
    FList->setMinimumSize(QSize(5 * 110 + frame, 3 * 70 + frame));
    const QMetaEnum shapes = QMetaEnum::fromType<TqShapeBtn::sbType>();
    for (int i = 0; i < shapes.keyCount(); ++i) {
        TqShapeBtn sample;
        sample.SetShape(TqShapeBtn::sbType(shapes.value(i)));
        sample.SetBounds(0, 0, 40, 40);
        const QPixmap picture = QPixmap::fromImage(sample.RenderImage(palette().color(QPalette::Base).rgb()));
        auto *item = new QListWidgetItem(QIcon(picture), QString::fromLatin1(shapes.key(i)), FList);
        item->setData(Qt::UserRole, shapes.value(i));
    }
    layout->addWidget(FList);
    auto *ok = OkCancelButtons(this);
    connect(FList, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    layout->addWidget(ok);
    SetShape(shape);
}

int TqShapeBtnEditor::Shape() const
{
    const QListWidgetItem *item = FList->currentItem();
    return item ? item->data(Qt::UserRole).toInt() : 0;
}

void TqShapeBtnEditor::SetShape(int shape)
{
    for (int i = 0; i < FList->count(); ++i)
        if (FList->item(i)->data(Qt::UserRole).toInt() == shape)
            FList->setCurrentRow(i);
}
