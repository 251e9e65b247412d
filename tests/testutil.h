#pragma once
// Small helpers the component tests share.

#include "host/tcolor.h"
#include "host/tcomponent.h"

#include <QApplication>
#include <QMouseEvent>
#include <QProcess>
#include <QStringList>
#include <QWidget>
#include <QtTest>

// A colour as the pictures hold it.
inline QRgb rgb(TColor c) { return ColorToQRgb(c); }

// The events of components as they come, each by a short name, in order:
//     log.watch(&knob, &TqKnob::OnChange, "change");
struct EventLog
{
    QStringList names;

    template <class Object, class Signal>
    void watch(Object *object, Signal signal, const char *name)
    {
        QObject::connect(object, signal, &FContext, [this, name] { names << QString::fromLatin1(name); });
    }

private:
    QObject FContext;   // goes with the log, and its connections with it
};

// Runs the event loop until `timer` has ticked `n` more times; each time its
// earlier handlers have run first. A wait that proves the timer ran, where a
// test checks that nothing else happened meanwhile.
template <class Timer>
void waitForTicks(Timer *timer, int n)
{
    QSignalSpy spy(timer, &Timer::OnTimer);
    QTRY_VERIFY_WITH_TIMEOUT(spy.count() >= n, 10000);
}

// Counts the events of one type that reach an object.
struct EventCounter : QObject
{
    QEvent::Type type;
    int count = 0;
    EventCounter(QObject *watched, QEvent::Type t) : type(t) { watched->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *e) override
    {
        count += e->type() == type;
        return false;
    }
};

// Repaints `area` of a shown widget and runs the event loop until that paint
// is done; paints pending elsewhere in its window are done in the same pass.
// Keep `area` clear of the controls a test watches.
inline void waitForRepaintOf(QWidget *w, QRect area)
{
    EventCounter paints(w, QEvent::Paint);
    w->update(area);
    QTRY_VERIFY(paints.count > 0);
}

// Shows a window and waits until it is on the screen.
inline bool shown(QWidget *window)
{
    window->show();
    return QTest::qWaitForWindowExposed(window);
}

// A component made as the designer makes it.
template <class Component, class... Args>
std::unique_ptr<Component> madeInDesigner(Args &&...args)
{
    DesignTimeCreation designing;
    return std::make_unique<Component>(std::forward<Args>(args)...);
}

// A component's Loaded, as a form load runs it once the form is complete.
template <class Component>
void loaded(Component *c)
{
    c->QueueLoaded();
    c->FinishLoading();
}

// A control on a shown form, focused, as a user meets it.
template <class Control>
struct ShownOnForm
{
    QWidget form;
    Control *control = new Control(&form);
    ShownOnForm()
    {
        form.resize(200, 200);
        if (!shown(&form))
            qWarning("the form was not shown");
        control->setFocus();
    }
};

// A shown, active form with a widget that has a tip and one that has none.
struct TipForm
{
    QWidget window;
    QWidget *tipped = new QWidget(&window);
    QWidget *plain = new QWidget(&window);
    TipForm()
    {
        window.resize(200, 100);
        tipped->setGeometry(0, 0, 100, 100);
        tipped->setToolTip(QStringLiteral("Volts|Supply voltage in volts"));
        plain->setGeometry(100, 0, 100, 100);
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qWarning("the form did not become active");
    }
};

// `base` at a size in pixels, drawn without smoothing, so that text pixels
// are the text colour or untouched.
inline QFont crisp(const QFont &base, int pixels)
{
    QFont f = base;
    f.setPixelSize(pixels);
    f.setStyleStrategy(QFont::NoAntialias);
    return f;
}

// The pixels of `image` that pass `test`: how many, and the box round them.
struct Pixels
{
    int count = 0;
    QRect box;
};

template <class Test>
Pixels pixelsWhere(const QImage &image, Test test)
{
    Pixels out;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (test(image.pixel(x, y))) {
                ++out.count;
                out.box |= QRect(x, y, 1, 1);
            }
    return out;
}

inline Pixels pixelsOf(const QImage &image, QRgb colour)
{
    return pixelsWhere(image, [colour](QRgb p) { return p == colour; });
}

// A mouse move with the left button held, as a drag delivers it.
inline void dragTo(QWidget *w, QPoint p)
{
    QMouseEvent move(QEvent::MouseMove, QPointF(p), w->mapToGlobal(QPointF(p)), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(w, &move);
}

// What a system tool prints, trimmed.
inline QString runTool(const QString &program, const QStringList &args = {})
{
    QProcess p;
    p.start(program, args);
    p.waitForFinished(10000);
    return QString::fromLocal8Bit(p.readAllStandardOutput()).trimmed();
}

// A helper program started for a test, read line by line; killed with the
// test if it still runs.
struct ProbeProcess
{
    QProcess process;
    ProbeProcess(const QString &program, const QStringList &args)
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        process.setProcessEnvironment(env);
        process.start(program, args);
    }
    ~ProbeProcess()
    {
        if (process.state() != QProcess::NotRunning) {
            process.kill();
            process.waitForFinished(5000);
        }
    }
    // The next line of its output; empty when none comes.
    QString line()
    {
        while (!process.canReadLine())
            if (!process.waitForReadyRead(10000))
                return QString();
        return QString::fromLocal8Bit(process.readLine()).trimmed();
    }
};
