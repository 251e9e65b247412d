// Writes the collection's help at build time: one HTML page per component
// (what it is, a picture it draws itself, its properties with their
// defaults, its events), an index, and the Qt Help project and collection
// files that qhelpgenerator turns into qcol.qch and qcol.qhc. The help
// topic of each page is its component's context number.
//
//     qcol-helpgen <output folder>
#include "componenticon.h"
#include "componentregistry.h"
#include "helpviewer.h"

#include "host/tcolor.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QTextStream>
#include <QWidget>

#include <cstdio>
#include <memory>

namespace {

const char *const kStyle =
    "body{font-family:sans-serif;margin:1.5em;max-width:60em}"
    "table{border-collapse:collapse}td,th{border:1px solid #bbb;padding:2px 8px;text-align:left}"
    "th{background:#eee}code{font-size:95%}.ro{color:#777}";

QString esc(const QString &s) { return s.toHtmlEscaped(); }

QString valueText(const QMetaProperty &p, const QVariant &v)
{
    if (IsColorProperty(p))
        return ColorToString(v.value<TColor>());
    if (p.isEnumType()) {
        const QMetaEnum e = p.enumerator();
        return e.isFlag() ? QString::fromLatin1(e.valueToKeys(v.toInt())) : QString::fromLatin1(e.valueToKey(v.toInt()));
    }
    if (v.metaType().id() == QMetaType::QString)
        return QLatin1Char('"') + v.toString() + QLatin1Char('"');
    if (v.metaType().id() == QMetaType::Bool)
        return v.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    if (v.metaType().id() == QMetaType::QFont)
        return QStringLiteral("the parent's");
    if (v.metaType().id() == QMetaType::QPixmap)
        return QStringLiteral("none");
    return v.toString();
}

QString typeText(const QMetaProperty &p)
{
    QString t = QString::fromLatin1(p.typeName());
    return t.mid(t.lastIndexOf(QLatin1String("::")) + (t.contains(QLatin1String("::")) ? 2 : 0));
}

bool writeFile(const QString &path, const QString &text)
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text))
        return false;
    f.write(text.toUtf8());
    return true;
}

QString page(const QString &title, const QString &body)
{
    return QStringLiteral("<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>%1</title>"
                          "<style>%2</style></head><body>\n%3</body></html>\n")
        .arg(esc(title), QLatin1String(kStyle), body);
}

