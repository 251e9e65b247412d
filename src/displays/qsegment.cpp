#include "qsegment.h"

#include "host/tcodepage.h"

namespace {

constexpr int kFirstCode = 32;

struct DefaultLook
{
    qChar code;
    std::initializer_list<int> elements;
};

// Codes 32 (space), 38 (&), 64 (@) and 160 (no-break space) are dark. Upper
// and lower case share their patterns; accented letters take their base
// letter's. The zero is slashed (12, 13), the letter O is not.
const DefaultLook kDefaultLooks[] = {
    {33, {3, 8}},
    {34, {2, 4}},
    {35, {1, 2, 4, 7, 9, 10}},
    {36, {1, 2, 3, 5, 6, 8, 9, 10}},
    {37, {2, 9, 12, 13}},
    {39, {3}},
    {40, {1, 2, 7, 10}},
    {41, {1, 4, 9, 10}},
    {42, {3, 5, 6, 8, 11, 12, 13, 14}},
    {43, {3, 5, 6, 8}},
    {44, {16}},
    {45, {5, 6}},
    {46, {16}},
    {47, {12, 13}},
    {48, {1, 2, 4, 7, 9, 10, 12, 13}},
    {49, {4, 9}},
    {50, {1, 4, 5, 6, 7, 10}},
    {51, {1, 4, 5, 6, 9, 10}},
    {52, {2, 4, 5, 6, 9}},
    {53, {1, 2, 5, 6, 9, 10}},
    {54, {1, 2, 5, 6, 7, 9, 10}},
    {55, {1, 2, 4, 9}},
    {56, {1, 2, 4, 5, 6, 7, 9, 10}},
    {57, {1, 2, 4, 5, 6, 9, 10}},
    {58, {15, 16}},
    {59, {15, 16}},
    {60, {12, 14}},
    {61, {1, 5, 6}},
    {62, {11, 13}},
    {63, {1, 2, 4, 6, 8}},
    {65, {1, 2, 4, 5, 6, 7, 9}},
    {66, {1, 3, 4, 6, 8, 9, 10}},
    {67, {1, 2, 7, 10}},
    {68, {1, 3, 4, 8, 9, 10}},
    {69, {1, 2, 5, 7, 10}},
    {70, {1, 2, 5, 7}},
    {71, {1, 2, 6, 7, 9, 10}},
    {72, {2, 4, 5, 6, 7, 9}},
    {73, {1, 3, 8, 10}},
    {74, {1, 4, 7, 9, 10}},
    {75, {2, 5, 7, 12, 14}},
    {76, {2, 7, 10}},
    {77, {2, 4, 7, 9, 11, 12}},
    {78, {2, 4, 7, 9, 11, 14}},
    {79, {1, 2, 4, 7, 9, 10}},
    {80, {1, 2, 4, 5, 6, 7}},
    {81, {1, 2, 4, 7, 9, 10, 14}},
    {82, {1, 2, 4, 5, 6, 7, 14}},
    {83, {1, 2, 5, 6, 9, 10}},
    {84, {1, 3, 8}},
    {85, {2, 4, 7, 9, 10}},
    {86, {2, 4, 5, 9, 14}},
    {87, {2, 4, 7, 9, 13, 14}},
    {88, {11, 12, 13, 14}},
    {89, {8, 11, 12}},
    {90, {1, 10, 12, 13}},
    {91, {1, 2, 7, 10}},
    {92, {11, 14}},
    {93, {1, 4, 9, 10}},
    {94, {13, 14}},
    {95, {10}},
    {96, {11}},
    {97, {1, 2, 4, 5, 6, 7, 9}},
    {98, {1, 3, 4, 6, 8, 9, 10}},
    {99, {1, 2, 7, 10}},
    {100, {1, 3, 4, 8, 9, 10}},
    {101, {1, 2, 5, 7, 10}},
    {102, {1, 2, 5, 7}},
    {103, {1, 2, 6, 7, 9, 10}},
    {104, {2, 4, 5, 6, 7, 9}},
    {105, {1, 3, 8, 10}},
    {106, {1, 4, 7, 9, 10}},
    {107, {2, 5, 7, 12, 14}},
    {108, {2, 7, 10}},
    {109, {2, 4, 7, 9, 11, 12}},
    {110, {2, 4, 7, 9, 11, 14}},
    {111, {1, 2, 4, 7, 9, 10}},
    {112, {1, 2, 4, 5, 6, 7}},
    {113, {1, 2, 4, 7, 9, 10, 14}},
    {114, {1, 2, 4, 5, 6, 7, 14}},
    {115, {1, 2, 5, 6, 9, 10}},
    {116, {1, 3, 8}},
    {117, {2, 4, 7, 9, 10}},
    {118, {2, 4, 5, 9, 14}},
    {119, {2, 4, 7, 9, 13, 14}},
    {120, {11, 12, 13, 14}},
    {121, {8, 11, 12}},
    {122, {1, 10, 12, 13}},
    {123, {1, 2, 5, 7, 10}},
    {124, {2, 7}},
    {125, {1, 4, 6, 9, 10}},
    {126, {1}},
    {127, {1, 2, 4, 7, 9, 10}},
    {128, {1, 2, 4, 7, 9, 10}},
    {129, {1, 2, 4, 7, 9, 10}},
    {130, {16}},
    {131, {6, 8, 12}},
    {132, {7, 9}},
    {133, {10}},
    {134, {3, 5, 6, 8}},
    {135, {1, 3, 5, 6, 8}},
    {136, {1}},
    {137, {1, 2, 4, 7, 9, 10}},
    {138, {1, 2, 5, 6, 9, 10}},
    {139, {12, 14}},
    {140, {1, 2, 3, 5, 6, 7, 8, 10}},
    {141, {1, 2, 4, 7, 9, 10}},
    {142, {1, 2, 4, 7, 9, 10}},
    {143, {1, 2, 4, 7, 9, 10}},
    {144, {1, 2, 4, 7, 9, 10}},
    {145, {2}},
    {146, {4}},
    {147, {2, 4}},
    {148, {2, 4}},
    {149, {15}},
    {150, {5}},
    {151, {5, 6}},
    {152, {1}},
    {153, {1, 2, 4, 7, 9, 10}},
    {154, {1, 2, 5, 6, 9, 10}},
    {155, {11, 13}},
    {156, {1, 2, 3, 5, 6, 7, 8, 10}},
    {157, {1, 2, 4, 7, 9, 10}},
    {158, {1, 2, 4, 7, 9, 10}},
    {159, {1, 8, 11, 12}},
    {161, {3, 8}},
    {162, {1, 2, 3, 7, 8, 10}},
    {163, {2, 5, 7, 10}},
    {164, {5, 7, 8, 9, 10}},
    {165, {5, 6, 8, 11, 12}},
    {166, {2, 7}},
    {167, {1, 2, 4, 7, 9, 10}},
    {168, {1}},
    {169, {1, 2, 4, 7, 9, 10, 12, 14}},
    {170, {1, 2, 4, 7, 9, 10}},
    {171, {12, 14}},
    {172, {1, 4}},
    {173, {5}},
    {174, {1, 2, 4, 7, 9, 10}},
    {175, {1}},
    {176, {1, 2, 4, 5, 6}},
    {177, {3, 5, 6, 8, 10}},
    {178, {1, 2, 4, 7, 9, 10}},
    {179, {1, 2, 4, 7, 9, 10}},
    {180, {4}},
    {181, {2, 4, 5, 6, 7}},
    {182, {1, 2, 3, 4, 5, 8, 9}},
    {183, {15}},
    {184, {16}},
    {185, {2}},
    {186, {1, 2, 4, 7, 9, 10}},
    {187, {11, 13}},
    {188, {1, 2, 4, 7, 9, 10}},
    {189, {1, 2, 4, 7, 9, 10}},
    {190, {1, 2, 4, 7, 9, 10}},
    {191, {3, 5, 7, 9, 10}},
    {192, {1, 2, 4, 5, 6, 7, 9}},
    {193, {1, 2, 4, 5, 6, 7, 9}},
    {194, {1, 2, 4, 5, 6, 7, 9}},
    {195, {1, 2, 4, 5, 6, 7, 9}},
    {196, {1, 2, 4, 5, 6, 7, 9}},
    {197, {1, 2, 4, 5, 6, 7, 9}},
    {198, {1, 2, 3, 5, 6, 7, 10}},
    {199, {1, 2, 7, 10}},
    {200, {1, 2, 5, 7, 10}},
    {201, {1, 2, 5, 7, 10}},
    {202, {1, 2, 5, 7, 10}},
    {203, {1, 2, 5, 7, 10}},
    {204, {3, 8}},
    {205, {3, 8}},
    {206, {3, 8}},
    {207, {3, 8}},
    {208, {1, 3, 4, 5, 8, 9, 10}},
    {209, {2, 4, 7, 9, 11, 14}},
    {210, {1, 2, 4, 7, 9, 10}},
    {211, {1, 2, 4, 7, 9, 10}},
    {212, {1, 2, 4, 7, 9, 10}},
    {213, {1, 2, 4, 7, 9, 10}},
    {214, {1, 2, 4, 7, 9, 10}},
    {215, {11, 12, 13, 14}},
    {216, {1, 2, 4, 7, 9, 10, 12, 13}},
    {217, {2, 4, 7, 9, 10}},
    {218, {2, 4, 7, 9, 10}},
    {219, {2, 4, 7, 9, 10}},
    {220, {2, 4, 7, 9, 10}},
    {221, {8, 11, 12}},
    {222, {2, 7, 11, 13}},
    {223, {1, 3, 4, 6, 8, 9, 10}},
    {224, {1, 2, 4, 5, 6, 7, 9}},
    {225, {1, 2, 4, 5, 6, 7, 9}},
    {226, {1, 2, 4, 5, 6, 7, 9}},
    {227, {1, 2, 4, 5, 6, 7, 9}},
    {228, {1, 2, 4, 5, 6, 7, 9}},
    {229, {1, 2, 4, 5, 6, 7, 9}},
    {230, {1, 2, 3, 5, 6, 7, 8, 10}},
    {231, {1, 2, 5, 6, 8}},
    {232, {1, 2, 5, 7, 10}},
    {233, {1, 2, 5, 7, 10}},
    {234, {1, 2, 5, 7, 10}},
    {235, {1, 2, 5, 7, 10}},
    {236, {3, 8}},
    {237, {3, 8}},
    {238, {3, 8}},
    {239, {3, 8}},
    {240, {5, 6, 7, 9, 10, 11}},
    {241, {2, 4, 7, 9, 11, 14}},
    {242, {1, 2, 4, 7, 9, 10}},
    {243, {1, 2, 4, 7, 9, 10}},
    {244, {1, 2, 4, 7, 9, 10}},
    {245, {1, 2, 4, 7, 9, 10}},
    {246, {1, 2, 4, 7, 9, 10}},
    {247, {5, 6}},
    {248, {1, 2, 4, 7, 9, 10, 12, 13}},
    {249, {2, 4, 7, 9, 10}},
    {250, {2, 4, 7, 9, 10}},
    {251, {2, 4, 7, 9, 10}},
    {252, {2, 4, 7, 9, 10}},
    {253, {8, 11, 12}},
    {254, {2, 7, 11, 13}},
    {255, {8, 11, 12}},
};

std::array<TSegLook, 256 - kFirstCode> &lookTable()
{
    static std::array<TSegLook, 256 - kFirstCode> table = [] {
        std::array<TSegLook, 256 - kFirstCode> t{};
        for (const DefaultLook &d : kDefaultLooks)
            t[d.code - kFirstCode] = SegLook(d.elements);
        return t;
    }();
    return table;
}

constexpr TSegLook kDots = SegLook({15, 16});

} // namespace

