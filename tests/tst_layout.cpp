// Splitter panels, the move panel and the tabbed list box.
#include "host/tapplication.h"
#include "layout/qsplit.h"
#include "layout/qtablistbox.h"
#include "services/mystd.h"

#include "testutil.h"

namespace {

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
    void barLimitsAndThickness()
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
        split.SetSplitterWidth(11);
        QCOMPARE(split.SplitterWidth(), 10);
        EventLog log;
        log.watch(&split, &TqVerSplit::OnSplitChange, "change");
        split.SetWhereSplit(split.WhereSplit());   // told even when nothing moved
        QCOMPARE(log.names, QStringList{"change"});
        split.SetWidth(5);
        QCOMPARE(split.Width(), 10);
        TqHorSplit hor;
        hor.GoMedium();
        QCOMPARE(QRect(hor.Bar()->geometry()), QRect(0, 97, 200, 6));
    }

    void neighboursMoveByTheBarsDistance()
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

    void barDraggedByTheMouse()
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
        EventCounter presses(&shown.form, QEvent::MouseButtonPress);
        QTest::mouseClick(split, Qt::LeftButton, {}, QPoint(100, 100));
        QCOMPARE(presses.count, 0);
        split->SetPassMouseOn(true);
        QTest::mouseClick(split, Qt::LeftButton, {}, QPoint(100, 100));
        QCOMPARE(presses.count, 1);
    }

    // A press passed on reaches the parent as the panel had it.
    void passedPressKeepsItsCoordinates()
    {
        ShownOnForm<TqVerSplit> shown;
        auto *inner = new TqVerSplit(shown.control);
        inner->SetBounds(50, 50, 150, 150);
        inner->SetPassMouseOn(true);
        inner->show();
        QSignalSpy down(shown.control, &TControl::OnMouseDown);
        QTest::mouseClick(inner, Qt::LeftButton, {}, QPoint(100, 120));
        QCOMPARE(down.count(), 1);
        QCOMPARE(down.at(0).at(0).value<QObject *>(), shown.control);
        QCOMPARE(down.at(0).at(3).toInt(), 100);
        QCOMPARE(down.at(0).at(4).toInt(), 120);
    }

    // Raised after every change of size, by code or by alignment, and only then.
    void panelsTellTheirResize()
    {
        QWidget form;
        form.resize(300, 200);
        auto *split = new TqHorSplit(&form);
        auto *panel = new TqMovePanel(&form);
        EventLog log;
        log.watch(split, &TqVerSplit::OnResize, "split");
        log.watch(panel, &TqMovePanel::OnResize, "panel");
        connect(split, &TqVerSplit::OnResize, &form, [split](QObject *sender) {
            QCOMPARE(sender, split);
            QCOMPARE(split->Height(), 120);   // after the change
        });
        split->SetHeight(120);
        split->SetHeight(120);
        split->SetLeft(7);
        panel->SetBounds(10, 10, 50, 30);
        panel->SetBounds(20, 20, 50, 30);
        QCOMPARE(log.names, (QStringList{"split", "panel"}));
        panel->SetStickOldStyle(false);
        panel->SetStickWhere(TqMovePanel::stRight);   // aligned: as high as the form
        QCOMPARE(log.names, (QStringList{"split", "panel", "panel"}));
    }

    void movePanelDraggedHeldAndVetoed()
    {
        QWidget form;
        form.resize(400, 300);
        auto *area = new QWidget(&form);
        area->setGeometry(0, 0, 200, 150);
        auto *panel = new TqMovePanel(area);
        panel->SetBounds(100, 20, 50, 30);
        QVERIFY(shown(&form));
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

    void movePanelSticks()
    {
        QWidget form;
        form.resize(400, 300);
        auto *panel = new TqMovePanel(&form);
        panel->SetBounds(100, 100, 50, 30);
        QVERIFY(shown(&form));
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
        // Dragged away, it goes back to its alignment.
        drag(panel, QPoint(10, 10), QPoint(-200, 40));
        QCOMPARE(panel->geometry(), QRect(450, 0, 50, 300));
        QCOMPARE(panel->Align(), alRight);
        panel->SetBounds(0, 50, 60, 10);   // any new bounds: the width stays, the place does not
        QCOMPARE(panel->geometry(), QRect(440, 0, 60, 300));
        // A veto still ends at the edge.
        connect(panel, &TqMovePanel::OnBeforeUpdate, panel, [](QObject *, int &X, int &, int &, int &) { X = 0; });
        panel->SetStickOldStyle(true);
        panel->SetStickWhere(TqMovePanel::stTop);
        drag(panel, QPoint(10, 10), QPoint(20, 80));
        QCOMPARE(panel->Top(), 0);
        QCOMPARE(panel->Left(), 0);
    }

    void badTabStopsRaise()
    {
        QCOMPARE(ParseTabStops(QStringLiteral(" 40, 80;120 ")), (QList<int>{40, 80, 120}));
        const auto raises = [](const QString &stops, const char *message) {
            try {
                ParseTabStops(stops);
            } catch (const EqTabListboxError &e) {
                QCOMPARE(QString::fromUtf8(e.what()), QString::fromLatin1(message));
                return;
            }
            QFAIL(qPrintable(QStringLiteral("no error for \"%1\"").arg(stops)));
        };
        raises(QStringLiteral("40 -5"), "Tab stop -5 is negative");
        raises(QStringLiteral("80 40"), "Tab stops must ascend: 40 follows 80");
        raises(QStringLiteral("40 wide"), "\"wide\" is not a tab stop");
        // From the property: raised, and the stops stay as they were.
        TqTabListbox box;
        box.SetTabStops(QStringLiteral("30 60"));
        QVERIFY_THROWS_EXCEPTION(EqTabListboxError, box.SetTabStops(QStringLiteral("60 30")));
        QCOMPARE(box.Tabs(), (QList<int>{30, 60}));
        // Through the property, as a form loader sets it: no exception
        // crosses Qt; the application is told and the stops stay.
        QStringList errors;
        QObject context;
        connect(Application(), &TApplication::OnException, &context,
                [&](QObject *sender, const std::exception &e) {
                    QCOMPARE(sender, &box);
                    errors << QString::fromUtf8(e.what());
                });
        QVERIFY(box.setProperty("TabStops", QStringLiteral("60 30")));
        QCOMPARE(errors, QStringList{"Tab stops must ascend: 30 follows 60"});
        QCOMPARE(box.Tabs(), (QList<int>{30, 60}));
        // In the designer the message is shown instead and nothing changes.
        box.SetDesigning(true);
        QTest::ignoreMessage(QtCriticalMsg, "Tab stop -1 is negative");
        box.SetTabStops(QStringLiteral("-1"));
        QCOMPARE(box.TabStops(), QStringLiteral("30 60"));
    }

    void partsGoToTheNextStop()
    {
        // A part starts at the first stop past the end of the one before; past
        // the last stop the last interval repeats.
        QCOMPARE(TabColumns({10, 60, 5, 5}, {50, 100}, 64), (QList<int>{0, 50, 150, 200}));
        // A part that ends exactly on a stop goes on to the next.
        QCOMPARE(TabColumns({50, 5}, {50, 100}, 64), (QList<int>{0, 100}));
        // One stop: every so many pixels; none: the default step.
        QCOMPARE(TabColumns({5, 5, 45}, {40}, 64), (QList<int>{0, 40, 80}));
        QCOMPARE(TabColumns({5, 70, 1}, {}, 64), (QList<int>{0, 64, 192}));
        // Stops in characters are the font's average character width.
        TqTabListbox box;
        box.SetTabs({10, 20});
        box.SetTabUnits(TqTabListbox::tuChars);
        const int unit = QFontMetrics(box.font()).averageCharWidth();
        QCOMPARE(box.PixelTabs(), (QList<int>{10 * unit, 20 * unit}));
    }

    void columnsAlignOnScreen()
    {
        ShownOnForm<TqTabListbox> shown;
        TqTabListbox *box = shown.control;
        box->setFont(crisp(box->font(), 13));
        box->SetFontColor(clRed);
        box->SetColor(clWhite);
        box->resize(190, 80);
        box->SetTabStops(QStringLiteral("70 120"));
        box->SetItems({QStringLiteral("A\tX\t1"), QStringLiteral("Amplitude\tX\t1")});
        QCoreApplication::processEvents();
        QCOMPARE(box->ColumnsOf(0).mid(1), box->ColumnsOf(1).mid(1));
        // The leftmost red pixel right of each stop is at the same x in both rows.
        const QImage shot = box->viewport()->grab().toImage();
        const auto firstInk = [&](int row, int fromX) {
            const QRect r = box->visualRect(box->model()->index(row, 0));
            for (int x = fromX; x < r.right(); ++x)
                for (int y = r.top(); y <= r.bottom(); ++y)
                    if (shot.pixel(x, y) == qRgb(255, 0, 0))
                        return x;
            return -1;
        };
        const int stop = box->ColumnsOf(0)[1];
        QVERIFY(firstInk(0, stop) >= stop && firstInk(0, stop) < stop + 4);
        QCOMPARE(firstInk(1, stop), firstInk(0, stop));
        QCOMPARE(firstInk(1, box->ColumnsOf(1)[2]), firstInk(0, box->ColumnsOf(0)[2]));
        // Between the short first part and the stop: the tab's blank.
        QCOMPARE(firstInk(0, TqTabListbox::TextMargin + 12), firstInk(0, stop));
    }

    void listKeysAndClicks()
    {
        ShownOnForm<TqTabListbox> shown;
        TqTabListbox *box = shown.control;
        box->resize(150, 100);
        box->SetItems({QStringLiteral("1\tone"), QStringLiteral("2\ttwo"), QStringLiteral("3\tthree")});
        QSignalSpy clicks(box, &TqTabListbox::OnClick), doubles(box, &TqTabListbox::OnDblClick);
        box->SetItemIndex(0);   // from code: no event
        QCOMPARE(box->ItemIndex(), 0);
        QCOMPARE(clicks.count(), 0);
        QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(box->ItemIndex(), 1);
        QCOMPARE(clicks.count(), 1);
        const QPoint first = box->visualRect(box->model()->index(0, 0)).center();
        QTest::mouseClick(box->viewport(), Qt::LeftButton, {}, first);
        QCOMPARE(box->ItemIndex(), 0);
        QCOMPARE(clicks.count(), 2);
        QTest::mouseClick(box->viewport(), Qt::LeftButton, {}, first);   // the same item again: nothing new
        QCOMPARE(clicks.count(), 2);
        QTest::mouseDClick(box->viewport(), Qt::LeftButton, {}, first);
        QCOMPARE(doubles.count(), 1);
        QTest::mouseDClick(box->viewport(), Qt::LeftButton, {}, QPoint(5, 95));   // below the items
        QCOMPARE(doubles.count(), 1);
        box->SetItemIndex(7);   // out of range: nothing selected
        QCOMPARE(box->ItemIndex(), -1);
    }
};

QTEST_MAIN(tst_Layout)
#include "tst_layout.moc"
