#include "sections.h"

#include "buttons/qanimate.h"
#include "labels/labels.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace {

// One picture for every effect: a small gauge face on magenta, the glyphs'
// transparent colour.
QImage face()
{
    QImage image(40, 40, QImage::Format_RGB32);
    image.fill(qRgb(255, 0, 255));
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(QColor(240, 200, 60));
    p.setPen(QPen(QColor(40, 40, 40), 2));
    p.drawEllipse(QRectF(3, 3, 33, 33));
    p.setPen(QPen(QColor(200, 0, 0), 3));
    p.drawLine(QPointF(20, 20), QPointF(31, 10));
    return image;
}

QLabel *shown(QWidget *parent, void (*effect)(TBitmap &))
{
    TBitmap b;
    b.Assign(face());
    effect(b);
    auto *label = new QLabel(parent);
    label->setPixmap(QPixmap::fromImage(b.Image()));
    return label;
}

// A button's picture while it is held down: pressed, taken, let go.
QLabel *heldDown(TControl *button, QWidget *parent)
{
    const QPointF centre = QRectF(button->rect()).center();
    const auto send = [&](QEvent::Type type, Qt::MouseButtons buttons) {
        QMouseEvent event(type, centre, button->mapToGlobal(centre), Qt::LeftButton, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(button, &event);
    };
    send(QEvent::MouseButtonPress, Qt::LeftButton);
    auto *label = new QLabel(parent);
    label->setPixmap(QPixmap::fromImage(button->RenderImage(parent->palette().color(QPalette::Window).rgb())));
    send(QEvent::MouseButtonRelease, Qt::NoButton);
    button->clearFocus();
    return label;
}

} // namespace

