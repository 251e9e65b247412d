// The Designer plugin as Designer itself uses it, through a real form editor
// and QUiLoader.
#include "design/qcinit01.h"
#include "design/qs_vcl32.h"
#include "backgrounds/blend.h"
#include "buttons/qanimate.h"
#include "design/qbitmapeditor.h"
#include "design/qangleeditor.h"
#include "design/qgaugeeditor.h"
#include "design/qhinteditor.h"
#include "design/qshapebtneditor.h"
#include "design/searchpaths.h"
#include "displays/qseg.h"
#include "indicators/qgauge.h"
#include "indicators/qled.h"
#include "layout/qsplit.h"
#include "layout/qtablistbox.h"
#include "labels/labels.h"
#include "services/mystd.h"
#include "services/std2.h"
#include "testutil.h"

#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QDesignerWidgetDataBaseInterface>
#include <QtDesigner/QExtensionManager>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include "ui_panel.h"
#include "ui_resource.h"

#include <QBuffer>
#include <QTemporaryDir>
#include <QComboBox>
#include <QDial>
#include <QPlainTextEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QRadioButton>
#include <QScrollBar>
#include <QTreeWidget>
#include <QUndoStack>
#include <QUiLoader>

namespace {

// The palette of the whole collection, page by page, as the widget box
// must show it once every component exists.
const QStringList kPalette[3] = {
    {"TqTabListbox", "TqBitmap", "TqAnimated", "TqBackground", "TqBlendPaint", "TqNWBlendPaint", "TqTileMap",
     "TqNWTileMap", "TqLed", "TqSegment", "TqSegmentLabel", "TqSegmentClock", "TqcPeakOmeter", "TqcDotSegment",
     "TqcDotLabel", "TqcDotClock", "TqGauge", "TqFrame", "TqDivider", "TqMovePanel", "TqScope", "TqVerSplit",
     "TqHorSplit", "TqPanelMeter"},
    {"TqCalc", "TqMinMax", "TqHint", "TqShowApp", "TqSplashForm", "TqTitleBar", "TqCompCanvas", "TqcTimer",
     "TqcRunProg", "TqTrayIcon"},
    {"TqBigLabel", "Tq3DLabel", "TqAngleLabel", "TqShapeBtn", "TqColorBtn", "TqGradBtn", "TqBitColBtn",
     "TqIconColBtn", "TqMouseSpot", "TqKnob", "TqDblKnob", "TqTripKnob", "TqSlideBar", "TqNWColorBtn",
     "TqNWBitColBtn", "TqNWIconColBtn"},
};

// A value unlike the current one, of the property's type; invalid when the
// type is not one a form stores for these components.
QVariant otherValue(const QMetaProperty &p, const QVariant &v)
{
    if (IsColorProperty(p))
        return QVariant::fromValue(TColor(v.value<TColor>() == clTeal ? clOlive : clTeal));
    if (p.isEnumType()) {
        const QMetaEnum e = p.enumerator();
        for (int i = 0; i < e.keyCount(); ++i)
            if (e.value(i) != v.toInt())
                return e.value(i);
    }
    switch (v.metaType().id()) {
    case QMetaType::Bool: return !v.toBool();
    case QMetaType::Int: return v.toInt() + 1;
    case QMetaType::UInt: return v.toUInt() + 7;
    case QMetaType::Double: return v.toDouble() + 1.5;
    case QMetaType::QString: return QStringLiteral("2.5");
    case QMetaType::QChar: return QChar(u'Q');
    case QMetaType::QStringList: return v.toStringList() << QStringLiteral("low") << QStringLiteral("high");
    case QMetaType::QFont: {
        QFont f = v.value<QFont>();
        f.setPointSize(f.pointSize() + 3);
        f.setBold(true);
        return f;
    }
    default: return QVariant();
    }
}

QString describe(const QVariant &v)
{
    if (v.metaType().id() == QMetaType::QStringList)
        return v.toStringList().join(QLatin1Char('|'));
    return v.toString();
}

// The stored properties a component adds to QWidget's. Pictures are left
// out (icons too): a form stores them as references to files or resources, which
// Designer's own resource handling keeps.
QList<QMetaProperty> storedProperties(const QObject *o)
{
    QList<QMetaProperty> out;
    const QMetaObject *m = o->metaObject();
    for (int i = QWidget::staticMetaObject.propertyCount(); i < m->propertyCount(); ++i) {
        const QMetaProperty p = m->property(i);
        // A component built on a Qt widget (the list box) stores its own
        // properties; the Qt widget's are Designer's business.
        if (p.enclosingMetaObject()->className()[0] == 'Q')
            continue;
        if (p.isStored() && p.isWritable() && qstrcmp(p.name(), "Name") && p.metaType().id() != QMetaType::QPixmap
            && p.metaType().id() != QMetaType::QIcon)
            out << p;
    }
    return out;
}

// A form of the given children, as Designer stores it.
QString formXml(const QString &children)
{
    return QStringLiteral("<ui version=\"4.0\"><class>F</class><widget class=\"QWidget\" name=\"F\">%1</widget></ui>")
        .arg(children);
}

// A stored form loaded as at run time.
std::unique_ptr<QWidget> loadForm(QByteArray xml)
{
    QBuffer file(&xml);
    QUiLoader loader;
    return std::unique_ptr<QWidget>(loader.load(&file));
}

struct DesignerCore
{
    QMainWindow top;
    QDesignerFormEditorInterface *core;
    QDesignerFormWindowInterface *form;
    DesignerCore()
    {
        QDesignerComponents::initializeResources();
        core = QDesignerComponents::createFormEditor(nullptr);
        core->setTopLevel(&top);
        top.menuBar()->addMenu(QStringLiteral("&Settings"));   // as Designer's main window has them
        top.menuBar()->addMenu(QStringLiteral("&Help"));
        new QDesignerIntegration(core, &top);
        QDesignerComponents::initializePlugins(core);
        QDesignerComponents::createTaskMenu(core, &top);
        form = core->formWindowManager()->createFormWindow(&top);
    }
    ~DesignerCore()
    {
        delete form;
        delete core;
    }
    template <class T>
    T *extension(QObject *o) const { return qt_extension<T *>(core->extensionManager(), o); }
};

} // namespace

