#include "tcontrol.h"

#include <QDrag>
#include <QEnterEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QCursor>
#include <QMetaMethod>
#include <QPainter>
#include <QPointer>

namespace {
TControl::TShiftState shiftState(Qt::KeyboardModifiers mods, Qt::MouseButtons buttons)
{
    TControl::TShiftState s = 0;
    if (mods & Qt::ShiftModifier) s |= TControl::ssShift;
    if (mods & Qt::AltModifier) s |= TControl::ssAlt;
    if (mods & Qt::ControlModifier) s |= TControl::ssCtrl;
    if (buttons & Qt::LeftButton) s |= TControl::ssLeft;
    if (buttons & Qt::RightButton) s |= TControl::ssRight;
    if (buttons & Qt::MiddleButton) s |= TControl::ssMiddle;
    return s;
}

bool toButton(Qt::MouseButton b, TControl::TMouseButton &out)
{
    switch (b) {
    case Qt::LeftButton: out = TControl::mbLeft; return true;
    case Qt::RightButton: out = TControl::mbRight; return true;
    case Qt::MiddleButton: out = TControl::mbMiddle; return true;
    default: return false;
    }
}
const char kDragMime[] = "application/x-qc-control";

// The control being dragged inside this process (drags never cross processes).
TControl *currentDragSource = nullptr;
} // namespace

Qt::CursorShape CursorShape(TCursor cursor)
{
    switch (cursor) {
    case -2: return Qt::ArrowCursor;
    case -3: return Qt::CrossCursor;
    case -4: return Qt::IBeamCursor;
    case -6: return Qt::SizeBDiagCursor;
    case -7: return Qt::SizeVerCursor;
    case -8: return Qt::SizeFDiagCursor;
    case -9: return Qt::SizeHorCursor;
    case -10: return Qt::UpArrowCursor;
    case -11: return Qt::WaitCursor;
    case -12: return Qt::DragMoveCursor;
    case -13: return Qt::ForbiddenCursor;
    case -14: return Qt::SplitHCursor;
    case -15: return Qt::SplitVCursor;
    case -16: return Qt::DragCopyCursor;
    case -17: return Qt::WaitCursor;
    case -18: return Qt::ForbiddenCursor;
    case -19: return Qt::BusyCursor;
    case -20: return Qt::WhatsThisCursor;
    case -21: return Qt::PointingHandCursor;
    case -22: return Qt::SizeAllCursor;
    default: return Qt::ArrowCursor;
    }
}

TControl::TControl(QWidget *parent) : QWidget(parent), FDesigning(DesignTimeCreation::Active())
{
    setMouseTracking(true);
    setAcceptDrops(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_NoSystemBackground);
    UpdateOpacity();
    adoptParentColor();
}

void TControl::SetDesigning(bool designing)
{
    if (FDesigning == designing)
        return;
    FDesigning = designing;
    Invalidate();
}

void TControl::SetControlStyle(TControlStyle style)
{
    FControlStyle = style;
    UpdateOpacity();
}

void TControl::UpdateOpacity()
{
    setAttribute(Qt::WA_OpaquePaintEvent, PaintsOpaque());
}

void TControl::SetColor(TColor color)
{
    FParentColor = false;
    applyColor(color);
}

void TControl::applyColor(TColor color)
{
    if (FColor == color)
        return;
    FColor = color;
    for (QObject *child : children())
        if (auto *control = qobject_cast<TControl *>(child))
            control->parentColorChanged(color);
    ColorChanged();
}

void TControl::SetParentColor(bool parentColor)
{
    if (FParentColor == parentColor)
        return;
    FParentColor = parentColor;
    if (parentColor)
        adoptParentColor();
}

void TControl::parentColorChanged(TColor color)
{
    if (FParentColor)
        applyColor(color);
}

void TControl::adoptParentColor()
{
    if (!FParentColor)
        return;
    QWidget *parent = parentWidget();
    if (!parent)
        return;
    if (auto *control = qobject_cast<TControl *>(parent))
        applyColor(control->Color());
    else
        applyColor(QColorToColor(parent->palette().color(parent->backgroundRole())));
}

