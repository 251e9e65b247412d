#include "tcontrol.h"

#include "tapplication.h"
#include "tcodepage.h"
#include "tcontrolaccessible.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QCursor>
#include <QDrag>
#include <QEnterEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMetaMethod>
#include <QMimeData>
#include <QMouseEvent>
#include <QPaintEngine>
#include <QPainter>
#include <QPixmap>
#include <QPointer>

#include <algorithm>
#include <cstring>
#include <optional>
#include <vector>

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

TControl::TControl(QWidget *parent) : QWidget(parent), TComponentCore(this)
{
    TControlAccessible::Install();
    setMouseTracking(true);
    setAcceptDrops(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_NoSystemBackground);
    UpdateOpacity();
    adoptParentColor();
    FBounds = geometry();
    connect(this, &QObject::objectNameChanged, this, [this](const QString &name) {
        if ((FControlStyle & csSetCaption) && IsDesigning() && (Text().isEmpty() || Text() == FNameText))
            SetText(name);
        FNameText = name;
    });
}

void TControl::SetDesigning(bool designing)
{
    if (IsDesigning() == designing)
        return;
    TComponentCore::SetDesigning(designing);
    Invalidate();
}

void TControl::SetBounds(int left, int top, int width, int height)
{
    const QSize old = size();
    FBounds = QRect(left, top, width, height);
    setGeometry(FBounds);
    FBounds = geometry();   // as far as the widget's own limits allow
    if (size() != old)
        Resize();
    // An aligned control goes back to its place among the others.
    if (FAlign != alNone)
        if (QWidget *parent = parentWidget())
            AlignControls(parent);
}

// A new place or size that did not come through SetBounds (a layout, the
// designer, resize() from code) goes through it now.
void TControl::boundsChanged()
{
    const QRect g = geometry();
    if (FInBounds || g == FBounds)
        return;
    // SetBounds compares with the bounds it had: put them back first.
    FInBounds = true;
    setGeometry(FBounds);
    FInBounds = false;
    SetBounds(g.x(), g.y(), g.width(), g.height());
}

void TControl::SetControlStyle(TControlStyle style)
{
    FControlStyle = style;
    UpdateOpacity();
}

