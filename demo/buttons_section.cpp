#include "sections.h"

#include "buttons/qanimate.h"
#include "displays/qseg.h"
#include "indicators/qled.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaEnum>

#include <memory>

namespace {

QWidget *row(QWidget *parent)
{
    auto *w = new QWidget(parent);
    sideBySide(w);
    return w;
}

void add(QWidget *rowWidget, QWidget *w) { static_cast<QHBoxLayout *>(rowWidget->layout())->addWidget(w); }

} // namespace

QGroupBox *buttonsSection(QWidget *parent)
{
    auto *box = new QGroupBox(QStringLiteral("Buttons"), parent);
    SectionRows addRow(box);

    // Every press counts on the display, and the lamp toggles.
    auto *counter = new TqSegmentLabel(box);
    counter->SetElements(4);
    counter->SetCaption(QStringLiteral("   0"));
    auto *lamp = new TqLed(box);
    lamp->SetBounds(0, 0, 34, 34);
    lamp->WriteLedColor(TqLed::lctGreen);
    auto count = std::make_shared<int>(0);
    const auto pressed = [counter, lamp, count](QObject *) {
        counter->SetCaption(QString::number(++*count).rightJustified(4));
        lamp->writeLedOn(!lamp->Enabled());
    };

    auto *colours = row(box);
    const TColor faces[] = {clWindow, clYellow, clAqua, 0x80C0FF};
    for (int i = 0; i < 4; ++i) {
        auto *b = new TqColorBtn(colours);
        if (i == 0)
            b->SetColor(faces[i]);   // the window's colour: the palette's text suits it
        else
            lightFace(b, faces[i]);
        b->SetFlat(i == 3);
        b->SetCaption(i == 3 ? QStringLiteral("&Flat") : QStringLiteral("Button &%1").arg(i + 1));
        b->SetDefault(i == 0);
        QObject::connect(b, &TControl::OnClick, counter, pressed);
        add(colours, b);
    }
    auto *disabled = new TqColorBtn(colours);
    disabled->SetCaption(QStringLiteral("Disabled"));
    disabled->setEnabled(false);
    add(colours, disabled);
    add(colours, counter);
    add(colours, lamp);
    addRow(QStringLiteral("TqColorBtn (the first is the default; the last flat)"), colours);

    // The caption at its nine places.
    auto *places = new QWidget(box);
    auto *placeGrid = new QGridLayout(places);
    placeGrid->setContentsMargins(0, 0, 0, 0);
    const char *vertical[] = {"Top", "Center", "Bottom"};
    const qbHorzAlign verticals[] = {qbha_Top, qbha_Center, qbha_Bottom};
    const char *horizontal[] = {"Left", "Center", "Right"};
    const TAlignment horizontals[] = {taLeftJustify, taCenter, taRightJustify};
    for (int v = 0; v < 3; ++v)
        for (int h = 0; h < 3; ++h) {
            auto *b = new TqNWColorBtn(places);
            b->SetBounds(0, 0, 110, 40);
            b->SetHorzAlign(verticals[v]);
            b->SetAlign(horizontals[h]);
            lightFace(b, 0xE0F0E0);
            b->SetCaption(QStringLiteral("%1 %2").arg(QLatin1String(vertical[v]), QLatin1String(horizontal[h])));
            QObject::connect(b, &TControl::OnClick, counter, pressed);
            placeGrid->addWidget(b, v, h);
        }
    auto *wrapped = new TqNWColorBtn(places);
    wrapped->SetBounds(0, 0, 110, 40);
    wrapped->SetMultipleLines(true);
    wrapped->SetWordWrap(true);
    wrapped->SetCaption(QStringLiteral("A caption that wraps"));
    placeGrid->addWidget(wrapped, 0, 3);
    auto *glass = new TqNWColorBtn(places);
    glass->SetBounds(0, 0, 110, 40);
    glass->SetTransparent(true);
    glass->SetGlass(0x40);
    glass->SetCaption(QStringLiteral("Glass"));
    placeGrid->addWidget(glass, 1, 3);
    addRow(QStringLiteral("TqNWColorBtn: nine caption places, wrapping, glass"), places);

    auto *gradients = row(box);
    const gradType types[] = {gVert, gHorz, gCenter};
    const char *typeNames[] = {"gVert", "gHorz", "gCenter"};
    const TColor starts[] = {clNavy, clMaroon, clGreen};
    const TColor ends[] = {clAqua, clYellow, clLime};
    for (int i = 0; i < 3; ++i) {
        auto *g = new TqGradBtn(gradients);
        g->SetBounds(0, 0, 110, 40);
        g->SetGrad(types[i]);
        g->SetColor(starts[i]);
        g->SetEndColor(ends[i]);
        g->SetFontColor(clWhite);
        g->SetCaption(QString::fromLatin1(typeNames[i]));
        QObject::connect(g, &TControl::OnClick, counter, pressed);
        add(gradients, g);
    }
    addRow(QStringLiteral("TqGradBtn in the three directions"), gradients);

    auto *shapes = row(box);
    const QMetaEnum shapeTypes = QMetaEnum::fromType<TqShapeBtn::sbType>();
    for (int i = 0; i < shapeTypes.keyCount() - 1; ++i) {
        auto *s = new TqShapeBtn(shapes);
        s->SetBounds(0, 0, 31, 31);
        s->SetShape(TqShapeBtn::sbType(shapeTypes.value(i)));
        s->SetColor(i % 2 ? 0xC0E0FF : 0xC0FFC0);
        s->setToolTip(QString::fromLatin1(shapeTypes.key(i)));
        QObject::connect(s, &TControl::OnClick, counter, pressed);
        add(shapes, s);
    }
    addRow(QStringLiteral("TqShapeBtn: every shape (+ and - answer their keys)"), shapes);
    return box;
}
