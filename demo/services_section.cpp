#include "sections.h"

#include "services/std2.h"

#include <QElapsedTimer>
#include <QGridLayout>
#include <QLabel>

QGroupBox *servicesSection(QWidget *parent)
{
    auto *box = new QGroupBox(QStringLiteral("Services"), parent);
    auto *grid = new QGridLayout(box);

    auto *ticks = new QLabel(box);
    auto *timer = new TqcTimer(box);
    timer->SetInterval(100);
    auto *clock = new QElapsedTimer;
    clock->start();
    auto count = std::make_shared<int>(0);
    QObject::connect(timer, &TqcTimer::OnTimer, ticks, [ticks, count, clock](QObject *) {
        ++*count;
        ticks->setText(QStringLiteral("%1 ticks in %2 ms from the worker thread")
                           .arg(*count).arg(clock->elapsed()));
    });
    QObject::connect(box, &QObject::destroyed, [clock] { delete clock; });
    grid->addWidget(new QLabel(QStringLiteral("TqcTimer, 100 ms"), box), 0, 0, Qt::AlignRight);
    grid->addWidget(ticks, 0, 1);
    return box;
}
