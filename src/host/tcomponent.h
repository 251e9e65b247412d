#pragma once
// The base of non-visual components, and the design-time flag that every
// component reads when it is made.

#include <QObject>
#include <QString>

// While one of these lives, components created on this thread know they are
// being made by the form designer (the Designer plugin opens one around each
// widget it creates; tests do the same by hand).
class DesignTimeCreation
{
public:
    DesignTimeCreation();
    ~DesignTimeCreation();
    DesignTimeCreation(const DesignTimeCreation &) = delete;
    DesignTimeCreation &operator=(const DesignTimeCreation &) = delete;
    static bool Active();
};

// A non-visual component: owned by its owner, named, tagged.
class TComponent : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString Name READ Name WRITE SetName)
    Q_PROPERTY(int Tag READ Tag WRITE SetTag)

public:
    explicit TComponent(QObject *owner = nullptr);

    QString Name() const { return objectName(); }
    void SetName(const QString &name) { setObjectName(name); }
    int Tag() const { return FTag; }
    void SetTag(int tag) { FTag = tag; }

    bool IsDesigning() const { return FDesigning; }
    virtual void SetDesigning(bool designing) { FDesigning = designing; }

private:
    int FTag = 0;
    bool FDesigning = false;
};