TSegLook CharLook(qChar code)
{
    return code < kFirstCode ? 0 : lookTable()[code - kFirstCode];
}

void ChangeACharLook(qChar code, TSegLook look)
{
    if (code >= kFirstCode)
        lookTable()[code - kFirstCode] = look;
}

std::vector<TPoint> SegmentElementPolygon(int element, int size)
{
    const int s = size;
    const int b = size >= 2 ? 1 : 0;
    const auto M = [s](int k) { return k * s; };
    switch (element) {
    case 1: return {{M(2), M(2)}, {M(16), M(2)}, {M(14), M(4)}, {M(4), M(4)}};
    case 2: return {{M(2), M(2) + 2}, {M(4), M(4) + 2}, {M(4), M(13) - 1}, {M(2), M(15) - 1}};
    case 3: return {{M(8), M(4) + 2}, {M(10), M(4) + 2}, {M(10), M(14) - 2}, {M(8), M(14) - 2}};
    case 4: return {{M(16), M(2) + 2}, {M(14), M(4) + 2}, {M(14), M(13) - 1}, {M(16), M(15) - 1}};
    case 5: return {{M(2) + 1, M(15)}, {M(3) + 1, M(14)}, {M(9) - 1, M(14)}, {M(9) - 1, M(16)}, {M(3) + 1, M(16)}};
    case 6: return {{M(9) + 1, M(14)}, {M(15) - 1, M(14)}, {M(16) - 1, M(15)}, {M(15) - 1, M(16)}, {M(9) + 1, M(16)}};
    case 7: return {{M(2), M(15) + 1}, {M(4), M(17) + 1}, {M(4), M(26) - 2}, {M(2), M(28) - 2}};
    case 8: return {{M(8), M(16) + 2}, {M(10), M(16) + 2}, {M(10), M(26) - 2}, {M(8), M(26) - 2}};
    case 9: return {{M(16), M(15) + 1}, {M(14), M(17) + 1}, {M(14), M(26) - 2}, {M(16), M(28) - 2}};
    case 10: return {{M(2), M(28)}, {M(4), M(26)}, {M(14), M(26)}, {M(16), M(28)}};
    // The diagonals are one grid unit wider at each end from Size 2 on.
    case 11: return {{M(4) + 2, (5 + b) * s}, {M(4) + 2, M(4) + 2}, {(5 + b) * s, M(4) + 2},
                     {M(8) - 2, (12 - b) * s}, {M(8) - 2, M(14) - 2}, {(7 - b) * s, M(14) - 2}};
    case 12: return {{M(14) - 2, (5 + b) * s}, {M(14) - 2, M(4) + 2}, {(13 - b) * s, M(4) + 2},
                     {M(10) + 2, (12 - b) * s}, {M(10) + 2, M(14) - 2}, {(11 + b) * s, M(14) - 2}};
    case 13: return {{M(4) + 2, (25 - b) * s}, {M(4) + 2, M(26) - 2}, {(5 + b) * s, M(26) - 2},
                     {M(8) - 2, (18 + b) * s}, {M(8) - 2, M(16) + 2}, {(7 - b) * s, M(16) + 2}};
    case 14: return {{M(14) - 2, (25 - b) * s}, {M(14) - 2, M(26) - 2}, {(13 - b) * s, M(26) - 2},
                     {M(10) + 2, (18 + b) * s}, {M(10) + 2, M(16) + 2}, {(11 + b) * s, M(16) + 2}};
    case 15: return {{M(16) + 2, M(14)}, {M(18), M(14)}, {M(18), M(16)}, {M(16) + 2, M(16)}};
    case 16: return {{M(16) + 2, M(26)}, {M(18), M(26)}, {M(18), M(28)}, {M(16) + 2, M(28)}};
    default: return {};
    }
}

