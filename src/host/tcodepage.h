#pragma once
// The displays index their character tables by Windows-1252 code; these
// convert between those codes and Unicode text.

#include <QChar>
#include <QByteArray>
#include <QString>

QChar Win1252ToUnicode(quint8 code);
// The Windows-1252 code of `c`, or '?' when the code page has no such character.
quint8 UnicodeToWin1252(QChar c);
QByteArray ToWin1252(const QString &text);
QString FromWin1252(const QByteArray &codes);
