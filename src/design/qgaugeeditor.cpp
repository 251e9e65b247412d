#include "qgaugeeditor.h"

#include "okcancel.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

TqGaugeEditor::TqGaugeEditor(int captionStyle, QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("qcolGaugeEditor"));
    setWindowTitle(QStringLiteral("Caption Style"));
    auto *layout = new QVBoxLayout(this);
    auto *box = new QGroupBox(QStringLiteral("The caption's format receives"), this);
    auto *buttons = new QVBoxLayout(box);
    FGroup = new QButtonGroup(this);
    const char *const styles[] = {
        "&Percent (gaPctBar)",
        "&Value (gaTotalBar)",
        "Value, then percen&t (gaTotPct)",
        "Percent, then v&alue (gaPctTot)",
    };
    for (int i = 0; i < 4; ++i) {
        auto *radio = new QRadioButton(QString::fromLatin1(styles[i]), box);
        FGroup->addButton(radio, i);
        buttons->addWidget(radio);
    }
    layout->addWidget(box);
    auto *ok = OkCancelButtons(this);
    layout->addWidget(ok);
    // Wide enough that the window manager shows the whole title.
    setMinimumWidth(fontMetrics().horizontalAdvance(windowTitle()) + 160);
    SetCaptionStyle(captionStyle);
}

int TqGaugeEditor::CaptionStyle() const { return FGroup->checkedId(); }

void TqGaugeEditor::SetCaptionStyle(int style)
{
    if (QAbstractButton *b = FGroup->button(style))
        b->setChecked(true);
}