TqSegment::TqSegment(QWidget *parent) : TGraphicControl(parent)
{
    SetControlStyle(ControlStyle() | csOpaque);
    SetColor(clBlack);
    SetSize(1);
}

void TqSegment::SetWidth(int value)
{
    if (value == width())
        return;
    // Stored in 8 bits without an upper clamp: 19 * 256 wraps to 0.
    SetSize(qSegSize(std::max(value / 19, 1)));
}

void TqSegment::SetHeight(int value)
{
    if (value == height())
        return;
    SetSize(qSegSize(std::max(value / 29, 1)));
}

void TqSegment::SetChar(qChar c)
{
    if (c == FChar)
        return;
    FChar = c;
    // The look is replaced whole: dots set by Punktur go, those of the
    // character's own entry come, and Punktur keeps its value.
    FLook = CharLook(c);
    DoUpdate();
}

QChar TqSegment::UnicodeChar() const { return Win1252ToUnicode(FChar); }
void TqSegment::SetUnicodeChar(QChar c) { SetChar(UnicodeToWin1252(c)); }

void TqSegment::SetLitColor(TColor color)
{
    if (color == FLitColor)
        return;
    FLitColor = color;
    DoUpdate();
}

void TqSegment::SetUnLitColor(TColor color)
{
    if (color == FUnLitColor)
        return;
    FUnLitColor = color;
    DoUpdate();
}