QGroupBox *bitmapsSection(QWidget *parent)
{
    auto *box = new QGroupBox(QStringLiteral("Bitmaps"), parent);
    SectionRows row(box);
    auto *effects = new QWidget(box);
    auto *line = sideBySide(effects);
    line->addWidget(shown(effects, [](TBitmap &) {}));
    line->addWidget(shown(effects, [](TBitmap &b) { BMPRotate(b, 90); }));
    line->addWidget(shown(effects, [](TBitmap &b) { BMPRotate(b, 30); }));
    line->addWidget(shown(effects, [](TBitmap &b) { DarkenBMP(b, 40); }));
    line->addWidget(shown(effects, [](TBitmap &b) { LightenBMP(b, 50); }));
    line->addWidget(shown(effects, [](TBitmap &b) { GreyBMP(b); }));
    line->addWidget(shown(effects, [](TBitmap &b) { GreyBMP(b); RasterBMP(b, clBtnFace); }));
    auto *blit = new QLabel(effects);
    {
        QImage ground(40, 40, QImage::Format_RGB32);
        ground.fill(qRgb(60, 90, 140));
        TCanvas canvas(&ground);
        TBitmap b;
        b.Assign(face());
        TransparentBlt(canvas, 0, 0, b, TransparentColorOf(b));
        blit->setPixmap(QPixmap::fromImage(ground));
    }
    line->addWidget(blit);
    line->addStretch();
    row(QStringLiteral("the picture; turned 90 and 30; darker, lighter, grey, disabled; blitted without its key"), effects);

    auto *frames = new QWidget(box);
    frames->setFixedSize(520, 60);
    int x = 0;
    for (auto shape : {TqFrame::fsBox, TqFrame::fsFrame, TqFrame::fsTopLine, TqFrame::fsBottomLine,
                       TqFrame::fsLeftLine, TqFrame::fsRightLine})
        for (auto style : {TqFrame::fsLowered, TqFrame::fsRaised}) {
            auto *frame = new TqFrame(frames);
            frame->SetShape(shape);
            frame->SetStyle(style);
            frame->SetBounds(x, 10, 36, 40);
            x += 42;
        }
    row(QStringLiteral("TqFrame: box, frame and the four lines, lowered and raised"), frames);

    auto *dividers = new QWidget(box);
    dividers->setFixedSize(520, 40);
    auto *left = new TqDivider(dividers);
    left->SetBounds(0, 0, 240, 18);
    left->SetCaption(QStringLiteral("Input"));
    auto *centred = new TqDivider(dividers);
    centred->SetBounds(0, 20, 240, 18);
    centred->SetCaption(QStringLiteral("Output"));
    centred->SetAlignment(taCenter);
    auto *upright = new TqDivider(dividers);
    upright->SetKind(TqDivider::dkVertical);
    upright->SetBounds(260, 0, 10, 40);
    row(QStringLiteral("TqDivider with captions, and upright"), dividers);

    // An animation: the face's needle going round, eight frames in a strip.
    QImage strip(8 * 40, 40, QImage::Format_RGB32);
    for (int f = 0; f < 8; ++f) {
        TBitmap frame;
        frame.Assign(face());
        BMPRotate(frame, 45 * f);
        QPainter(&strip).drawImage(f * 40, 0, frame.Image().copy((frame.Width() - 40) / 2, (frame.Height() - 40) / 2, 40, 40));
    }
    auto *pictures = new QWidget(box);
    auto *pictureLine = sideBySide(pictures);
    auto *animation = sized(new TqAnimated(pictures), 40, 40);
    animation->SetBitmap(QPixmap::fromImage(strip));
    animation->SetTransparent(true);
    animation->SetInterval(120);
    animation->SetPlay(true);
    pictureLine->addWidget(animation);
    auto *stretched = new TqBitmap(pictures);
    stretched->setFixedSize(120, 60);
    stretched->SetBitmap(QPixmap::fromImage(face()));
    stretched->SetStretch(true);
    stretched->SetProportional(true);
    stretched->SetCenter(true);
    stretched->SetTransparent(true);
    pictureLine->addWidget(stretched);
    pictureLine->addStretch();
    row(QStringLiteral("TqAnimated running; TqBitmap stretched, proportional, centred, see-through"), pictures);

    // Glyph buttons: each layout, enabled and not, windowed and not, icons.
    const QImage small = face().scaled(20, 20, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    auto *buttons = new QWidget(box);
    buttons->setFixedSize(700, 40);
    int bx = 0;
    const auto place = [&](TControl *b, int w) {
        b->SetBounds(bx, 4, w, 32);
        bx += w + 6;
    };
    for (auto layout : {blGlyphLeft, blGlyphRight, blGlyphTop}) {
        auto *b = new TqBitColBtn(buttons);
        b->SetGlyph(QPixmap::fromImage(small));
        b->SetLayout(layout);
        b->SetCaption(layout == blGlyphTop ? QString() : QStringLiteral("Meter"));
        lightFace(b, 0x00E0F0F0);
        place(b, layout == blGlyphTop ? 40 : 90);
    }
    auto *off = new TqBitColBtn(buttons);
    off->SetGlyph(QPixmap::fromImage(small));
    off->SetCaption(QStringLiteral("Off"));
    lightFace(off, 0x00E0F0F0);
    off->setEnabled(false);
    place(off, 80);
    auto *nw = new TqNWBitColBtn(buttons);
    nw->SetGlyph(QPixmap::fromImage(small));
    nw->SetCaption(QStringLiteral("Graphic"));
    lightFace(nw, 0x00F0E0E0);
    place(nw, 100);
    auto *icon = new TqIconColBtn(buttons);
    icon->SetIcon(QApplication::style()->standardIcon(QStyle::SP_MediaPlay));
    icon->SetCaption(QStringLiteral("Play"));
    lightFace(icon, 0x00E0FFE0);
    place(icon, 80);
    auto *nwIcon = new TqNWIconColBtn(buttons);
    nwIcon->SetIcon(QApplication::style()->standardIcon(QStyle::SP_MediaStop));
    nwIcon->SetCaption(QStringLiteral("Stop"));
    lightFace(nwIcon, 0x00E0E0FF);
    place(nwIcon, 80);
    row(QStringLiteral("TqBitColBtn (left, right, top, disabled), TqNWBitColBtn, TqIconColBtn, TqNWIconColBtn"), buttons);

    // A button with a glyph of its own for the pressed state, and its
    // picture while held down.
    auto *pressing = new QWidget(box);
    auto *pressLine = sideBySide(pressing);
    auto *lamp = sized(new TqBitColBtn(pressing), 100, 32);
    lamp->SetGlyph(QPixmap::fromImage(small));
    TBitmap lit;
    lit.Assign(small);
    LightenBMP(lit, 60);
    lamp->SetGlyphDown(QPixmap::fromImage(lit.Image()));
    lamp->SetCaption(QStringLiteral("Hold me"));
    lightFace(lamp, 0x00D0E8F8);
    pressLine->addWidget(lamp);
    pressLine->addWidget(heldDown(lamp, pressing));
    pressLine->addStretch();
    row(QStringLiteral("TqBitColBtn with a pressed glyph, and the same button held down"), pressing);

    // Pictures by resource name, and the desktop behind the window.
    auto *named = new QWidget(box);
    auto *namedLine = sideBySide(named);
    auto *resource = sized(new TqResBitmap(named), 48, 48);
    resource->SetResName(QStringLiteral("gauges/dial.png"));
    namedLine->addWidget(resource);
    auto *missing = new TqResBitmap(named);
    missing->setFixedSize(48, 48);
    auto *word = new QLabel(named);
    QObject::connect(missing, &TqResBitmap::OnResourceMissing, word, [word](QObject *, const QString &name) {
        word->setText(QStringLiteral("no resource \"%1\"").arg(name));
    });
    missing->SetResName(QStringLiteral("gauges/missing.png"));
    namedLine->addWidget(missing);
    namedLine->addWidget(word);
    auto *desktop = sized(new TqDesktop(named), 120, 48);
    desktop->SetColor(0x00806040);
    auto *seen = new QLabel(named);
    QObject::connect(desktop, &TqDesktop::OnPaint, seen, [seen, desktop](QObject *) {
        seen->setText(desktop->Grabbed() ? QStringLiteral("the screen behind the window")
                                         : QStringLiteral("no picture of the screen here: its colour"));
    });
    namedLine->addSpacing(20);
    namedLine->addWidget(desktop);
    namedLine->addWidget(seen);
    namedLine->addStretch();
    row(QStringLiteral("TqResBitmap by name (found, missing); TqDesktop"), named);

    return box;
}
