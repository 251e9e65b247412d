#include "tformat.h"

#include <algorithm>
#include <cmath>
#include <clocale>
#include <cstdio>
#include <cstring>
#include <limits>

#include <QDate>
#include <QMutex>
#include <QRegularExpression>
#include <QTime>

namespace {

constexpr int kMaxDigits = 18;   // what an extended value holds

// The decimal digits of |v| rounded to `significant` digits, with the
// exponent of the first one: v = 0.d1d2d3... x 10^(exp + 1).
struct Digits
{
    QString digits;
    int exponent = 0;
};

Digits decimalDigits(long double v, int significant)
{
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.*Le", significant - 1, std::fabs(v));
    Digits d;
    const char *p = buf;
    for (; *p && *p != 'e'; ++p)
        if (*p >= '0' && *p <= '9')
            d.digits += QLatin1Char(*p);
    if (*p == 'e')
        d.exponent = std::atoi(p + 1);
    return d;
}

QString group(const QString &integer, const QLocale &locale)
{
    QString out;
    const QString sep = locale.groupSeparator();
    for (int i = 0; i < integer.size(); ++i) {
        if (i > 0 && (integer.size() - i) % 3 == 0)
            out += sep;
        out += integer[i];
    }
    return out;
}

QString scientific(long double v, int precision, const QLocale &locale)
{
    const Digits d = decimalDigits(v, precision);
    QString s = v < 0 ? QStringLiteral("-") : QString();
    s += d.digits[0];
    if (precision > 1)
        s += locale.decimalPoint() + d.digits.mid(1);
    s += QLatin1Char('E');
    s += d.exponent < 0 ? QLatin1Char('-') : QLatin1Char('+');
    s += QString::number(std::abs(d.exponent)).rightJustified(3, QLatin1Char('0'));
    return s;
}

QString fixed(long double v, int decimals, bool grouped, const QLocale &locale)
{
    if (std::fabs(v) >= 1e18L)   // more integer digits than the value holds
        return scientific(v, 15, locale);
    char buf[128];
    std::snprintf(buf, sizeof buf, "%.*Lf", decimals, std::fabs(v));
    // The C library writes the process locale's decimal point; the text is
    // read with '.' and gets the Qt locale's separator below.
    QString text = QString::fromLatin1(buf);
    if (const char *point = std::localeconv()->decimal_point; point && *point && std::strcmp(point, ".") != 0)
        text.replace(QString::fromLatin1(point), QStringLiteral("."));
    QString integer = text.section(QLatin1Char('.'), 0, 0);
    const QString fraction = text.section(QLatin1Char('.'), 1);
    const bool zero = std::all_of(text.begin(), text.end(),
                                  [](QChar ch) { return ch == QLatin1Char('0') || ch == QLatin1Char('.'); });
    if (grouped)
        integer = group(integer, locale);
    QString s = (v < 0 && !zero) ? QStringLiteral("-") : QString();
    s += integer;
    if (decimals > 0)
        s += locale.decimalPoint() + fraction;
    return s;
}

// The locale's currency format; values beyond a double keep their digits,
// placed where the locale puts the amount of one unit.
QString currency(long double v, int decimals, const QLocale &locale)
{
    if (std::fabs(v) <= std::numeric_limits<double>::max())
        return locale.toCurrencyString(double(v), locale.currencySymbol(), decimals);
    const QString pattern = locale.toCurrencyString(v < 0 ? -1.0 : 1.0, locale.currencySymbol(), decimals);
    const QString one = fixed(1, decimals, true, locale);
    return QString(pattern).replace(one, fixed(std::fabs(v), decimals, true, locale));
}

QString general(long double v, int precision, const QLocale &locale)
{
    if (v == 0)
        return QStringLiteral("0");
    const Digits d = decimalDigits(v, precision);
    QString digits = d.digits;
    while (digits.size() > 1 && digits.endsWith(QLatin1Char('0')))
        digits.chop(1);
    const QString sign = v < 0 ? QStringLiteral("-") : QString();
    if (d.exponent + 1 <= precision && std::fabs(v) >= 1e-5L) {
        QString integer, fraction;
        if (d.exponent >= 0) {
            integer = digits.left(d.exponent + 1).leftJustified(d.exponent + 1, QLatin1Char('0'));
            fraction = digits.mid(d.exponent + 1);
        } else {
            integer = QStringLiteral("0");
            fraction = QString(-d.exponent - 1, QLatin1Char('0')) + digits;
        }
        return sign + integer + (fraction.isEmpty() ? QString() : locale.decimalPoint() + fraction);
    }
    QString s = sign + digits[0];
    if (digits.size() > 1)
        s += locale.decimalPoint() + digits.mid(1);
    s += QLatin1Char('E');
    if (d.exponent < 0)
        s += QLatin1Char('-');
    return s + QString::number(std::abs(d.exponent));
}

QString special(long double v)
{
    if (std::isnan(v))
        return QStringLiteral("NAN");
    return v < 0 ? QStringLiteral("-INF") : QStringLiteral("INF");
}

} // namespace

