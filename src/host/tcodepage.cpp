#include "tcodepage.h"

namespace {
// 0x80..0x9F; the five codes the code page leaves unassigned keep their C1 value.
const char16_t kHighTable[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
} // namespace

QChar Win1252ToUnicode(quint8 code)
{
    if (code >= 0x80 && code < 0xA0)
        return QChar(kHighTable[code - 0x80]);
    return QChar(code);
}

quint8 UnicodeToWin1252(QChar c)
{
    const char16_t u = c.unicode();
    if (u < 0x80 || (u >= 0xA0 && u <= 0xFF))
        return quint8(u);
    for (int i = 0; i < 32; ++i)
        if (kHighTable[i] == u)
            return quint8(0x80 + i);
    return '?';
}

QByteArray ToWin1252(const QString &text)
{
    QByteArray out;
    out.reserve(text.size());
    for (const QChar c : text)
        out.append(char(UnicodeToWin1252(c)));
    return out;
}

QString FromWin1252(const QByteArray &codes)
{
    QString out;
    out.reserve(codes.size());
    for (const char c : codes)
        out.append(Win1252ToUnicode(quint8(c)));
    return out;
}
