#include "colorsdialog.h"

#include "okcancel.h"

#include <QColorDialog>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QMetaProperty>
#include <QPixmap>
#include <QToolButton>
#include <QVBoxLayout>

namespace {
QIcon swatch(TColor color)
{
    QPixmap p(16, 16);
    p.fill(ColorToQColor(color));
    return QIcon(p);
}
} // namespace

TColorsDialog::TColorsDialog(QWidget *component, QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("qcolColorsDialog"));
    setWindowTitle(QStringLiteral("Colours of %1").arg(component->objectName()));
    auto *form = new QFormLayout;
    const QMetaObject *meta = component->metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty p = meta->property(i);
        if (!IsColorProperty(p) || !p.isWritable())
            continue;
        const TColor value = p.read(component).value<TColor>();
        auto *box = new QComboBox(this);
        box->setObjectName(QString::fromLatin1(p.name()));
        for (const QString &name : ColorNames()) {
            TColor c;
            StringToColor(name, c);
            box->addItem(swatch(c), name, quint32(c));
        }
        auto *pick = new QToolButton(this);
        pick->setText(QStringLiteral("..."));
        pick->setToolTip(QStringLiteral("Pick any colour"));
        auto *line = new QHBoxLayout;
        line->addWidget(box, 1);
        line->addWidget(pick);
        form->addRow(QString::fromLatin1(p.name()), line);
        FRows.append({QString::fromLatin1(p.name()), value, value, box});
        const int index = int(FRows.size()) - 1;
        showValue(FRows[index]);
        connect(box, &QComboBox::activated, this, [this, index](int item) {
            FRows[index].value = FRows[index].box->itemData(item).toUInt();
        });
        connect(pick, &QToolButton::clicked, this, [this, index] {
            const QColor c = QColorDialog::getColor(ColorToQColor(FRows[index].value), this);
            if (c.isValid()) {
                FRows[index].value = QColorToColor(c);
                showValue(FRows[index]);
            }
        });
    }
    auto *buttons = OkCancelButtons(this);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
}

void TColorsDialog::showValue(Row &row)
{
    int item = row.box->findData(quint32(row.value));
    if (item < 0) {
        // A colour without a name gets an entry of its own, first.
        row.box->insertItem(0, swatch(row.value), ColorToString(row.value), quint32(row.value));
        item = 0;
    }
    row.box->setCurrentIndex(item);
}

QList<QPair<QString, TColor>> TColorsDialog::Changes() const
{
    QList<QPair<QString, TColor>> out;
    for (const Row &row : FRows)
        if (row.value != row.original)
            out.append({row.property, row.value});
    return out;
}

bool TColorsDialog::SetValue(const QString &property, TColor color)
{
    for (Row &row : FRows)
        if (row.property == property) {
            row.value = color;
            showValue(row);
            return true;
        }
    return false;
}
