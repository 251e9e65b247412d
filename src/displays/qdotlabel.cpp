#include "qdotlabel.h"

#include "host/tcodepage.h"

TqcCustomDotLabel::TqcCustomDotLabel(QWidget *parent) : TqCustomCellLabel(parent) {}

QSize TqcCustomDotLabel::CellSize() const
{
    const TDotGeometry g = DotGeometry(Size());
    return QSize(g.Width, g.Height);
}

TControl *TqcCustomDotLabel::CreateCell(int)
{
    auto *cell = new TqcDotSegment(this);
    cell->SetSize(Size());
    cell->SetLitColor(LitColor());
    cell->SetUnLitColor(UnLitColor());
    cell->SetStyle(FStyle);
    cell->SetGap(FUseGap);
    return cell;
}

void TqcCustomDotLabel::ApplyColors(TControl *cell)
{
    auto *dots = static_cast<TqcDotSegment *>(cell);
    dots->SetLitColor(LitColor());
    dots->SetUnLitColor(UnLitColor());
}

void TqcCustomDotLabel::SetStyle(qcDotStyle style)
{
    if (style == FStyle)
        return;
    FStyle = style;
    ForEachCell([style](TControl *cell) { static_cast<TqcDotSegment *>(cell)->SetStyle(style); });
}

void TqcCustomDotLabel::SetGap(bool gap)
{
    if (gap == FUseGap)
        return;
    FUseGap = gap;
    ForEachCell([gap](TControl *cell) { static_cast<TqcDotSegment *>(cell)->SetGap(gap); });
}

void TqcCustomDotLabel::DoCaption()
{
    const QByteArray text = ToWin1252(FCaption);
    for (int i = 0; i < NumberOfChars(); ++i) {
        const qChar c = i < text.size() ? qChar(text[i]) : qChar(' ');
        if (DotCell(i)->Char() != c)
            DotCell(i)->SetChar(c);
    }
}

TqcDotLabel::TqcDotLabel(QWidget *parent) : TqcCustomDotLabel(parent)
{
    SetControlStyle(ControlStyle() | csSetCaption | csOpaque);
    SetElements(11);
    if (IsDesigning())
        FCaption = QStringLiteral("QuovarSoft");
    DoCaption();
}

TqcDotClock::TqcDotClock(QWidget *parent) : TqcCustomDotLabel(parent)
{
    SetElements(5);
    FWork = std::make_unique<TClockWork>(this, [this](const QString &caption) {
        SetCaption(caption);
        DoChange();
    });
    FWork->Setnow();
}

TqcDotClock::~TqcDotClock()
{
    FWork.reset();   // no tick may reach cells that are going
}

void TqcDotClock::SetSek(bool show)
{
    if (show == FWork->ShowSeconds())
        return;
    FWork->SetShowSeconds(show);
    SetElements(show ? 8 : 5);
}

void TqcDotClock::DoChange()
{
    emit OnTimeChange(this);
}