// Stored values a loaded component does not keep: a size guard that takes
// the window system's limits holds those, and a tray icon's ShowDesigning
// is for the designer only.
static bool takenFromTheSystem(QWidget *runtime, const QMetaProperty &p)
{
    const QByteArray name(p.name());
    if (const auto *guard = qobject_cast<TqMinMax *>(runtime))
        return guard->UseDefaultSize() && (name.startsWith("Max") || name.startsWith("Min"));
    return qobject_cast<TqTrayIcon *>(runtime) && name == "ShowDesigning";
}

class tst_Designer : public QObject
{
    Q_OBJECT
    std::unique_ptr<DesignerCore> d;
    QDesignerFormWindowInterface *form() const { return d->form; }
    // The designer's form made of `children`; the child `name` of class T.
    template <class T>
    T *design(const QString &children, const char *name) const
    {
        return d->form->setContents(formXml(children)) ? d->form->mainContainer()->findChild<T *>(name) : nullptr;
    }
    template <class T>
    T *designOne(const char *name) const
    {
        return design<T>(QStringLiteral("<widget class=\"%1\" name=\"%2\"/>")
                             .arg(QLatin1String(T::staticMetaObject.className()), QLatin1String(name)),
                         name);
    }
    std::unique_ptr<QWidget> reloaded() const { return loadForm(d->form->contents().toUtf8()); }
    // The editor that `action` of `w` opens; by default the double-click's.
    template <class Editor>
    Editor *openEditor(QWidget *w, QAction *action = nullptr) const
    {
        if (!action)
            action = d->extension<QDesignerTaskMenuExtension>(w)->preferredEditAction();
        if (!action)
            return nullptr;
        action->trigger();
        return w->window()->findChild<Editor *>();
    }
private slots:
    void initTestCase() { d = std::make_unique<DesignerCore>(); }
    void cleanupTestCase() { d.reset(); }

    void pluginListsTheComponentsInPaletteOrder()
    {
        QPluginLoader loader(QStringLiteral(QC_PLUGIN_FILE));
        QVERIFY2(loader.load(), qPrintable(loader.errorString()));
        auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
        QVERIFY(collection);
        const auto widgets = collection->customWidgets();
        QCOMPARE(widgets.size(), int(Components().size()));
        // In the order of the palette: page by page, and within a page as the
        // whole palette lists them.
        int lastPage = 0, lastIndex = -1;
        for (QDesignerCustomWidgetInterface *w : widgets) {
            const int page = w->group() == "QuovarSoft" ? 0 : w->group() == "QuovarSoft II" ? 1 : w->group() == "QuovarSoft III" ? 2 : -1;
            QVERIFY2(page >= lastPage, qPrintable(w->name()));
            const int index = int(kPalette[page].indexOf(w->name()));
            QVERIFY2(index >= 0 && (page > lastPage || index > lastIndex), qPrintable(w->name()));
            lastPage = page;
            lastIndex = index;
            QVERIFY(!w->toolTip().isEmpty() && !w->whatsThis().isEmpty());
            QVERIFY(w->domXml().contains(QStringLiteral("class=\"%1\"").arg(w->name())));
            QVERIFY(QFile::exists(QStringLiteral(QC_SOURCE_DIR "/src/") + w->includeFile()));
        }
    }

    void madeInDesignMode()
    {
        QWidget form;
        for (const TComponentEntry &e : Components()) {
            QWidget *w = CreateForDesigner(e, &form);
            auto *core = dynamic_cast<TComponentCore *>(w);
            QVERIFY2(core && core->IsDesigning() && core->IsLoading(), e.className);
        }
        // Design-mode rules hold from the start: a label shows the name, a
        // non-visual component its face.
        QCOMPARE(form.findChild<TqSegmentLabel *>()->Caption(), QStringLiteral("QuovarSoft"));
        QCOMPARE(form.findChild<TqcDotLabel *>()->Caption(), QStringLiteral("QuovarSoft"));
        form.show();
        QVERIFY(form.findChild<TqCalc *>()->isVisible());
        QTRY_VERIFY(!form.findChild<TqCalc *>()->IsLoading());   // Loaded came once the event loop ran
    }

    // Each icon is its component's picture: most of the square, with
    // something in its middle unlike its edge, and unlike every other icon.
    void iconsAreTheComponentsOwnPictures()
    {
        QList<QImage> seen;
        QStringList blank, alike;
        for (const TComponentEntry &e : Components()) {
            const QIcon icon = ComponentIcon(e);
            QCOMPARE(icon.availableSizes(), (QList<QSize>{QSize(24, 24), QSize(48, 48)}));
            for (int side : {24, 48}) {
                const QImage image = icon.pixmap(side, side).toImage().convertToFormat(QImage::Format_ARGB32);
                const int opaque = pixelsWhere(image, [](QRgb p) { return qAlpha(p) == 255; }).count;
                QVERIFY2(opaque >= side * side / 3, e.className);
                const QRect ink = pixelsWhere(image, [](QRgb p) { return qAlpha(p) == 255; }).box;
                QSet<QRgb> edge;
                for (int x = ink.left(); x <= ink.right(); ++x)
                    edge << image.pixel(x, ink.top()) << image.pixel(x, ink.bottom());
                for (int y = ink.top(); y <= ink.bottom(); ++y)
                    edge << image.pixel(ink.left(), y) << image.pixel(ink.right(), y);
                // Blank: the middle third all of one colour that the edge has.
                const QRect middle(ink.center() - QPoint(side / 6, side / 6), QSize(side / 3, side / 3));
                QSet<QRgb> inside;
                for (int y = middle.top(); y <= middle.bottom(); ++y)
                    for (int x = middle.left(); x <= middle.right(); ++x)
                        inside << image.pixel(x, y);
                if (inside.size() == 1 && edge.contains(*inside.begin()))
                    blank << QStringLiteral("%1 at %2").arg(QLatin1String(e.className)).arg(side);
            }
            const QImage big = icon.pixmap(48, 48).toImage();
            if (seen.contains(big))
                alike << QLatin1String(e.className);
            seen << big;
        }
        QCOMPARE(blank.join(QLatin1Char(',')), QString());
        QCOMPARE(alike.join(QLatin1Char(',')), QString());
    }

