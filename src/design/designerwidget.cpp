#include "designerwidget.h"

#include "componenticon.h"
#include "componentregistry.h"
#include "helpviewer.h"
#include "propertysheet.h"
#include "searchpaths.h"
#include "taskmenu.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QExtensionManager>

#include <QApplication>
#include <QIcon>
#include <QMenu>
#include <QMenuBar>
#include <QMetaProperty>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

TDesignerWidget::TDesignerWidget(const TComponentEntry &entry, QObject *parent) : QObject(parent), FEntry(entry) {}

QString TDesignerWidget::name() const { return QString::fromLatin1(FEntry.className); }
QString TDesignerWidget::group() const { return PageName(FEntry.page); }
QString TDesignerWidget::toolTip() const { return QString::fromLatin1(FEntry.toolTip); }
QString TDesignerWidget::whatsThis() const { return QString::fromLatin1(FEntry.whatsThis); }
QString TDesignerWidget::includeFile() const { return QString::fromLatin1(FEntry.includeFile); }
QIcon TDesignerWidget::icon() const { return ComponentIcon(FEntry); }
bool TDesignerWidget::isContainer() const { return FEntry.container; }

QWidget *TDesignerWidget::createWidget(QWidget *parent)
{
    // Designer makes its components inside a form window; a QUiLoader that
    // found the plugin (even in a process that also runs a Designer core)
    // makes them for a running form.
    const bool designing = FCore && (!parent || QDesignerFormWindowInterface::findFormWindow(parent));
    // A component that refuses to be made (one that needs a form, made as
    // a form's root) is reported; the loader goes on without it.
    try {
        return designing ? CreateForDesigner(FEntry, parent) : FEntry.create(parent);
    } catch (const std::exception &e) {
        qWarning("%s: %s", FEntry.className, e.what());
        return nullptr;
    }
}

namespace {

// Designer's menu of that title (without its '&'), wherever its menu bar is.
QMenu *designerMenu(QDesignerFormEditorInterface *core, const QString &title)
{
    QWidgetList roots = QApplication::topLevelWidgets();
    if (core->topLevel())
        roots.prepend(core->topLevel());
    for (QWidget *root : roots)
        for (QMenuBar *bar : root->findChildren<QMenuBar *>())
            for (QAction *entry : bar->actions())
                if (QMenu *menu = entry->menu(); menu && menu->title().remove(QLatin1Char('&')) == title)
                    return menu;
    return nullptr;
}

// An entry of the collection's in one of Designer's menus, added once.
void addEntry(QMenu *menu, const char *name, const QString &text, std::function<void()> run)
{
    if (!menu || menu->findChild<QAction *>(QLatin1String(name)))
        return;
    auto *action = new QAction(text, menu);
    action->setObjectName(QLatin1String(name));
    QObject::connect(action, &QAction::triggered, menu, std::move(run));
    menu->addAction(action);
}

// The two experts: "QuovarCollection Help" in Designer's Help menu opens
// the help's index; "QuovarCollection Search Paths..." in its Settings menu
// edits where the collection looks. Designer may build its menus after the
// plugins: tried again once the event loop runs.
bool addExperts(QDesignerFormEditorInterface *core)
{
    QMenu *help = designerMenu(core, QStringLiteral("Help"));
    QMenu *settings = designerMenu(core, QStringLiteral("Settings"));
    addEntry(help, "qcolHelpIndex", QStringLiteral("QuovarCollection Help"), [help] { ShowHelpIndex(help->window()); });
    QPointer<QDesignerFormEditorInterface> guard = core;
    addEntry(settings, "qcolSearchPaths", QStringLiteral("QuovarCollection Search Paths..."), [settings, guard] {
        auto *dialog = new TSearchPathsDialog(SearchPaths(), settings->window());
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        QObject::connect(dialog, &QDialog::accepted, dialog, [dialog, guard] {
            SetSearchPaths(dialog->Paths());
            SaveSearchPaths(guard, dialog->Paths());
        });
        dialog->open();
    });
    return help && settings;
}

} // namespace

void TDesignerWidget::initialize(QDesignerFormEditorInterface *core)
{
    if (FCore == core)
        return;
    FCore = core;
    // Once for each Designer core, however many of the collection's widgets
    // it initialises: the pair of factories, the search paths, the experts.
    QExtensionManager *manager = core->extensionManager();
    if (!manager || manager->findChild<TTaskMenuFactory *>())
        return;
    manager->registerExtensions(new TTaskMenuFactory(manager), Q_TYPEID(QDesignerTaskMenuExtension));
    TPropertySheetFactory::Register(manager);
    SetSearchPaths(LoadSearchPaths(core));
    if (!addExperts(core))
        QTimer::singleShot(0, core, [core] { addExperts(core); });
}

// How Designer edits and stores the component's text properties: only the
// texts a user reads are for translators (captions, hints, titles, tips);
// the others (expressions, command lines, names, formats) are stored as
// they are, and a button's caption, which may break into lines, is edited
// as several lines.
QString TDesignerWidget::propertySpecifications(const QWidget *sample) const
{
    QString specs;
    const QMetaObject *meta = sample->metaObject();
    for (int i = QWidget::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
        const QMetaProperty p = meta->property(i);
        if (p.metaType() != QMetaType::fromType<QString>() || !p.isWritable() || !p.isStored())
            continue;
        const QString name = QString::fromLatin1(p.name());
        const bool lines = name == QLatin1String("Caption") && meta->indexOfProperty("MultipleLines") >= 0;
        if (IsTextForReaders(name) && !lines)
            continue;
        specs += QStringLiteral("   <stringpropertyspecification name=\"%1\" notr=\"%2\" type=\"%3\"/>\n")
                     .arg(name, IsTextForReaders(name) ? QStringLiteral("false") : QStringLiteral("true"),
                          lines ? QStringLiteral("multiline") : QStringLiteral("singleline"));
    }
    return specs;
}

QString TDesignerWidget::domXml() const
{
    const std::unique_ptr<QWidget> sample = CreateSample(FEntry);
    const QSize size = sample->size();
    QString objectName = name().mid(name().startsWith(QLatin1String("Tqc")) ? 3 : 2);
    objectName[0] = objectName[0].toLower();
    QString xml = QStringLiteral("<ui language=\"c++\">\n"
                                 " <widget class=\"%1\" name=\"%2\">\n"
                                 "  <property name=\"geometry\"><rect><x>0</x><y>0</y><width>%3</width><height>%4</height></rect></property>\n"
                                 " </widget>\n")
                      .arg(name(), objectName)
                      .arg(size.width())
                      .arg(size.height());
    const QString specs = propertySpecifications(sample.get());
    if (!specs.isEmpty())
        xml += QStringLiteral(" <customwidgets>\n  <customwidget>\n   <class>%1</class>\n"
                              "   <propertyspecifications>\n%2   </propertyspecifications>\n"
                              "  </customwidget>\n </customwidgets>\n")
                   .arg(name(), specs);
    return xml + QStringLiteral("</ui>\n");
}
