// A clock and a calculator result on a form made in Designer.
// With --once it prints the result and quits (how CI runs it).
#include "ui_panel.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QWidget form;
    Ui::Panel ui;
    {
        FormLoading loading;   // the components get Loaded once the form is complete
        ui.setupUi(&form);
    }
    ui.calc->SetCalcLine(QStringLiteral("sqrt(2)*pi"));
    ui.result->SetCaption(ui.calc->Number());
    if (app.arguments().contains(QStringLiteral("--once"))) {
        std::printf("%s\n", qPrintable(ui.result->Caption()));
        return ui.calc->CalcResult() == TqCalc::TqcOK ? 0 : 1;
    }
    form.show();
    return app.exec();
}