    void formRoundTripThroughDesigner()
    {
        QString xml = QStringLiteral("<ui version=\"4.0\"><class>Panel</class><widget class=\"QWidget\" name=\"Panel\">"
                                     "<property name=\"geometry\"><rect><x>0</x><y>0</y><width>640</width><height>480</height></rect></property>");
        int y = 0;
        for (const TComponentEntry &e : Components()) {
            xml += QStringLiteral("<widget class=\"%1\" name=\"%2\"><property name=\"geometry\"><rect><x>0</x><y>%3</y>"
                                  "<width>30</width><height>30</height></rect></property></widget>")
                       .arg(QLatin1String(e.className), QString::fromLatin1(e.className).toLower())
                       .arg(y);
            y += 40;
        }
        xml += QStringLiteral("</widget></ui>");
        QVERIFY(d->form->setContents(xml));

        // Every stored property gets a value other than its default, through the
        // sheet as the property editor sets it.
        int changed = 0;
        for (const TComponentEntry &e : Components()) {
            QWidget *w = d->form->mainContainer()->findChild<QWidget *>(QString::fromLatin1(e.className).toLower());
            QVERIFY2(w && dynamic_cast<TComponentCore *>(w) && dynamic_cast<TComponentCore *>(w)->IsDesigning(), e.className);
            auto *sheet = d->extension<QDesignerPropertySheetExtension>(w);
            for (const QMetaProperty &p : storedProperties(w)) {
                const int index = sheet->indexOf(QLatin1String(p.name()));
                if (!sheet->isEnabled(index))
                    continue;
                QVariant v = otherValue(p, p.read(w));
                QVERIFY2(v.isValid(), p.name());
                if (IsColorProperty(p))
                    v = ColorToFormColor(v.value<TColor>());
                sheet->setProperty(index, v);
                sheet->setChanged(index, true);
                ++changed;
            }
        }
        QVERIFY(changed > 80);

        QByteArray saved = d->form->contents().toUtf8();
        if (qEnvironmentVariableIsSet("QC_WRITE_PANEL_UI")) {   // how tests/data/panel.ui was made
            QFile out(qEnvironmentVariable("QC_WRITE_PANEL_UI"));
            QVERIFY(out.open(QIODevice::WriteOnly));
            out.write(saved);
        }
        QBuffer file(&saved);
        QUiLoader loader;
        std::unique_ptr<QWidget> loaded;
        {
            FormLoading loading;
            loaded.reset(loader.load(&file));
        }
        QVERIFY2(loaded, qPrintable(loader.errorString()));
        for (const TComponentEntry &e : Components()) {
            const QString name = QString::fromLatin1(e.className).toLower();
            QWidget *designed = d->form->mainContainer()->findChild<QWidget *>(name);
            QWidget *runtime = loaded->findChild<QWidget *>(name);
            QVERIFY2(runtime && QLatin1String(runtime->metaObject()->className()) == QLatin1String(e.className), e.className);
            for (const QMetaProperty &p : storedProperties(designed))
                QVERIFY2(p.read(runtime) == p.read(designed) || takenFromTheSystem(runtime, p),
                         qPrintable(QStringLiteral("%1.%2: %3 after loading, %4 in the designer")
                                        .arg(e.className, p.name(), describe(p.read(runtime)), describe(p.read(designed)))));
            if (!e.visual) {
                QVERIFY(runtime->isHidden());   // a face only while designing
                QVERIFY(!dynamic_cast<TComponentCore *>(runtime)->IsDesigning());
            }
        }
    }

    void colourPropertiesAreColoursAndKeepSystemColours()
    {
        auto *seg = designOne<TqSegment>("seg");
        QVERIFY(seg);
        auto *sheet = d->extension<QDesignerPropertySheetExtension>(seg);
        const int lit = sheet->indexOf("LitColor"), color = sheet->indexOf("Color");
        QCOMPARE(sheet->property(lit).metaType().id(), int(QMetaType::QColor));   // a swatch, not a number
        QCOMPARE(sheet->property(lit).value<QColor>(), QColor(0, 255, 0));
        sheet->setProperty(lit, QColor(255, 0, 0));
        QCOMPARE(seg->LitColor(), clRed);
        sheet->setProperty(color, ColorToFormColor(clBtnFace));
        sheet->setChanged(color, true);
        QCOMPARE(seg->Color(), clBtnFace);
        QCOMPARE(sheet->property(color).value<QColor>().rgb(), ColorToQRgb(clBtnFace));
        // One row for each thing: Name is Designer's objectName, a face has
        // no widget properties, a control's size is its geometry, its Hint
        // its tool tip.
        auto *timerSheet = d->extension<QDesignerPropertySheetExtension>(designOne<TqcTimer>("timer"));
        for (const char *hidden : {"Name", "palette", "font", "sizePolicy", "minimumSize", "toolTip", "enabled"})
            QVERIFY2(!timerSheet->isVisible(timerSheet->indexOf(hidden)), hidden);
        for (const char *shown : {"objectName", "geometry", "Interval", "Tag"})
            QVERIFY2(timerSheet->isVisible(timerSheet->indexOf(shown)), shown);
        auto *ledSheet = d->extension<QDesignerPropertySheetExtension>(designOne<TqLed>("led"));
        for (const char *hidden : {"Width", "Height", "toolTip"})
            QVERIFY2(!ledSheet->isVisible(ledSheet->indexOf(hidden)), hidden);
        for (const char *shown : {"geometry", "Hint", "palette", "LEDColor"})
            QVERIFY2(ledSheet->isVisible(ledSheet->indexOf(shown)), shown);
    }

