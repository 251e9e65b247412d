#pragma once
// What the windowed and non-windowed tile maps share: a bitmap tiled from
// the top-left corner, the last tiles cut by the control's edges, a dashed
// outline in the designer, then OnPaint. Without a bitmap the windowed map
// shows its Color and the non-windowed one what lies beneath it.

#include "backgrounds/qblendpainter.h"

#include <QPixmap>

#include <algorithm>

template <class Base>
class TTilePainter : public Base
{
public:
    explicit TTilePainter(QWidget *parent) : Base(parent)
    {
        this->SetColor(clWindow);
        this->SetParentColor(true);
        this->SetBounds(this->Left(), this->Top(), 30, 30);
    }

    QPixmap Bitmap() const { return QPixmap::fromImage(FBitmap); }
    void SetBitmap(const QPixmap &bitmap)
    {
        FBitmap = bitmap.toImage().convertToFormat(QImage::Format_RGB32);
        this->Invalidate();
    }

protected:
    virtual void DoOnPaint() = 0;
    void Paint(TCanvas &canvas) override
    {
        const int w = this->Width(), h = this->Height();
        if (this->PaintsOpaque()) {   // a windowed map is erased in its Color first
            canvas.Brush.SetStyle(bsSolid);
            canvas.Brush.SetColor(this->Color());
            canvas.FillRect(Rect(0, 0, w, h));
        }
        if (!FBitmap.isNull()) {
            // The tiles on the picture only, however large the control.
            const int right = canvas.Image() ? std::min(w, canvas.Image()->width()) : w;
            const int bottom = canvas.Image() ? std::min(h, canvas.Image()->height()) : h;
            for (int x = 0; x < right; x += FBitmap.width())
                for (int y = 0; y < bottom; y += FBitmap.height())
                    canvas.Draw(x, y, FBitmap);
        }
        if (this->IsDesigning())
            PaintDesignOutline(canvas, w, h);
        DoOnPaint();
    }

private:
    QImage FBitmap;
};