void TControl::UpdateOpacity()
{
    FPictureValid = false;
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

TColor TControl::ParentBrushColor() const
{
    QWidget *parent = parentWidget();
    if (!parent)
        return FColor;
    if (auto *control = qobject_cast<TControl *>(parent))
        return control->Color();
    return QColorToColor(parent->palette().color(parent->backgroundRole()));
}

void TControl::adoptParentColor()
{
    if (FParentColor && parentWidget())
        applyColor(ParentBrushColor());
}

void TControl::SetAlign(TAlign align)
{
    if (FAlign == align)
        return;
    FAlign = align;
    if (QWidget *parent = parentWidget()) {
        if (align != alNone)
            parent->installEventFilter(this);
        AlignControls(parent);
    }
}

bool TControl::eventFilter(QObject *watched, QEvent *event)
{
    // The first aligned control of a parent lays out all of them.
    if (watched == parentWidget() && event->type() == QEvent::Resize && FAlign != alNone) {
        for (QObject *child : watched->children())
            if (auto *c = qobject_cast<TControl *>(child); c && c->Align() != alNone) {
                if (c == this)
                    AlignControls(parentWidget());
                break;
            }
    }
    return QWidget::eventFilter(watched, event);
}

void AlignControls(QWidget *parent)
{
    // The controls placed below come back here through SetBounds: the
    // parent being laid out is laid out once.
    static std::vector<const QWidget *> aligning;
    if (std::find(aligning.begin(), aligning.end(), parent) != aligning.end())
        return;
    aligning.push_back(parent);
    const auto done = qScopeGuard([parent] { aligning.erase(std::find(aligning.begin(), aligning.end(), parent)); });
    QRect area = parent->contentsRect();
    const QObjectList children = parent->children();
    for (TAlign pass : {alTop, alBottom, alLeft, alRight, alClient})
        for (QObject *child : children) {
            auto *c = qobject_cast<TControl *>(child);
            if (!c || c->Align() != pass || !c->Visible())
                continue;
            switch (pass) {
            case alTop:
                c->SetBounds(area.left(), area.top(), area.width(), c->height());
                area.setTop(area.top() + c->height());
                break;
            case alBottom:
                c->SetBounds(area.left(), area.bottom() + 1 - c->height(), area.width(), c->height());
                area.setBottom(area.bottom() - c->height());
                break;
            case alLeft:
                c->SetBounds(area.left(), area.top(), c->width(), area.height());
                area.setLeft(area.left() + c->width());
                break;
            case alRight:
                c->SetBounds(area.right() + 1 - c->width(), area.top(), c->width(), area.height());
                area.setRight(area.right() - c->width());
                break;
            default:
                c->SetBounds(area.left(), area.top(), std::max(0, area.width()), std::max(0, area.height()));
                break;
            }
        }
}

void TControl::SetFont(const QFont &font)
{
    QFont own = font;
    own.setResolveMask(QFont::AllPropertiesResolved);   // the whole font is the control's now
    setFont(own);
}

void TControl::SetParentFont(bool parentFont)
{
    if (parentFont == ParentFont())
        return;
    if (parentFont)
        setFont(QFont());   // inherits everything again
    else
        SetFont(font());
}

void TControl::SetFontColor(TColor color)
{
    if (FFontColor == color)
        return;
    FFontColor = color;
    FCanvasFontMade = false;
    Invalidate();
}

TFont TControl::CanvasFont() const
{
    if (!FCanvasFontMade) {
        FCanvasFont = TFont::FromQFont(font(), FFontColor);
        FCanvasFont.ToQFont();   // made once, shared by every copy
        FCanvasFontMade = true;
    }
    return FCanvasFont;
}

void TControl::contextMenuEvent(QContextMenuEvent *event)
{
    if (FPopupMenu) {
        FPopupMenu->popup(event->globalPos());
        event->accept();
        return;
    }
    QWidget::contextMenuEvent(event);
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
    if (FPaintPending)
        repaint();
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
    // System colours in the control's own palette where a style sheet or
    // the program set colours on it or on the form it is on.
    // (Decided again only when either palette changed.)
    const QPalette &own = palette();
    const QPalette app = QGuiApplication::palette();
    if (own.cacheKey() != FPaletteKeys.first || app.cacheKey() != FPaletteKeys.second) {
        FPaletteKeys = {own.cacheKey(), app.cacheKey()};
        FOwnPalette = !own.isCopyOf(app) && own != app;
    }
    std::optional<TSystemColorScope> scope;
    if (FOwnPalette)
        scope.emplace(own);
    Paint(canvas);
    FCanvas = nullptr;
}

// Where the control is not opaque, its picture starts as what its parent
// and the siblings below it have just drawn there, read back from the
// surface being painted; raster operations then combine with it.
void TControl::copyBeneath(QPainter &painter)
{
    QPaintDevice *device = painter.paintEngine() ? painter.paintEngine()->paintDevice() : nullptr;
    const QRect area = painter.deviceTransform().mapRect(QRectF(rect())).toAlignedRect();
    // Only the control's own area is copied: the surface is being painted
    // on, so taking the whole of it would copy every pixel of the window.
    QImage beneath;
    if (device && device->devType() == QInternal::Image) {
        const auto *surface = static_cast<const QImage *>(device);
        // The usual case, straight into the buffer row by row.
        const bool inside = surface->rect().contains(area);
        if (inside && area.size() == FBuffer.size() && surface->depth() == 32 && !surface->hasAlphaChannel()) {
            for (int y = 0; y < area.height(); ++y)
                std::memcpy(FBuffer.scanLine(y), surface->constScanLine(area.top() + y) + area.left() * 4,
                            size_t(area.width()) * 4);
            return;
        }
        if (inside)
            beneath = surface->copy(area);
    } else if (device && device->devType() == QInternal::Pixmap) {
        const auto *surface = static_cast<const QPixmap *>(device);
        if (surface->rect().contains(area))
            beneath = surface->copy(area).toImage();
    }
    if (beneath.isNull()) {
        FBuffer.fill(ColorToQRgb(Color()));
        return;
    }
    // On a high-density screen the surface has more pixels than the control:
    // one in so many, at the control's own ratio of 1.
    beneath.setDevicePixelRatio(1);
    if (beneath.size() != FBuffer.size())
        beneath = beneath.scaled(FBuffer.size());
    FBuffer = beneath.format() == QImage::Format_RGB32 ? beneath : beneath.convertToFormat(QImage::Format_RGB32);
}

void TControl::paintEvent(QPaintEvent *)
{
    FPaintPending = false;
    if (width() <= 0 || height() <= 0)
        return;
    QPainter painter(this);
    const bool opaque = PaintsOpaque();
    if (FBuffer.size() != size()) {
        FBuffer = QImage(size(), QImage::Format_RGB32);
        FPictureValid = false;
        if (FBuffer.isNull())   // more than memory holds: nothing is painted
            return;
    }
    if (!opaque)
        copyBeneath(painter);
    if (!opaque || !FPictureValid)
        paintInto(FBuffer);
    FPictureValid = opaque;
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(0, 0, FBuffer);
}

void TControl::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    updateGeometry();   // a new extent is a new size hint
    boundsChanged();
}

