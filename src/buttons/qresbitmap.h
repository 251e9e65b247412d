#pragma once
// A picture loaded by name from the application's Qt resources: ResName
// "gauges/needle.png" loads ":/gauges/needle.png" (a name that starts with
// ":" is taken as it is). A name with no resource behind it leaves the
// picture empty, ResourceFound() false and fires OnResourceMissing; the
// program's own LoadFromResourceName raises EResNotFound instead.
// Everything else is TqBitmap's.

#include "buttons/qbitmap.h"

#include <stdexcept>

class EResNotFound : public std::runtime_error
{
public:
    explicit EResNotFound(const QString &name)
        : std::runtime_error(QStringLiteral("Resource %1 not found").arg(name).toStdString())
    {
    }
};

class TqResBitmap : public TqBitmap
{
    Q_OBJECT
    Q_PROPERTY(QString ResName READ ResName WRITE SetResName)

public:
    explicit TqResBitmap(QWidget *parent = nullptr);

    QString ResName() const { return FResName; }
    void SetResName(const QString &name);
    bool ResourceFound() const { return FFound; }
    // Loads the named resource or raises EResNotFound.
    void LoadFromResourceName(const QString &name);

signals:
    void OnResourceMissing(QObject *Sender, const QString &Name);

private:
    bool load(const QString &name);

    QString FResName;
    bool FFound = false;
};
