#include "sections.h"

#include "displays/qseg.h"
#include "labels/labels.h"
#include "layout/qtablistbox.h"
#include "services/mystd.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPushButton>
#include <QTimer>

#include <cmath>

namespace {

QFont boldFont(const QFont &base, int points)
{
    QFont f = base;
    f.setPointSize(points);
    f.setBold(true);
    return f;
}

// Captions in a fan about one point, and one that turns all the time.
QWidget *angleLabels(QWidget *parent)
{
    auto *fan = new QWidget(parent);
    fan->setFixedSize(300, 130);
    for (int angle = 0; angle <= 180; angle += 30) {
        auto *label = new TqAngleLabel(fan);
        label->SetFont(boldFont(label->Font(), 9));
        label->SetRotateAbout(TqAngleLabel::raLeft);
        // Leading blanks keep the figures off the centre.
        label->SetCaption(QStringLiteral("%1\u00b0").arg(angle).rightJustified(12, QLatin1Char(' ')));
        label->SetFontColor(angle == 90 ? TColor(0x000040D0) : TColor(0x00E07000));   // clear in either palette
        label->SetAngle(angle);
        // The turning point at (90, 110) for every caption.
        label->move(QPoint(110, 115) - label->Pivot());
    }
    auto *turning = new TqAngleLabel(fan);
    turning->SetFont(boldFont(turning->Font(), 11));
    turning->SetFontColor(0x0000A000);
    turning->SetCaption(QStringLiteral("turning"));
    turning->move(QPoint(240, 65) - turning->Pivot());
    auto *turn = new QTimer(fan);
    QObject::connect(turn, &QTimer::timeout, turning, [turning] { turning->SetAngle(turning->Angle() + 6); });
    turn->start(60);
    return fan;
}

// The picture a splash form shows: a dark blue blend with a bright line.
QPixmap splashPicture()
{
    QImage image(260, 120, QImage::Format_RGB32);
    QPainter p(&image);
    QLinearGradient blend(0, 0, 0, 120);
    blend.setColorAt(0, QColor(0, 30, 90));
    blend.setColorAt(1, QColor(0, 0, 20));
    p.fillRect(image.rect(), blend);
    p.setPen(QPen(QColor(0, 220, 255), 2));
    for (int x = 0; x < 260; x += 4)
        p.drawLine(x, 50 - int(25 * std::sin(x / 17.0)), x + 4, 50 - int(25 * std::sin((x + 4) / 17.0)));
    return QPixmap::fromImage(image);
}

} // namespace

