#pragma once
// The component editor every component has in the form designer: three
// verbs, the first opening the component's own help topic.

#include <QString>

class QWidget;

class TComponentEditor
{
public:
    explicit TComponentEditor(int helpContext) : FHelpContext(helpContext) {}

    int HelpContext() const { return FHelpContext; }
    int GetVerbCount() const { return 3; }
    // "Help for component", "Help for QuovarCollection", "About QuovarCollection...".
    QString GetVerb(int index) const;
    // `owner` parents the help message or the about box.
    void ExecuteVerb(int index, QWidget *owner) const;

private:
    int FHelpContext;
};
