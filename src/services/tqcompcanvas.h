#pragma once
// Lends a program a canvas on another control, outside that control's own
// painting: between StartPaint and EndPaint, Canvas draws over the control
// (what is drawn shows at once, in a layer of the component's over the
// control that takes no mouse input), and it stays there until the control
// next paints itself. Each session gets a fresh Canvas: fetch it after
// StartPaint, keep no pen, brush or font from the last one.
//
// ControlComponent names the control in the designer (a control of the same
// form, by its object name); a program may give the control itself with
// SetControl; a name or widget that is no control (the component itself,
// another component's face) keeps the control there was. A control that
// goes away while drawing ends the session and leaves the component
// without a control.

#include "host/tcanvas.h"
#include "host/tcomponent.h"

#include <QImage>
#include <QPointer>
#include <QTimer>

#include <memory>
#include <stdexcept>

class QWidget;
class TCanvasLayer;

// The three misuses: "We are allready drawing", "No component to draw on",
// "We are not drawing".
class EqCompCanvasException : public std::runtime_error
{
public:
    explicit EqCompCanvasException(const char *message) : std::runtime_error(message) {}
};

class TqCompCanvas : public TComponent
{
    Q_OBJECT
    Q_PROPERTY(QString ControlComponent READ ControlComponent WRITE SetControlComponent)

public:
    explicit TqCompCanvas(QWidget *owner = nullptr);
    ~TqCompCanvas() override;

    // The control's object name; set, it is looked up on the component's form.
    QString ControlComponent() const;
    void SetControlComponent(const QString &name);
    QWidget *Control() const { return FControl; }
    void SetControl(QWidget *control);

    TCanvas *Canvas() { return FCanvas.get(); }
    bool Drawing() const { return FDrawing; }

    void StartPaint();
    void EndPaint();

protected:
    void Loaded() override;

private:
    bool isControl(const QWidget *control) const;
    void stop();
    void controlGone();

    QPointer<QWidget> FControl;
    QString FControlName;
    std::unique_ptr<TCanvas> FCanvas;
    bool FDrawing = false;
    QPointer<TCanvasLayer> FLayer;
    QTimer FShow;
};