void TqSegment::SetPunktur(qSegPunktur punktur)
{
    if (punktur == FPunktur)
        return;
    FPunktur = punktur;
    switch (punktur) {
    case spPunktum: FLook = (FLook | SegLook({16})) & ~SegLook({15}); break;
    case spColon: FLook |= kDots; break;
    case spNone: FLook &= ~kDots; break;
    }
    DoUpdate();
}

void TqSegment::SetTransparent(bool transparent)
{
    if (transparent == FTransparent)
        return;
    FTransparent = transparent;
    UpdateOpacity();
    InvalidateParentArea();
    Update();
}

void TqSegment::SetSize(qSegSize size)
{
    if (size == FSize)
        return;
    FSize = size;
    for (int n = 1; n <= SegmentElementCount; ++n)
        FPolygons[n - 1] = SegmentElementPolygon(n, size);
    DoUpdate();
}

void TqSegment::DoUpdate()
{
    resize(19 * FSize, 29 * FSize);
    Invalidate();
}

void TqSegment::DoOnPaint()
{
    emit OnPaint(this);
}

bool TqSegment::PaintsOpaque() const
{
    return TGraphicControl::PaintsOpaque() && !FTransparent;
}

void TqSegment::Paint(TCanvas &canvas)
{
    if (!FTransparent) {
        canvas.Brush.SetColor(Color());
        canvas.Brush.SetStyle(bsSolid);
        canvas.FillRect(ClientRect());
    }
    canvas.Brush.SetStyle(bsClear);
    // Unlit elements are drawn too, so the whole pattern always shows.
    for (int n = 1; n <= SegmentElementCount; ++n) {
        canvas.Pen.SetColor((FLook & (TSegLook(1) << n)) ? FLitColor : FUnLitColor);
        canvas.Brush.SetColor(canvas.Pen.Color());
        canvas.Polygon(FPolygons[n - 1]);
    }
    DoOnPaint();
}