void TControl::moveEvent(QMoveEvent *event)
{
    QWidget::moveEvent(event);
    boundsChanged();
}

QImage TControl::RenderImage(QRgb background)
{
    QImage image(size().expandedTo(QSize(1, 1)), QImage::Format_RGB32);
    image.fill(background);
    if (width() > 0 && height() > 0)
        paintInto(image);
    return image;
}

// An exception that escapes the handling of an event (the control's own or
// application code behind the signals it emits) goes to the application
// object, as the events of every component do.
bool TControl::event(QEvent *event)
{
    return GuardEvent(this, [&] { return handleEvent(event); });
}

bool TControl::handleEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::PaletteChange:        // system colours follow the palette
    case QEvent::ApplicationPaletteChange:
    case QEvent::EnabledChange:
    case QEvent::FontChange:
        FCanvasFontMade = false;
        Invalidate();
        break;
    default:
        break;
    }
    // Shown or hidden, an aligned control takes its place or leaves it.
    if ((event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) && FAlign != alNone
        && parentWidget())
        AlignControls(parentWidget());
    if (event->type() == QEvent::ParentChange) {
        adoptParentColor();
        if (FAlign != alNone && parentWidget()) {
            parentWidget()->installEventFilter(this);
            AlignControls(parentWidget());
        }
    }
    if (event->type() == QEvent::ToolTip && !ShowHint())
        return true;
    return QWidget::event(event);
}

void TControl::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    emit OnMouseDown(this, Button, Shift, X, Y);
}

void TControl::MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    emit OnMouseUp(this, Button, Shift, X, Y);
}

void TControl::MouseMove(TShiftState Shift, int X, int Y) { emit OnMouseMove(this, Shift, X, Y); }
void TControl::Click() { emit OnClick(this); }
void TControl::DblClick() { emit OnDblClick(this); }
void TControl::MouseEnter() { emit OnMouseEnter(this); }
void TControl::MouseLeave() { emit OnMouseLeave(this); }

void TControl::enterEvent(QEnterEvent *event)
{
    QWidget::enterEvent(event);
    MouseEnter();
}

void TControl::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    MouseLeave();
}

bool TControl::passOn(QMouseEvent *event)
{
    if (!FPassedTo)
        return false;
    const QPointF at = FPassedTo->mapFromGlobal(event->globalPosition());
    QMouseEvent copy(event->type(), at, event->scenePosition(), event->globalPosition(), event->button(),
                     event->buttons(), event->modifiers());
    QPointer<QWidget> target = FPassedTo;
    if (event->type() == QEvent::MouseButtonRelease && event->buttons() == Qt::NoButton)
        FPassedTo = nullptr;
    QApplication::sendEvent(target, &copy);
    return true;
}

void TControl::mousePressEvent(QMouseEvent *event)
{
    if (passOn(event))
        return;
    const QPoint at = event->position().toPoint();
    if (!HitTest(at.x(), at.y()) && parentWidget()) {
        // Not ours: the press and what follows it go to what lies beneath.
        setAttribute(Qt::WA_TransparentForMouseEvents, true);
        QWidget *parent = parentWidget();
        QWidget *beneath = parent->childAt(mapTo(parent, at));
        setAttribute(Qt::WA_TransparentForMouseEvents, false);
        FPassedTo = beneath ? beneath : parent;
        passOn(event);
        return;
    }
    TMouseButton button;
    if (!toButton(event->button(), button))
        return;
    if (button == mbLeft)
        FClicked = true;
    const QPoint p = event->position().toPoint();
    MouseDown(button, shiftState(event->modifiers(), event->buttons()), p.x(), p.y());
    if (button == mbLeft && FDragMode == dmAutomatic && !IsDesigning()) {
        FClicked = false;
        BeginDrag();
    }
}

