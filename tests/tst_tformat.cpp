// The framework's Format for one floating-point argument.
#include "host/tformat.h"

#include <QDate>
#include <QtTest>

#include <clocale>
#include <cmath>

class tst_TFormat : public QObject
{
    Q_OBJECT
private slots:
    void shortDateYears()
    {
        QCOMPARE(FourDigitYear(QStringLiteral("yyyy-MM-dd")), QStringLiteral("yyyy-MM-dd"));
        QCOMPARE(FourDigitYear(QStringLiteral("dd.MM")), QStringLiteral("yyydd.MM"));
        QCOMPARE(FourDigitYear(QStringLiteral("d/M/y")), QStringLiteral("d/M/yyyy"));
        QCOMPARE(TwoDigitYear(QStringLiteral("dd/MM/yy")), QStringLiteral("dd/MM/yy"));
        // The process-wide format writes the library's dates.
        const QString saved = ShortDateFormat();
        SetShortDateFormat(QStringLiteral("yyyy|MM|dd"));
        QCOMPARE(DateToStr(QDate(2026, 11, 21)), QStringLiteral("2026|11|21"));
        SetShortDateFormat(saved);
    }

    void formats_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("e negative") << "%e" << -1234.5 << "-1.23450000000000E+003";
        QTest::newRow("e small") << "%e" << 0.00025 << "2.50000000000000E-004";
        QTest::newRow("e big exponent") << "%e" << 1e300 << "1.00000000000000E+300";
        QTest::newRow("e precision") << "%.3e" << 3.14159 << "3.14E+000";
        QTest::newRow("f default") << "%f" << 3.14159 << "3.14";
        QTest::newRow("f none") << "%.0f" << 2.5 << "2";
        QTest::newRow("f negative zero") << "%f" << -0.001 << "0.00";
        QTest::newRow("f left") << "%-8.2f|" << 1.5 << "1.50    |";
        QTest::newRow("n grouping") << "%n" << 1234567.891 << "1,234,567.89";
        QTest::newRow("n small") << "%.1n" << -999.95 << "-1,000.0";
        QTest::newRow("g integer") << "%g" << 42.0 << "42";
        QTest::newRow("g tiny") << "%g" << 0.0000015 << "1.5E-6";
        QTest::newRow("g huge") << "%g" << 1e20 << "1E20";
        QTest::newRow("text around") << "Result: %.2f V" << 12.345 << "Result: 12.35 V";
        QTest::newRow("percent") << "%.0f%%" << 50.0 << "50%";
        QTest::newRow("index") << "%0:.1f" << 2.25 << "2.2";
        QTest::newRow("no conversion") << "plain" << 1.0 << "plain";
    }

    void formats()
    {
        QFETCH(QString, format);
        QFETCH(double, value);
        QFETCH(QString, text);
        QString out;
        QVERIFY(FormatFloat(format, value, out, QLocale::c()));
        QCOMPARE(out, text);
    }

    void localeSeparators()
    {
        const QLocale german(QLocale::German, QLocale::Germany);
        QString out;
        QVERIFY(FormatFloat(QStringLiteral("%e"), 1.0L, out, german));
        QCOMPARE(out, QStringLiteral("1,00000000000000E+000"));
        QVERIFY(FormatFloat(QStringLiteral("%n"), 1234.5L, out, german));
        QCOMPARE(out, QStringLiteral("1.234,50"));
        QVERIFY(FormatFloat(QStringLiteral("%m"), 3.5L, out, german));
        QVERIFY(out.contains(QStringLiteral("3,50")));
        QVERIFY(out.contains(QChar(0x20AC)));
    }

    // The C library's locale must not leak into the text; values beyond a
    // double keep their digits.
    void processLocaleAndHugeValues()
    {
        const QByteArray saved = std::setlocale(LC_ALL, nullptr);
        if (!std::setlocale(LC_ALL, "de_DE.UTF-8"))
            QSKIP("de_DE.UTF-8 is not installed (scripts/setup.sh installs locales-all)");
        QString out;
        QVERIFY(FormatFloat(QStringLiteral("%f"), 1.0L, out, QLocale::c()));
        QCOMPARE(out, QStringLiteral("1.00"));
        QVERIFY(FormatFloat(QStringLiteral("%n"), -1234.567L, out, QLocale::c()));
        QCOMPARE(out, QStringLiteral("-1,234.57"));
        std::setlocale(LC_ALL, saved.constData());
        QVERIFY(FormatFloat(QStringLiteral("%m"), std::pow(10.0L, 400), out, QLocale(QLocale::English, QLocale::UnitedStates)));
        QVERIFY2(out.startsWith(QStringLiteral("$1.00000000000000E+400")) || out.contains(QStringLiteral("E+400")), qPrintable(out));
        QVERIFY(!out.contains(QStringLiteral("inf"), Qt::CaseInsensitive));
    }

    void rejects_data()
    {
        QTest::addColumn<QString>("format");
        QTest::newRow("integer") << "%d";
        QTest::newRow("string") << "%s";
        QTest::newRow("two conversions") << "%f and %e";
        QTest::newRow("second index") << "%1:f";
        QTest::newRow("star width") << "%*f";
        QTest::newRow("trailing percent") << "50%";
        QTest::newRow("unfinished") << "%.2";
    }

    void rejects()
    {
        QFETCH(QString, format);
        QString out = QStringLiteral("untouched");
        QVERIFY(!FormatFloat(format, 1.0L, out, QLocale::c()));
        QCOMPARE(out, QStringLiteral("untouched"));
    }
};

QTEST_APPLESS_MAIN(tst_TFormat)
#include "tst_tformat.moc"
