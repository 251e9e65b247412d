#pragma once
// Tests of what the window manager does run on a desktop of their own: a
// private Xvfb display with openbox as the window manager and, when asked,
// trayer as the notification area, all started before the application and
// stopped after it.
//     QC_XDESKTOP_TEST_MAIN(tst_Something, XDesktop::WithTray)

#include "testutil.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <unistd.h>

class XDesktop
{
public:
    enum Parts { WindowManagerOnly, WithTray };

    ~XDesktop()
    {
        for (QProcess *p : {&FTray, &FWm, &FServer}) {
            p->terminate();
            if (!p->waitForFinished(3000)) {
                p->kill();
                p->waitForFinished(3000);
            }
        }
    }

    // Starts the display, the window manager and the tray; the display's
    // name goes into DISPLAY. False, with a message, when one did not come up.
    bool start(Parts parts)
    {
        // Nobody reads their output here: a full pipe would stop them.
        for (QProcess *p : {&FTray, &FWm, &FServer}) {
            p->setStandardOutputFile(QProcess::nullDevice());
            p->setStandardErrorFile(QProcess::nullDevice());
        }
        // A display and a window manager that come up; on a busy machine
        // one may hang at its start, so a few tries on fresh displays.
        int n = 40 + getpid() % 400;
        bool up = false;
        for (int attempt = 0; attempt < 5 && !up; ++attempt, ++n) {
            while (QFile::exists(QStringLiteral("/tmp/.X%1-lock").arg(n))
                   || QFile::exists(QStringLiteral("/tmp/.X11-unix/X%1").arg(n)))
                ++n;
            up = startOn(n);
            if (!up)
                for (QProcess *p : {&FWm, &FServer}) {
                    p->kill();
                    p->waitForFinished(3000);
                }
        }
        if (!up)
            return fail("no X display with a window manager came up");
        if (parts == WithTray) {
            QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
            env.insert(QStringLiteral("HOME"), FHome.path());
            FTray.setProcessEnvironment(env);
            FTray.start(QStringLiteral("trayer"), {"--edge", "bottom", "--widthtype", "pixel", "--width", "200", "--height", "24",
                                                 "--SetDockType", "true", "--SetPartialStrut", "true"});
            // Whether it took the tray selection yet, the tests ask Qt.
            if (!FTray.waitForStarted(10000))
                return fail("trayer did not start");
        }
        return true;
    }

private:
    bool startOn(int n)
    {
        FDisplay = QStringLiteral(":%1").arg(n);
        FServer.start(QStringLiteral("Xvfb"), {FDisplay, "-screen", "0", "1024x768x24", "-nolisten", "tcp"});
        if (!FServer.waitForStarted(10000)
            || !waitFor([&] { return QFile::exists(QStringLiteral("/tmp/.X11-unix/X%1").arg(n)); }, FServer))
            return false;
        qputenv("DISPLAY", FDisplay.toLocal8Bit());
        qputenv("QT_QPA_PLATFORM", "xcb");
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("HOME"), FHome.path());
        FWm.setProcessEnvironment(env);
        FWm.start(QStringLiteral("openbox"), {});
        // Up once it lists its clients (the last step of its start; a window
        // shown before that may be left unmanaged).
        return FWm.waitForStarted(10000) && waitFor([&] { return rootHas("_NET_CLIENT_LIST"); }, FWm);
    }

    bool fail(const char *what)
    {
        qCritical("%s", what);
        return false;
    }
    template <class Ready>
    static bool waitFor(Ready ready, QProcess &process)
    {
        for (int i = 0; i < 500; ++i) {
            if (ready())
                return true;
            if (process.state() == QProcess::NotRunning)
                return false;
            QThread::msleep(20);
        }
        return false;
    }
    static bool rootHas(const char *property)
    {
        return runTool(QStringLiteral("xprop"), {"-root", QString::fromLatin1(property)}).contains(QLatin1String("window id"));
    }
    QTemporaryDir FHome;
    QString FDisplay;
    QProcess FServer, FWm, FTray;
};

#define QC_XDESKTOP_TEST_MAIN(TestObject, parts)                                                                  \
    int main(int argc, char **argv)                                                                            \
    {                                                                                                          \
        XDesktop desktop;                                                                                      \
        if (!desktop.start(XDesktop::parts))                                                                   \
            return 1;                                                                                          \
        int status;                                                                                            \
        {                                                                                                      \
            QApplication app(argc, argv);                                                                      \
            app.setAttribute(Qt::AA_Use96Dpi, true);                                                           \
            TestObject tc;                                                                                     \
            QTEST_SET_MAIN_SOURCE_PATH                                                                         \
            status = QTest::qExec(&tc, argc, argv);                                                            \
        }                                                                                                      \
        return status;                                                                                         \
    }
