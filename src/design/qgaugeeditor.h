#pragma once
// The gauge's caption-style editor: four radio buttons in the order of the
// styles, the current one checked; OK hands the chosen one back.

#include <QDialog>

class QButtonGroup;

class TqGaugeEditor : public QDialog
{
    Q_OBJECT
public:
    explicit TqGaugeEditor(int captionStyle, QWidget *parent = nullptr);

    // The style checked now, as its ordinal.
    int CaptionStyle() const;
    void SetCaptionStyle(int style);

private:
    QButtonGroup *FGroup;
};
