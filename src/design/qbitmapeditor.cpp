#include "qbitmapeditor.h"

#include "okcancel.h"

#include "searchpaths.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

// Designer's own value for a picture property: one file name, nothing else.
QMetaType pixmapValueType()
{
    const QMetaType type = QMetaType::fromName("qdesigner_internal::PropertySheetPixmapValue");
    return type.isValid() && type.sizeOf() == int(sizeof(QString)) ? type : QMetaType();
}

} // namespace

QVariant DesignerPixmapValue(const QString &fileName)
{
    const QMetaType type = pixmapValueType();
    if (!type.isValid())
        return QVariant::fromValue(fileName.isEmpty() ? QPixmap() : QPixmap(fileName));
    return QVariant(type, &fileName);
}

QString DesignerPixmapFile(const QVariant &value)
{
    const QMetaType type = pixmapValueType();
    if (!type.isValid() || value.metaType() != type)
        return QString();
    return *static_cast<const QString *>(value.constData());
}

TqBitmapEditor::TqBitmapEditor(const QPixmap &picture, const QString &fileName, QWidget *parent)
    : QDialog(parent), FFileName(fileName), FPreview(new QLabel), FSize(new QLabel(this))
{
    setWindowTitle(QStringLiteral("Bitmap"));
    auto *scroll = new QScrollArea(this);
    scroll->setWidget(FPreview);
    scroll->setWidgetResizable(false);
    scroll->setMinimumSize(240, 180);
    scroll->setBackgroundRole(QPalette::Dark);
    auto *load = new QPushButton(QStringLiteral("Load..."), this);
    auto *clear = new QPushButton(QStringLiteral("Clear"), this);
    connect(load, &QPushButton::clicked, this, [this] {
        QStringList patterns;
        for (const QByteArray &format : QImageReader::supportedImageFormats())
            patterns << QStringLiteral("*.") + QString::fromLatin1(format);
        const QString file = QFileDialog::getOpenFileName(
            this, QStringLiteral("Load a bitmap"),
            FFileName.isEmpty() && !SearchPaths().Pictures.isEmpty() ? SearchPaths().Pictures.first() : FFileName,
            QStringLiteral("Pictures (%1);;All files (*)").arg(patterns.join(QLatin1Char(' '))));
        if (!file.isEmpty())
            Load(file);
    });
    connect(clear, &QPushButton::clicked, this, &TqBitmapEditor::Clear);
    auto *buttons = OkCancelButtons(this);
    auto *side = new QVBoxLayout;
    side->addWidget(load);
    side->addWidget(clear);
    side->addStretch();
    auto *top = new QHBoxLayout;
    top->addWidget(scroll, 1);
    top->addLayout(side);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(FSize);
    layout->addWidget(buttons);
    show(picture);
}

bool TqBitmapEditor::Load(const QString &fileName)
{
    const QPixmap picture(fileName);
    if (picture.isNull()) {
        FSize->setText(QStringLiteral("%1 is not a picture").arg(fileName));
        return false;
    }
    FFileName = fileName;
    show(picture);
    return true;
}

void TqBitmapEditor::Clear()
{
    FFileName.clear();
    show(QPixmap());
}

// At its own pixels: no smoothing hides what a tile really looks like.
void TqBitmapEditor::show(const QPixmap &picture)
{
    FPicture = picture;
    FPreview->setPixmap(picture);
    FPreview->resize(picture.isNull() ? QSize(1, 1) : picture.size());
    FSize->setText(picture.isNull() ? QStringLiteral("(none)")
                                    : QStringLiteral("%1 x %2 pixels").arg(picture.width()).arg(picture.height()));
}
