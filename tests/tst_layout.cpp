// Splitter panels and the move panel: the bar's limits and thickness rules,
// the controls on either side moved by exactly the bar's distance, a real
// drag of the bar, presses passed to the parent; the move panel dragged,
// held inside a parent panel but not a form, vetoed, and stuck to an edge
// by placement or by alignment.
#include "layout/qsplit.h"
#include "services/mystd.h"

#include "testutil.h"

namespace {

// Counts the presses that reach a widget.
struct PressCounter : QObject
{
    int presses = 0;
    bool eventFilter(QObject *, QEvent *e) override
    {
        presses += e->type() == QEvent::MouseButtonPress;
        return false;
    }
};

void drag(QWidget *w, QPoint from, QPoint to)
{
    QTest::mousePress(w, Qt::LeftButton, {}, from);
    dragTo(w, to);
    QTest::mouseRelease(w, Qt::LeftButton, {}, to);
}

} // namespace

class tst_Layout : public QObject
{
    Q_OBJECT
private slots:
    void barLimitsAndThickness();
    void neighboursMoveByTheBarsDistance();
    void barDraggedByTheMouse();
    void movePanelDraggedHeldAndVetoed();
    void movePanelSticks();
};

void tst_Layout::barLimitsAndThickness()
{
    TqVerSplit split;
    QCOMPARE(QRect(split.Bar()->geometry()), QRect(0, 0, 6, 200));
    split.GoMaximum();
    QCOMPARE(split.WhereSplit(), 194);
    split.GoMedium();
    QCOMPARE(split.WhereSplit(), 97);
    split.SetWhereSplit(500);
    QCOMPARE(split.WhereSplit(), 194);
    split.SetWhereSplit(-5);
    QCOMPARE(split.WhereSplit(), 0);
    split.SetWhereSplit(50);
    split.SetSplitterWidth(3);   // back to the start, at least 6
    QCOMPARE(split.WhereSplit(), 0);
    QCOMPARE(split.SplitterWidth(), 6);
    split.SetSplitterWidth(150);   // at most half the panel
    QCOMPARE(split.SplitterWidth(), 100);
    split.SetNewLook(true);   // even thicknesses: odd ones above 6 lose one
    split.SetSplitterWidth(9);
    QCOMPARE(split.SplitterWidth(), 8);
    split.SetSplitterWidth(11);
    QCOMPARE(split.SplitterWidth(), 10);
    EventLog log;
    log.watch(&split, &TqVerSplit::OnSplitChange, "change");
    split.SetWhereSplit(split.WhereSplit());   // told even when nothing moved
    QCOMPARE(log.names, QStringList{"change"});
    split.SetWidth(5);
    QCOMPARE(split.Width(), 10);
    TqHorSplit hor;
    QCOMPARE(QRect(hor.Bar()->geometry()), QRect(0, 0, 200, 6));
    hor.GoMedium();
    QCOMPARE(hor.Bar()->y(), 97);
}

void tst_Layout::neighboursMoveByTheBarsDistance()
{
    TqVerSplit split;
    auto *left = new QWidget(&split), *right = new QWidget(&split);
    split.SetWhereSplit(100);
    left->setGeometry(10, 5, 80, 50);
    right->setGeometry(120, 5, 60, 50);
    split.SetWhereSplit(130);
    QCOMPARE(right->geometry(), QRect(150, 5, 60, 50));   // moved, not resized
    QCOMPARE(left->x(), 40);                               // both sides move
    split.SetMoveOnChangeRight(false);
    split.SetWhereSplit(100);
    QCOMPARE(right->x(), 150);
    QCOMPARE(left->x(), 10);
}

