#include "qcolorbutton.h"

bool IsAccel(QChar key, const QString &caption)
{
    for (int i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != QLatin1Char('&'))
            continue;
        if (caption[i + 1] == QLatin1Char('&')) {   // "&&" is a plain ampersand
            ++i;
            continue;
        }
        return caption[i + 1].toUpper() == key.toUpper();
    }
    return false;
}

QChar TypedChar(const QKeyEvent *event)
{
    const QString text = event->text();
    if (text.size() == 1 && text[0].isPrint())
        return text[0];
    const int key = event->key();
    if ((event->modifiers() & Qt::AltModifier) && key >= 0x20 && key < 0x7F)
        return QChar(key);
    return QChar();
}
