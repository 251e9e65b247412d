#include "sections.h"

#include <QTimer>

#include <cmath>

#include "displays/qseg.h"
#include "services/std2.h"

#include <QGridLayout>
#include <QLabel>

namespace {

// A row of cells that walks through the character table, one step a tick.
class CharacterWalk : public QWidget
{
public:
    CharacterWalk(int cells, qSegSize size, QWidget *parent) : QWidget(parent)
    {
        for (int i = 0; i < cells; ++i) {
            auto *cell = new TqSegment(this);
            cell->SetSize(size);
            cell->move(i * 19 * size, 0);
            FCells.push_back(cell);
        }
        setFixedSize(cells * 19 * size, 29 * size);
        FTimer = new TqcTimer(this);
        FTimer->SetInterval(350);
        connect(FTimer, &TqcTimer::OnTimer, this, [this](QObject *) { step(); });
        step();
    }

private:
    void step()
    {
        for (size_t i = 0; i < FCells.size(); ++i)
            FCells[i]->SetChar(qChar(33 + (FFirst + int(i)) % (256 - 33)));
        FFirst = (FFirst + 1) % (256 - 33);
    }

    std::vector<TqSegment *> FCells;
    TqcTimer *FTimer;
    int FFirst = 0;
};

// A fixed text on single cells, points and colons set through Punktur.
QWidget *segmentText(const QString &text, const std::vector<qSegPunktur> &points, qSegSize size,
                     TColor lit, TColor unlit, QWidget *parent)
{
    auto *row = new QWidget(parent);
    for (int i = 0; i < text.size(); ++i) {
        auto *cell = new TqSegment(row);
        cell->SetSize(size);
        cell->SetLitColor(lit);
        cell->SetUnLitColor(unlit);
        cell->SetUnicodeChar(text[i]);
        if (size_t(i) < points.size())
            cell->SetPunktur(points[size_t(i)]);
        cell->move(i * 19 * size, 0);
    }
    row->setFixedSize(int(text.size()) * 19 * size, 29 * size);
    return row;
}

} // namespace

QGroupBox *displaysSection(QWidget *parent)
{
    auto *box = new QGroupBox(QStringLiteral("Segment displays"), parent);
    SectionRows add(box);
    add(QStringLiteral("TqSegment, the character table"), new CharacterWalk(14, 2, box));
    add(QStringLiteral("Punktur: point and colon"),
        segmentText(QStringLiteral("12305"), {spNone, spColon, spNone, spPunktum, spNone}, 2,
                    clYellow, 0x002020, box));
    add(QStringLiteral("Size 1, red"),
        segmentText(QStringLiteral("QUOVAR 16"), {}, 1, clRed, 0x000020, box));
    add(QStringLiteral("Size 3, aqua"), segmentText(QStringLiteral("Hz"), {}, 3, clAqua, 0x202000, box));

    auto *clock = new TqSegmentClock(box);
    clock->SetSize(2);
    clock->SetLitColor(clRed);
    clock->SetUnLitColor(0x000030);
    add(QStringLiteral("TqSegmentClock"), clock);

    auto *label = new TqSegmentLabel(box);
    label->SetElements(12);
    label->SetCaption(QStringLiteral("-12.50 V:1.5"));
    add(QStringLiteral("TqSegmentLabel, points and colons fold"), label);

    auto *dotClock = new TqcDotClock(box);
    dotClock->SetSize(2);
    dotClock->SetSek(true);
    dotClock->SetLitColor(clYellow);
    dotClock->SetUnLitColor(0x002020);
    add(QStringLiteral("TqcDotClock with seconds"), dotClock);

    auto *dots = new TqcDotLabel(box);
    dots->SetElements(17);
    dots->SetCaption(QStringLiteral("Dot matrix 7x9 \u00B0C"));
    add(QStringLiteral("TqcDotLabel, round dots"), dots);

    auto *square = new TqcDotLabel(box);
    square->SetElements(10);
    square->SetSize(3);
    square->SetStyle(qcdsDot);
    square->SetLitColor(clAqua);
    square->SetUnLitColor(0x201000);
    square->SetCaption(QStringLiteral("f=440.0Hz"));
    add(QStringLiteral("TqcDotLabel, Size 3, circles"), square);

    auto *rect = new TqcDotLabel(box);
    rect->SetElements(12);
    rect->SetStyle(qcdsRect);
    rect->SetGap(false);
    rect->SetLitColor(clFuchsia);
    rect->SetUnLitColor(0x200020);
    rect->SetCaption(QStringLiteral("abcdefghijkl"));
    add(QStringLiteral("squares, no gap"), rect);

    return box;
}
