// Loads a form through the installed Designer plugin and checks that every
// widget the form names was made as its own class: a program that knows
// nothing of the collection but the plugin.
#include <QApplication>
#include <QFile>
#include <QUiLoader>
#include <QWidget>
#include <QXmlStreamReader>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: formload FORM.ui\n");
        return 2;
    }
    QFile file(QString::fromLocal8Bit(argv[1]));
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "formload: cannot read %s\n", argv[1]);
        return 2;
    }
    // The widgets the form names, by object name.
    QList<QPair<QString, QString>> named;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("widget"))
            named.append({xml.attributes().value(QLatin1String("name")).toString(),
                          xml.attributes().value(QLatin1String("class")).toString()});
    file.seek(0);
    QUiLoader loader;
    QWidget *form = loader.load(&file);
    if (!form) {
        std::fprintf(stderr, "formload: %s\n", qPrintable(loader.errorString()));
        return 1;
    }
    int missing = 0;
    for (const auto &[name, cls] : named) {
        const QWidget *w = form->objectName() == name ? form : form->findChild<QWidget *>(name);
        if (!w || QLatin1String(w->metaObject()->className()) != cls) {
            std::fprintf(stderr, "formload: %s is not a %s\n", qPrintable(name), qPrintable(cls));
            ++missing;
        }
    }
    std::printf("formload: %lld widgets made\n", static_cast<long long>(named.size() - missing));
    delete form;
    return missing == 0 ? 0 : 1;
}
