#pragma once
// What the segment cell and the dot cell share: a character from a
// process-wide table, lit and unlit colours, a transparent mode, a Size
// that fixes the extent, Width and Height writes that pick a Size, and
// OnPaint last of all.

#include "host/tcontrol.h"

#include <functional>

using qChar = quint8;   // a Windows-1252 code, offered as 32..255

class TqCustomCell : public TGraphicControl
{
    Q_OBJECT

public:
    // Reading gives the current extent; writing another value sets Size to
    // value div the cell's extent at Size 1 (at least 1, kept in 8 bits).
    int Width() const { return width(); }
    void SetWidth(int value);
    int Height() const { return height(); }
    void SetHeight(int value);

    qChar Char() const { return FChar; }
    void SetChar(qChar c);
    QChar UnicodeChar() const;
    void SetUnicodeChar(QChar c);

    TColor LitColor() const { return FLitColor; }
    void SetLitColor(TColor color);
    TColor UnLitColor() const { return FUnLitColor; }
    void SetUnLitColor(TColor color);

    // When true the background is left alone: the parent shows between
    // the elements.
    bool Transparent() const { return FTransparent; }
    void SetTransparent(bool transparent);

    quint8 Size() const { return FSize; }
    void SetSize(quint8 size);

signals:
    void OnPaint(QObject *Sender);

protected:
    // `unit` is the extent at Size 1.
    TqCustomCell(QSize unit, QWidget *parent);

    // Takes the look of a new character from the table.
    virtual void CharChanged(qChar c) = 0;
    // A colour or the look changed: repaint (and, for some cells, resize).
    virtual void LookChanged() = 0;
    // Size changed: recompute the geometry and the extent, repaint.
    virtual void DoUpdate() = 0;
    virtual void DoOnPaint() { emit OnPaint(this); }

    // Fills the background unless transparent, and leaves a clear brush.
    void PaintBackground(TCanvas &canvas);
    bool PaintsOpaque() const override;
    // The extent at Size 1 times Size.
    QSize Extent() const { return FUnit * FSize; }
    // Paints an opaque cell through a picture shared by every cell of the
    // same kind, size, look and colours (a row of readouts shows the same
    // few characters over and over): `draw` paints it the first time only.
    // A transparent cell draws straight onto what lies beneath.
    void PaintCell(TCanvas &canvas, int kind, quint64 look, quint32 variant,
                   const std::function<void(TCanvas &)> &draw);

private:
    QSize FUnit;
    qChar FChar = ' ';
    TColor FLitColor = clLime;
    TColor FUnLitColor = 0x002000;   // a very dark green
    bool FTransparent = false;
    quint8 FSize = 0;
};