namespace {

// One conversion of a format: [index:] [-] [width] [.precision] type.
struct Spec
{
    int index = 0;
    bool left = false;
    int width = -1;
    int precision = -1;
    char type = 0;
};

// Walks `format`, copying plain text and "%%", and asks `convert` for the
// text of each conversion (false: the format does not fit the arguments).
// A '*' width or precision takes the next argument, which `integer` gives.
template <class Convert, class Integer>
bool formatWith(const QString &format, Convert convert, Integer integer, QString &out)
{
    QString result;
    int nextArg = 0;
    const int n = int(format.size());
    for (int i = 0; i < n; ++i) {
        const QChar c = format[i];
        if (c != QLatin1Char('%')) {
            result += c;
            continue;
        }
        if (++i >= n)
            return false;
        if (format[i] == QLatin1Char('%')) {
            result += QLatin1Char('%');
            continue;
        }
        const auto number = [&](int &value) {
            value = -1;
            if (i < n && format[i] == QLatin1Char('*')) {
                ++i;
                long long v;
                if (!integer(nextArg++, v))
                    return false;
                value = int(std::clamp<long long>(v, -1, 1000000));
                return true;
            }
            while (i < n && format[i].isDigit()) {
                value = std::max(value, 0) * 10 + format[i].digitValue();
                if (value > 1000000)
                    return false;
                ++i;
            }
            return true;
        };
        Spec spec;
        int first;
        if (!number(first))
            return false;
        if (i < n && format[i] == QLatin1Char(':')) {
            if (first < 0)
                return false;
            nextArg = first;
            ++i;
            first = -1;
        }
        if (first < 0 && i < n && format[i] == QLatin1Char('-')) {
            spec.left = true;
            ++i;
        }
        spec.width = first;
        if (spec.width < 0 && !number(spec.width))
            return false;
        if (i < n && format[i] == QLatin1Char('.')) {
            ++i;
            if (!number(spec.precision))
                return false;
            spec.precision = std::max(spec.precision, 0);
        }
        if (i >= n)
            return false;
        spec.index = nextArg++;
        spec.type = format[i].toLower().toLatin1();
        QString text;
        if (!convert(spec, text))
            return false;
        if (spec.width > text.size())
            text = spec.left ? text.leftJustified(spec.width) : text.rightJustified(spec.width);
        result += text;
    }
    out = result;
    return true;
}

} // namespace

bool FormatFloat(const QString &format, long double value, QString &out, const QLocale &locale)
{
    const auto convert = [&](const Spec &spec, QString &text) {
        if (spec.index != 0)
            return false;   // there is only one argument
        const bool finite = std::isfinite(value);
        const int precision = spec.precision;
        switch (spec.type) {
        case 'e':
            text = finite ? scientific(value, std::clamp(precision < 0 ? 15 : precision, 1, kMaxDigits), locale)
                          : special(value);
            return true;
        case 'f':
        case 'n':
            text = finite ? fixed(value, std::clamp(precision < 0 ? 2 : precision, 0, kMaxDigits),
                                  spec.type == 'n', locale)
                          : special(value);
            return true;
        case 'g':
            text = finite ? general(value, std::clamp(precision < 0 ? 15 : precision, 1, kMaxDigits), locale)
                          : special(value);
            return true;
        case 'm':
            text = finite ? currency(value, std::clamp(precision < 0 ? 2 : precision, 0, kMaxDigits), locale)
                          : special(value);
            return true;
        default:
            return false;   // d, u, x, s, p and anything unknown
        }
    };
    // The one argument is a floating-point value: a '*' cannot read it.
    return formatWith(format, convert, [](int, long long &) { return false; }, out);
}

bool FormatInt(const QString &format, const std::vector<long long> &args, QString &out)
{
    const auto arg = [&](int index, long long &v) {
        if (index < 0 || size_t(index) >= args.size())
            return false;
        v = args[size_t(index)];
        return true;
    };
    const auto convert = [&](const Spec &spec, QString &text) {
        long long v;
        if (!arg(spec.index, v))
            return false;
        switch (spec.type) {
        case 'd':
            text = QString::number(v < 0 ? -v : v);
            break;
        case 'u':
            text = QString::number(quint32(v));
            break;
        case 'x':
            text = QString::number(quint32(v), 16).toUpper();
            break;
        default:
            return false;   // e, f, g, n, m, s, p need other arguments
        }
        if (spec.precision > text.size())   // at least that many digits
            text = text.rightJustified(spec.precision, QLatin1Char('0'));
        if (spec.type == 'd' && v < 0)
            text.prepend(QLatin1Char('-'));
        return true;
    };
    return formatWith(format, convert, arg, out);
}

QString Format(const QString &format, const std::vector<long long> &args)
{
    QString out;
    if (!FormatInt(format, args, out))
        return QStringLiteral("Format '%1' invalid or incompatible with argument").arg(format);
    return out;
}

QString TimeToStr(const QTime &time, const QLocale &locale)
{
    QString format = locale.timeFormat(QLocale::LongFormat);
    // Drop the time-zone fields ("t", "tttt" ...) and the spaces around them.
    static const QRegularExpression zone(QStringLiteral("\\s*\\bt+\\b\\s*"));
    format.replace(zone, QStringLiteral(" "));
    return locale.toString(time, format.trimmed());
}

namespace {
QMutex shortDateLock;
QString &shortDate()
{
    static QString format = QLocale().dateFormat(QLocale::ShortFormat);
    return format;
}
} // namespace

QString ShortDateFormat()
{
    QMutexLocker lock(&shortDateLock);
    return shortDate();
}

void SetShortDateFormat(const QString &format)
{
    QMutexLocker lock(&shortDateLock);
    shortDate() = format;
}

QString DateToStr(const QDate &date) { return QLocale().toString(date, ShortDateFormat()); }

QString FourDigitYear(QString format)
{
    const qsizetype at = format.indexOf(QLatin1Char('y'));
    if (at < 0)
        return QStringLiteral("yyy") + format;
    qsizetype run = 0;
    while (at + run < format.size() && format[at + run] == QLatin1Char('y'))
        ++run;
    for (; run < 4; ++run)
        format.insert(at, QLatin1Char('y'));
    return format;
}

QString TwoDigitYear(QString format)
{
    for (qsizetype at; (at = format.indexOf(QLatin1String("yyy"))) >= 0;)
        format.remove(at, 1);
    return format;
}
