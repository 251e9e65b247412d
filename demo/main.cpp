// The gallery: every component of the library, working. With --screenshot
// it renders itself off-screen after a short run and writes a PNG.

#include "sections.h"

#include "backgrounds/blend.h"

#include "services/mystd.h"

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
    parser.process(app);

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

    if (parser.isSet(screenshot)) {
        const QString path = parser.value(screenshot);
        QTimer::singleShot(1500, &window, [&] {
            const bool ok = window.grab().save(path);
            std::printf("%s %s\n", ok ? "gallery written to" : "could not write", qPrintable(path));
            app.exit(ok ? 0 : 1);
        });
    }
    return app.exec();
}
