#pragma once
// Each subsystem shows its components in a section of the gallery.

#include <QGroupBox>

QGroupBox *displaysSection(QWidget *parent);
QGroupBox *instrumentsSection(QWidget *parent);
QGroupBox *controlsSection(QWidget *parent);
QGroupBox *buttonsSection(QWidget *parent);
QGroupBox *servicesSection(QWidget *parent);
