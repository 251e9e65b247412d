#pragma once
// Where the collection looks, as the user orders it in Designer: folders of
// its help, of its run-time plugin, and of pictures. Kept in Designer's
// settings; the help verbs, the form loader and the bitmap editor use them
// as soon as they change.

#include <QDialog>
#include <QStringList>

class QDesignerFormEditorInterface;
class QListWidget;

struct TSearchPaths
{
    QStringList Help;
    QStringList Plugins;
    QStringList Pictures;
};

// The paths in force; SetSearchPaths makes new ones so (help folders are
// looked in first, plugin folders join the library path, the first picture
// folder is where a picture is picked from).
const TSearchPaths &SearchPaths();
void SetSearchPaths(const TSearchPaths &paths);
// Read from and written to the core's settings.
TSearchPaths LoadSearchPaths(QDesignerFormEditorInterface *core);
void SaveSearchPaths(QDesignerFormEditorInterface *core, const TSearchPaths &paths);

// The editor: a list for each kind, with Add..., Remove, Up and Down.
class TSearchPathsDialog : public QDialog
{
    Q_OBJECT
public:
    TSearchPathsDialog(const TSearchPaths &paths, QWidget *parent = nullptr);
    TSearchPaths Paths() const;
    // The list of one kind ("Help", "Plugins", "Pictures"), for Add... and tests.
    QListWidget *List(const QString &kind) const;

private:
    QListWidget *FHelp, *FPlugins, *FPictures;
};