void tst_Layout::barDraggedByTheMouse()
{
    ShownOnForm<TqVerSplit> shown;
    TqVerSplit *split = shown.control;
    auto *right = new QWidget(split);
    right->setGeometry(50, 0, 40, 40);
    right->show();
    TqSplit *bar = split->Bar();
    QTest::mousePress(bar, Qt::LeftButton, {}, QPoint(3, 50));
    dragTo(bar, QPoint(33, 60));
    QCOMPARE(bar->x(), 0);   // only the rubber band moves while dragging
    QTest::mouseRelease(bar, Qt::LeftButton, {}, QPoint(33, 60));
    QCOMPARE(bar->geometry(), QRect(30, 0, 6, 200));
    QCOMPARE(split->WhereSplit(), 30);
    QCOMPARE(right->x(), 80);
    // Past the panel's edge the bar stops at it.
    drag(bar, QPoint(3, 50), QPoint(400, 50));
    QCOMPARE(split->WhereSplit(), 194);
    // A press on the panel itself may go to its parent.
    PressCounter counter;
    shown.form.installEventFilter(&counter);
    QTest::mouseClick(split, Qt::LeftButton, {}, QPoint(100, 100));
    QCOMPARE(counter.presses, 0);
    split->SetPassMouseOn(true);
    QTest::mouseClick(split, Qt::LeftButton, {}, QPoint(100, 100));
    QCOMPARE(counter.presses, 1);
}

void tst_Layout::movePanelDraggedHeldAndVetoed()
{
    QWidget form;
    form.resize(400, 300);
    auto *area = new QWidget(&form);
    area->setGeometry(0, 0, 200, 150);
    auto *panel = new TqMovePanel(area);
    panel->SetBounds(100, 20, 50, 30);
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    drag(panel, QPoint(10, 10), QPoint(90, 10));   // right edge past the parent's
    QCOMPARE(panel->Left(), 200 - 50 - 1);
    drag(panel, QPoint(10, 10), QPoint(-400, -400));
    QCOMPARE(panel->pos(), QPoint(0, 0));
    // On a form it may go past the right edge.
    auto *free = new TqMovePanel(&form);
    free->SetBounds(300, 200, 50, 30);
    free->show();
    drag(free, QPoint(10, 10), QPoint(90, 10));
    QCOMPARE(free->Left(), 380);
    // A veto puts the old place back.
    connect(free, &TqMovePanel::OnBeforeUpdate, free, [](QObject *, int &X, int &Y, int &, int &) {
        X = 300;
        Y = 200;
    });
    drag(free, QPoint(10, 10), QPoint(30, 30));
    QCOMPARE(free->pos(), QPoint(300, 200));
}

void tst_Layout::movePanelSticks()
{
    QWidget form;
    form.resize(400, 300);
    auto *panel = new TqMovePanel(&form);
    panel->SetBounds(100, 100, 50, 30);
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    panel->SetStickWhere(TqMovePanel::stRight);
    QCOMPARE(panel->Left(), 350);
    drag(panel, QPoint(10, 10), QPoint(-90, 40));   // back at the edge after every drag
    QCOMPARE(panel->pos(), QPoint(350, 130));
    panel->SetLeft(10);
    panel->SetStickWhere(TqMovePanel::stRight);   // the same value sticks again
    QCOMPARE(panel->Left(), 350);
    // New style: aligned, and kept there when the parent grows.
    panel->SetStickOldStyle(false);
    QCOMPARE(panel->Align(), alRight);
    form.resize(500, 300);
    QTRY_COMPARE(panel->Left(), 450);
    // A veto still ends at the edge.
    connect(panel, &TqMovePanel::OnBeforeUpdate, panel, [](QObject *, int &X, int &, int &, int &) { X = 0; });
    panel->SetStickOldStyle(true);
    panel->SetStickWhere(TqMovePanel::stTop);
    drag(panel, QPoint(10, 10), QPoint(20, 80));
    QCOMPARE(panel->Top(), 0);
    QCOMPARE(panel->Left(), 0);
}

QTEST_MAIN(tst_Layout)
#include "tst_layout.moc"
