#pragma once
// What the segment label and the dot label share: a row of owned character
// cells in 256 slots, rebuilt whole whenever their number or size changes,
// laid out touching; colours passed down; the cells' mouse events raised
// again with the label as sender (and the cell's own coordinates); the
// extent snapped back to what the cells need.

#include "host/tcontrol.h"

#include <QString>

#include <array>

class TqCustomCellLabel : public TCustomControl
{
    Q_OBJECT

public:
    static constexpr int MaxCells = 256;
    ~TqCustomCellLabel() override;

    // Writing any other value than the current one restores the computed extent.
    int Width() const { return width(); }
    void SetWidth(int value);
    int Height() const { return height(); }
    void SetHeight(int value);

    QString Caption() const { return FCaption; }
    // An empty caption is stored as one space.
    void SetCaption(const QString &caption);

    quint8 NumberOfChars() const { return FCount; }
    void SetElements(quint8 count);

    quint8 Size() const { return FSize; }
    void SetSize(quint8 size);

    TColor LitColor() const { return FLitColor; }
    void SetLitColor(TColor color);
    TColor UnLitColor() const { return FUnLitColor; }
    void SetUnLitColor(TColor color);

    void SetBounds(int left, int top, int width, int height) override;
    void SetColor(TColor color) override;
    void SetParentColor(bool parentColor) override;
    void SetVisible(bool visible) override;

    // The cell in slot i, or null.
    TControl *Cell(int i) const { return (i >= 0 && i < MaxCells) ? FCells[size_t(i)] : nullptr; }

protected:
    explicit TqCustomCellLabel(QWidget *parent);

    // Spreads the caption over the cells.
    virtual void DoCaption() = 0;
    // Rebuilds the cells with the current count.
    virtual void DoUpdate() { SetCount(FCount); }

    void SetCount(quint8 count);
    // Makes the cell for slot `index`, a child of this label, with the
    // label's size and colours; the label places it and routes its events.
    virtual TControl *CreateCell(int index) = 0;
    virtual QSize CellSize() const = 0;
    // Passes the lit and unlit colours to one cell.
    virtual void ApplyColors(TControl *cell) = 0;
    QSize ComputedSize() const;
    // Calls f(cell) for every existing cell, left to right.
    template <class F>
    void ForEachCell(F f) const
    {
        for (TControl *cell : FCells)
            if (cell)
                f(cell);
    }

    // The caption is set directly at construction, without DoCaption.
    QString FCaption;

    void Paint(TCanvas &canvas) override;

private:
    void routeEvents(TControl *cell);
    void freeCells();

    std::array<TControl *, MaxCells> FCells{};
    quint8 FCount = 0;
    quint8 FSize = 1;
    TColor FLitColor = clLime;
    TColor FUnLitColor = 0x002000;
};
