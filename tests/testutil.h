#pragma once
// Small helpers the component tests share.

#include <QApplication>
#include <QMouseEvent>
#include <QProcess>
#include <QStringList>
#include <QWidget>
#include <QtTest>

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

// A control on a shown form, focused, as a user meets it.
template <class Control>
struct ShownOnForm
{
    QWidget form;
    Control *control = new Control(&form);
    ShownOnForm()
    {
        form.resize(200, 200);
        form.show();
        if (!QTest::qWaitForWindowExposed(&form))
            qWarning("the form was not shown");
        control->setFocus();
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
