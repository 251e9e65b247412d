// The segment label and clock: cells, layout, caption spreading with its
// folded points and colons, forwarded mouse events, and the clock's ticks.
#include "displays/qseg.h"
#include "host/tcodepage.h"
#include "testutil.h"

namespace {

// What a cell shows: its character, then "." or ":" for its lit dots.
QString describe(TqSegment *cell)
{
    QString s(Win1252ToUnicode(cell->Char()));
    const TSegLook dots = cell->Look() & SegLook({15, 16});
    if (dots == SegLook({16}))
        s += QLatin1Char('.');
    else if (dots == SegLook({15, 16}))
        s += QLatin1Char(':');
    return s;
}

QStringList cells(TqCustomSegmentLabel &label)
{
    QStringList out;
    for (int i = 0; i < label.NumberOfChars(); ++i)
        out << describe(label.Segment(i));
    return out;
}

} // namespace

class tst_QSegLabel : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom)); }
    void cleanup() { TClockWork::SetDefaultSource({}); }

    void designTimeCaption()
    {
        DesignTimeCreation designer;
        TqSegmentLabel label;
        QCOMPARE(label.Caption(), QStringLiteral("QuovarSoft"));
        QCOMPARE(cells(label), (QStringList{"Q", "u", "o", "v", "a", "r", "S", "o", "f", "t", " "}));
    }

    // The label says it covers every pixel; the clock keeps the base's style.
    void onlyTheLabelIsOpaque()
    {
        TqSegmentLabel label;
        TqSegmentClock clock;
        QVERIFY(label.ControlStyle() & csOpaque);
        QVERIFY(!(clock.ControlStyle() & csOpaque));
        QVERIFY(!clock.testAttribute(Qt::WA_OpaquePaintEvent));
    }

    void cellsTouchAndFollowSize()
    {
        TqSegmentLabel label;
        label.SetSize(2);
        QCOMPARE(label.size(), QSize(418, 58));
        for (int i = 0; i < 11; ++i) {
            QCOMPARE(label.Segment(i)->geometry(), QRect(i * 38, 0, 38, 58));
            QCOMPARE(int(label.Segment(i)->Size()), 2);
        }
        QVERIFY(!label.Cell(11));
        label.SetElements(3);
        QCOMPARE(label.size(), QSize(114, 58));
        QVERIFY(!label.Cell(3));
    }

    void rebuildFreesOldCellsAndKeepsTheCaption()
    {
        TqSegmentLabel label;
        label.SetCaption(QStringLiteral("42"));
        QPointer<QWidget> old = label.Cell(0);
        label.SetSize(3);
        QVERIFY(old.isNull());
        QCOMPARE(label.findChildren<TqSegment *>().size(), 11);
        QCOMPARE(cells(label).mid(0, 2), (QStringList{"4", "2"}));   // caption spread again
        label.SetElements(12);
        label.SetElements(12);   // unchanged: no rebuild
        QCOMPARE(label.findChildren<TqSegment *>().size(), 12);
        // No cells at all: the caption is kept for the next ones.
        label.SetCaption(QStringLiteral("7.5"));
        label.SetElements(0);
        QCOMPARE(label.width(), 0);
        QVERIFY(label.findChildren<TqSegment *>().isEmpty());
        QCOMPARE(label.Caption(), QStringLiteral("7.5"));
        label.SetElements(2);
        QCOMPARE(cells(label), (QStringList{"7.", "5"}));
    }

    void caption_data()
    {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<int>("count");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("point folds") << "12.5" << 4 << QStringList{"1", "2.", "5", " "};
        QTest::newRow("leading point") << ".5" << 3 << QStringList{"..", "5", " "};
        QTest::newRow("two points") << "1..2" << 3 << QStringList{"1.", "2", " "};
        QTest::newRow("colon folds") << "12:34" << 4 << QStringList{"1", "2:", "3", "4"};
        QTest::newRow("comma is a point") << "3,14" << 3 << QStringList{"3.", "1", "4"};
        QTest::newRow("semicolon is a colon") << "1;2" << 2 << QStringList{"1:", "2"};
        QTest::newRow("last dot wins") << "1.:2" << 2 << QStringList{"1:", "2"};
        QTest::newRow("leading colon") << ":5" << 2 << QStringList{"::", "5"};
        QTest::newRow("cut after the cells") << "ABCDEFGH" << 4 << QStringList{"A", "B", "C", "D"};
        QTest::newRow("nothing after the last cell") << "1234." << 4 << QStringList{"1", "2", "3", "4"};
        QTest::newRow("empty is one space") << "" << 2 << QStringList{" ", " "};
        QTest::newRow("Windows-1252") << QString::fromUtf8("5\u20AC") << 2 << QStringList{"5", QString::fromUtf8("\u20AC")};
    }

    void caption()
    {
        QFETCH(QString, caption);
        QFETCH(int, count);
        QFETCH(QStringList, shown);
        TqSegmentLabel label;
        label.SetElements(quint8(count));
        label.SetCaption(caption);
        QCOMPARE(cells(label), shown);
        QCOMPARE(label.Caption(), caption.isEmpty() ? QStringLiteral(" ") : caption);
    }

    void earlierPointStays()
    {
        TqSegmentLabel label;
        label.SetElements(3);
        label.SetCaption(QStringLiteral("1.5"));
        label.SetCaption(QStringLiteral("15"));
        // The 1 is unchanged, so its cell is left alone, point and all.
        QCOMPARE(cells(label), (QStringList{"1.", "5", " "}));
        label.SetCaption(QStringLiteral("25"));
        QCOMPARE(cells(label), (QStringList{"2", "5", " "}));
    }

    void extentSnapsBack()
    {
        TqSegmentLabel label;
        label.show();
        label.SetWidth(500);
        QCOMPARE(label.width(), 209);
        label.SetHeight(5);
        QCOMPARE(label.height(), 29);
        label.resize(300, 100);   // as a layout or the designer would
        QCOMPARE(label.size(), QSize(209, 29));
    }

    void coloursAndVisibilityReachEveryCell()
    {
        QWidget form;
        auto *label = new TqSegmentLabel(&form);
        label->SetLitColor(clRed);
        label->SetUnLitColor(clMaroon);
        label->SetColor(clNavy);
        QCOMPARE(label->Segment(10)->UnLitColor(), clMaroon);
        label->SetElements(2);   // new cells take the label's settings
        QCOMPARE(label->Segment(1)->LitColor(), clRed);
        QCOMPARE(label->Segment(1)->Color(), clNavy);
        label->SetVisible(false);
        QVERIFY(!label->Visible());
        QVERIFY(!label->Segment(0)->Visible());
        label->SetParentColor(true);
        QVERIFY(label->Segment(0)->ParentColor());
        QCOMPARE(label->Segment(0)->Color(), label->Color());
    }

    void mouseEventsComeFromTheLabel()
    {
        TqSegmentLabel label;
        label.SetSize(2);
        QSignalSpy clicks(&label, &TControl::OnClick), downs(&label, &TControl::OnMouseDown),
            moves(&label, &TControl::OnMouseMove);
        // A click on the third cell, 5 pixels into it.
        QTest::mouseClick(label.Segment(2), Qt::LeftButton, Qt::NoModifier, QPoint(5, 20));
        QCOMPARE(clicks.count(), 1);
        QCOMPARE(clicks.at(0).at(0).value<QObject *>(), &label);
        QCOMPARE(downs.count(), 1);
        QCOMPARE(downs.at(0).at(0).value<QObject *>(), &label);
        QCOMPARE(downs.at(0).at(3).toInt(), 5);    // the cell's own X
        QCOMPARE(downs.at(0).at(4).toInt(), 20);
        QMouseEvent move(QEvent::MouseMove, QPointF(7, 3), label.Segment(1)->mapToGlobal(QPointF(7, 3)),
                         Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(label.Segment(1), &move);
        QCOMPARE(moves.count(), 1);
        QCOMPARE(moves.at(0).at(2).toInt(), 7);
        QSignalSpy doubles(&label, &TControl::OnDblClick);
        QTest::mouseDClick(label.Segment(0), Qt::LeftButton, Qt::NoModifier, QPoint(2, 3));
        QCOMPARE(doubles.count(), 1);
        QCOMPARE(doubles.at(0).at(0).value<QObject *>(), &label);
    }

    void clockTicks_data()
    {
        QTest::addColumn<bool>("seconds");
        QTest::newRow("minutes") << false;
        QTest::newRow("seconds") << true;
    }

    void clockTicks()
    {
        QFETCH(bool, seconds);
        QTime now(13, 7, 45);
        TClockWork::SetDefaultSource([&now] { return now; });
        TqSegmentClock clock;
        QCOMPARE(clock.Caption(), QStringLiteral("13:07:45"));
        clock.SetSek(seconds);
        QSignalSpy changes(&clock, &TqSegmentClock::OnTimeChange);
        clock.Timer()->SetInterval(5);
        waitForTicks(clock.Timer(), 2);
        QCOMPARE(int(changes.count()), 0);   // nothing new yet

        // Same minute, new second: only the clock with seconds changes.
        now = QTime(13, 7, 50);
        if (seconds) {
            QTRY_COMPARE(int(changes.count()), 1);
            QCOMPARE(changes.at(0).at(0).value<QObject *>(), &clock);
            QCOMPARE(clock.Caption(), QStringLiteral("13:07:50"));
        } else {
            waitForTicks(clock.Timer(), 2);
            QCOMPARE(int(changes.count()), 0);
            QCOMPARE(clock.Caption(), QStringLiteral("13:07:45"));
        }

        // New minute, same second: only the clock without seconds changes.
        now = QTime(13, 8, 50);
        if (seconds) {
            waitForTicks(clock.Timer(), 2);
            QCOMPARE(clock.Caption(), QStringLiteral("13:07:50"));
        } else {
            QTRY_COMPARE(clock.Caption(), QStringLiteral("13:08:50"));
        }
        QCOMPARE(int(changes.count()), 1);
    }

    void clockDisplay_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<bool>("seconds");
        QTest::addColumn<QStringList>("shown");
        const QLocale uk(QLocale::English, QLocale::UnitedKingdom), us(QLocale::English, QLocale::UnitedStates);
        QTest::newRow("24 hours, minutes") << uk << false << QStringList{"0", "9:", "0", "5"};
        QTest::newRow("24 hours, seconds") << uk << true << QStringList{"0", "9:", "0", "5:", "0", "0"};
        // Without a leading zero the digits shift left.
        QTest::newRow("12 hours, minutes") << us << false << QStringList{"9:", "0", "5:", "0"};
    }

    void clockDisplay()
    {
        QFETCH(QLocale, locale);
        QFETCH(bool, seconds);
        QFETCH(QStringList, shown);
        QLocale::setDefault(locale);
        TClockWork::SetDefaultSource([] { return QTime(9, 5, 0); });
        TqSegmentClock clock;
        clock.SetSek(seconds);   // rebuilt at once with the stored caption
        QCOMPARE(cells(clock), shown);
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    }
};

QTEST_MAIN(tst_QSegLabel)
#include "tst_qseglabel.moc"
