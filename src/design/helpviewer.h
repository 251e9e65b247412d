#pragma once
// Opens the help: the Qt Help collection in Qt Assistant where both exist
// (one Assistant, started once and told each page through its remote
// control; $QCOL_ASSISTANT names another program), else the HTML pages in
// the desktop's browser, else a message that says where the help was looked
// for.

#include <QString>
#include <QUrl>

#include <functional>

class QWidget;
struct TComponentEntry;

// The help's namespace in the collection.
inline constexpr const char *kHelpNamespace = "org.quovarsoft.qcol";

// The page of a context number ("tqsegment.html"); the index for an unknown one.
QString HelpPage(int context);
// The page of a component's own help: its class name in lower case.
QString HelpPageOf(const TComponentEntry &entry);

// The folder that holds qcol.qhc, qcol.qch and html/: the help folders of
// the search paths in their order, $QCOL_HELP_DIR, the installed help, then
// the help of the build tree. Empty if none has it.
QString HelpDirectory();

struct THelpRequest
{
    int context;   // 0 for the index
    QString page;
};

// Replaces the viewer (tests use this); an empty function restores the
// default. The viewer returns false when it could not show the page.
using THelpViewer = std::function<bool(const THelpRequest &)>;
void SetHelpViewer(THelpViewer viewer);

// False, after telling the user, when the help could not be shown.
bool ShowHelpTopic(int context, QWidget *owner);
bool ShowHelpIndex(QWidget *owner);
