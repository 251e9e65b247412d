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
#include <QCheckBox>
#include <QCommandLineParser>
#include <QStyle>
#include <QStyleFactory>
#include <QTimer>
#include <QGridLayout>
#include <QWidget>

#include <cstdio>

namespace {

// Fusion in its own light palette, or in a dark one; the library's system
// colours (clBtnFace, clWindow ...) follow either.
void applyPalette(bool dark)
{
    QStyle *fusion = QApplication::setStyle(QStringLiteral("Fusion"));
    QPalette p = fusion ? fusion->standardPalette() : QApplication::palette();
    if (dark) {
        const QColor window(53, 53, 53), base(35, 35, 35), text(230, 230, 230);
        p.setColor(QPalette::Window, window);
        p.setColor(QPalette::WindowText, text);
        p.setColor(QPalette::Base, base);
        p.setColor(QPalette::AlternateBase, window);
        p.setColor(QPalette::ToolTipBase, QColor(60, 60, 40));
        p.setColor(QPalette::ToolTipText, text);
        p.setColor(QPalette::Text, text);
        p.setColor(QPalette::Button, window);
        p.setColor(QPalette::ButtonText, text);
        p.setColor(QPalette::BrightText, Qt::red);
        p.setColor(QPalette::Light, QColor(90, 90, 90));
        p.setColor(QPalette::Midlight, QColor(70, 70, 70));
        p.setColor(QPalette::Mid, QColor(40, 40, 40));
        p.setColor(QPalette::Dark, QColor(25, 25, 25));
        p.setColor(QPalette::Shadow, QColor(10, 10, 10));
        p.setColor(QPalette::Highlight, QColor(42, 130, 218));
        p.setColor(QPalette::HighlightedText, Qt::black);
        p.setColor(QPalette::Link, QColor(90, 160, 255));
        p.setColor(QPalette::Disabled, QPalette::Text, QColor(120, 120, 120));
        p.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(120, 120, 120));
        p.setColor(QPalette::Disabled, QPalette::WindowText, QColor(120, 120, 120));
    }
    QApplication::setPalette(p);
}

// The gallery's wallpaper in colours to go with the palette.
void tintWallpaper(TqBackground *wallpaper, bool dark)
{
    wallpaper->SetColor(dark ? 0x00403830 : 0x00F4F0EC);
    wallpaper->SetEndColor(dark ? 0x00181410 : 0x00D8CCC0);
}

} // namespace

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
    QCommandLineOption darkOption(QStringLiteral("dark"), QStringLiteral("Start in the dark palette."));
    parser.addOption(darkOption);
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

    applyPalette(parser.isSet(darkOption));
    QWidget window;
    window.setWindowTitle(QApplication::applicationName());
    auto *layout = new QGridLayout(&window);
    auto *dark = new QCheckBox(QStringLiteral("Dark palette"), &window);
    layout->addWidget(dark, 0, 0, 1, 2);
    layout->addWidget(displaysSection(&window), 1, 0);
    // Application information on the gallery's window: one gallery at a
    // time (a second start hands over and ends), except for pictures.
    auto *info = new TqShowApp(&window);
    info->SetOnlyOneInstance(!parser.isSet(screenshot));
    info->SetTitle(QApplication::applicationName());
    layout->addWidget(servicesSection(&window, info), 2, 0);
    layout->addWidget(instrumentsSection(&window), 1, 1, 2, 1);
    layout->addWidget(controlsSection(&window), 3, 0, 1, 2);
    layout->addWidget(buttonsSection(&window), 4, 0, 1, 2);
    layout->addWidget(panelsSection(&window), 5, 0, 1, 2);
    layout->addWidget(bitmapsSection(&window), 6, 0, 1, 2);
    layout->addWidget(labelsSection(&window), 7, 0, 1, 2);
    layout->setRowStretch(8, 1);
    // The gallery's own wallpaper: a blend behind every section, in the
    // palette's tone.
    auto *wallpaper = new TqBackground(&window);
    wallpaper->SetBackType(TqBackground::btBlend);
    tintWallpaper(wallpaper, parser.isSet(darkOption));
    wallpaper->SetBands(64);
    dark->setChecked(parser.isSet(darkOption));
    QObject::connect(dark, &QCheckBox::toggled, wallpaper, [wallpaper](bool on) {
        applyPalette(on);
        tintWallpaper(wallpaper, on);
    });
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
