// A program with a TqShowApp on its form, for the single-instance tests: it
// prints "first" or "second", then "another" for every later start it hears
// of. With "nobring" a second start keeps the first where it is.
//     showapp_probe [nobring]
#include "services/mystd.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QWidget form;
    auto say = [](const char *what) {
        std::printf("%s\n", what);
        std::fflush(stdout);
    };
    auto *info = new TqShowApp(&form);
    info->SetOnlyOneInstance(true);
    const bool bring = !app.arguments().contains(QStringLiteral("nobring"));
    QObject::connect(info, &TqShowApp::OnSecondInstance, [&](QObject *, bool &toFront) {
        toFront = bring;
        say("second");
    });
    QObject::connect(info, &TqShowApp::OnAnotherInstance, [&] { say("another"); });
    info->QueueLoaded();
    info->FinishLoading();
    if (!info->Closing())
        say("first");
    form.show();
    return app.exec();
}
