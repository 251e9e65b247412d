#include "tqcompcanvas.h"

#include "host/tform.h"

#include <QCoreApplication>
#include <QPainter>
#include <QWidget>

// The layer over the control: what was drawn on the control's window,
// transparent where nothing was. It goes when the control paints itself
// (during a session the drawing goes and the layer stays for more). The
// layer shows new drawing with a paint of its own, done at once, so that
// any other paint of the control is the control's own.
class TCanvasLayer : public QWidget
{
public:
    explicit TCanvasLayer(QWidget *control) : QWidget(control), FImage(control->size(), QImage::Format_ARGB32)
    {
        FImage.fill(Qt::transparent);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setGeometry(control->rect());
        control->installEventFilter(this);
        show();
        raise();
        // Painted into place now: the paints its coming asked for are done
        // before anything is drawn.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateLater);
        QCoreApplication::sendPostedEvents(window(), QEvent::UpdateRequest);
    }
    QImage &Image() { return FImage; }
    // Shows what was drawn since the last time.
    void Show()
    {
        if (FImage == FShown)
            return;
        FOwnPaint = true;
        repaint();
        FOwnPaint = false;
        FShown = FImage;   // shared until the canvas draws again
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter(this).drawImage(0, 0, FImage);
        FOnScreen = true;
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // Until the layer is first on the screen, the control paints under
        // it because it came.
        if (watched != parent() || event->type() != QEvent::Paint || FOwnPaint || !FOnScreen)
            return false;
        // The control painted itself: what was drawn is gone.
        if (FKeep) {
            FImage.fill(Qt::transparent);
            FShown = FImage;
        } else {
            deleteLater();
        }
        return false;
    }

public:
    bool FKeep = false;   // while a session goes on

private:
    QImage FImage;
    QImage FShown;   // what the screen shows of it
    bool FOwnPaint = false;
    bool FOnScreen = false;
};

TqCompCanvas::TqCompCanvas(QWidget *owner) : TComponent(owner), FCanvas(std::make_unique<TCanvas>())
{
    FShow.setInterval(16);
    connect(&FShow, &QTimer::timeout, this, [this] {
        if (FLayer)
            FLayer->Show();
    });
}

TqCompCanvas::~TqCompCanvas()
{
    if (FDrawing)
        stop();
}

QString TqCompCanvas::ControlComponent() const
{
    return FControl ? FControl->objectName() : FControlName;
}

void TqCompCanvas::SetControlComponent(const QString &name)
{
    FControlName = name;
    QWidget *control = nullptr;
    if (!name.isEmpty() && parent()) {
        QWidget *form = FindForm(this);
        control = form->objectName() == name ? form : form->findChild<QWidget *>(name);
    }
    if (control ? isControl(control) : name.isEmpty())
        SetControl(control);
}

// What a canvas can draw on: a control, not itself or another component's
// face.
bool TqCompCanvas::isControl(const QWidget *control) const
{
    return control != this && !qobject_cast<const TComponent *>(control);
}

void TqCompCanvas::Loaded()
{
    TComponent::Loaded();
    if (!FControl && !FControlName.isEmpty())
        SetControlComponent(FControlName);   // the control may come after the component
}

void TqCompCanvas::SetControl(QWidget *control)
{
    if (control && !isControl(control))
        return;   // the old control stays, as for an unknown name
    if (FControl && FDrawing)
        stop();
    if (FControl)
        disconnect(FControl, &QObject::destroyed, this, nullptr);
    FControl = control;
    if (control) {
        FControlName = control->objectName();
        connect(control, &QObject::destroyed, this, &TqCompCanvas::controlGone);
    }
}

void TqCompCanvas::controlGone()
{
    if (FDrawing)
        stop();
    FControl = nullptr;
    FControlName.clear();
}

void TqCompCanvas::StartPaint()
{
    if (FDrawing)
        throw EqCompCanvasException("We are allready drawing");
    if (!FControl)
        throw EqCompCanvasException("No component to draw on");
    FDrawing = true;
    // What the last session drew stays until the control paints itself.
    if (FLayer && (FLayer->parent() != FControl || FLayer->size() != FControl->size()))
        delete FLayer;
    if (!FLayer) {
        FLayer = new TCanvasLayer(FControl);
        FLayer->Show();   // there, before anything is drawn
    }
    FLayer->FKeep = true;
    FCanvas = std::make_unique<TCanvas>(&FLayer->Image());
    FShow.start();
}

void TqCompCanvas::EndPaint()
{
    if (!FDrawing)
        throw EqCompCanvasException("We are not drawing");
    stop();
}

// Back to idle: the last of the picture shows now and stays until the
// control paints itself; the next session gets a new canvas.
void TqCompCanvas::stop()
{
    FDrawing = false;
    FShow.stop();
    if (FLayer) {
        FLayer->FKeep = false;
        FLayer->Show();
    }
    FCanvas = std::make_unique<TCanvas>();
}
