#include "sections.h"

#include "backgrounds/blend.h"
#include "displays/qseg.h"
#include "indicators/qled.h"
#include "layout/qsplit.h"
#include "services/mystd.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSlider>

namespace {

// A small tile: a rivet on brushed metal.
QPixmap rivetTile()
{
    QImage tile(24, 24, QImage::Format_RGB32);
    for (int y = 0; y < 24; ++y)
        for (int x = 0; x < 24; ++x) {
            const int g = 150 + ((x * 7 + y * 3) % 11);
            tile.setPixel(x, y, qRgb(g, g, g + 8));
        }
    QPainter p(&tile);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QColor(90, 90, 100));
    p.setBrush(QColor(200, 200, 210));
    p.drawEllipse(QRectF(8.5, 8.5, 7, 7));
    return QPixmap::fromImage(tile);
}

template <class Blend>
Blend *blend(QWidget *parent, gradType type, TColor from, TColor to, int w = 90, int h = 50)
{
    auto *b = new Blend(parent);
    b->SetBounds(0, 0, w, h);
    b->SetGrad(type);
    b->SetColor(from);
    b->SetEndColor(to);
    b->setFixedSize(w, h);
    return b;
}

// Each side of a splitter filled by its control, also as the bar moves.
void fillParts(TqVerSplit *split, QWidget *leftTop, QWidget *rightBottom)
{
    const auto fill = [split, leftTop, rightBottom] {
        split->SetLeftTop(leftTop);
        split->SetRightBottom(rightBottom);
    };
    fill();
    QObject::connect(split, &TqVerSplit::OnSplitChange, split, fill);
}

} // namespace

QGroupBox *panelsSection(QWidget *parent)
{
    auto *box = new QGroupBox(QStringLiteral("Backgrounds and panels"), parent);
    SectionRows row(box);

    auto *painters = new QWidget(box);
    auto *line = sideBySide(painters);
    line->addWidget(blend<TqBlendPaint>(painters, gVert, 0x00402000, 0x00FFC080));
    line->addWidget(blend<TqBlendPaint>(painters, gHorz, 0x00000080, 0x0000FFFF));
    line->addWidget(blend<TqBlendPaint>(painters, gCenter, 0x00004000, 0x0080FF80));
    auto *steel = blend<TqBlendPaint>(painters, gVert, 0, 0);
    steel->SetSteel(true);
    line->addWidget(steel);
    auto *tiles = new TqTileMap(painters);
    tiles->SetBitmap(rivetTile());
    tiles->setFixedSize(90, 50);
    line->addWidget(tiles);
    // A non-windowed blend over a button: clicks go through it.
    auto *under = new QPushButton(QStringLiteral("clicks: 0"), painters);
    under->setFixedSize(120, 50);
    auto *glass = blend<TqNWBlendPaint>(under, gHorz, 0x00FFFFFF, 0x00C0C0C0, 40, 50);
    glass->SetPassMouseOn(true);
    glass->move(80, 0);
    QObject::connect(under, &QPushButton::clicked, under, [under, n = 0]() mutable {
        under->setText(QStringLiteral("clicks: %1").arg(++n));
    });
    line->addWidget(under);
    // A non-windowed tile map as a strip of rivets along a gradient.
    auto *strip = blend<TqBlendPaint>(painters, gVert, 0x00605040, 0x00A09080);
    auto *rivets = new TqNWTileMap(strip);
    rivets->SetBitmap(rivetTile());
    rivets->SetBounds(0, 13, 90, 24);
    line->addWidget(strip);
    line->addStretch();
    row(QStringLiteral("TqBlendPaint in three directions and steel, TqTileMap, TqNWBlendPaint (click through), "
                       "TqNWTileMap"),
        painters);

    // Splitters between panels full of controls.
    auto *splits = new QWidget(box);
    auto *splitLine = sideBySide(splits);
    auto *split = sized(new TqVerSplit(splits), 420, 90);
    split->SetNewLook(true);
    split->SetWhereSplit(200);
    auto *left = new TqBlendPaint(split);
    left->SetColor(0x00202020);
    left->SetEndColor(0x00505050);
    auto *clock = new TqSegmentClock(left);
    clock->move(8, 8);
    auto *right = new TqBlendPaint(split);
    right->SetSteel(true);
    for (int i = 0; i < 4; ++i) {
        auto *led = new TqLed(right);
        led->move(10 + 30 * i, 10);
        led->WriteLedColor(TqLed::LedColorType(i + 1));
        led->writeLedOn(true);
    }
    fillParts(split, left, right);
    splitLine->addWidget(split);
    auto *upright = sized(new TqHorSplit(splits), 200, 90);
    upright->SetWhereSplit(40);
    auto *top = new TqBlendPaint(upright);
    top->SetGrad(gHorz);
    top->SetColor(0x00400000);
    top->SetEndColor(0x00C08040);
    auto *bottom = new TqBlendPaint(upright);
    bottom->SetSteel(true);
    auto *caption = new QLabel(QStringLiteral("drag the bar up or down"), bottom);
    caption->setStyleSheet(QStringLiteral("color: black"));   // on the light steel in any palette
    caption->move(8, 8);
    fillParts(upright, top, bottom);
    splitLine->addWidget(upright);
    splitLine->addStretch();
    row(QStringLiteral("TqVerSplit and TqHorSplit: drag the bars"), splits);

    // A move panel in an area: drag it; it sticks to the edge chosen.
    auto *area = new TqBlendPaint(box);
    area->SetColor(0x00F0E0D0);
    area->SetEndColor(0x00C0A080);
    area->setFixedSize(420, 90);
    auto *mover = new TqMovePanel(area);
    mover->SetBounds(20, 20, 120, 40);
    mover->SetCaption(QStringLiteral("drag me"));
    auto *stick = new QCheckBox(QStringLiteral("stick to the right (aligned)"), box);
    QObject::connect(stick, &QCheckBox::toggled, mover, [mover](bool on) {
        mover->SetStickOldStyle(!on);
        mover->SetStickWhere(on ? TqMovePanel::stRight : TqMovePanel::stNone);
    });
    auto *moveRow = new QWidget(box);
    auto *moveLine = sideBySide(moveRow);
    moveLine->addWidget(area);
    moveLine->addWidget(stick);
    row(QStringLiteral("TqMovePanel"), moveRow);
    return box;
}
