#pragma once
// Every component the Designer plugin offers, in the order of the widget
// box: its class, header, page, help context number, texts, how to make one
// and how to pose it for its palette icon. The plugin, the help generator
// and the tests all read this one table.

#include <QString>
#include <QStringList>
#include <QWidget>

#include <memory>
#include <vector>

class QObject;

struct TComponentEntry
{
    const char *className;
    const char *includeFile;   // as an application includes it
    int page;                  // 0, 1, 2: the three widget-box groups
    int helpContext;           // the help topic number, fixed for good
    const char *toolTip;
    const char *whatsThis;     // one paragraph for the widget box and the help page
    QWidget *(*create)(QWidget *parent);
    // Sets the component up as its palette icon shows it (may be null).
    void (*poseForIcon)(QWidget *component);
    bool visual;               // false for the components that sit on a form as a face
    // Shown but not editable in the designer (comma-separated names).
    const char *readOnlyProperties = "";
    // Holds the controls dropped on it in the designer (they are its
    // children in the stored form).
    bool container = false;
};

// The widget-box group names.
QString PageName(int page);

// In widget-box order.
const std::vector<TComponentEntry> &Components();
// The page of the classes made in code only: on a page of their own in the
// help (no widget-box group, help topic 0).
constexpr int kCodeOnlyPage = 3;
// Every class of the collection, each with a help page: the widget box's
// in its order, then those made in code.
std::vector<TComponentEntry> AllComponents();
const TComponentEntry *FindComponent(const QString &className);
// The entry of the object's class; null for a class not in the collection.
const TComponentEntry *FindComponent(const QObject *object);
// The entry's readOnlyProperties as a list.
QStringList ReadOnlyProperties(const TComponentEntry &entry);

// Makes a component as the form designer does: in design mode before its
// first property is set, with Loaded queued for when its stored properties
// are in.
QWidget *CreateForDesigner(const TComponentEntry &entry, QWidget *parent);
// One made in design mode on no form, at the size it first has on one: for
// pictures, icons and the widget box's template. Never gets Loaded.
std::unique_ptr<QWidget> CreateSample(const TComponentEntry &entry);
// A component by itself, for a look at its picture or its defaults (made
// with a form, as components are, and taken off it), in design mode or not.
std::unique_ptr<QWidget> CreateAlone(const TComponentEntry &entry, bool designing);