bool TControl::ShowHint() const
{
    if (!FParentShowHint)
        return FShowHint;
    if (auto *control = qobject_cast<TControl *>(parentWidget()))
        return control->ShowHint();
    return true;
}

void TControl::SetShowHint(bool show)
{
    FShowHint = show;
    FParentShowHint = false;
}

void TControl::SetCursor(TCursor cursor)
{
    FCursor = cursor;
    if (cursor == 0)
        unsetCursor();
    else
        setCursor(CursorShape(cursor));
}

void TControl::BeginDrag()
{
    if (FDragging)
        return;
    FDragging = true;
    currentDragSource = this;
    auto *drag = new QDrag(this);
    auto *mime = new QMimeData;
    mime->setData(QString::fromLatin1(kDragMime), QByteArray::number(quintptr(this)));
    drag->setMimeData(mime);
    QPointer<TControl> self(this);
    drag->exec(Qt::MoveAction);
    if (!self)
        return;
    currentDragSource = nullptr;
    FDragging = false;
    QObject *target = drag->target();
    QWidget *targetWidget = qobject_cast<QWidget *>(target);
    const QPoint at = targetWidget ? targetWidget->mapFromGlobal(QCursor::pos()) : QPoint();
    emit OnEndDrag(this, target, at.x(), at.y());
}

bool TControl::acceptsDrag(QDropEvent *event, TDragState state)
{
    if (!event->mimeData()->hasFormat(QString::fromLatin1(kDragMime)) || !currentDragSource)
        return false;
    if (!isSignalConnected(QMetaMethod::fromSignal(&TControl::OnDragOver)))
        return false;
    bool accept = true;
    const QPoint p = event->position().toPoint();
    emit OnDragOver(this, currentDragSource, p.x(), p.y(), state, accept);
    return accept;
}

void TControl::dragEnterEvent(QDragEnterEvent *event)
{
    if (acceptsDrag(event, dsDragEnter))
        event->acceptProposedAction();
    else
        event->ignore();
}

void TControl::dragMoveEvent(QDragMoveEvent *event)
{
    if (acceptsDrag(event, dsDragMove))
        event->acceptProposedAction();
    else
        event->ignore();
}

void TControl::dragLeaveEvent(QDragLeaveEvent *event)
{
    if (currentDragSource && isSignalConnected(QMetaMethod::fromSignal(&TControl::OnDragOver))) {
        bool accept = false;
        const QPoint p = mapFromGlobal(QCursor::pos());
        emit OnDragOver(this, currentDragSource, p.x(), p.y(), dsDragLeave, accept);
    }
    event->accept();
}

void TControl::dropEvent(QDropEvent *event)
{
    if (!currentDragSource)
        return;
    const QPoint p = event->position().toPoint();
    event->acceptProposedAction();
    emit OnDragDrop(this, currentDragSource, p.x(), p.y());
}

void TControl::Update()
{
    if (QWidget *w = window())
        w->repaint();
}

void TControl::InvalidateParentArea()
{
    if (QWidget *parent = parentWidget())
        parent->update(geometry());
    else
        update();
}

void TControl::paintInto(QImage &image)
{
    TCanvas canvas(&image);
    FCanvas = &canvas;
    Paint(canvas);
    FCanvas = nullptr;
}

void TControl::paintEvent(QPaintEvent *)
{
    if (width() <= 0 || height() <= 0)
        return;
    const bool opaque = PaintsOpaque();
    const QImage::Format format = opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied;
    if (FBuffer.size() != size() || FBuffer.format() != format)
        FBuffer = QImage(size(), format);
    if (!opaque)
        FBuffer.fill(Qt::transparent);
    paintInto(FBuffer);
    QPainter(this).drawImage(0, 0, FBuffer);
}

void TControl::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    updateGeometry();   // a new extent is a new size hint
}

QImage TControl::RenderImage(QRgb background)
{
    QImage image(size().expandedTo(QSize(1, 1)), QImage::Format_RGB32);
    image.fill(background);
    if (width() > 0 && height() > 0)
        paintInto(image);
    return image;
}

