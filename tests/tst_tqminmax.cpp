// The size guard without a window manager (tst_desktop has one).
#include "services/std2.h"

#include "testutil.h"

class tst_TqMinMax : public QObject
{
    Q_OBJECT
private slots:
    void taskbarOnEachSide()
    {
        const QRect screen(0, 0, 1024, 768);
        struct Case
        {
            QRect available;
            int maxLeft, maxTop, maxDragWidth, maxDragHeight;
        } cases[] = {
            {QRect(0, 0, 1024, 738), 0, 0, 1024, 740},     // bottom, 30 high: 769 - 29
            {QRect(0, 30, 1024, 738), 0, 30, 1024, 739},   // top: 769 - 30
            {QRect(40, 0, 984, 768), 40, 0, 985, 768},     // left: 1025 - 40
            {QRect(0, 0, 984, 768), 0, 0, 986, 768},       // right: 1025 - 39
        };
        for (const Case &c : cases) {
            const QRect bar = TaskbarRect(screen, c.available);
            QVERIFY(!bar.isEmpty());
            TSizeLimits l;
            l.MaxWidth = 321;
            AdjustForTaskbar(screen.size(), bar, l);
            QCOMPARE(QList<int>({l.MaxLeft, l.MaxTop, l.MaxDragWidth, l.MaxDragHeight}),
                     QList<int>({c.maxLeft, c.maxTop, c.maxDragWidth, c.maxDragHeight}));
            QCOMPARE(l.MaxWidth, 321);   // the maximised size stays
        }
        QVERIFY(TaskbarRect(screen, screen).isEmpty());
    }

    void formFittedAtOnce()
    {
        QWidget form;
        form.resize(500, 300);
        auto *guard = new TqMinMax(&form);   // the defaults already apply: 600 x 400 at most
        QCOMPARE(form.size(), QSize(500, 300));
        guard->SetMaxDragWidth(300);   // not below the maximised width
        QCOMPARE(guard->MaxDragWidth(), 600);
        QCOMPARE(form.width(), 500);
        guard->SetMaxWidth(300);
        guard->SetMaxDragWidth(300);
        QCOMPARE(form.width(), 300);
        guard->SetMinDragWidth(800);   // raises the others and grows the form
        QCOMPARE(guard->MaxWidth(), 800);
        QCOMPARE(guard->MaxDragWidth(), 800);
        QCOMPARE(form.width(), 800);
        // A guard on no form has none to fit: it cannot even be made.
        QVERIFY_THROWS_EXCEPTION(EComponentError, TqMinMax(nullptr));
        auto *taken = new TqMinMax(&form);
        taken->setParent(nullptr);
        const std::unique_ptr<TqMinMax> alone(taken);
        QVERIFY_THROWS_EXCEPTION(EComponentError, alone->SetMaxWidth(10));
        QVERIFY_THROWS_EXCEPTION(EComponentError, loaded(alone.get()));
    }

    void queriesAnsweredPerQuery()
    {
        QWidget form;
        form.resize(300, 200);
        auto *guard = new TqMinMax(&form);
        guard->SetMinDragWidth(250);
        guard->SetMinDragHeight(150);
        loaded(guard);
        QCOMPARE(form.minimumSize(), QSize(250, 150));
        QCOMPARE(form.maximumSize(), QSize(600, 400));
        // OnSizeChange changes one query's limits, not the properties.
        int queries = 0;
        connect(guard, &TqMinMax::OnSizeChange, guard,
                [&](QObject *, int &minW, int &, int &, int &, int &maxDragW, int &, int &, int &) {
                    ++queries;
                    minW = 100;
                    maxDragW = 700;
                });
        form.show();
        QCOMPARE(queries, 1);
        QCOMPARE(form.minimumSize(), QSize(100, 150));
        QCOMPARE(form.maximumWidth(), 700);
        QCOMPARE(guard->MinDragWidth(), 250);
        // With the system's own limits the properties follow the proposal and
        // the setters leave the form alone.
        guard->SetUseDefaultSize(true);
        QueryMinMaxInfo(&form);
        QCOMPARE(guard->MaxLeft(), form.screen()->availableGeometry().left());
        QCOMPARE(guard->MaxDragWidth(), form.screen()->virtualSize().width());
        QCOMPARE(form.maximumWidth(), 700);   // OnSizeChange still has the last word
        QCOMPARE(guard->MaxWidth(), form.screen()->availableGeometry().width() - (form.frameGeometry().width() - form.width()));
        const QSize before = form.size();
        guard->SetMaxDragWidth(120);
        QCOMPARE(form.size(), before);
    }
};

QTEST_MAIN(tst_TqMinMax)
#include "tst_tqminmax.moc"
