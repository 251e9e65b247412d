#include "tqcalc.h"

#include "calcmath.h"

#include "host/tformat.h"

#include <cfenv>
#include <cmath>

namespace {

// Upper case by ASCII rules, whatever the process locale: under a Turkish
// locale the C library would leave "i" alone (its capital is not ASCII).
char asciiUpper(QChar ch)
{
    const char16_t u = ch.unicode();
    if (u >= 'a' && u <= 'z')
        return char(u - 'a' + 'A');
    return u < 128 ? char(u) : '\0';
}

constexpr long double kPi = 3.141592653589793238462643383279502884L;
constexpr int kMaxNameLength = 7;
constexpr int kFirstFunction = 11;

// The names in the order they are looked up; the index is what a factor
// dispatches on. 0-8 registers, 9-10 constants, 11 on functions.
const char *const kNames[] = {
    "A", "B", "C", "D", "F", "G", "H", "I", "J", "PI", "E",
    "EXP", "SIN", "COS", "ARCTAN", "ABS", "FRAC", "ARCSIN", "ARCCOS",
    "LN", "LOG", "SQR", "SQRT", "ROUND", "TRUNC", "CEILING", "FLOOR",
};
enum Name {
    nPI = 9, nE, nEXP, nSIN, nCOS, nARCTAN, nABS, nFRAC, nARCSIN, nARCCOS,
    nLN, nLOG, nSQR, nSQRT, nROUND, nTRUNC, nCEILING, nFLOOR
};

// Thrown when an operation overflowed, was invalid or divided by zero: the
// parse is abandoned, as a floating-point exception would.
struct FloatingPointFault {};

constexpr int kFaults = FE_OVERFLOW | FE_INVALID | FE_DIVBYZERO;

// Every operation's result passes through here. A value that is not finite
// (an overflowed or invalid operand from a register, say) counts too.
long double checked(long double v)
{
    if (std::fetestexcept(kFaults) || !std::isfinite(v))
        throw FloatingPointFault{};
    return v;
}

// The host's integer conversion: fails outside the signed 32-bit range.
bool toInt32(long double v, long double &out)
{
    if (!(v >= -2147483648.0L && v <= 2147483647.0L))
        return false;
    out = v;
    return true;
}

} // namespace

TqCalc::TqCalc(QWidget *owner) : TComponent(owner) {}

void TqCalc::SetCalcLine(const QString &line)
{
    FLine = (line.isEmpty() ? QStringLiteral("0") : line.left(MaxLineLength)) + QLatin1Char('\r');
    FCalcResult = TqcOK;
    FCursor = 1;
    long double value = 0;
    std::fenv_t saved;
    std::feholdexcept(&saved);
    try {
        value = Udtryk();
    } catch (const FloatingPointFault &) {
        FCalcResult = TqcOverFlow;
        value = 0;   // nothing sensible was computed
    }
    std::fesetenv(&saved);
    // Whatever follows where the expression ended is ignored. The registers
    // shift even after a failure, taking the partial value.
    if (FPushResult) {
        for (int i = RegisterCount - 1; i > 0; --i)
            FRegisters[size_t(i)] = FRegisters[size_t(i - 1)];
        FRegisters[0] = value;
    }
    FNumber = value;
    if (FCalcResult != TqcOK)
        emit OnError(this, CalcLine(), FCursor);
    else
        emit OnOK(this);
}

QChar TqCalc::NaesteTegn()
{
    // Only the space is skipped; a tab is a character like any other.
    while (current() == QLatin1Char(' '))
        consume();
    return current();
}

// Consuming goes past the end mark too (an unclosed "(1+2" ends one past
// it). The cursor is 8 bits wide: on a line of the full 254 characters it
// stops at 255, the end mark, instead of wrapping round to 0.
void TqCalc::consume()
{
    if (FCursor < 255)
        ++FCursor;
}

long double TqCalc::Udtryk()
{
    long double value;
    // A leading minus is left for the loop: 0 - term. Elsewhere a minus
    // sign before a number is no number at all.
    if (NaesteTegn() == QLatin1Char('-'))
        value = 0;
    else
        value = Led();
    for (QChar op = NaesteTegn(); (op == QLatin1Char('+') || op == QLatin1Char('-')) && FCalcResult == TqcOK;
         op = NaesteTegn()) {
        consume();
        const long double term = Led();
        value = checked(op == QLatin1Char('+') ? value + term : value - term);
    }
    return value;
}

long double TqCalc::Led()
{
    long double value = Faktor();
    for (QChar op = NaesteTegn();
         (op == QLatin1Char('*') || op == QLatin1Char('/') || op == QLatin1Char('^')) && FCalcResult == TqcOK;
         op = NaesteTegn()) {
        consume();
        const long double factor = Faktor();
        if (op == QLatin1Char('*')) {
            value = checked(value * factor);
        } else if (op == QLatin1Char('/')) {
            if (factor == 0)
                fail(TqcDivZero);   // the running value stays as it was
            else
                value = checked(value / factor);
        } else {
            // On the level of * and /, left to right: 2^3^2 is 64.
            value = checked(Power(value, factor));
        }
    }
    return value;
}

