#include "tqcompcanvas.h"

#include "host/tform.h"

#include <QPainter>
#include <QWidget>

// The layer over the control: the session's picture, transparent where
// nothing was drawn. It goes when the control paints itself again (not
// when the control repaints under the layer because the layer changed).
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
    }
    QImage &Image() { return FImage; }
    void Refresh()
    {
        FOwnUpdate = true;
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter(this).drawImage(0, 0, FImage);
        FOwnUpdate = false;
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == parent() && event->type() == QEvent::Paint && !FOwnUpdate && !FKeep)
            deleteLater();   // the control painted itself: what was drawn is gone
        return false;
    }

public:
    bool FKeep = false;   // while the session goes on

private:
    QImage FImage;
    bool FOwnUpdate = false;
};

TqCompCanvas::TqCompCanvas(QWidget *owner) : TComponent(owner), FCanvas(std::make_unique<TCanvas>())
{
    FShow.setInterval(16);
    connect(&FShow, &QTimer::timeout, this, [this] {
        if (FLayer)
            FLayer->Refresh();
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
    if (control || name.isEmpty())
        SetControl(control);
}

void TqCompCanvas::Loaded()
{
    TComponent::Loaded();
    if (!FControl && !FControlName.isEmpty())
        SetControlComponent(FControlName);   // the control may come after the component
}

void TqCompCanvas::SetControl(QWidget *control)
{
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
    delete FLayer;   // a picture left from the last session
    FLayer = new TCanvasLayer(FControl);
    FLayer->FKeep = true;
    FCanvas = std::make_unique<TCanvas>(&FLayer->Image());
    FLayer->Refresh();
    FShow.start();
}

void TqCompCanvas::EndPaint()
{
    if (!FDrawing)
        throw EqCompCanvasException("We are not drawing");
    stop();
}

// Back to idle: the picture shows once more and stays until the control
// paints itself; the next session gets a new canvas.
void TqCompCanvas::stop()
{
    FDrawing = false;
    FShow.stop();
    if (FLayer) {
        FLayer->FKeep = false;
        FLayer->Refresh();
    }
    FCanvas = std::make_unique<TCanvas>();
}