void TControl::mouseReleaseEvent(QMouseEvent *event)
{
    if (passOn(event))
        return;
    TMouseButton button;
    if (!toButton(event->button(), button))
        return;
    const QPoint p = event->position().toPoint();
    // A click is a left press and release both on the control.
    const bool click = button == mbLeft && FClicked && rect().contains(p);
    if (button == mbLeft)
        FClicked = false;
    if (click && (FControlStyle & csClickEvents))
        Click();
    MouseUp(button, shiftState(event->modifiers(), event->buttons()), p.x(), p.y());
}

void TControl::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (passOn(event))
        return;
    const QPoint at = event->position().toPoint();
    if (!HitTest(at.x(), at.y())) {
        mousePressEvent(event);
        return;
    }
    TMouseButton button;
    if (!toButton(event->button(), button))
        return;
    // The second press of a double click raises DblClick, then a mouse
    // down marked double; its release is no click.
    if (button == mbLeft && (FControlStyle & csDoubleClicks))
        DblClick();
    const QPoint p = event->position().toPoint();
    MouseDown(button, shiftState(event->modifiers(), event->buttons()) | ssDouble, p.x(), p.y());
}

void TControl::mouseMoveEvent(QMouseEvent *event)
{
    if (passOn(event))
        return;
    const QPoint p = event->position().toPoint();
    MouseMove(shiftState(event->modifiers(), event->buttons()), p.x(), p.y());
}

TGraphicControl::TGraphicControl(QWidget *parent) : TControl(parent)
{
    setFocusPolicy(Qt::NoFocus);
}

TCustomControl::TCustomControl(QWidget *parent) : TControl(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

void TCustomControl::KeyDown(quint16 &Key, TShiftState Shift) { emit OnKeyDown(this, Key, Shift); }
void TCustomControl::KeyPress(char &Key) { emit OnKeyPress(this, Key); }
void TCustomControl::KeyUp(quint16 &Key, TShiftState Shift) { emit OnKeyUp(this, Key, Shift); }
void TCustomControl::DoEnter() { emit OnEnter(this); }
void TCustomControl::DoExit() { emit OnExit(this); }

// A key press is KeyDown and then, for a key that types a character,
// KeyPress; keys nobody consumed go on to the parent (a dialog's default
// button, a form's shortcuts).
void TCustomControl::keyPressEvent(QKeyEvent *event)
{
    quint16 key = VirtualKey(event->key(), event->modifiers());
    bool consumed = false;
    if (key) {
        KeyDown(key, shiftState(event->modifiers(), QGuiApplication::mouseButtons()));
        consumed = key == 0;
    }
    const QString text = event->text();
    if (!consumed && text.size() == 1 && (text[0].unicode() >= 32 || text[0] == '\r' || text[0] == '\b'
                                          || text[0] == '\x1b' || text[0] == '\t')) {
        char c = char(UnicodeToWin1252(text[0]));
        KeyPress(c);
        consumed = c == 0;
    }
    event->setAccepted(consumed);
}

void TCustomControl::keyReleaseEvent(QKeyEvent *event)
{
    quint16 key = VirtualKey(event->key(), event->modifiers());
    if (key)
        KeyUp(key, shiftState(event->modifiers(), QGuiApplication::mouseButtons()));
    event->setAccepted(key == 0);
}

void TCustomControl::focusInEvent(QFocusEvent *event)
{
    TControl::focusInEvent(event);
    DoEnter();
}

void TCustomControl::focusOutEvent(QFocusEvent *event)
{
    TControl::focusOutEvent(event);
    DoExit();
}

quint16 VirtualKey(int key, Qt::KeyboardModifiers modifiers)
{
    const bool keypad = modifiers & Qt::KeypadModifier;
    if (key >= Qt::Key_0 && key <= Qt::Key_9)
        return quint16(keypad ? 0x60 + (key - Qt::Key_0) : key);
    if (key >= Qt::Key_A && key <= Qt::Key_Z)
        return quint16(key);
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return quint16(0x70 + (key - Qt::Key_F1));
    switch (key) {
    case Qt::Key_Backspace: return 0x08;
    case Qt::Key_Tab: case Qt::Key_Backtab: return 0x09;
    case Qt::Key_Return: case Qt::Key_Enter: return 0x0D;
    case Qt::Key_Shift: return 0x10;
    case Qt::Key_Control: return 0x11;
    case Qt::Key_Alt: return 0x12;
    case Qt::Key_Pause: return 0x13;
    case Qt::Key_CapsLock: return 0x14;
    case Qt::Key_Escape: return 0x1B;
    case Qt::Key_Space: return 0x20;
    case Qt::Key_PageUp: return 0x21;
    case Qt::Key_PageDown: return 0x22;
    case Qt::Key_End: return 0x23;
    case Qt::Key_Home: return 0x24;
    case Qt::Key_Left: return 0x25;
    case Qt::Key_Up: return 0x26;
    case Qt::Key_Right: return 0x27;
    case Qt::Key_Down: return 0x28;
    case Qt::Key_Print: return 0x2C;
    case Qt::Key_Insert: return 0x2D;
    case Qt::Key_Delete: return 0x2E;
    case Qt::Key_Asterisk: return keypad ? 0x6A : 0;
    case Qt::Key_Plus: return keypad ? 0x6B : 0xBB;
    case Qt::Key_Equal: return 0xBB;
    case Qt::Key_Minus: return keypad ? 0x6D : 0xBD;
    case Qt::Key_Period: return keypad ? 0x6E : 0xBE;
    case Qt::Key_Slash: return keypad ? 0x6F : 0xBF;
    case Qt::Key_Comma: return 0xBC;
    case Qt::Key_NumLock: return 0x90;
    case Qt::Key_ScrollLock: return 0x91;
    default: return 0;
    }
}

namespace {

// Shows, over a widget, the pixels a TControlCanvas changed; mouse input
// passes through to what is beneath.
class CanvasOverlay : public QWidget
{
public:
    explicit CanvasOverlay(QWidget *over) : QWidget(over)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setGeometry(over->rect());
    }
    void Show(const QImage &picture, const QRegion &changed)
    {
        FPicture = picture;
        FChanged = changed;
        setVisible(!changed.isEmpty());
        raise();
        if (!changed.isEmpty())
            repaint();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter p(this);
        p.setClipRegion(FChanged);
        p.drawImage(0, 0, FPicture);
    }

private:
    QImage FPicture;
    QRegion FChanged;
};

} // namespace

