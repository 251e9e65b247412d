#pragma once
// What every component shares, visual or not: the design-time flag, Tag, and
// the Loaded step that runs once after a form has streamed the stored
// property values in. The scopes below tell a component, while it is being
// made, that the form designer or a form loader is making it.

#include <QObject>
#include <QString>
#include <QWidget>

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

// While one of these lives, components created on this thread are loaded
// from a form: when the outermost scope closes, each of them that still
// exists gets Loaded, in the order they were made (an error one of them
// raises there is written as a warning). Wrap a form load in it:
//     { FormLoading loading; form = uiLoader.load(&file, parent); }
class FormLoading
{
public:
    FormLoading();
    ~FormLoading();
    FormLoading(const FormLoading &) = delete;
    FormLoading &operator=(const FormLoading &) = delete;
    static bool Active();
};

class TComponentCore
{
public:
    TComponentCore(const TComponentCore &) = delete;
    TComponentCore &operator=(const TComponentCore &) = delete;

    int Tag() const { return FTag; }
    void SetTag(int tag) { FTag = tag; }

    bool IsDesigning() const { return FDesigning; }
    virtual void SetDesigning(bool designing) { FDesigning = designing; }

    // True from creation by a form load until Loaded has run.
    bool IsLoading() const { return FLoading; }
    // Marks the component as loaded from a form and runs Loaded once control
    // returns to the event loop (how the Designer plugin finishes a new one).
    void QueueLoaded();
    // Runs a pending Loaded now; nothing for a component made by code.
    void FinishLoading();

protected:
    explicit TComponentCore(QObject *self);
    virtual ~TComponentCore();
    // After the stored properties are in. Overrides call the inherited one first.
    virtual void Loaded() {}

private:
    QObject *FSelf;
    int FTag = 0;
    bool FDesigning = false;
    bool FLoading = false;
};

// A non-visual component: owned by its owner, named, tagged. It sits on a
// form as a small tile with the initials of its class while the form is
// designed, and is hidden at run time, so the form stores and restores it
// like any other widget: its properties and events are declared once, on
// the component itself.
class TComponent : public QWidget, public TComponentCore
{
    Q_OBJECT
    Q_PROPERTY(QString Name READ Name WRITE SetName)
    Q_PROPERTY(int Tag READ Tag WRITE SetTag)

public:
    explicit TComponent(QWidget *owner = nullptr);

    QString Name() const { return objectName(); }
    void SetName(const QString &name) { setObjectName(name); }
    void SetDesigning(bool designing) override;
    // A part of another component (the clock's timer): never a face of its
    // own on the form, designing or not.
    bool IsSubComponent() const { return FSubComponent; }
    void SetSubComponent(bool sub);

    QSize sizeHint() const override { return QSize(28, 28); }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    // Exceptions escaping an event go to the application object.
    bool event(QEvent *event) override;

private:
    bool FSubComponent = false;
};
