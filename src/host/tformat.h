#pragma once
// The framework's Format for a single floating-point argument: %e, %f, %g,
// %n and %m with optional index, width, left justification and precision,
// and %% for a percent sign. The decimal and thousands separators and the
// currency come from the locale.

#include <QLocale>
#include <QString>

#include <vector>

// False when the format does not fit one floating-point argument (another
// conversion such as %d or %s, a second conversion, a '*' width, a format
// that ends inside a specifier); `out` is then left as it was.
bool FormatFloat(const QString &format, long double value, QString &out,
                 const QLocale &locale = QLocale());

// The same for integer arguments: %d, %u and %x (upper-case hex), with
// index, width, '*' and precision as a minimum number of digits.
bool FormatInt(const QString &format, const std::vector<long long> &args, QString &out);
// The framework's Format of integers: the formatted text, or the message
// the framework gives for a format that does not fit its arguments.
QString Format(const QString &format, const std::vector<long long> &args);

class QDate;
class QTime;

// The process-wide short date format, in Qt's date format letters (d, M,
// y); at first the locale's. The library writes dates with it.
QString ShortDateFormat();
void SetShortDateFormat(const QString &format);
QString DateToStr(const QDate &date);
// A date format whose first run of y is made four long (a format without
// any y gains "yyy" at its start).
QString FourDigitYear(QString format);
// A date format with every run of y cut to two.
QString TwoDigitYear(QString format);
// The time in the locale's long time format, as a panel shows it: hours,
// minutes and seconds (and the locale's AM/PM), without any time zone.
QString TimeToStr(const QTime &time, const QLocale &locale = QLocale());