TControlCanvas::TControlCanvas(QWidget *widget) : FWidget(widget)
{
    FBase = widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
    if (FBase.size() != widget->size())
        FBase = FBase.scaled(widget->size());
    FPicture = FBase;
    SetImage(&FPicture);
}

TControlCanvas::~TControlCanvas()
{
    delete FOverlay;
}

void TControlCanvas::Flush()
{
    QRegion changed;
    for (int y = 0; y < FPicture.height(); ++y) {
        const auto *a = reinterpret_cast<const QRgb *>(FPicture.constScanLine(y));
        const auto *b = reinterpret_cast<const QRgb *>(FBase.constScanLine(y));
        for (int x = 0; x < FPicture.width();) {
            if (a[x] == b[x]) {
                ++x;
                continue;
            }
            const int from = x;
            while (x < FPicture.width() && a[x] != b[x])
                ++x;
            changed += QRect(from, y, x - from, 1);
        }
    }
    if (!FOverlay && !changed.isEmpty())
        FOverlay = new CanvasOverlay(FWidget);
    if (FOverlay)
        static_cast<CanvasOverlay *>(FOverlay)->Show(FPicture, changed);
}

QString TControl::AccessibleName() const
{
    if (!accessibleName().isEmpty())
        return accessibleName();
    if (!Text().isEmpty()) {
        // The caption without its accelerator mark ("&&" is an ampersand).
        QString text = Text();
        text.replace(QLatin1String("&&"), QString(QChar(0x1)));
        text.remove(QLatin1Char('&'));
        return text.replace(QChar(0x1), QLatin1Char('&'));
    }
    if (!toolTip().isEmpty())
        return GetShortHint(toolTip());
    return objectName();
}

void TControl::AccessibleValueChanged()
{
    // Only while a screen reader listens (the platform says so).
    if (!QAccessible::isActive())
        return;
    TAccessibleRange range;
    if (!AccessibleRange(range))
        return;
    QAccessibleValueChangeEvent event(this, range.Value);
    QAccessible::updateAccessibility(&event);
}
