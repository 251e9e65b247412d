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
