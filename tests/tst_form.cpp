// Forms as components see them: FindForm through nested widgets, the border
// style from window flags, and hooks on a form's events in chain order.
#include "host/tcomponent.h"
#include "host/tform.h"

#include <QDialog>
#include <QtTest>

class tst_Form : public QObject
{
    Q_OBJECT
private slots:
    void findFormThroughNestedWidgets()
    {
        QWidget form;
        auto *panel = new QWidget(&form);
        auto *inner = new QWidget(panel);
        auto *component = new TComponent(inner);
        QCOMPARE(FindForm(component), &form);
        QObject plain(inner);   // any object owned inside the form
        QCOMPARE(FindForm(&plain), &form);
        // A dialog inside is a form of its own.
        auto *dialog = new QDialog(inner);
        QCOMPARE(FindForm(new TComponent(dialog)), dialog);
        // Alone, or the form itself: no form.
        TComponent alone;
        QVERIFY_THROWS_EXCEPTION(EComponentError, FindForm(&alone));
        try {
            FindForm(&form);
            QFAIL("a form has no form of its own");
        } catch (const EComponentError &e) {
            QCOMPARE(QByteArray(e.what()), QByteArray("NoForm"));
        }
    }

    void borderStyleFromFlags()
    {
        QWidget sizeable;
        QCOMPARE(FormBorderStyle(&sizeable), bsSizeable);
        sizeable.setFixedSize(200, 100);
        QCOMPARE(FormBorderStyle(&sizeable), bsSingle);
        QDialog dialog;
        QCOMPARE(FormBorderStyle(&dialog), bsSizeable);
        dialog.setFixedSize(200, 100);
        QCOMPARE(FormBorderStyle(&dialog), bsDialog);
        QWidget tool(nullptr, Qt::Tool);
        QCOMPARE(FormBorderStyle(&tool), bsSizeToolWin);
        tool.setFixedSize(50, 50);
        QCOMPARE(FormBorderStyle(&tool), bsToolWindow);
        QWidget bare(nullptr, Qt::FramelessWindowHint);
        QCOMPARE(FormBorderStyle(&bare), bsNone);
    }

    void hooksChainNewestFirst()
    {
        QWidget form;
        QObject first, second;
        QStringList seen;
        new TFormHook(&form, &first, [&](QEvent *e) {
            if (e->type() == QEvent::User)
                seen << "first";
            return false;
        });
        auto *later = new TFormHook(&form, &second, [&](QEvent *e) {
            if (e->type() != QEvent::User)
                return false;
            seen << "second";
            return e->spontaneous();   // never: lets it through
        });
        QEvent ping(QEvent::User);
        QCoreApplication::sendEvent(&form, &ping);
        QCOMPARE(seen, (QStringList{"second", "first"}));
        // A hook that handles the event keeps it from the older hooks and the form.
        delete later;
        new TFormHook(&form, &second, [&](QEvent *e) { return e->type() == QEvent::User; });
        seen.clear();
        QCoreApplication::sendEvent(&form, &ping);
        QVERIFY(seen.isEmpty());
    }

    void hookAfterTheForm()
    {
        QWidget form;
        form.resize(100, 100);
        QObject owner;
        QSize seenBefore, seenAfter;
        new TFormHook(
            &form, &owner, [&](QEvent *e) {
                if (e->type() == QEvent::Resize)
                    seenBefore = form.size();
                return false;
            },
            [&](QEvent *e) { seenAfter = static_cast<QResizeEvent *>(e)->size(); }, {QEvent::Resize});
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        form.resize(150, 120);
        QTRY_COMPARE(seenAfter, QSize(150, 120));
        QVERIFY(seenBefore.isValid());
    }

    void hookOrFormMayGoFirst()
    {
        auto *form = new QWidget;
        auto *owner = new QObject;
        int calls = 0;
        auto *hook = new TFormHook(form, owner, [&](QEvent *) { ++calls; return false; });
        delete form;   // the hook stays, inert
        QVERIFY(!hook->Form());
        delete owner;  // and goes with its owner
        QWidget other;
        auto *component = new TComponent(&other);
        new TFormHook(&other, component, [&](QEvent *) { ++calls; return false; });
        delete component;   // the form goes on without it
        calls = 0;
        QEvent ping(QEvent::User);
        QCoreApplication::sendEvent(&other, &ping);
        QCOMPARE(calls, 0);
    }
};

QTEST_MAIN(tst_Form)
#include "tst_form.moc"
