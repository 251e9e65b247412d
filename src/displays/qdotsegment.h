#pragma once
// One dot-matrix character cell: 7 columns by 9 rows of dots, lit from a
// process-wide font table, drawn as circles, squares or rounded squares.

#include "displays/qsegment.h"

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

class TqcDotSegment : public TGraphicControl
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

    explicit TqcDotSegment(QWidget *parent = nullptr);

    // Writing picks Size = value div 23 (width) or div 29 (height), at
    // least 1: the cell's extent at Size 1, whatever the Size now.
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
    bool Transparent() const { return FTransparent; }
    void SetTransparent(bool transparent);
    qcDotSegSize Size() const { return FSize; }
    void SetSize(qcDotSegSize size);
    bool UseGap() const { return FUseGap; }
    void SetGap(bool gap);
    qcDotStyle Style() const { return FStyle; }
    void SetStyle(qcDotStyle style);

    TDotLook Look() const { return FLook; }

signals:
    void OnPaint(QObject *Sender);

protected:
    // Recomputes the dot positions and the extent, then asks for a repaint.
    virtual void DoUpdate();
    void Paint(TCanvas &canvas) override;
    bool PaintsOpaque() const override;

private:
    qChar FChar = ' ';
    TDotLook FLook = 0;   // starts dark, whatever Char says
    TColor FLitColor = clLime;
    TColor FUnLitColor = 0x002000;
    bool FTransparent = false;
    qcDotSegSize FSize = 0;
    bool FUseGap = true;
    qcDotStyle FStyle = qcdsRound;
    TDotGeometry FGeometry;   // only rebuilt when Size changes
};

using qcDotStyle = TqcDotSegment::qcDotStyle;
constexpr qcDotStyle qcdsDot = TqcDotSegment::qcdsDot;
constexpr qcDotStyle qcdsRect = TqcDotSegment::qcdsRect;
constexpr qcDotStyle qcdsRound = TqcDotSegment::qcdsRound;