    void systemColoursAreChosenInTheColoursDialog()
    {
        auto *label = designOne<TqcDotLabel>("label");
        QVERIFY(label);
        QAction *colours = d->extension<QDesignerTaskMenuExtension>(label)->taskActions().last();
        QCOMPARE(colours->text(), QStringLiteral("Colours..."));
        colours->trigger();
        auto *dialog = label->window()->findChild<TColorsDialog *>("qcolColorsDialog");
        QVERIFY(dialog && dialog->isVisible());
        auto *box = dialog->findChild<QComboBox *>("UnLitColor");
        QCOMPARE(box->currentText(), QStringLiteral("$00002000"));   // unnamed: shown as a value
        box->activated(box->findText(QStringLiteral("clBtnShadow")));
        QVERIFY(dialog->SetValue(QStringLiteral("LitColor"), clAqua));
        dialog->accept();
        QCOMPARE(label->UnLitColor(), clBtnShadow);
        QCOMPARE(label->LitColor(), clAqua);
        // One undo takes the dialog's two changes back; redo brings both.
        d->form->commandHistory()->undo();
        QCOMPARE(label->UnLitColor(), TColor(0x00002000));
        QCOMPARE(label->LitColor(), clLime);
        d->form->commandHistory()->redo();
        QCOMPARE(label->LitColor(), clAqua);
        // Stored as changed: the saved form brings the system colour back.
        const std::unique_ptr<QWidget> loaded = reloaded();
        QCOMPARE(loaded->findChild<TqcDotLabel *>("label")->UnLitColor(), clBtnShadow);
        QCOMPARE(loaded->findChild<TqcDotLabel *>("label")->LitColor(), clAqua);
    }

