#include "aboutbox.h"

#include "helpviewer.h"

#include <QDir>
#include <QMessageBox>
#include <QUrl>

void ShowAboutBox(QWidget *owner)
{
    const QString help = HelpDirectory();
    const QString helpLine = help.isEmpty()
        ? QStringLiteral("The help is not installed.")
        : QStringLiteral("Help: <a href=\"%1\">%2</a>")
              .arg(QUrl::fromLocalFile(help + QStringLiteral("/html/index.html")).toString(),
                   QDir::toNativeSeparators(help));
    auto *box = new QMessageBox(QMessageBox::Information, QStringLiteral("About QuovarCollection"),
                                QStringLiteral("<h3>QuovarCollection %1</h3>"
                                               "<p>Components for instrument-panel user interfaces on Qt %2 Widgets: "
                                               "segment and dot-matrix displays, lamps, knobs, meters, buttons, "
                                               "backgrounds, panels and application services.</p>"
                                               "<p>Released under the MIT licence.</p><p>%3</p>")
                                    .arg(QStringLiteral(QC_VERSION), QString::fromLatin1(qVersion()), helpLine),
                                QMessageBox::Ok, owner);
    box->setObjectName(QStringLiteral("qcolAboutBox"));
    box->setTextFormat(Qt::RichText);
    box->setTextInteractionFlags(Qt::TextBrowserInteraction);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}
