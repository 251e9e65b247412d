#pragma once
// The bitmap editor of the picture properties (the form background's
// BitMap, the tile maps' Bitmap): the picture now, at its own pixels, with
// its size; Load... picks an image file, Clear empties it; OK hands back the
// file (empty when cleared), which the form stores as the picture's
// reference, the way Designer keeps pictures.

#include <QDialog>
#include <QPixmap>
#include <QVariant>

class QLabel;

class TqBitmapEditor : public QDialog
{
    Q_OBJECT
public:
    TqBitmapEditor(const QPixmap &picture, const QString &fileName, QWidget *parent = nullptr);

    // The file of the picture shown; empty once cleared.
    QString FileName() const { return FFileName; }
    QPixmap Picture() const { return FPicture; }
    // Shows the picture of `fileName`; false (and nothing changed) when the
    // file is no picture.
    bool Load(const QString &fileName);
    void Clear();

private:
    void show(const QPixmap &picture);

    QString FFileName;
    QPixmap FPicture;
    QLabel *FPreview;
    QLabel *FSize;
};

// Designer keeps a picture property as the file it came from; these turn a
// file into the value its form cursor takes and a value of its property
// sheet back into the file. Without that kind of value (another Designer),
// the first gives the picture itself and the second an empty name.
QVariant DesignerPixmapValue(const QString &fileName);
QString DesignerPixmapFile(const QVariant &value);