    void bitmapFromTheBitmapEditor()
    {
        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("rivet.png"));
        QImage tile(8, 6, QImage::Format_RGB32);
        tile.fill(Qt::red);
        QVERIFY(tile.save(file));
        // The gauge's tiled picture has the editor too.
        auto *gauge = designOne<TqGauge>("gauge");
        QAction *glyphVerb = nullptr;
        for (QAction *a : d->extension<QDesignerTaskMenuExtension>(gauge)->taskActions())
            if (a->objectName() == QLatin1String("qcolEditGlyph"))
                glyphVerb = a;
        QVERIFY(glyphVerb);
        TqBitmapEditor *glyphs = openEditor<TqBitmapEditor>(gauge, glyphVerb);
        QVERIFY(glyphs);
        QVERIFY(glyphs->Load(file));
        glyphs->accept();
        QCOMPARE(gauge->Glyph().size(), QSize(8, 6));
        QTRY_VERIFY(!gauge->window()->findChild<TqBitmapEditor *>());
        auto *map = designOne<TqTileMap>("map");
        QVERIFY(map);
        TqBitmapEditor *editor = openEditor<TqBitmapEditor>(map);
        QVERIFY(editor);
        QVERIFY(editor->Picture().isNull());
        QVERIFY(!editor->Load(dir.filePath(QStringLiteral("missing.png"))));   // not a picture: nothing changes
        QVERIFY(editor->Load(file));
        editor->accept();
        QCOMPARE(map->Bitmap().size(), QSize(8, 6));
        QVERIFY(d->form->contents().contains(QStringLiteral("rivet.png</pixmap>")));   // stored as its file
        // Opened again it shows the picture and its file; Clear empties it.
        QTRY_VERIFY(!map->window()->findChild<TqBitmapEditor *>());
        editor = openEditor<TqBitmapEditor>(map);
        QCOMPARE(editor->FileName(), file);
        QCOMPARE(editor->Picture().size(), QSize(8, 6));
        editor->Clear();
        editor->accept();
        QVERIFY(map->Bitmap().isNull());
        QVERIFY(!d->form->contents().contains(QStringLiteral("rivet.png")));
        // Designer makes one change of the two, and undoes it.
        QVERIFY(d->form->commandHistory()->canUndo());
        d->form->commandHistory()->undo();
        QVERIFY(map->Bitmap().isNull());
        // The pictures of a saved form come back when it is loaded.
        auto *picture = design<TqBitmap>(
            QStringLiteral("<widget class=\"TqBitmap\" name=\"picture\"/><widget class=\"TqBitColBtn\" name=\"button\"/>"),
            "picture");
        auto *button = d->form->mainContainer()->findChild<TqBitColBtn *>("button");
        d->form->cursor()->setWidgetProperty(picture, QStringLiteral("Bitmap"), DesignerPixmapValue(file));
        d->form->cursor()->setWidgetProperty(button, QStringLiteral("Glyph"), DesignerPixmapValue(file));
        const std::unique_ptr<QWidget> loaded = reloaded();
        QVERIFY(loaded);
        QCOMPARE(loaded->findChild<TqBitmap *>("picture")->Bitmap().size(), QSize(8, 6));
        QCOMPARE(loaded->findChild<TqBitColBtn *>("button")->Glyph().toImage().pixel(0, 0), qRgb(255, 0, 0));
    }

    // The panels hold the controls placed on them: saved as their children
    // (the splitter's bar is not), made so at run time, and moved with the
    // splitter's bar.
    void panelsHoldTheirControls()
    {
        for (const char *cls : {"TqMovePanel", "TqVerSplit", "TqHorSplit"})
            QVERIFY2(d->core->widgetDataBase()->item(d->core->widgetDataBase()->indexOfClassName(QLatin1String(cls)))
                         ->isContainer(),
                     cls);
        QVERIFY(!d->core->widgetDataBase()->item(d->core->widgetDataBase()->indexOfClassName("TqLed"))->isContainer());
        const auto geometry = [](int x, int y) {
            return QStringLiteral("<property name=\"geometry\"><rect><x>%1</x><y>%2</y><width>17</width>"
                                  "<height>17</height></rect></property>").arg(x).arg(y);
        };
        auto *split = design<TqVerSplit>(
            QStringLiteral("<widget class=\"TqMovePanel\" name=\"mover\"><widget class=\"TqLed\" name=\"carried\">%1</widget></widget>"
                           "<widget class=\"TqVerSplit\" name=\"split\"><property name=\"WhereSplit\"><number>100</number></property>"
                           "<widget class=\"TqLed\" name=\"left\">%2</widget><widget class=\"TqLed\" name=\"right\">%3</widget></widget>")
                .arg(geometry(5, 5), geometry(20, 20), geometry(150, 20)),
            "split");
        QVERIFY(split);
        QCOMPARE(split->findChild<TqLed *>("left")->parentWidget(), split);
        QVERIFY(d->form->isManaged(split->findChild<TqLed *>("right")));
        QVERIFY(!d->form->isManaged(split->Bar()));
        const QString saved = d->form->contents();
        QVERIFY(!saved.contains(QLatin1String("TqSplit")));
        const std::unique_ptr<QWidget> loaded = reloaded();
        auto *runSplit = loaded->findChild<TqVerSplit *>("split");
        auto *left = runSplit->findChild<TqLed *>("left");
        auto *right = runSplit->findChild<TqLed *>("right");
        QVERIFY(left && right);
        QCOMPARE(loaded->findChild<TqLed *>("carried")->parentWidget(), loaded->findChild<TqMovePanel *>("mover"));
        QCOMPARE(runSplit->findChildren<TqSplit *>().size(), 1);
        runSplit->SetWhereSplit(130);
        QCOMPARE(right->x(), 180);
        QCOMPARE(left->x(), 50);
    }

    // What the designer shows is what the program shows: a caption taken
    // from the name is stored, and the clocks show no face of their timer.
    void designedLooksAsItRuns()
    {
        auto *button = designOne<TqColorBtn>("start");
        QCOMPARE(button->Caption(), QStringLiteral("start"));
        QCOMPARE(reloaded()->findChild<TqColorBtn *>("start")->Caption(), QStringLiteral("start"));
        auto *clock = designOne<TqSegmentClock>("clock");
        QVERIFY(clock->Timer()->IsDesigning());
        QVERIFY(clock->Timer()->isHidden());
        QVERIFY(designOne<TqcDotClock>("dots")->Timer()->isHidden());
        // Controls that draw nothing yet can still be found on the form.
        auto *picture = design<TqBitmap>(
            QStringLiteral("<widget class=\"TqBitmap\" name=\"picture\"/><widget class=\"TqAngleLabel\" name=\"angled\"/>"),
            "picture");
        auto *angled = d->form->mainContainer()->findChild<TqAngleLabel *>("angled");
        for (TControl *bare : {static_cast<TControl *>(picture), static_cast<TControl *>(angled)}) {
            const QImage seen = bare->RenderImage(qRgb(255, 255, 255));
            QVERIFY2(pixelsWhere(seen, [](QRgb p) { return p != qRgb(255, 255, 255); }).count > 10,
                     bare->metaObject()->className());
        }
    }

    // Expressions and command lines are not for translators: stored as they
    // are, and uic leaves them out of translate().
    void technicalTextsAreNotTranslated()
    {
        auto *calc = designOne<TqCalc>("calc");
        auto *sheet = d->extension<QDesignerPropertySheetExtension>(calc);
        QVERIFY(sheet->indexOf("CalcLine") >= 0);
        d->form->cursor()->setWidgetProperty(calc, QStringLiteral("CalcLine"), QStringLiteral("2*(3+4)"));
        QCOMPARE(calc->CalcLine(), QStringLiteral("2*(3+4)"));
        const QString saved = d->form->contents();
        QVERIFY(saved.contains(QLatin1String("<string notr=\"true\">2*(3+4)</string>")));
        auto *label = designOne<TqBigLabel>("big");
        d->form->cursor()->setWidgetProperty(label, QStringLiteral("Caption"), QStringLiteral("Volts"));
        QVERIFY(d->form->contents().contains(QLatin1String("<string>Volts</string>")));
    }

    // A form whose stored value a component refuses still loads, through
    // QUiLoader and Designer alike: the value is reported, never thrown
    // through Qt.
    void refusedValuesFromAFormAreReported()
    {
        const QString list = QStringLiteral("<widget class=\"TqTabListbox\" name=\"list\"><property name=\"TabStops\">"
                                            "<string>60 30</string></property></widget>");
        QTest::ignoreMessage(QtCriticalMsg, "Tab stops must ascend: 30 follows 60");
        const std::unique_ptr<QWidget> loaded = loadForm(formXml(list).toUtf8());
        QVERIFY(loaded && loaded->findChild<TqTabListbox *>("list"));
        QVERIFY(loaded->findChild<TqTabListbox *>("list")->TabStops().isEmpty());
        QTest::ignoreMessage(QtCriticalMsg, "Tab stops must ascend: 30 follows 60");
        QVERIFY(design<TqTabListbox>(list, "list"));
    }

    // Greyed in Designer's own property editor, and refused when set.
    // Pictures from the application's resources, as Designer's resource
    // browser gives them: kept through Designer, loaded by QUiLoader and
    // compiled by uic.
    void picturesFromResources()
    {
        QFile file(QStringLiteral(QC_SOURCE_DIR "/tests/data/resource.ui"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray xml = file.readAll();
        d->form->setFileName(file.fileName());   // where the form's resource file is found
        QVERIFY(d->form->setContents(QString::fromUtf8(xml)));
        auto *designed = d->form->mainContainer()->findChild<TqBitmap *>("picture");
        QVERIFY(designed);
        QCOMPARE(designed->Bitmap().size(), QSize(6, 4));
        QVERIFY(d->form->contents().contains(QLatin1String(":/gauges/needle.png</pixmap>")));
        for (const std::unique_ptr<QWidget> &loaded : {reloaded(), loadForm(xml)}) {
            QCOMPARE(loaded->findChild<TqBitmap *>("picture")->Bitmap().size(), QSize(6, 4));
            QCOMPARE(loaded->findChild<TqBitColBtn *>("button")->Glyph().size(), QSize(6, 4));
        }
        QWidget compiled;
        Ui::ResourceForm ui;
        ui.setupUi(&compiled);
        QCOMPARE(ui.picture->Bitmap().size(), QSize(6, 4));
        QCOMPARE(ui.button->Glyph().size(), QSize(6, 4));
        d->form->setFileName(QString());
    }

    void calculatorResultsAreReadOnly()
    {
        auto *calc = designOne<TqCalc>("calc");
        auto *sheet = d->extension<QDesignerPropertySheetExtension>(calc);
        for (const char *name : {"NumberNum", "Number", "RegisterA", "RegisterD", "CalcResult", "WhereIsLastError"})
            QVERIFY2(!sheet->isEnabled(sheet->indexOf(name)) && sheet->isVisible(sheet->indexOf(name)), name);
        for (const char *name : {"RegisterF", "RegisterJ", "CalcLine", "RegisterANum"})
            QVERIFY2(sheet->isEnabled(sheet->indexOf(name)), name);
        QDesignerPropertyEditorInterface *editor = QDesignerComponents::createPropertyEditor(d->core, &d->top);
        d->core->setPropertyEditor(editor);
        editor->setObject(calc);
        const auto row = [editor](const char *name) -> QTreeWidgetItem * {
            for (QTreeWidget *tree : editor->findChildren<QTreeWidget *>()) {
                const auto items = tree->findItems(QLatin1String(name), Qt::MatchExactly | Qt::MatchRecursive);
                if (!items.isEmpty())
                    return items.first();
            }
            return nullptr;
        };
        QVERIFY(row("RegisterA") && row("CalcLine"));
        QVERIFY(!(row("RegisterA")->flags() & Qt::ItemIsEnabled));
        QVERIFY(!(row("CalcResult")->flags() & Qt::ItemIsEnabled));
        QVERIFY(row("CalcLine")->flags() & Qt::ItemIsEnabled);
        d->form->cursor()->setWidgetProperty(calc, QStringLiteral("RegisterA"), 99.0);
        QCOMPARE(calc->property("RegisterA"), QVariant(calc->RegisterA()));
        QVERIFY(calc->RegisterA() != QLatin1String("99"));
        d->core->setPropertyEditor(nullptr);
        delete editor;
    }

    // A colour picked for a system-colour property is the colour picked.
    void pickedColourReplacesASystemColour()
    {
        auto *seg = designOne<TqSegment>("seg");
        auto *sheet = d->extension<QDesignerPropertySheetExtension>(seg);
        const int color = sheet->indexOf("Color");
        sheet->setProperty(color, ColorToFormColor(clHighlight));
        QCOMPARE(seg->Color(), clHighlight);
        QColor picked = sheet->property(color).value<QColor>();   // the dialog keeps the alpha
        picked.setRgb(255, 0, 0, picked.alpha());
        sheet->setProperty(color, picked);
        QCOMPARE(seg->Color(), clRed);
    }

    void gaugeCaptionStyleFromItsEditor()
    {
        auto *gauge = designOne<TqGauge>("gauge");
        QVERIFY(gauge);
        const auto pick = [&](int style, bool ok) {
            auto *editor = openEditor<TqGaugeEditor>(gauge);
            QVERIFY(editor && editor->isVisible());
            QVERIFY(editor->width() > editor->fontMetrics().horizontalAdvance(editor->windowTitle()) + 100);
            QCOMPARE(editor->CaptionStyle(), int(gauge->CaptionStyle()));   // opens on the current style
            QTest::mouseClick(editor->findChildren<QRadioButton *>().at(style), Qt::LeftButton);
            ok ? editor->accept() : editor->reject();
            QTRY_VERIFY(!gauge->window()->findChild<TqGaugeEditor *>());
        };
        pick(TqGauge::gaTotPct, false);
        QCOMPARE(gauge->CaptionStyle(), TqGauge::gaPctBar);   // Cancel leaves it
        pick(TqGauge::gaTotPct, true);
        QCOMPARE(gauge->CaptionStyle(), TqGauge::gaTotPct);
        QVERIFY(d->form->contents().contains(QStringLiteral("gaTotPct")));   // stored with the form
    }

    void shapeFromTheShapeEditor()
    {
        auto *button = designOne<TqShapeBtn>("shape");
        QVERIFY(button);
        auto *editor = openEditor<TqShapeBtnEditor>(button);
        QVERIFY(editor);
        QCOMPARE(editor->Shape(), int(TqShapeBtn::sbRectangle));
        QVERIFY(QTest::qWaitForWindowExposed(editor));
        auto *shapes = editor->findChild<QListWidget *>();
        QVERIFY(!shapes->verticalScrollBar()->isVisible());   // all thirteen in view
        QVERIFY(shapes->viewport()->rect().contains(shapes->visualItemRect(shapes->item(shapes->count() - 1))));
        editor->SetShape(TqShapeBtn::sbPlus);
        editor->accept();
        QCOMPARE(button->Shape(), TqShapeBtn::sbPlus);
        QVERIFY(d->form->contents().contains(QStringLiteral("sbPlus")));
    }

    void angleFromTheDial()
    {
        // The dial's six o'clock start and clockwise turn against the label's
        // anticlockwise angle from three o'clock.
        auto *label = design<TqAngleLabel>(QStringLiteral("<widget class=\"TqAngleLabel\" name=\"label\">"
                                                          "<property name=\"Angle\"><number>30</number></property></widget>"),
                                           "label");
        auto *editor = openEditor<TqAngleEditor>(label);
        QVERIFY(editor);
        QCOMPARE(editor->Angle(), 30);
        QCOMPARE(editor->Dial()->value(), 240);
        editor->Dial()->setFocus();
        QTest::keyClick(editor->Dial(), Qt::Key_PageUp);   // a notch on: clockwise, so the angle goes down
        QCOMPARE(editor->Angle(), 15);
        editor->accept();
        QCOMPARE(label->Angle(), 15);
        QVERIFY(d->form->contents().contains(QStringLiteral("<number>15</number>")));
        d->form->commandHistory()->undo();
        QCOMPARE(label->Angle(), 30);
    }

    void hintFromTheHintEditor()
    {
        // A control that publishes Hint, one whose hint is its tool tip, and a
        // non-visual one without a hint.
        QVERIFY(design<QWidget>(QStringLiteral("<widget class=\"TqLed\" name=\"led\"/><widget class=\"Tq3DLabel\" name=\"label\"/>"
                                               "<widget class=\"TqcTimer\" name=\"timer\"/>"),
                                "led"));
        const auto hintAction = [&](QWidget *w) -> QAction * {
            for (QAction *a : d->extension<QDesignerTaskMenuExtension>(w)->taskActions())
                if (a->objectName() == QLatin1String("qcolEditHint"))
                    return a;
            return nullptr;
        };
        QVERIFY(!hintAction(d->form->mainContainer()->findChild<QWidget *>("timer")));
        for (const char *name : {"led", "label"}) {
            QWidget *w = d->form->mainContainer()->findChild<QWidget *>(name);
            QAction *edit = hintAction(w);
            QVERIFY2(edit, name);
            QVERIFY(d->extension<QDesignerTaskMenuExtension>(w)->preferredEditAction() != edit);
            auto *editor = openEditor<TqHintEditor>(w, edit);
            QVERIFY(editor);
            QTest::keyClicks(editor->Editor(), QStringLiteral("Lamp"));
            QTest::keyClick(editor->Editor(), Qt::Key_Return);
            QTest::keyClicks(editor->Editor(), QStringLiteral("second line"));
            editor->accept();
            QTRY_VERIFY(!w->window()->findChild<TqHintEditor *>());
            // Stored with the form (Designer keeps a tool tip off the widget it
            // designs), and one undoable change.
            QVERIFY2(d->form->contents().contains(QStringLiteral("Lamp\nsecond line")), name);
            if (QLatin1String(name) == "led")
                QCOMPARE(static_cast<TqLed *>(w)->Hint(), QStringLiteral("Lamp\nsecond line"));
            d->form->commandHistory()->undo();
            QVERIFY(!d->form->contents().contains(QStringLiteral("second line")));
        }
    }

    void verbsOpenTheHelpAtTheContextNumber()
    {
        QVERIFY(design<QWidget>(
            QStringLiteral("<widget class=\"TqSegmentLabel\" name=\"label\"/><widget class=\"TqcTimer\" name=\"timer\"/>"), "label"));
        QList<THelpRequest> requests;
        SetHelpViewer([&](const THelpRequest &r) { requests << r; return true; });
        for (const auto &[name, context, page] : {std::tuple{"label", 13, "tqsegmentlabel.html"}, std::tuple{"timer", 49, "tqctimer.html"}}) {
            // The verbs; then, for the label, its hint editor and the colours
            // dialog, each after a separator.
            const QList<QAction *> actions =
                d->extension<QDesignerTaskMenuExtension>(d->form->mainContainer()->findChild<QWidget *>(name))->taskActions();
            QCOMPARE(actions.size(), QLatin1String(name) == "label" ? 7 : 3);
            QCOMPARE(actions[2]->text(), QStringLiteral("About QuovarCollection..."));
            requests.clear();
            actions[0]->trigger();
            actions[1]->trigger();
            QCOMPARE(requests.size(), 2);
            QCOMPARE(requests[0].context, context);
            QCOMPARE(requests[0].page, QLatin1String(page));
            QCOMPARE(requests[1].page, QStringLiteral("index.html"));
        }
        // Qt Assistant is started once and told each page through its
        // remote control (a stand-in that writes down what it is told).
        SetHelpViewer({});
        if (QFileInfo::exists(HelpDirectory() + QStringLiteral("/qcol.qhc"))) {
            QTemporaryDir dir;
            const QString log = dir.filePath(QStringLiteral("told")), program = dir.filePath(QStringLiteral("assistant"));
            QFile script(program);
            QVERIFY(script.open(QIODevice::WriteOnly));
            script.write("#!/bin/sh\necho \"start $*\" >> \"$QCOL_TOLD\"\n"
                         "while read line; do echo \"$line\" >> \"$QCOL_TOLD\"; done\n");
            script.close();
            script.setPermissions(script.permissions() | QFileDevice::ExeOwner);
            qputenv("QCOL_ASSISTANT", program.toLocal8Bit());
            qputenv("QCOL_TOLD", log.toLocal8Bit());
            QVERIFY(ShowHelpTopic(13, &d->top));
            QVERIFY(ShowHelpIndex(&d->top));
            qunsetenv("QCOL_ASSISTANT");
            const auto told = [&] {
                QFile f(log);
                return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts)
                                                   : QStringList();
            };
            QTRY_COMPARE(told().size(), 5);
            QCOMPARE(told().filter(QStringLiteral("start ")).size(), 1);
            QVERIFY(told().at(0).contains(QStringLiteral("-enableRemoteControl")));
            QCOMPARE(told().at(1), QStringLiteral("setSource qthelp://org.quovarsoft.qcol/doc/tqsegmentlabel.html"));
            QCOMPARE(told().at(3), QStringLiteral("setSource qthelp://org.quovarsoft.qcol/doc/index.html"));
        }
        // Designer's Help menu opens the collection's index.
        QAction *index = d->top.menuBar()->findChild<QAction *>("qcolHelpIndex");
        QVERIFY(index);
        QCOMPARE(index->text(), QStringLiteral("QuovarCollection Help"));
        requests.clear();
        SetHelpViewer([&](const THelpRequest &r) { requests << r; return true; });
        index->trigger();
        QCOMPARE(requests.size(), 1);
        QCOMPARE(requests[0].page, QStringLiteral("index.html"));
        // The search paths: a help folder added in the editor is where the
        // help is looked for at once, and it is kept in Designer's settings.
        QTemporaryDir own;
        QVERIFY(QDir(own.path()).mkpath(QStringLiteral("html")));
        QFile ownIndex(own.filePath(QStringLiteral("html/index.html")));
        QVERIFY(ownIndex.open(QIODevice::WriteOnly));
        ownIndex.close();
        QAction *paths = d->top.menuBar()->findChild<QAction *>("qcolSearchPaths");
        QVERIFY(paths);
        paths->trigger();
        auto *editor = d->top.findChild<TSearchPathsDialog *>();
        QVERIFY(editor && editor->isVisible());
        editor->List(QStringLiteral("Help"))->addItem(own.path());
        editor->List(QStringLiteral("Pictures"))->addItem(QDir::tempPath());
        editor->accept();
        QCOMPARE(HelpDirectory(), own.path());
        QCOMPARE(LoadSearchPaths(d->core).Help, QStringList{own.path()});
        QCOMPARE(LoadSearchPaths(d->core).Pictures, QStringList{QDir::tempPath()});
        SetSearchPaths({});
        SaveSearchPaths(d->core, {});
        QVERIFY(HelpDirectory() != own.path());
        // No viewer: the user is told, nothing else happens.
        SetHelpViewer([](const THelpRequest &) { return false; });
        QVERIFY(!ShowHelpTopic(13, &d->top));
        auto *message = d->top.findChild<QMessageBox *>("qcolHelpMessage");
        QVERIFY(message && message->isVisible());
        QVERIFY(message->text().contains(QStringLiteral("tqsegmentlabel.html")));
        message->close();
        SetHelpViewer({});
        // The about box names the version.
        TComponentEditor(13).ExecuteVerb(2, &d->top);
        auto *about = d->top.findChild<QMessageBox *>("qcolAboutBox");
        QVERIFY(about && about->isVisible());
        QVERIFY(about->text().contains(QStringLiteral("QuovarCollection " QC_VERSION)));
        about->close();
    }

    void helpPagesAreBuilt()
    {
        const QString dir = HelpDirectory();
        QVERIFY2(!dir.isEmpty(), "the help of the build tree was not found");
        for (const TComponentEntry &e : AllComponents()) {
            const bool codeOnly = e.page == kCodeOnlyPage;
            QFile page(dir + QStringLiteral("/html/") + (codeOnly ? HelpPageOf(e) : HelpPage(e.helpContext)));
            QVERIFY2(page.open(QIODevice::ReadOnly), qPrintable(page.fileName()));
            const QString html = QString::fromUtf8(page.readAll());
            const QImage picture(dir + QStringLiteral("/html/") + QString::fromLatin1(e.className).toLower() + QStringLiteral(".png"));
            QVERIFY2(!picture.isNull(), e.className);
            // Every property and event the component publishes is on its page.
            const std::unique_ptr<QWidget> made = CreateAlone(e, false);
            const QMetaObject *meta = made->metaObject();
            for (int i = QWidget::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i)
                QVERIFY2(html.contains(QStringLiteral("<code>%1</code>").arg(QLatin1String(meta->property(i).name()))),
                         meta->property(i).name());
            QVERIFY(html.contains(codeOnly ? QStringLiteral("made in code") : QStringLiteral("help topic %1").arg(e.helpContext)));
        }
        QFile project(dir + QStringLiteral("/html/qcol.qhp"));
        QVERIFY(project.open(QIODevice::ReadOnly));
        QVERIFY(project.readAll().contains("<keyword name=\"TqSegment\" id=\"12\" ref=\"tqsegment.html\"/>"));
    }

    void uicCompiledFormMatchesTheLoadedOne()
    {
        QWidget compiled;
        {
            FormLoading loading;
            Ui::Panel ui;
            ui.setupUi(&compiled);
        }
        QFile file(QStringLiteral(QC_SOURCE_DIR "/tests/data/panel.ui"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QUiLoader loader;
        std::unique_ptr<QWidget> loaded(loader.load(&file));
        QVERIFY(loaded);
        int compared = 0;
        for (const TComponentEntry &e : Components()) {
            const QString name = QString::fromLatin1(e.className).toLower();
            QWidget *a = compiled.findChild<QWidget *>(name), *b = loaded->findChild<QWidget *>(name);
            QVERIFY2(a && b, e.className);
            QVERIFY(!dynamic_cast<TComponentCore *>(a)->IsLoading());   // Loaded has run
            for (const QMetaProperty &p : storedProperties(a)) {
                QVERIFY2(p.read(a) == p.read(b) || takenFromTheSystem(a, p), qPrintable(QStringLiteral("%1.%2").arg(e.className, p.name())));
                ++compared;
            }
        }
        QVERIFY(compared > 80);
        QCOMPARE(compiled.findChild<TqSegmentLabel *>("tqsegmentlabel")->Caption(), QStringLiteral("2.5"));
        QCOMPARE(compiled.findChild<TqCalc *>("tqcalc")->CalcLine(), QStringLiteral("2.5"));
    }
};

QTEST_MAIN(tst_Designer)
#include "tst_designer.moc"
