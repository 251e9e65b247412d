#pragma once
// One sixteen-segment character cell: ten bars, four diagonals and two dots,
// lit from a process-wide character look table. Everything scales with Size:
// the cell is 19 x Size by 29 x Size pixels.

#include "displays/qcell.h"

#include <array>
#include <initializer_list>
#include <vector>

using qSegSize = quint8;   // offered as 1..15; not clamped
// A set of elements 1..16: bit n stands for element n.
using TSegLook = quint32;

constexpr int SegmentElementCount = 16;

constexpr TSegLook SegLook(std::initializer_list<int> elements)
{
    TSegLook look = 0;
    for (int e : elements)
        look |= TSegLook(1) << e;
    return look;
}

// The outline of element 1..16 at a given Size, in drawing order.
std::vector<TPoint> SegmentElementPolygon(int element, int size);

// The look of a character code in the table (no element for codes below 32).
TSegLook CharLook(qChar code);
// Replaces one entry of the table; cells already showing that character keep
// their look until their character changes away and back.
void ChangeACharLook(qChar code, TSegLook look);

class TqSegment : public TqCustomCell
{
    Q_OBJECT
    Q_PROPERTY(int Width READ Width WRITE SetWidth STORED false)
    Q_PROPERTY(int Height READ Height WRITE SetHeight STORED false)
    Q_PROPERTY(QString Hint READ Hint WRITE SetHint)
    Q_PROPERTY(int DragCursor READ DragCursor WRITE SetDragCursor)
    Q_PROPERTY(TDragMode DragMode READ DragMode WRITE SetDragMode)
    Q_PROPERTY(QChar Char READ UnicodeChar WRITE SetUnicodeChar)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(TColor LitColor READ LitColor WRITE SetLitColor)
    Q_PROPERTY(bool ParentColor READ ParentColor WRITE SetParentColor)
    Q_PROPERTY(bool ParentShowHint READ ParentShowHint WRITE SetParentShowHint)
    Q_PROPERTY(qSegPunktur Punktur READ Punktur WRITE SetPunktur)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(bool Transparent READ Transparent WRITE SetTransparent)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)
    Q_PROPERTY(TColor UnLitColor READ UnLitColor WRITE SetUnLitColor)
    Q_PROPERTY(int Size READ Size WRITE SetSize)

public:
    enum qSegPunktur { spPunktum, spColon, spNone };
    Q_ENUM(qSegPunktur)

    explicit TqSegment(QWidget *parent = nullptr);

    qSegPunktur Punktur() const { return FPunktur; }
    void SetPunktur(qSegPunktur punktur);

    // The elements lit now.
    TSegLook Look() const { return FLook; }

protected:
    // The look is replaced whole: dots set by Punktur go, those of the
    // character's own entry come, and Punktur keeps its value.
    void CharChanged(qChar c) override { FLook = CharLook(c); }
    // Every setter here resizes as well as repaints.
    void LookChanged() override { DoUpdate(); }
    // Sets the extent from Size and asks for a repaint.
    void DoUpdate() override;
    void Paint(TCanvas &canvas) override;

private:
    TSegLook FLook = 0;   // starts dark, whatever Char says
    qSegPunktur FPunktur = spNone;
    // The element outlines at the current Size, so that painting needs no
    // arithmetic; rebuilt only when Size changes.
    std::array<std::vector<TPoint>, SegmentElementCount> FPolygons;
    quint8 FPolygonSize = 0xFF;
};

using qSegPunktur = TqSegment::qSegPunktur;
constexpr qSegPunktur spPunktum = TqSegment::spPunktum;
constexpr qSegPunktur spColon = TqSegment::spColon;
constexpr qSegPunktur spNone = TqSegment::spNone;
