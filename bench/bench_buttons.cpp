// Repaint rates of the colour and gradient buttons beside QPushButton of the
// same size (89 x 33), rendered off-screen into an image of their size:
// with a new caption per repaint, and with the same caption while the look
// changes (flat and raised on ours, down and up on QPushButton).
#include "benchutil.h"

#include "buttons/qanimate.h"

#include <QApplication>
#include <QPushButton>

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);

    TqColorBtn colour;
    TqGradBtn gradient;
    gradient.SetColor(clNavy);
    gradient.SetEndColor(clAqua);
    QPushButton push;
    push.resize(colour.size());
    const auto caption = [](int n) { return QStringLiteral("Take %1").arg(n % 1000); };

    const double colourRate = renderRate(colour, [&](int n) { colour.SetCaption(caption(n)); });
    const double gradientRate = renderRate(gradient, [&](int n) { gradient.SetCaption(caption(n)); });
    const double pushRate = renderRate(push, [&](int n) { push.setText(caption(n)); });

    colour.SetCaption(QStringLiteral("OK"));
    gradient.SetCaption(QStringLiteral("OK"));
    push.setText(QStringLiteral("OK"));
    const double colourLook = renderRate(colour, [&](int n) { colour.SetFlat(n % 2); });
    const double gradientLook = renderRate(gradient, [&](int n) { gradient.SetFlat(n % 2); });
    const double pushLook = renderRate(push, [&](int n) { push.setDown(n % 2); });

    ratioHeader("repaints");
    ratioRow("TqColorBtn, new caption", colourRate, "QPushButton", pushRate);
    ratioRow("TqGradBtn, new caption", gradientRate, "QPushButton", pushRate);
    ratioRow("TqColorBtn, new look", colourLook, "QPushButton", pushLook);
    ratioRow("TqGradBtn, new look", gradientLook, "QPushButton", pushLook);
    std::printf("(ratio above 1: faster than the Qt widget in the same area)\n");
    return 0;
}