long double TqCalc::Faktor()
{
    const QChar next = NaesteTegn();
    const char c = asciiUpper(next);
    long double value;
    if (c == '(') {
        value = Parantes();
    } else if (c >= 'A' && c <= 'Z') {
        const int index = FuncNr();
        if (FCalcResult != TqcOK) {
            value = 0;
        } else {
            // The argument's own result is not checked first: the function
            // may overwrite an earlier code with its own.
            const long double argument = index >= kFirstFunction ? Parantes() : 0;
            value = applyName(index, argument);
        }
    } else {
        value = Tal();
    }
    // A factor is a double; the running values around it are extended.
    return checked(static_cast<long double>(static_cast<double>(value)));
}

long double TqCalc::Tal()
{
    long double value = 0;
    bool digits = false;
    const auto isDigit = [this] { return current() >= QLatin1Char('0') && current() <= QLatin1Char('9'); };
    while (isDigit()) {
        value = checked(value * 10 + current().digitValue());
        digits = true;
        consume();
    }
    const QChar sep = NaesteTegn();
    if (sep == QLatin1Char(',') || sep == QLatin1Char('.')) {
        consume();
        long double f = 0.1L;
        while (isDigit()) {
            value = checked(value + current().digitValue() * f);
            f /= 10;
            digits = true;
            consume();
        }
    }
    if (!digits)
        fail(TqcNumberMissing);
    return value;
}

long double TqCalc::Parantes()
{
    long double value = 0;
    if (NaesteTegn() != QLatin1Char('('))
        fail(TqcLeftPar);
    consume();
    if (FCalcResult == TqcOK) {
        value = Udtryk();
        if (FCalcResult == TqcOK) {
            if (NaesteTegn() != QLatin1Char(')'))
                fail(TqcRightPar);
            consume();
        }
    }
    return value;
}

int TqCalc::FuncNr()
{
    QString name;
    for (;;) {
        const QChar ch = current();
        const char c = asciiUpper(ch);
        if (c < 'A' || c > 'Z')
            break;
        if (name.size() < kMaxNameLength)   // CEILINGS( acts as CEILING(
            name += QLatin1Char(c);
        consume();
    }
    for (int i = 0; i < int(std::size(kNames)); ++i)
        if (name == QLatin1String(kNames[i]))
            return i;
    fail(TqcFunctionMissing);
    return 0;
}

long double TqCalc::applyName(int index, long double x)
{
    if (index < RegisterCount)
        return FRegisters[size_t(index)];
    const auto domainError = [this] {
        fail(TqcDivZero);   // every domain error is reported as a division by zero
        return 0.0L;
    };
    const auto integer = [this](long double v) {
        long double out;
        if (toInt32(v, out))
            return out;
        fail(TqcOverFlow);
        return 0.0L;
    };
    switch (index) {
    case nPI: return kPi;
    case nE: return checked(std::exp(1.0L));
    case nEXP: return checked(std::exp(x));
    case nSIN: return checked(std::sin(x));
    case nCOS: return checked(std::cos(x));
    case nARCTAN: return checked(std::atan(x));
    case nABS: return std::fabs(x);
    case nFRAC: return checked(x - std::trunc(x));
    case nARCSIN:
        return (x <= -1 || x >= 1) ? domainError() : checked(ArcSin(x));
    case nARCCOS:
        // The argument itself is tested and used (the same scratch value
        // as ARCSIN's); ARCCOS(0) divides by zero and overflows.
        return (x <= -1 || x >= 1) ? domainError() : checked(ArcCos(x));
    case nLN: return x <= 0 ? domainError() : checked(std::log(x));
    case nLOG: return x <= 0 ? domainError() : checked(Log10(x));
    case nSQR: return checked(x * x);
    case nSQRT: {
        if (x < 0)
            return domainError();
        const long double r = std::sqrt(x);
        if (std::fetestexcept(kFaults) || !std::isfinite(r)) {
            std::feclearexcept(kFaults);
            fail(TqcOverFlow);   // the parse goes on
            return 0;
        }
        return r;
    }
    case nROUND: return integer(std::nearbyint(x));   // halves to even
    case nTRUNC: return integer(std::trunc(x));
    case nCEILING: {
        long double t = std::trunc(x);
        if (x - t > 0)
            t += 1;
        return integer(t);
    }
    case nFLOOR: {
        long double t = std::trunc(x);
        if (x - t < 0)
            t = x - 1;
        return integer(std::trunc(t));
    }
    default: return 0;
    }
}

QString TqCalc::format(long double value)
{
    QString text;
    if (FormatFloat(FFormat.isEmpty() ? QStringLiteral("%e") : FFormat, value, text))
        return text;
    // Reported through OnError while it runs; the last evaluation's result
    // is back in place afterwards.
    const TqCalcResult saved = FCalcResult;
    FCalcResult = TqcFormatError;
    emit OnError(this, FFormat, 0);
    FCalcResult = saved;
    return QString();
}

QString TqCalc::Number() { return format(FNumber); }

QString TqCalc::GetReg(int n)
{
    return (n >= 1 && n <= RegisterCount) ? format(FRegisters[size_t(n - 1)]) : QString();
}

long double TqCalc::RegisterNum(int n) const
{
    return (n >= 1 && n <= RegisterCount) ? FRegisters[size_t(n - 1)] : 0;
}

void TqCalc::SetRegisterNum(int n, long double value)
{
    if (n >= 1 && n <= RegisterCount)
        FRegisters[size_t(n - 1)] = value;
}
