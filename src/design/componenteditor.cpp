#include "componenteditor.h"

#include "aboutbox.h"
#include "helpviewer.h"

QString TComponentEditor::GetVerb(int index) const
{
    switch (index) {
    case 0: return QStringLiteral("Help for component");
    case 1: return QStringLiteral("Help for QuovarCollection");
    case 2: return QStringLiteral("About QuovarCollection...");
    default: return QString();
    }
}

void TComponentEditor::ExecuteVerb(int index, QWidget *owner) const
{
    switch (index) {
    case 0: ShowHelpTopic(FHelpContext, owner); break;
    case 1: ShowHelpIndex(owner); break;
    case 2: ShowAboutBox(owner); break;
    default: break;
    }
}
