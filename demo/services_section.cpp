#include "sections.h"

#include "displays/qseg.h"
#include "services/mystd.h"
#include "services/std2.h"
#include "host/tformat.h"

#include <memory>

#include <QLineEdit>
#include <QMetaEnum>

#include <QElapsedTimer>
#include <QGridLayout>
#include <QApplication>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QPushButton>

QGroupBox *servicesSection(QWidget *parent, TqShowApp *info)
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

    // The calculator: type a line, see the value, the result code, where
    // the parse stopped, and the register stack.
    auto *calc = new TqCalc(box);
    calc->SetFormat(QStringLiteral("%g"));
    auto *line = new QLineEdit(box);
    line->setPlaceholderText(QStringLiteral("e.g. sqrt(16)+pi, then A*2"));
    auto *result = new QLabel(box);
    auto *registers = new QLabel(box);
    registers->setTextFormat(Qt::PlainText);
    const auto show = [=] {
        const QMetaEnum codes = QMetaEnum::fromType<TqCalc::TqCalcResult>();
        result->setText(QStringLiteral("= %1    %2 at %3")
                            .arg(calc->Number(), QLatin1String(codes.valueToKey(calc->CalcResult())))
                            .arg(calc->WhereIsLastError()));
        QStringList regs;
        const char *letters = "ABCDFGHIJ";
        for (int n = 1; n <= TqCalc::RegisterCount; ++n)
            regs << QStringLiteral("%1=%2").arg(QLatin1Char(letters[n - 1])).arg(calc->GetReg(n));
        registers->setText(regs.join(QStringLiteral("  ")));
    };
    QObject::connect(line, &QLineEdit::returnPressed, box, [=] {
        calc->SetCalcLine(line->text());
        show();
    });
    for (const char *start : {"2^10", "A/4", "sqrt(A)+pi*2"}) {
        calc->SetCalcLine(QString::fromLatin1(start));
        line->setText(QString::fromLatin1(start));
    }
    show();
    grid->addWidget(new QLabel(QStringLiteral("TqCalc (Enter evaluates)"), box), 1, 0, Qt::AlignRight);
    grid->addWidget(line, 1, 1);
    grid->addWidget(result, 2, 1);
    grid->addWidget(registers, 3, 1);

    // Application information: the facts, and the starts it has handed over.
    auto *facts = new QLabel(box);
    facts->setTextFormat(Qt::PlainText);
    facts->setText(QStringLiteral("%1, %2 (%3), %4@%5, short dates as %6")
                       .arg(info->WindowsString(), info->CPUString())
                       .arg(info->CPUType())
                       .arg(info->UserName(), info->ComputerName(), ShortDateFormat()));
    auto *starts = new QLabel(QStringLiteral("a second start of the gallery hands over to this one"), box);
    auto handed = std::make_shared<int>(0);
    QObject::connect(info, &TqShowApp::OnAnotherInstance, starts, [starts, handed](QObject *) {
        starts->setText(QStringLiteral("%1 later start(s) handed over and ended").arg(++*handed));
    });
    grid->addWidget(new QLabel(QStringLiteral("TqShowApp"), box), 4, 0, Qt::AlignRight);
    grid->addWidget(facts, 4, 1);
    grid->addWidget(starts, 5, 1);

    // The gallery's own window: its title bar, and a size guard around the
    // size it has when the guard comes on.
    auto *bar = new TqTitleBar(parent);
    bar->QueueLoaded();
    bar->FinishLoading();
    auto *titleButton = new QPushButton(QStringLiteral("Hide the title bar"), box);
    QObject::connect(titleButton, &QPushButton::clicked, bar, [bar] { bar->SetTitleBar(!bar->IsShowTitleBar()); });
    QObject::connect(bar, &TqTitleBar::OnChange, titleButton, [bar, titleButton](QObject *) {
        titleButton->setText(bar->IsShowTitleBar() ? QStringLiteral("Hide the title bar")
                                                   : QStringLiteral("Show the title bar (drag the window by its background)"));
    });
    auto *guardBox = new QCheckBox(QStringLiteral("Size guard: no smaller than now, at most 200 x 100 larger"), box);
    auto guard = std::make_shared<QPointer<TqMinMax>>();
    QObject::connect(guardBox, &QCheckBox::toggled, box, [parent, guard](bool on) {
        delete guard->data();
        if (!on)
            return;
        QWidget *form = parent->window();
        const QSize now = form->size();
        auto *g = new TqMinMax(form);
        g->SetMaxWidth(now.width() + 200);
        g->SetMaxHeight(now.height() + 100);
        g->SetMaxDragWidth(now.width() + 200);
        g->SetMaxDragHeight(now.height() + 100);
        g->SetMinDragWidth(now.width());
        g->SetMinDragHeight(now.height());
        g->QueueLoaded();
        g->FinishLoading();
        *guard = g;
    });
    auto *windowRow = new QHBoxLayout;
    windowRow->addWidget(titleButton);
    windowRow->addWidget(guardBox);
    windowRow->addStretch();
    grid->addWidget(new QLabel(QStringLiteral("TqTitleBar, TqMinMax"), box), 6, 0, Qt::AlignRight);
    grid->addLayout(windowRow, 6, 1);

    // A tray icon with a menu, where the desktop has a notification area.
    auto *tray = new TqTrayIcon(parent);
    auto *trayMenu = new QMenu(box);
    QAction *front = trayMenu->addAction(QStringLiteral("Bring the gallery to the front"));
    trayMenu->setDefaultAction(front);
    QObject::connect(front, &QAction::triggered, box, [parent] {
        parent->window()->showNormal();
        parent->window()->raise();
        parent->window()->activateWindow();
    });
    trayMenu->addAction(QStringLiteral("Quit"), qApp, &QCoreApplication::quit);
    tray->SetPopupMenu(trayMenu);
    tray->SetDoDefaultMenu(true);
    tray->SetToolTip(QStringLiteral("Quovar gallery"));
    auto *trayState = new QLabel(box);
    QObject::connect(tray, &TqTrayIcon::OnTrayMissing, trayState,
                     [trayState](QObject *) { trayState->setText(QStringLiteral("no notification area on this desktop")); });
    QObject::connect(tray, &TqTrayIcon::OnClick, trayState,
                     [trayState](QObject *) { trayState->setText(QStringLiteral("clicked in the notification area")); });
    tray->SetActive(true);
    if (tray->InTray())
        trayState->setText(QStringLiteral("in the notification area (%1): right-click for its menu").arg(tray->Protocol()));
    grid->addWidget(new QLabel(QStringLiteral("TqTrayIcon"), box), 7, 0, Qt::AlignRight);
    grid->addWidget(trayState, 7, 1);

    // A small program run with the interface alive meanwhile.
    auto *runner = new TqcRunProg(box);
    runner->SetCmdLine(QStringLiteral("sh -c 'sleep 1; exit 42'"));
    auto *runButton = new QPushButton(QStringLiteral("Run: sh -c 'sleep 1; exit 42'"), box);
    auto *runState = new QLabel(box);
    QObject::connect(runButton, &QPushButton::clicked, runner, [runner] { runner->Run(); });
    QObject::connect(runner, &TqcRunProg::OnBeforeWait, runState,
                     [runState](QObject *) { runState->setText(QStringLiteral("running...")); });
    QObject::connect(runner, &TqcRunProg::OnFinish, runState, [runner, runState](QObject *) {
        runState->setText(QStringLiteral("return code %1").arg(runner->ReturnCode()));
    });
    QObject::connect(runner, &TqcRunProg::OnError, runState, [runState](QObject *, TqcRunProg::TqcRunError e, int code) {
        runState->setText(QStringLiteral("could not start (%1, errno %2)").arg(int(e)).arg(code));
    });
    auto *runRow = new QHBoxLayout;
    runRow->addWidget(runButton);
    runRow->addWidget(runState);
    runRow->addStretch();
    grid->addWidget(new QLabel(QStringLiteral("TqcRunProg"), box), 8, 0, Qt::AlignRight);
    grid->addLayout(runRow, 8, 1);

    // A canvas that scribbles over a segment label until the label repaints.
    auto *label = new TqSegmentLabel(box);
    label->SetCaption(QStringLiteral("SCRIBBLE"));
    auto *canvas = new TqCompCanvas(box);
    canvas->SetControl(label);
    auto *scribble = new QPushButton(QStringLiteral("Scribble"), box);
    QObject::connect(scribble, &QPushButton::clicked, canvas, [canvas, label] {
        canvas->StartPaint();
        TCanvas *c = canvas->Canvas();
        c->Pen.SetColor(clYellow);
        c->Pen.SetWidth(3);
        for (int i = 0; i < 6; ++i) {
            c->MoveTo(i * label->width() / 6, label->height() - 4);
            c->LineTo((i + 1) * label->width() / 6, 4);
        }
        canvas->EndPaint();
    });
    auto *repaint = new QPushButton(QStringLiteral("Repaint the label"), box);
    QObject::connect(repaint, &QPushButton::clicked, label, [label] { label->Invalidate(); });
    auto *canvasRow = new QHBoxLayout;
    canvasRow->addWidget(label);
    canvasRow->addWidget(scribble);
    canvasRow->addWidget(repaint);
    canvasRow->addStretch();
    grid->addWidget(new QLabel(QStringLiteral("TqCompCanvas"), box), 9, 0, Qt::AlignRight);
    grid->addLayout(canvasRow, 9, 1);
    return box;
}