QGroupBox *labelsSection(QWidget *parent)
{
    auto *box = new QGroupBox(QStringLiteral("Labels and more"), parent);
    SectionRows row(box);

    auto *labels = new QWidget(box);
    labels->setFixedSize(640, 40);
    auto *big = new TqBigLabel(labels);
    big->SetCaption(QStringLiteral("MAIN POWER"));
    big->move(0, 2);
    big->SetHint(QStringLiteral("TqBigLabel|A big caption with an outline and a shadow"));
    auto *raised = new Tq3DLabel(labels);
    raised->SetFont(boldFont(raised->Font(), 16));
    raised->SetDepth(2);
    raised->SetCaption(QStringLiteral("RAISED"));
    raised->move(220, 8);
    auto *lowered = new Tq3DLabel(labels);
    lowered->SetFont(boldFont(lowered->Font(), 16));
    lowered->SetStyle(Tq3DLabel::ts3DLowered);
    lowered->SetCaption(QStringLiteral("LOWERED"));
    lowered->move(340, 8);
    auto *link = new TqMouseSpot(labels);
    link->SetCaption(QStringLiteral("point at me, click me"));
    link->SetFontColor(0x00FF8000);   // a link's blue, clear in either palette
    link->move(490, 14);
    QObject::connect(link, &TControl::OnClick, link, [link](QObject *) { link->SetCaption(QStringLiteral("clicked")); });
    row(QStringLiteral("TqBigLabel, Tq3DLabel raised and lowered, TqMouseSpot"), labels);

    row(QStringLiteral("TqAngleLabel: a fan about one point, and one turning"), angleLabels(box));

    // The gallery's tips show in a balloon of the panel's look; its picture
    // stands here, since a tip needs the mouse.
    auto *hint = new TqHint(parent);
    hint->SetShape(TqHint::hsBalloon);
    hint->SetColor(0x00E0FFFF);
    hint->SetFontColor(clBlack);
    hint->SetFrameColor(clNavy);
    hint->SetPause(400);
    hint->QueueLoaded();
    hint->FinishLoading();
    hint->Window()->Prepare(QStringLiteral("Supply voltage\nset on the front panel"),
                            QPoint(100, 100), hint->Color());
    QImage picture = hint->Window()->Picture().convertToFormat(QImage::Format_ARGB32);
    const QRegion shape = hint->Window()->mask();
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (!shape.contains(QPoint(x, y)))
                picture.setPixel(x, y, qRgba(0, 0, 0, 0));
    auto *tip = new QLabel(box);
    tip->setPixmap(QPixmap::fromImage(picture));
    tip->setToolTip(QStringLiteral("The tip in the hint window|Point at any widget with a hint"));
    row(QStringLiteral("TqHint: the gallery's tips (balloon shape)"), tip);

    auto *list = new TqTabListbox(box);
    list->setFixedSize(300, 92);
    list->SetTabStops(QStringLiteral("110 190"));
    list->SetItems({QStringLiteral("Channel\tRange\tReading"), QStringLiteral("CH1\t10 V\t4.82 V"),
                    QStringLiteral("CH2\t1 V\t0.517 V"), QStringLiteral("CH3 (external)\t100 mV\t12.0 mV"),
                    QStringLiteral("Temperature\t200 \u00b0C\t41.5 \u00b0C")});
    list->SetItemIndex(1);
    list->setToolTip(QStringLiteral("TqTabListbox|Columns at tab stops 110 and 190 pixels"));
    row(QStringLiteral("TqTabListbox, stops at 110 and 190 pixels"), list);

    // Peak meters fed fifty times a second from a simulated signal: a
    // horizontal stereo pair and a vertical one.
    auto *meters = new QWidget(box);
    meters->setFixedSize(300, 80);
    QList<TqcPeakOmeter *> channels;
    for (int i = 0; i < 2; ++i) {
        auto *h = new TqcPeakOmeter(meters);
        h->SetKind(TqcPeakOmeter::pkHorizontal);
        h->SetBounds(0, 12 + 24 * i, 220, 16);
        h->SetBlocks(30);
        channels << h;
    }
    for (int i = 0; i < 2; ++i) {
        auto *v = new TqcPeakOmeter(meters);
        v->SetBounds(240 + 22 * i, 0, 16, 80);
        v->SetBlocks(16);
        channels << v;
    }
    auto *feed = new QTimer(meters);
    QObject::connect(feed, &QTimer::timeout, meters, [channels, n = 0]() mutable {
        ++n;
        const double a = std::abs(std::sin(n / 7.0)) * (0.6 + 0.4 * std::sin(n / 53.0));
        const double b = std::abs(std::sin(n / 5.0 + 1)) * (0.7 + 0.3 * std::cos(n / 41.0));
        channels[0]->Push(int(100 * a));
        channels[1]->Push(int(100 * b));
        channels[2]->Push(int(100 * a));
        channels[3]->Push(int(100 * b));
    });
    feed->start(20);
    row(QStringLiteral("TqcPeakOmeter, two channels fed live"), meters);

    // A splash form shown on request; it goes after a second and a half, or
    // on a click.
    auto *splashRow = new QWidget(box);
    splashRow->setFixedSize(360, 70);
    auto *splash = new TqSplashForm(parent);
    splash->SetActive(false);
    splash->SetBitmap(splashPicture());
    splash->SetCaption(QStringLiteral("Quovar Collection"));
    splash->SetMinimumTime(1500);
    auto *preview = new QLabel(splashRow);
    preview->setPixmap(QPixmap::fromImage(splash->Picture()).scaled(130, 60, Qt::KeepAspectRatio, Qt::FastTransformation));
    preview->move(0, 5);
    auto *show = new QPushButton(QStringLiteral("Show splash"), splashRow);
    show->move(150, 20);
    QObject::connect(show, &QPushButton::clicked, splash, [splash] { splash->Show(); });
    auto *state = new QLabel(QStringLiteral("closed"), splashRow);
    state->move(260, 25);
    state->setFixedWidth(100);
    QObject::connect(splash, &TqSplashForm::OnShow, state, [state] { state->setText(QStringLiteral("showing")); });
    QObject::connect(splash, &TqSplashForm::OnClose, state, [state] { state->setText(QStringLiteral("closed")); });
    row(QStringLiteral("TqSplashForm"), splashRow);
    return box;
}
