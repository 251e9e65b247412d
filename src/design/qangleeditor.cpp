#include "qangleeditor.h"

#include "okcancel.h"

#include <QDial>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QSpinBox>
#include <QVBoxLayout>

TqAngleEditor::TqAngleEditor(TqAngle angle, const TqAngleLabel *label, QWidget *parent)
    : QDialog(parent), FDial(new QDial(this)), FSpin(new QSpinBox(this))
{
    setObjectName(QStringLiteral("qcolAngleEditor"));
    setWindowTitle(QStringLiteral("Angle"));
    FDial->setRange(0, 359);
    FDial->setWrapping(true);
    FDial->setNotchesVisible(true);
    FDial->setNotchTarget(15);
    FDial->setPageStep(15);
    FDial->setFixedSize(96, 96);
    FSpin->setRange(0, 359);
    FSpin->setWrapping(true);
    FSpin->setSuffix(QStringLiteral("\u00b0"));

    auto *previewArea = new QWidget(this);
    previewArea->setFixedSize(140, 140);
    FPreview = new TqAngleLabel(previewArea);
    FPreview->SetAutoSize(false);
    FPreview->SetBounds(0, 0, 140, 140);
    FPreview->SetCaption(label && !label->Caption().isEmpty() ? label->Caption() : QStringLiteral("Caption"));
    if (label) {
        FPreview->SetFont(label->Font());
        FPreview->SetFontColor(label->FontColor());
        FPreview->SetRotateAbout(label->RotateAbout());
    }

    auto *controls = new QVBoxLayout;
    controls->addWidget(FDial, 0, Qt::AlignHCenter);
    auto *form = new QFormLayout;
    form->addRow(QStringLiteral("&Degrees:"), FSpin);
    controls->addLayout(form);
    auto *row = new QHBoxLayout;
    row->addLayout(controls);
    row->addWidget(previewArea);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(row);
    auto *ok = OkCancelButtons(this);
    layout->addWidget(ok);

    connect(FDial, &QDial::valueChanged, this, [this](int value) { SetAngle(AngleOfDial(value)); });
    connect(FSpin, &QSpinBox::valueChanged, this, [this](int value) { SetAngle(value); });
    FAngle = -1;
    SetAngle(angle);
}

int TqAngleEditor::DialValue(TqAngle angle) { return NormalAngle(270 - angle); }
TqAngle TqAngleEditor::AngleOfDial(int value) { return NormalAngle(270 - value); }

void TqAngleEditor::SetAngle(int angle)
{
    angle = NormalAngle(angle);
    if (angle == FAngle)
        return;
    FAngle = angle;
    FDial->setValue(DialValue(angle));
    FSpin->setValue(angle);
    FPreview->SetAngle(angle);
}
