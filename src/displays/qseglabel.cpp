#include "qseglabel.h"

#include "host/tcodepage.h"

// The clock keeps this style: only the label says it covers every pixel.
TqCustomSegmentLabel::TqCustomSegmentLabel(QWidget *parent) : TqCustomCellLabel(parent)
{
    SetControlStyle(ControlStyle() & ~csOpaque);
}

TControl *TqCustomSegmentLabel::CreateCell(int)
{
    auto *cell = new TqSegment(this);
    cell->SetSize(Size());
    cell->SetLitColor(LitColor());
    cell->SetUnLitColor(UnLitColor());
    return cell;
}

void TqCustomSegmentLabel::ApplyColors(TControl *cell)
{
    auto *segment = static_cast<TqSegment *>(cell);
    segment->SetLitColor(LitColor());
    segment->SetUnLitColor(UnLitColor());
}

void TqCustomSegmentLabel::DoCaption()
{
    const QByteArray text = ToWin1252(FCaption);
    const int count = NumberOfChars();
    for (int i = 0, p = 0; i < count; ++p) {
        if (p >= text.size()) {
            Segment(i)->SetPunktur(spNone);
            Segment(i)->SetChar(' ');
            ++i;
            continue;
        }
        const qChar c = qChar(text[p]);
        if (c == ',' || c == '.' || c == ':' || c == ';') {
            const qSegPunktur dots = (c == ',' || c == '.') ? spPunktum : spColon;
            if (i > 0) {
                Segment(i - 1)->SetPunktur(dots);   // needs no cell of its own
            } else {
                Segment(0)->SetChar(c);             // the table lights its dots
                ++i;
            }
            continue;
        }
        if (Segment(i)->Char() != c) {
            Segment(i)->SetPunktur(spNone);
            Segment(i)->SetChar(c);
        }
        ++i;
    }
}

TqSegmentLabel::TqSegmentLabel(QWidget *parent) : TqCustomSegmentLabel(parent)
{
    SetControlStyle(ControlStyle() | csSetCaption | csOpaque);
    SetElements(11);
    if (IsDesigning())
        FCaption = QStringLiteral("QuovarSoft");
    DoCaption();
}

TqSegmentClock::TqSegmentClock(QWidget *parent) : TqCustomSegmentLabel(parent)
{
    SetElements(4);
    FWork = std::make_unique<TClockWork>(this, [this](const QString &caption) {
        SetCaption(caption);
        DoChange();
    });
    FWork->Setnow();
}

TqSegmentClock::~TqSegmentClock()
{
    FWork.reset();   // no tick may reach cells that are going
}

void TqSegmentClock::SetSek(bool show)
{
    if (show == FWork->ShowSeconds())
        return;
    FWork->SetShowSeconds(show);
    SetElements(show ? 6 : 4);
}

void TqSegmentClock::DoChange()
{
    emit OnTimeChange(this);
}
