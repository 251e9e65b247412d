#pragma once
// One dot-matrix character cell: 7 columns by 9 rows of dots, lit from a
// process-wide font table, drawn as circles, squares or rounded squares.

#include "displays/qcell.h"

#include <array>

using qcDotSegSize = quint8;   // offered as 1..25
// A set of dots 1..63: bit k stands for dot k, at row (k-1)/7, column (k-1)%7.
using TDotLook = quint64;

// The look of nine rows of seven dots, top row first; in each row 0x40 is
// the leftmost column and 0x01 the rightmost.
TDotLook DotLookFromRows(const std::array<quint8, 9> &rows);

// The look of a character code in the font (no dot for codes below 32).
TDotLook DotCharLook(qChar code);
// Replaces one entry of the font; cells already showing that character keep
// their look until their character changes away and back.
void ChangeADotCharLook(qChar code, TDotLook look);

// The dot positions at a Size: column i at X(i), row j at Y(j).
struct TDotGeometry
{
    std::array<int, 7> X{};
    std::array<int, 9> Y{};
    int Width = 0;
    int Height = 0;
};
TDotGeometry DotGeometry(int size);

class TqcDotSegment : public TqCustomCell
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
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(bool Transparent READ Transparent WRITE SetTransparent)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)
    Q_PROPERTY(TColor UnLitColor READ UnLitColor WRITE SetUnLitColor)
    Q_PROPERTY(int Size READ Size WRITE SetSize)
    Q_PROPERTY(bool UseGap READ UseGap WRITE SetGap)
    Q_PROPERTY(qcDotStyle Style READ Style WRITE SetStyle)

public:
    enum qcDotStyle { qcdsDot, qcdsRect, qcdsRound };
    Q_ENUM(qcDotStyle)

    // Writing Width or Height picks Size = value div 23 or div 29, the
    // cell's extent at Size 1 whatever the Size now (a Size 4 cell is 46
    // wide, and writing 46 gives Size 2).
    explicit TqcDotSegment(QWidget *parent = nullptr);

    bool UseGap() const { return FUseGap; }
    void SetGap(bool gap);
    qcDotStyle Style() const { return FStyle; }
    void SetStyle(qcDotStyle style);

    TDotLook Look() const { return FLook; }

protected:
    void CharChanged(qChar c) override { FLook = DotCharLook(c); }
    void LookChanged() override { Invalidate(); }
    // Recomputes the dot positions and the extent, then asks for a repaint.
    void DoUpdate() override;
    void Paint(TCanvas &canvas) override;

private:
    TDotLook FLook = 0;   // starts dark, whatever Char says
    bool FUseGap = true;
    qcDotStyle FStyle = qcdsRound;
    TDotGeometry FGeometry;   // only rebuilt when Size changes
};

using qcDotStyle = TqcDotSegment::qcDotStyle;
constexpr qcDotStyle qcdsDot = TqcDotSegment::qcdsDot;
constexpr qcDotStyle qcdsRect = TqcDotSegment::qcdsRect;
constexpr qcDotStyle qcdsRound = TqcDotSegment::qcdsRound;
