#pragma once
// The front panel of the signal analyser: loaded from its Designer form at
// run time and fed frame by frame; and the same panel made of Qt's stock
// widgets, fed the same frames, as the measure of what it costs.

#include "signalsource.h"

#include <QString>
#include <QWidget>

#include <memory>

class TPanel
{
public:
    virtual ~TPanel() = default;
    virtual QWidget *Widget() const = 0;
    // Shows one frame.
    virtual void Feed(const TPanelFrame &frame) = 0;
};

// Loads the form (the library's Designer plugin must be on the plugin
// path); null with the reason in `error` when it cannot.
std::unique_ptr<TPanel> LoadPanel(const QString &uiFile, QString *error);
// The stock-widget panel with the same layout.
std::unique_ptr<TPanel> MakeStockPanel();
