// The expression calculator: grammar, numbers, registers, result codes,
// cursor positions, events and formatting.
#include "services/mystd.h"

#include <QtTest>

#include <clocale>

#include <cmath>

Q_DECLARE_METATYPE(TqCalc::TqCalcResult)

namespace {
constexpr double kPi = 3.141592653589793;
constexpr double kE = 2.718281828459045;
}

class tst_TqCalc : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }

    // Names and numbers read the same under any process locale.
    void processLocaleDoesNotLeakIn()
    {
        const QByteArray saved = std::setlocale(LC_ALL, nullptr);
        for (const char *name : {"tr_TR.UTF-8", "de_DE.UTF-8"}) {
            if (!std::setlocale(LC_ALL, name))
                QSKIP("the locale is not installed (scripts/setup.sh installs locales-all)");
            TqCalc calc;
            calc.SetFormat(QStringLiteral("%.2f"));
            for (const char *line : {"sin(0)+1", "pi-pi+1", "i+1", "SIN(0)+1"}) {
                calc.SetCalcLine(QString::fromLatin1(line));
                QCOMPARE(calc.CalcResult(), TqCalc::TqcOK);
                QCOMPARE(calc.Number(), QStringLiteral("1.00"));
            }
        }
        std::setlocale(LC_ALL, saved.constData());
    }

    void evaluates_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<double>("value");
        QTest::addColumn<TqCalc::TqCalcResult>("result");
        QTest::addColumn<int>("where");   // -1: not checked
        using R = TqCalc;
        QTest::newRow("empty") << "" << 0.0 << R::TqcOK << 2;
        QTest::newRow("precedence") << "3+4*2" << 11.0 << R::TqcOK << 6;
        QTest::newRow("power on the level of *") << "2*3^2" << 36.0 << R::TqcOK << -1;
        QTest::newRow("power left to right") << "2^3^2" << 64.0 << R::TqcOK << -1;
        QTest::newRow("leading minus") << "-2^2" << -4.0 << R::TqcOK << -1;
        QTest::newRow("division left to right") << "8/2/2" << 2.0 << R::TqcOK << -1;
        QTest::newRow("decimal comma") << "2,5*2" << 5.0 << R::TqcOK << -1;
        QTest::newRow("point first") << ".5" << 0.5 << R::TqcOK << -1;
        QTest::newRow("lone point") << "." << 0.0 << R::TqcNumberMissing << 2;
        QTest::newRow("e") << "e" << kE << R::TqcOK << -1;
        QTest::newRow("seven letters kept") << "CEILINGS(2.5)" << 3.0 << R::TqcOK << -1;
        QTest::newRow("sqrt and pi") << "sqrt(16)+pi" << 4 + kPi << R::TqcOK << -1;
        QTest::newRow("spaces") << " ( 1 + 2 ) * 3 " << 9.0 << R::TqcOK << -1;
        QTest::newRow("minus in parentheses") << "2*(-3)" << -6.0 << R::TqcOK << -1;
        QTest::newRow("minus after operator") << "2*-3" << 0.0 << R::TqcNumberMissing << 3;
        QTest::newRow("leading plus") << "+5" << 0.0 << R::TqcNumberMissing << 1;
        QTest::newRow("arcsin at 1") << "ARCSIN(1)" << 0.0 << R::TqcDivZero << -1;
        QTest::newRow("arcsin half") << "ARCSIN(0.5)" << kPi / 6 << R::TqcOK << -1;
        QTest::newRow("arccos negative") << "ARCCOS(-0.5)" << -kPi / 3 << R::TqcOK << -1;
        QTest::newRow("arccos zero divides") << "ARCCOS(0)" << 0.0 << R::TqcOverFlow << -1;
        QTest::newRow("ln 0") << "LN(0)" << 0.0 << R::TqcDivZero << -1;
        QTest::newRow("log 1000") << "LOG(1000)" << 3.0 << R::TqcOK << -1;
        QTest::newRow("sqrt -1") << "SQRT(-1)" << 0.0 << R::TqcDivZero << -1;
        QTest::newRow("unknown name") << "FOO(1)" << 0.0 << R::TqcFunctionMissing << 4;
        QTest::newRow("function without parenthesis") << "SIN 1" << 0.0 << R::TqcLeftPar << 6;
        QTest::newRow("unclosed") << "(1+2" << 3.0 << R::TqcRightPar << 6;   // one past the end mark
        QTest::newRow("name without argument") << "SIN" << 0.0 << R::TqcLeftPar << 5;
        QTest::newRow("cursor stops at 255") << QString(QStringLiteral("1+").repeated(126) + "(1") << 127.0
                                             << R::TqcRightPar << 255;
        QTest::newRow("dangling plus") << "1+" << 1.0 << R::TqcNumberMissing << 3;
        QTest::newRow("round stops at E") << "ROUND(1E10)" << 1.0 << R::TqcRightPar << -1;
        QTest::newRow("round out of range") << "ROUND(3000000000)" << 0.0 << R::TqcOverFlow << -1;
        QTest::newRow("round half to even") << "ROUND(2.5)" << 2.0 << R::TqcOK << -1;
        QTest::newRow("overflow stops the loops") << "TRUNC(3000000000)+1" << 0.0 << R::TqcOverFlow << -1;
        QTest::newRow("trunc") << "TRUNC(-2.7)" << -2.0 << R::TqcOK << -1;
        QTest::newRow("floor") << "FLOOR(-2.5)" << -3.0 << R::TqcOK << -1;
        QTest::newRow("ceiling") << "CEILING(2.1)" << 3.0 << R::TqcOK << -1;
        QTest::newRow("negative base") << "(-2)^3" << 8.0 << R::TqcOK << -1;
        QTest::newRow("root by power") << "(-4)^0.5" << 2.0 << R::TqcOK << -1;
        QTest::newRow("zero to zero") << "0^0" << 0.0 << R::TqcOK << -1;
        QTest::newRow("division by zero") << "4/0" << 4.0 << R::TqcDivZero << 4;
        QTest::newRow("success cursor") << "1+2" << 3.0 << R::TqcOK << 4;
        QTest::newRow("trailing ignored") << "2 3" << 2.0 << R::TqcOK << -1;
        QTest::newRow("no exponent notation") << "1E5" << 1.0 << R::TqcOK << -1;
        QTest::newRow("stray parenthesis") << "2)" << 2.0 << R::TqcOK << 2;
        QTest::newRow("later code wins") << "LN(" << 0.0 << R::TqcDivZero << -1;
        QTest::newRow("division by missing factor") << "4/" << 4.0 << R::TqcDivZero << -1;
        QTest::newRow("exp overflows") << "EXP(100000)" << 0.0 << R::TqcOverFlow << -1;
        QTest::newRow("power overflows") << "10^5000" << 0.0 << R::TqcOverFlow << -1;
        QTest::newRow("factor beyond double") << "EXP(11000)/EXP(11000)" << 0.0 << R::TqcOverFlow << -1;
        QTest::newRow("lower case") << "abs(-3)+frac(2.25)" << 3.25 << R::TqcOK << -1;
        QTest::newRow("frac keeps sign") << "FRAC(-2.25)" << -0.25 << R::TqcOK << -1;
        QTest::newRow("trig") << "SIN(PI/2)+COS(0)+ARCTAN(1)*4" << 2 + kPi << R::TqcOK << -1;
        QTest::newRow("tab is no space") << "1+\t2" << 1.0 << R::TqcNumberMissing << 3;
    }

    void evaluates()
    {
        QFETCH(QString, line);
        QFETCH(double, value);
        QFETCH(TqCalc::TqCalcResult, result);
        QFETCH(int, where);
        TqCalc calc;
        calc.SetCalcLine(line);
        QCOMPARE(calc.CalcResult(), result);
        QCOMPARE(double(calc.NumberNum()), value);
        QCOMPARE(double(calc.RegisterANum()), value);   // pushed, failed or not
        if (where >= 0)
            QCOMPARE(int(calc.WhereIsLastError()), where);
        QVERIFY(calc.WhereIsLastError() >= 1 && calc.WhereIsLastError() <= calc.CalcLine().size() + 2);
    }

    void lineIsCutAndReadBack()
    {
        TqCalc calc;
        calc.SetCalcLine(QString());
        QCOMPARE(calc.CalcLine(), QStringLiteral("0"));
        const QString longLine = QStringLiteral("1+") .repeated(150);   // 300 characters
        calc.SetCalcLine(longLine);
        QCOMPARE(calc.CalcLine().size(), 254);
        QCOMPARE(calc.CalcLine(), longLine.left(254));
        // 127 ones: the 254th character is a plus with nothing after it.
        QCOMPARE(calc.CalcResult(), TqCalc::TqcNumberMissing);
        QCOMPARE(int(calc.WhereIsLastError()), 255);
        QCOMPARE(double(calc.NumberNum()), 127.0);
    }

    void registersShift()
    {
        TqCalc calc;
        for (const char *line : {"1", "2", "3"})
            calc.SetCalcLine(QString::fromLatin1(line));
        QCOMPARE(double(calc.RegisterANum()), 3.0);
        QCOMPARE(double(calc.RegisterBNum()), 2.0);
        QCOMPARE(double(calc.RegisterCNum()), 1.0);
        QCOMPARE(double(calc.RegisterDNum()), 0.0);
        calc.SetCalcLine(QStringLiteral("A+B"));
        QCOMPARE(double(calc.NumberNum()), 5.0);
        QCOMPARE(double(calc.RegisterANum()), 5.0);
        QCOMPARE(double(calc.RegisterBNum()), 3.0);
        // Nine deep: the oldest falls off the end.
        for (int i = 1; i <= 10; ++i)
            calc.SetCalcLine(QString::number(i));
        QCOMPARE(double(calc.RegisterJNum()), 2.0);
        QCOMPARE(double(calc.RegisterANum()), 10.0);
        QCOMPARE(double(calc.RegisterNum(5)), 6.0);   // F
        calc.SetPushResult(false);
        calc.SetCalcLine(QStringLiteral("7"));
        QCOMPARE(double(calc.NumberNum()), 7.0);
        QCOMPARE(double(calc.RegisterANum()), 10.0);
    }

    void registersAsNames()
    {
        TqCalc calc;
        calc.SetRegisterANum(1.5L);
        calc.SetRegisterJNum(2);
        calc.SetCalcLine(QStringLiteral("a*j+d"));
        QCOMPARE(double(calc.NumberNum()), 3.0);
        // A register holds extended precision; as a factor it becomes a double.
        calc.SetRegisterANum(1.0L + 1e-17L);
        calc.SetCalcLine(QStringLiteral("A"));
        QCOMPARE(calc.NumberNum(), 1.0L);
        // A register that is not finite cannot be used.
        calc.SetRegisterBNum(INFINITY);
        calc.SetCalcLine(QStringLiteral("B+1"));
        QCOMPARE(calc.CalcResult(), TqCalc::TqcOverFlow);
    }

    void eventsAfterEveryEvaluation()
    {
        TqCalc calc;
        QSignalSpy errors(&calc, &TqCalc::OnError), oks(&calc, &TqCalc::OnOK);
        calc.SetCalcLine(QStringLiteral("1+1"));
        QCOMPARE(oks.count(), 1);
        QCOMPARE(errors.count(), 0);
        QCOMPARE(oks.at(0).at(0).value<QObject *>(), &calc);
        calc.SetCalcLine(QStringLiteral("4/0"));
        QCOMPARE(oks.count(), 1);
        QCOMPARE(errors.count(), 1);
        QCOMPARE(errors.at(0).at(0).value<QObject *>(), &calc);
        QCOMPARE(errors.at(0).at(1).toString(), QStringLiteral("4/0"));
        QCOMPARE(errors.at(0).at(2).toInt(), 4);
        // The handler sees the finished state.
        connect(&calc, &TqCalc::OnError, this, [&calc](QObject *, const QString &, quint8) {
            QCOMPARE(calc.CalcResult(), TqCalc::TqcFunctionMissing);
            QCOMPARE(double(calc.RegisterANum()), 0.0);
        });
        calc.SetCalcLine(QStringLiteral("X"));
        QCOMPARE(errors.count(), 2);
    }

    void formatFailureIsReportedAndRestored()
    {
        TqCalc calc;
        calc.SetCalcLine(QStringLiteral("4/0"));
        calc.SetFormat(QStringLiteral("%d"));
        QSignalSpy errors(&calc, &TqCalc::OnError);
        TqCalc::TqCalcResult during = TqCalc::TqcOK;
        connect(&calc, &TqCalc::OnError, this, [&](QObject *, const QString &, quint8) { during = calc.CalcResult(); });
        QCOMPARE(calc.Number(), QString());
        QCOMPARE(errors.count(), 1);
        QCOMPARE(errors.at(0).at(1).toString(), QStringLiteral("%d"));
        QCOMPARE(errors.at(0).at(2).toInt(), 0);
        QCOMPARE(during, TqCalc::TqcFormatError);
        QCOMPARE(calc.CalcResult(), TqCalc::TqcDivZero);   // restored
        QCOMPARE(calc.RegisterA(), QString());
        QCOMPARE(errors.count(), 2);
    }

    void registerText()
    {
        TqCalc calc;
        calc.SetCalcLine(QStringLiteral("1"));
        calc.SetCalcLine(QStringLiteral("2.5"));
        QCOMPARE(calc.Number(), QStringLiteral("2.50000000000000E+000"));
        QCOMPARE(calc.RegisterA(), QStringLiteral("2.50000000000000E+000"));
        QCOMPARE(calc.RegisterB(), QStringLiteral("1.00000000000000E+000"));
        calc.SetFormat(QStringLiteral("%.3f"));
        QCOMPARE(calc.RegisterA(), QStringLiteral("2.500"));
        QCOMPARE(calc.property("RegisterB").toString(), QStringLiteral("1.000"));
        QCOMPARE(calc.GetReg(0), QString());
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        QCOMPARE(calc.RegisterA(), QStringLiteral("2,500"));
        QLocale::setDefault(QLocale::c());
    }

    void primesAndFactorials()
    {
        for (int n : {0, 1, 2, 7919, 2147483647, -7})   // below 2, or negative, no divisor is tried
            QVERIFY2(IsPrime(n), qPrintable(QString::number(n)));
        QVERIFY(!IsPrime(4) && !IsPrime(7917));
        QCOMPARE(double(Root(2, -16)), 4.0);
        QCOMPARE(double(Factorial(-5)), 1.0);
        QVERIFY(std::isfinite(Factorial(1754)) && std::isinf(Factorial(1755)));
    }
};

QTEST_MAIN(tst_TqCalc)
#include "tst_tqcalc.moc"
