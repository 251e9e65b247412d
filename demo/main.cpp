// The gallery: every component of the library, working. With --panel it
// shows a front panel of 120 widgets loaded from a Designer form and fed
// sixty times a second instead. With --screenshot it renders itself
// off-screen after a short run and writes a PNG.

#include "sections.h"

#include "panelfeed.h"

#include "backgrounds/blend.h"

#include "services/mystd.h"
#include "services/std2.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>
#include <QGridLayout>
#include <QWidget>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quovar Collection gallery"));

    QCommandLineParser parser;
    parser.addHelpOption();
    QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                  QStringLiteral("Run briefly, save the window to <file> and quit."),
                                  QStringLiteral("file"));
    parser.addOption(screenshot);
    QCommandLineOption panelOption(QStringLiteral("panel"),
                                   QStringLiteral("Show the instrument panel loaded from its Designer form."));
    parser.addOption(panelOption);
    parser.process(app);

    const auto saveWhenDue = [&](QWidget &shown) {
        if (!parser.isSet(screenshot))
            return;
        const QString path = parser.value(screenshot);
        QTimer::singleShot(1500, &shown, [&app, &shown, path] {
            const bool ok = shown.grab().save(path);
            std::printf("%s %s\n", ok ? "picture written to" : "could not write", qPrintable(path));
            app.exit(ok ? 0 : 1);
        });
    };

    if (parser.isSet(panelOption)) {
        QCoreApplication::addLibraryPath(QStringLiteral(QC_PLUGIN_DIR));
        QString error;
        std::unique_ptr<TPanel> panel = LoadPanel(QStringLiteral(QC_PANEL_UI), &error);
        if (!panel) {
            std::fprintf(stderr, "the panel did not load: %s\n", qPrintable(error));
            return 1;
        }
        // The form's own threaded timer feeds it from the simulated source.
        TSignalSource source;
        auto *feed = panel->Widget()->findChild<TqcTimer *>(QStringLiteral("feed"));
        QObject::connect(feed, &TqcTimer::OnTimer, panel->Widget(), [&](QObject *) { panel->Feed(source.Next()); });
        panel->Widget()->show();
        saveWhenDue(*panel->Widget());
        return app.exec();
    }

    QWidget window;
    window.setWindowTitle(QApplication::applicationName());
    auto *layout = new QGridLayout(&window);
    layout->addWidget(displaysSection(&window), 0, 0);
    // Application information on the gallery's window: one gallery at a
    // time (a second start hands over and ends), except for pictures.
    auto *info = new TqShowApp(&window);
    info->SetOnlyOneInstance(!parser.isSet(screenshot));
    info->SetTitle(QApplication::applicationName());
    layout->addWidget(servicesSection(&window, info), 1, 0);
    layout->addWidget(instrumentsSection(&window), 0, 1, 2, 1);
    layout->addWidget(controlsSection(&window), 2, 0, 1, 2);
    layout->addWidget(buttonsSection(&window), 3, 0, 1, 2);
    layout->addWidget(panelsSection(&window), 4, 0, 1, 2);
    layout->addWidget(bitmapsSection(&window), 5, 0, 1, 2);
    layout->addWidget(labelsSection(&window), 6, 0, 1, 2);
    layout->setRowStretch(7, 1);
    // The gallery's own wallpaper: a light blend behind every section.
    auto *wallpaper = new TqBackground(&window);
    wallpaper->SetBackType(TqBackground::btBlend);
    wallpaper->SetColor(0x00F4F0EC);
    wallpaper->SetEndColor(0x00D8CCC0);
    wallpaper->SetBands(64);
    info->QueueLoaded();
    info->FinishLoading();
    wallpaper->QueueLoaded();
    wallpaper->FinishLoading();
    if (info->Closing())
        return app.exec();   // handed over: ends at once
    window.show();
    saveWhenDue(window);
    return app.exec();
}
