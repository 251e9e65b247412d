#include "delay.h"

#include <QThread>

void Delay(quint16 milliseconds)
{
    if (milliseconds > 0)
        QThread::msleep(milliseconds);
}
