#pragma once
// A control tiled with a bitmap.

#include "backgrounds/qtilepainter.h"

class TqTileMap : public TTilePainter<TCustomControl>
{
    Q_OBJECT
    Q_PROPERTY(QString Hint READ Hint WRITE SetHint)
    Q_PROPERTY(int Cursor READ Cursor WRITE SetCursor)
    Q_PROPERTY(int Width READ Width WRITE SetWidth STORED false)
    Q_PROPERTY(int Height READ Height WRITE SetHeight STORED false)
    Q_PROPERTY(QPixmap Bitmap READ Bitmap WRITE SetBitmap)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(bool ParentColor READ ParentColor WRITE SetParentColor)
    Q_PROPERTY(Controls::TAlign Align READ Align WRITE SetAlign)
    Q_PROPERTY(bool ParentShowHint READ ParentShowHint WRITE SetParentShowHint)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)
    Q_PROPERTY(int DragCursor READ DragCursor WRITE SetDragCursor)
    Q_PROPERTY(TDragMode DragMode READ DragMode WRITE SetDragMode)

public:
    explicit TqTileMap(QWidget *parent = nullptr);

signals:
    void OnPaint(QObject *Sender);

protected:
    void DoOnPaint() override { emit OnPaint(this); }
};
