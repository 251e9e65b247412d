#include "searchpaths.h"

#include "okcancel.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerSettingsInterface>

#include <QCoreApplication>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

TSearchPaths &current()
{
    static TSearchPaths paths;
    return paths;
}

constexpr const char *kKinds[] = {"Help", "Plugins", "Pictures"};

QString key(const char *kind) { return QStringLiteral("QuovarCollection/%1Folders").arg(QLatin1String(kind)); }

QStringList items(const QListWidget *list)
{
    QStringList out;
    for (int i = 0; i < list->count(); ++i)
        out << list->item(i)->text();
    return out;
}

} // namespace

const TSearchPaths &SearchPaths() { return current(); }

void SetSearchPaths(const TSearchPaths &paths)
{
    for (const QString &folder : current().Plugins)
        QCoreApplication::removeLibraryPath(folder);
    current() = paths;
    for (auto it = paths.Plugins.crbegin(); it != paths.Plugins.crend(); ++it)
        QCoreApplication::addLibraryPath(*it);   // the first one first
}

TSearchPaths LoadSearchPaths(QDesignerFormEditorInterface *core)
{
    TSearchPaths paths;
    if (QDesignerSettingsInterface *settings = core ? core->settingsManager() : nullptr) {
        paths.Help = settings->value(key("Help")).toStringList();
        paths.Plugins = settings->value(key("Plugins")).toStringList();
        paths.Pictures = settings->value(key("Pictures")).toStringList();
    }
    return paths;
}

void SaveSearchPaths(QDesignerFormEditorInterface *core, const TSearchPaths &paths)
{
    if (QDesignerSettingsInterface *settings = core ? core->settingsManager() : nullptr) {
        settings->setValue(key("Help"), paths.Help);
        settings->setValue(key("Plugins"), paths.Plugins);
        settings->setValue(key("Pictures"), paths.Pictures);
    }
}

TSearchPathsDialog::TSearchPathsDialog(const TSearchPaths &paths, QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("qcolSearchPaths"));
    setWindowTitle(QStringLiteral("QuovarCollection search paths"));
    auto *grid = new QGridLayout;
    const QStringList *lists[] = {&paths.Help, &paths.Plugins, &paths.Pictures};
    const char *titles[] = {"Help folders (looked in before the installed help)",
                            "Run-time plugin folders (looked in before Qt's own)", "Picture folders (the first is where pictures are picked from)"};
    QListWidget **mine[] = {&FHelp, &FPlugins, &FPictures};
    for (int k = 0; k < 3; ++k) {
        auto *list = new QListWidget(this);
        list->setObjectName(QLatin1String(kKinds[k]));
        list->addItems(*lists[k]);
        *mine[k] = list;
        grid->addWidget(new QLabel(QLatin1String(titles[k]), this), 2 * k, 0, 1, 2);
        grid->addWidget(list, 2 * k + 1, 0);
        auto *buttons = new QVBoxLayout;
        const auto button = [&](const char *text, auto action) {
            auto *b = new QPushButton(QLatin1String(text), this);
            connect(b, &QPushButton::clicked, this, action);
            buttons->addWidget(b);
        };
        button("Add...", [this, list] {
            const QString folder = QFileDialog::getExistingDirectory(this, QStringLiteral("Add a folder"));
            if (!folder.isEmpty())
                list->addItem(folder);
        });
        button("Remove", [list] { delete list->currentItem(); });
        button("Up", [list] {
            const int row = list->currentRow();
            if (row > 0) {
                list->insertItem(row - 1, list->takeItem(row));
                list->setCurrentRow(row - 1);
            }
        });
        button("Down", [list] {
            const int row = list->currentRow();
            if (row >= 0 && row + 1 < list->count()) {
                list->insertItem(row + 1, list->takeItem(row));
                list->setCurrentRow(row + 1);
            }
        });
        buttons->addStretch();
        grid->addLayout(buttons, 2 * k + 1, 1);
    }
    auto *box = OkCancelButtons(this);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addWidget(box);
    setMinimumWidth(560);   // the whole title shows
}

TSearchPaths TSearchPathsDialog::Paths() const { return {items(FHelp), items(FPlugins), items(FPictures)}; }

QListWidget *TSearchPathsDialog::List(const QString &kind) const
{
    return kind == QLatin1String("Help") ? FHelp : kind == QLatin1String("Plugins") ? FPlugins : FPictures;
}
