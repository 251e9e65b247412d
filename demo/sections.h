#pragma once
// Each subsystem shows its components in a section of the gallery.

#include "host/tcolor.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>

// A layout that puts `holder`'s widgets side by side, edge to edge with it.
inline QHBoxLayout *sideBySide(QWidget *holder)
{
    auto *line = new QHBoxLayout(holder);
    line->setContentsMargins(0, 0, 0, 0);
    return line;
}

// `control` made `w` x `h` for good, in its own terms and in the layout's.
template <class Control>
Control *sized(Control *control, int w, int h)
{
    control->SetBounds(0, 0, w, h);
    control->setFixedSize(w, h);
    return control;
}

// A button with a light face of its own keeps a dark caption in any
// palette (its font colour otherwise follows the palette's text).
template <class Button>
Button *lightFace(Button *button, TColor face)
{
    button->SetColor(face);
    button->SetFontColor(clBlack);
    return button;
}

// The rows of a section: a caption on the left, what it shows on the right.
class SectionRows
{
public:
    explicit SectionRows(QGroupBox *box) : FBox(box), FGrid(new QGridLayout(box)) {}
    void operator()(const QString &caption, QWidget *w)
    {
        FGrid->addWidget(new QLabel(caption, FBox), FRow, 0, Qt::AlignRight | Qt::AlignVCenter);
        FGrid->addWidget(w, FRow++, 1, Qt::AlignLeft);
    }

private:
    QGroupBox *FBox;
    QGridLayout *FGrid;
    int FRow = 0;
};

QGroupBox *displaysSection(QWidget *parent);
QGroupBox *instrumentsSection(QWidget *parent);
QGroupBox *controlsSection(QWidget *parent);
QGroupBox *buttonsSection(QWidget *parent);
QGroupBox *panelsSection(QWidget *parent);
QGroupBox *bitmapsSection(QWidget *parent);
QGroupBox *labelsSection(QWidget *parent);
class TqShowApp;
QGroupBox *servicesSection(QWidget *parent, TqShowApp *info);