bool TControl::event(QEvent *event)
{
    if (event->type() == QEvent::ParentChange)
        adoptParentColor();
    if (event->type() == QEvent::ToolTip && !ShowHint())
        return true;
    return QWidget::event(event);
}

void TControl::enterEvent(QEnterEvent *event)
{
    QWidget::enterEvent(event);
    emit OnMouseEnter(this);
}

void TControl::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    emit OnMouseLeave(this);
}

void TControl::mousePressEvent(QMouseEvent *event)
{
    TMouseButton button;
    if (!toButton(event->button(), button))
        return;
    if (button == mbLeft)
        FClicked = true;
    const QPoint p = event->position().toPoint();
    emit OnMouseDown(this, button, shiftState(event->modifiers(), event->buttons()), p.x(), p.y());
    if (button == mbLeft && FDragMode == dmAutomatic && !FDesigning) {
        FClicked = false;
        BeginDrag();
    }
}

void TControl::mouseReleaseEvent(QMouseEvent *event)
{
    TMouseButton button;
    if (!toButton(event->button(), button))
        return;
    const QPoint p = event->position().toPoint();
    // A click is a left press and release both on the control.
    const bool click = button == mbLeft && FClicked && rect().contains(p);
    if (button == mbLeft)
        FClicked = false;
    if (click && (FControlStyle & csClickEvents))
        emit OnClick(this);
    emit OnMouseUp(this, button, shiftState(event->modifiers(), event->buttons()), p.x(), p.y());
}

void TControl::mouseDoubleClickEvent(QMouseEvent *event)
{
    TMouseButton button;
    if (!toButton(event->button(), button))
        return;
    // The second press of a double click raises DblClick, then a mouse
    // down marked double; its release is no click.
    if (button == mbLeft && (FControlStyle & csDoubleClicks))
        emit OnDblClick(this);
    const QPoint p = event->position().toPoint();
    emit OnMouseDown(this, button, shiftState(event->modifiers(), event->buttons()) | ssDouble, p.x(), p.y());
}

void TControl::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint p = event->position().toPoint();
    emit OnMouseMove(this, shiftState(event->modifiers(), event->buttons()), p.x(), p.y());
}

TGraphicControl::TGraphicControl(QWidget *parent) : TControl(parent)
{
    setFocusPolicy(Qt::NoFocus);
}

TCustomControl::TCustomControl(QWidget *parent) : TControl(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

TComponentFace::TComponentFace(TComponent *component, QWidget *parent)
    : QWidget(parent), FComponent(component), FDesigning(DesignTimeCreation::Active())
{
    if (FComponent)
        FComponent->setParent(this);
    setFixedSize(sizeHint());
    if (!FDesigning)
        hide();
}

void TComponentFace::SetDesigning(bool designing)
{
    FDesigning = designing;
    if (FComponent)
        FComponent->SetDesigning(designing);
    setVisible(designing);
}

void TComponentFace::paintEvent(QPaintEvent *)
{
    if (!FDesigning)
        return;
    QImage image(size(), QImage::Format_RGB32);
    TCanvas canvas(&image);
    canvas.Brush.SetColor(clBtnFace);
    canvas.FillRect(Rect(0, 0, width(), height()));
    TRect r = Rect(0, 0, width(), height());
    Frame3D(canvas, r, clBtnHighlight, clBtnShadow, 1);
    // Capital letters of the class name (TqcTimer -> T), without the prefix.
    QString name = FComponent ? QString::fromLatin1(FComponent->metaObject()->className()) : QString();
    if (name.startsWith(QLatin1String("Tqc")))
        name = name.mid(3);
    else if (name.startsWith(QLatin1String("Tq")))
        name = name.mid(2);
    QString initials;
    for (const QChar c : name)
        if (c.isUpper())
            initials += c;
    canvas.Brush.SetStyle(bsClear);
    canvas.Font.SetColor(clBtnText);
    canvas.Font.SetStyle(fsBold);
    canvas.DrawText(initials.left(3), r, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    QPainter(this).drawImage(0, 0, image);
}