QString componentPage(const TComponentEntry &e, const QString &htmlDir)
{
    const QString cls = QString::fromLatin1(e.className);
    QString body;
    QTextStream out(&body);
    out << "<p><a href=\"index.html\">QuovarCollection</a> &rsaquo; " << esc(PageName(e.page)) << "</p>\n";
    out << "<h1>" << cls << "</h1>\n<p>" << esc(QString::fromLatin1(e.whatsThis)) << "</p>\n";
    out << "<p>Header: <code>#include &lt;" << e.includeFile << "&gt;</code> &middot; ";
    if (e.page == kCodeOnlyPage)
        out << "not in the widget box: made in code</p>\n";
    else
        out << "widget-box group \"" << esc(PageName(e.page)) << "\" &middot; help topic " << e.helpContext << "</p>\n";

    // The picture: the component as it first appears on a form in Designer.
    const std::unique_ptr<QWidget> designed = CreateSample(e);
    const QString picture = cls.toLower() + QStringLiteral(".png");
    designed->grab().save(htmlDir + QLatin1Char('/') + picture);
    out << "<p><img src=\"" << picture << "\" alt=\"" << cls << " on a form\"></p>\n";
    if (!e.visual)
        out << "<p>On a form it shows as this tile while the form is designed; at run time it is hidden.</p>\n";

    // Properties with the defaults a component made by code has.
    const std::unique_ptr<QWidget> fresh = CreateAlone(e, false);
    const QMetaObject *meta = fresh->metaObject();
    const QStringList readOnly = ReadOnlyProperties(e);
    out << "<h2>Properties</h2>\n<table><tr><th>Property</th><th>Type</th><th>Default</th></tr>\n";
    for (int i = QWidget::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
        const QMetaProperty p = meta->property(i);
        const QString name = QString::fromLatin1(p.name());
        const bool ro = readOnly.contains(name);
        out << "<tr><td><code>" << name << "</code>" << (ro ? " <span class=\"ro\">(read only)</span>" : "")
            << "</td><td>" << esc(typeText(p)) << "</td><td>"
            << (p.isStored() ? esc(valueText(p, p.read(fresh.get()))) : QStringLiteral("not stored")) << "</td></tr>\n";
    }
    out << "</table>\n<h2>Events</h2>\n<table><tr><th>Event</th><th>Parameters</th></tr>\n";
    for (int i = QWidget::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
        const QMetaMethod m = meta->method(i);
        if (m.methodType() != QMetaMethod::Signal || !m.name().startsWith("On"))
            continue;
        QStringList params;
        for (int k = 0; k < m.parameterCount(); ++k)
            params << QString::fromLatin1(m.parameterTypes().at(k)) + QLatin1Char(' ') + QString::fromLatin1(m.parameterNames().at(k));
        out << "<tr><td><code>" << m.name() << "</code></td><td><code>" << esc(params.join(QStringLiteral(", ")))
            << "</code></td></tr>\n";
    }
    out << "</table>\n";
    return page(cls, body);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: qcol-helpgen <output folder>\n");
        return 2;
    }
    const QString root = QString::fromLocal8Bit(argv[1]);
    const QString htmlDir = root + QStringLiteral("/html");
    if (!QDir().mkpath(htmlDir)) {
        std::fprintf(stderr, "qcol-helpgen: cannot make %s\n", qPrintable(htmlDir));
        return 1;
    }

    QString index;
    QTextStream idx(&index);
    idx << "<h1>QuovarCollection</h1>\n<p>Components for instrument-panel user interfaces on Qt Widgets "
           "and Qt Designer. Each component's page lists its properties with their defaults and its events.</p>\n";
    QString keywords, files;
    QTextStream kw(&keywords), fl(&files);
    int lastPage = -1;
    for (const TComponentEntry &e : AllComponents()) {
        const QString cls = QString::fromLatin1(e.className);
        const QString file = HelpPageOf(e);
        if (!writeFile(htmlDir + QLatin1Char('/') + file, componentPage(e, htmlDir)))
            return 1;
        const QString icon = cls.toLower() + QStringLiteral("-icon.png");
        ComponentIconImage(e, 24).save(htmlDir + QLatin1Char('/') + icon);
        if (e.page != lastPage) {
            idx << (lastPage >= 0 ? "</ul>\n" : "") << "<h2>" << esc(PageName(e.page)) << "</h2>\n<ul>\n";
            lastPage = e.page;
        }
        idx << "<li><img src=\"" << icon << "\" alt=\"\"> <a href=\"" << file << "\">" << cls << "</a> &ndash; "
            << esc(QString::fromLatin1(e.toolTip)) << "</li>\n";
        kw << "      <keyword name=\"" << cls << "\"";
        if (e.helpContext > 0)
            kw << " id=\"" << e.helpContext << "\"";
        kw << " ref=\"" << file << "\"/>\n";
        fl << "      <file>" << file << "</file>\n      <file>" << cls.toLower() << ".png</file>\n      <file>" << icon
           << "</file>\n";
    }
    idx << "</ul>\n";
    if (!writeFile(htmlDir + QStringLiteral("/index.html"), page(QStringLiteral("QuovarCollection"), index)))
        return 1;

    const QString qhp = QStringLiteral(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<QtHelpProject version=\"1.0\">\n"
        "  <namespace>%1</namespace>\n  <virtualFolder>doc</virtualFolder>\n"
        "  <filterSection>\n    <toc>\n      <section title=\"QuovarCollection\" ref=\"index.html\"/>\n    </toc>\n"
        "    <keywords>\n%2    </keywords>\n    <files>\n      <file>index.html</file>\n%3    </files>\n"
        "  </filterSection>\n</QtHelpProject>\n")
        .arg(QLatin1String(kHelpNamespace), keywords, files);
    const QString qhcp = QStringLiteral(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<QHelpCollectionProject version=\"1.0\">\n"
        "  <assistant>\n    <title>QuovarCollection</title>\n    <startPage>qthelp://%1/doc/index.html</startPage>\n"
        "  </assistant>\n  <docFiles>\n    <generate>\n      <file>\n        <input>html/qcol.qhp</input>\n"
        "        <output>qcol.qch</output>\n      </file>\n    </generate>\n    <register>\n"
        "      <file>qcol.qch</file>\n    </register>\n  </docFiles>\n</QHelpCollectionProject>\n")
        .arg(QLatin1String(kHelpNamespace));
    if (!writeFile(htmlDir + QStringLiteral("/qcol.qhp"), qhp) || !writeFile(root + QStringLiteral("/qcol.qhcp"), qhcp))
        return 1;
    return 0;
}
