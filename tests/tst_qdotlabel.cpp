// The dot label and dot clock: one cell a character, sizes, styles passed
// down, forwarded events and the clock's cells.
#include "displays/qseg.h"
#include "host/tcodepage.h"
#include "testutil.h"

namespace {
QString shown(TqcCustomDotLabel &label)
{
    QString s;
    for (int i = 0; i < label.NumberOfChars(); ++i)
        s += Win1252ToUnicode(label.DotCell(i)->Char());
    return s;
}
} // namespace

class tst_QcDotLabel : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom)); }
    void cleanup() { TClockWork::SetDefaultSource({}); }

    void runtimeAndDesignTime()
    {
        TqcDotLabel runtime;
        QCOMPARE(int(runtime.NumberOfChars()), 11);
        QCOMPARE(runtime.size(), QSize(253, 29));
        QCOMPARE(runtime.DotCell(3)->size(), QSize(23, 29));
        QCOMPARE(shown(runtime), QString(11, QLatin1Char(' ')));
        DesignTimeCreation designer;
        TqcDotLabel designed;
        QCOMPARE(shown(designed), QStringLiteral("QuovarSoft "));
    }

    void caption_data()
    {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("cells");
        QTest::newRow("points take a cell") << "12.5" << 5 << "12.5 ";
        QTest::newRow("colons too") << "12:34" << 5 << "12:34";
        QTest::newRow("cut") << "Hello, world" << 5 << "Hello";
        QTest::newRow("empty") << "" << 3 << "   ";
        QTest::newRow("accents") << QString::fromUtf8("Ø°C") << 3 << QString::fromUtf8("Ø°C");
    }

    void caption()
    {
        QFETCH(QString, caption);
        QFETCH(int, count);
        QFETCH(QString, cells);
        TqcDotLabel label;
        label.SetElements(quint8(count));
        label.SetCaption(caption);
        QCOMPARE(shown(label), cells);
        QCOMPARE(label.Caption(), caption.isEmpty() ? QStringLiteral(" ") : caption);
        QCOMPARE(label.DotCell(0)->Look(), DotCharLook(UnicodeToWin1252(cells[0])));
    }

    void sizeStyleAndGapReachTheCells()
    {
        TqcDotLabel label;
        label.SetSize(4);
        QCOMPARE(label.size(), QSize(506, 58));
        for (int i = 0; i < 11; ++i)
            QCOMPARE(label.DotCell(i)->geometry(), QRect(i * 46, 0, 46, 58));
        label.SetStyle(qcdsDot);
        label.SetGap(false);
        label.SetLitColor(clYellow);
        QCOMPARE(label.DotCell(3)->Style(), qcdsDot);
        QVERIFY(!label.DotCell(3)->UseGap());
        QCOMPARE(label.DotCell(3)->LitColor(), clYellow);
        label.SetSize(2);   // rebuilt cells keep them
        QCOMPARE(label.DotCell(10)->Style(), qcdsDot);
        QVERIFY(!label.DotCell(10)->UseGap());
        QCOMPARE(label.DotCell(10)->LitColor(), clYellow);
        label.SetWidth(10);   // the width follows the size alone
        QCOMPARE(label.width(), 330);
        label.SetElements(0);
        QCOMPARE(label.width(), 0);
    }

    void clock_data()
    {
        QTest::addColumn<bool>("seconds");
        QTest::addColumn<QString>("cells");
        QTest::newRow("hours and minutes") << false << "13:07";
        QTest::newRow("with seconds") << true << "13:07:45";
    }

    void clock()
    {
        QFETCH(bool, seconds);
        QFETCH(QString, cells);
        TClockWork::SetDefaultSource([] { return QTime(13, 7, 45); });
        TqcDotClock clock;
        clock.SetSek(seconds);
        QCOMPARE(int(clock.NumberOfChars()), cells.size());
        QCOMPARE(clock.width(), 23 * int(cells.size()));
        QCOMPARE(shown(clock), cells);
        clock.SetPriority(TqcTimer::tpLowest);
        QCOMPARE(clock.Timer()->Priority(), TqcTimer::tpLowest);
    }

    void clockTicksOncePerMinute()
    {
        QTime now(8, 59, 58);
        TClockWork::SetDefaultSource([&now] { return now; });
        TqcDotClock clock;
        QSignalSpy changes(&clock, &TqcDotClock::OnTimeChange);
        clock.Timer()->SetInterval(5);
        now = QTime(8, 59, 59);
        waitForTicks(clock.Timer(), 2);
        QCOMPARE(changes.count(), 0);
        now = QTime(9, 0, 0);
        QTRY_COMPARE(changes.count(), 1);
        QCOMPARE(shown(clock), QStringLiteral("09:00"));
        waitForTicks(clock.Timer(), 2);
        QCOMPARE(changes.count(), 1);
    }
};

QTEST_MAIN(tst_QcDotLabel)
#include "tst_qdotlabel.moc"
