// A program with a TqShowApp on its form, for the single-instance tests: it
// prints "first" or "second", then "another" for every later start it hears
// of. With "nobring" a second start keeps the first where it is; with "two"
// a second form has a TqShowApp of its own, and both answer; with "free"
// it does not ask for a single instance (and says "first" as it runs). With
// "state FILE" it only follows its start-up show command and writes the
// form's state to FILE ("normal", "minimized" or "maximized").
//     showapp_probe [nobring | two | free]
//     showapp_probe state FILE
#include "services/mystd.h"

#include <QApplication>
#include <QFile>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QWidget form, second;
    auto say = [](const char *what) {
        std::printf("%s\n", what);
        std::fflush(stdout);
    };
    auto *info = new TqShowApp(&form);
    const qsizetype state = app.arguments().indexOf(QStringLiteral("state"));
    if (state > 0) {
        info->SetUseCmdShow(true);
        info->QueueLoaded();
        info->FinishLoading();
        QFile out(app.arguments().value(state + 1));
        if (!out.open(QIODevice::WriteOnly))
            return 1;
        out.write(form.windowState() & Qt::WindowMinimized   ? "minimized"
                  : form.windowState() & Qt::WindowMaximized ? "maximized"
                                                             : "normal");
        return 0;
    }
    QList<TqShowApp *> components{info};
    if (app.arguments().contains(QStringLiteral("two")))
        components << new TqShowApp(&second);
    const bool bring = !app.arguments().contains(QStringLiteral("nobring"));
    for (TqShowApp *c : components) {
        c->SetOnlyOneInstance(!app.arguments().contains(QStringLiteral("free")));
        QObject::connect(c, &TqShowApp::OnSecondInstance, [&](QObject *, bool &toFront) {
            toFront = bring;
            say("second");
        });
        QObject::connect(c, &TqShowApp::OnAnotherInstance, [&] { say("another"); });
        c->QueueLoaded();
        c->FinishLoading();
        if (!c->Closing())
            say("first");
    }
    form.show();
    return app.exec();
}
