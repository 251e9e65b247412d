#include "helpviewer.h"

#include "componentregistry.h"
#include "searchpaths.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QPointer>
#include <QProcess>
#include <QStandardPaths>

namespace {

THelpViewer &customViewer()
{
    static THelpViewer viewer;
    return viewer;
}

QString assistantProgram()
{
    const QString chosen = qEnvironmentVariable("QCOL_ASSISTANT");
    if (!chosen.isEmpty())
        return chosen;
    const QString bundled = QLibraryInfo::path(QLibraryInfo::BinariesPath) + QStringLiteral("/assistant");
    if (QFileInfo(bundled).isExecutable())
        return bundled;
    for (const char *name : {"assistant", "assistant-qt6"}) {
        const QString found = QStandardPaths::findExecutable(QString::fromLatin1(name));
        if (!found.isEmpty())
            return found;
    }
    return QString();
}

// One Assistant for all the pages: started once with its remote control
// on, then told each page on its standard input; it goes with the program
// that opened it. Null when it cannot be started.
QProcess *assistantProcess(const QString &program, const QString &collection)
{
    static QPointer<QProcess> running;
    if (running && running->state() != QProcess::NotRunning)
        return running;
    delete running;
    running = new QProcess(qApp);
    running->setProcessChannelMode(QProcess::ForwardedChannels);
    QObject::connect(running, &QProcess::finished, running, &QObject::deleteLater);
    static const bool endsWithTheProgram = [] {
        qAddPostRoutine([] {
            if (running) {
                running->terminate();
                running->waitForFinished(3000);
            }
        });
        return true;
    }();
    Q_UNUSED(endsWithTheProgram);
    running->start(program, {QStringLiteral("-collectionFile"), collection, QStringLiteral("-enableRemoteControl")});
    if (!running->waitForStarted(10000))
        delete running;   // the pointer is null again
    return running;
}

bool defaultViewer(const THelpRequest &request)
{
    const QString folder = HelpDirectory();
    if (folder.isEmpty())
        return false;
    const QDir dir(folder);
    const QString collection = dir.filePath(QStringLiteral("qcol.qhc"));
    const QString assistant = assistantProgram();
    if (QFileInfo::exists(collection) && !assistant.isEmpty()) {
        const QString url = QStringLiteral("qthelp://%1/doc/%2").arg(QLatin1String(kHelpNamespace), request.page);
        if (QProcess *running = assistantProcess(assistant, collection)) {
            running->write(QStringLiteral("setSource %1\nshow contents\n").arg(url).toUtf8());
            return true;
        }
    }
    const QString html = dir.filePath(QStringLiteral("html/") + request.page);
    return QFileInfo::exists(html) && QDesktopServices::openUrl(QUrl::fromLocalFile(html));
}

bool show(const THelpRequest &request, QWidget *owner)
{
    const THelpViewer &viewer = customViewer();
    if (viewer ? viewer(request) : defaultViewer(request))
        return true;
    const QString where = HelpDirectory().isEmpty()
        ? QStringLiteral("No help folder was found (set QCOL_HELP_DIR to the folder that holds "
                         "qcol.qhc and html/).")
        : QStringLiteral("The help is in %1, but neither Qt Assistant nor a web browser could "
                         "open it.").arg(QDir::toNativeSeparators(HelpDirectory()));
    auto *box = new QMessageBox(QMessageBox::Warning, QStringLiteral("QuovarCollection help"),
                                QStringLiteral("The help page %1 cannot be shown.\n\n%2").arg(request.page, where),
                                QMessageBox::Ok, owner);
    box->setObjectName(QStringLiteral("qcolHelpMessage"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
    return false;
}

} // namespace

QString HelpPage(int context)
{
    for (const TComponentEntry &e : Components())
        if (e.helpContext == context)
            return HelpPageOf(e);
    return QStringLiteral("index.html");
}

QString HelpPageOf(const TComponentEntry &entry)
{
    return QString::fromLatin1(entry.className).toLower() + QStringLiteral(".html");
}

QString HelpDirectory()
{
    QStringList candidates = SearchPaths().Help;
    const QString env = qEnvironmentVariable("QCOL_HELP_DIR");
    if (!env.isEmpty())
        candidates << env;
#ifdef QC_HELP_INSTALL_DIR
    candidates << QStringLiteral(QC_HELP_INSTALL_DIR);
#endif
#ifdef QC_HELP_BUILD_DIR
    candidates << QStringLiteral(QC_HELP_BUILD_DIR);
#endif
    for (const QString &c : candidates)
        if (QFileInfo::exists(c + QStringLiteral("/qcol.qhc")) || QFileInfo::exists(c + QStringLiteral("/html/index.html")))
            return c;
    return QString();
}

void SetHelpViewer(THelpViewer viewer) { customViewer() = std::move(viewer); }

bool ShowHelpTopic(int context, QWidget *owner) { return show({context, HelpPage(context)}, owner); }

bool ShowHelpIndex(QWidget *owner) { return show({0, QStringLiteral("index.html")}, owner); }
