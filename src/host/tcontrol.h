#pragma once
// What every component shares: the design-mode flag, colour and parent
// colour, mouse events in the platform's terms, and painting into an
// off-screen image that reaches the screen in one step.

#include "tcanvas.h"
#include "tcomponent.h"

#include <QAccessible>
#include <QImage>
#include <QObject>
#include <QMenu>
#include <QPointer>
#include <QWidget>

#include <utility>

namespace ControlStyles {
enum : quint32 {
    csAcceptsControls = 0x1,
    csCaptureMouse = 0x2,
    csClickEvents = 0x8,
    csFramed = 0x10,
    csSetCaption = 0x20,
    csOpaque = 0x40,
    csDoubleClicks = 0x80,
    csFixedWidth = 0x100,
    csFixedHeight = 0x200,
};
}
using namespace ControlStyles;

// Types of the framework's controls that forms store by name.
namespace Controls {
Q_NAMESPACE
// Where a control sits in its parent: pinned to an edge at its own height
// or width, or filling what the others leave.
enum TAlign { alNone, alTop, alBottom, alLeft, alRight, alClient };
Q_ENUM_NS(TAlign)
// The bevels of a panel-like frame.
enum TPanelBevel { bvNone, bvLowered, bvRaised, bvSpace };
Q_ENUM_NS(TPanelBevel)
// Horizontal placement of text.
enum TAlignment { taLeftJustify, taRightJustify, taCenter };
Q_ENUM_NS(TAlignment)
} // namespace Controls
using namespace Controls;
using TControlStyle = quint32;
using TCursor = int;

// The Qt cursor for one of the platform's cursor numbers.
Qt::CursorShape CursorShape(TCursor cursor);

class TControl : public QWidget, public TComponentCore
{
    Q_OBJECT
    Q_PROPERTY(int Tag READ Tag WRITE SetTag)

public:
    enum TMouseButton { mbLeft, mbRight, mbMiddle };
    Q_ENUM(TMouseButton)
    enum TShiftFlag { ssShift = 0x1, ssAlt = 0x2, ssCtrl = 0x4, ssLeft = 0x8, ssRight = 0x10,
                      ssMiddle = 0x20, ssDouble = 0x40 };
    using TShiftState = int;

    enum TDragMode { dmManual, dmAutomatic };
    Q_ENUM(TDragMode)
    enum TDragState { dsDragEnter, dsDragLeave, dsDragMove };
    Q_ENUM(TDragState)

    explicit TControl(QWidget *parent = nullptr);

    void SetDesigning(bool designing) override;

    TControlStyle ControlStyle() const { return FControlStyle; }
    void SetControlStyle(TControlStyle style);

    // Setting a colour makes the control stop following its parent's.
    TColor Color() const { return FColor; }
    virtual void SetColor(TColor color);
    bool ParentColor() const { return FParentColor; }
    // The colour the parent fills its background with (the control's own
    // colour when it has no parent).
    TColor ParentBrushColor() const;
    virtual void SetParentColor(bool parentColor);

    int Width() const { return width(); }
    void SetWidth(int width) { SetBounds(x(), y(), width, height()); }
    int Height() const { return height(); }
    void SetHeight(int height) { SetBounds(x(), y(), width(), height); }
    int Left() const { return x(); }
    int Top() const { return y(); }
    void SetLeft(int left) { SetBounds(left, y(), width(), height()); }
    void SetTop(int top) { SetBounds(x(), top, width(), height()); }
    // Every change of place or size passes through here: from code, from a
    // layout or from the designer (those at the latest before the control is
    // next shown). A control that keeps its own size overrides it and calls
    // the inherited one with the bounds it accepts.
    virtual void SetBounds(int left, int top, int width, int height);
    TRect ClientRect() const { return Rect(0, 0, width(), height()); }
    TRect BoundsRect() const { return Bounds(x(), y(), width(), height()); }

    // The hint is the tool tip; ShowHint decides whether it pops up, and
    // with ParentShowHint the parent's ShowHint decides.
    QString Hint() const { return toolTip(); }
    void SetHint(const QString &hint) { setToolTip(hint); }
    bool ShowHint() const;
    void SetShowHint(bool show);
    bool ParentShowHint() const { return FParentShowHint; }
    void SetParentShowHint(bool parentShowHint) { FParentShowHint = parentShowHint; }

    // What assistive technology reads of the control: a role, a name (the
    // accessible name set on it, else its text, else its hint's short part,
    // else its object name), and for a control that holds a number its
    // range and value, which a screen reader may also set.
    struct TAccessibleRange
    {
        double Min = 0, Max = 0, Value = 0, Step = 1;
        bool ReadOnly = false;
    };
    virtual QAccessible::Role AccessibleRole() const { return QAccessible::Client; }
    virtual QString AccessibleName() const;
    virtual bool AccessibleRange(TAccessibleRange &range) const { Q_UNUSED(range); return false; }
    virtual void SetAccessibleValue(double value) { Q_UNUSED(value); }
    // A button's press, for a screen reader's "press" action.
    virtual bool AccessiblePress() { return false; }
    // Tells assistive technology that the value changed.
    void AccessibleValueChanged();

    // Cursors by the platform's numbers (crDefault 0, crArrow -2 ... crDrag -12).
    TCursor Cursor() const { return FCursor; }
    void SetCursor(TCursor cursor);
    TCursor DragCursor() const { return FDragCursor; }
    void SetDragCursor(TCursor cursor) { FDragCursor = cursor; }
    TDragMode DragMode() const { return FDragMode; }
    void SetDragMode(TDragMode mode) { FDragMode = mode; }
    // Starts dragging this control; drop targets are the controls whose
    // OnDragOver accepts it.
    void BeginDrag();
    bool Dragging() const { return FDragging; }

    // Aligned controls are laid out again whenever the parent's size
    // changes: top, then bottom, left, right, and the client last.
    TAlign Align() const { return FAlign; }
    void SetAlign(TAlign align);

    // The font is the widget's own; ParentFont follows the parent's until a
    // font is set. FontColor is the colour text is drawn in.
    QFont Font() const { return font(); }
    void SetFont(const QFont &font);
    bool ParentFont() const { return !testAttribute(Qt::WA_SetFont); }
    void SetParentFont(bool parentFont);
    TColor FontColor() const { return FFontColor; }
    void SetFontColor(TColor color);
    // The font as a canvas takes it (made again when the font changes).
    TFont CanvasFont() const;

    // The control's text (its caption), for the controls that have one. With
    // csSetCaption, a text still empty or equal to the old name follows the
    // name the designer gives the control.
    virtual QString Text() const { return QString(); }
    virtual void SetText(const QString &text) { Q_UNUSED(text); }

    // Shown where the right mouse button is released over the control.
    QMenu *PopupMenu() const { return FPopupMenu; }
    void SetPopupMenu(QMenu *menu) { FPopupMenu = menu; }

    // The control's own flag: true unless it was hidden explicitly.
    bool Visible() const { return !(testAttribute(Qt::WA_WState_ExplicitShowHide) && isHidden()); }
    virtual void SetVisible(bool visible) { setVisible(visible); }

    // Deferred repaint, and repaint at once.
    void Invalidate()
    {
        FPaintPending = true;
        FPictureValid = false;
        update();
    }
    void Repaint()
    {
        FPictureValid = false;
        repaint();
    }
    void Refresh() { Repaint(); }
    // Paints what is pending on this control now (nothing when nothing is).
    void Update();
    // Asks the parent to repaint the area under this control, erasing it.
    void InvalidateParentArea();

    // The canvas of the paint under way (null outside painting): OnPaint
    // handlers draw on it.
    TCanvas *Canvas() const { return FCanvas; }

    // The control's picture, painted as on screen, over `background` where
    // the control leaves pixels untouched.
    QImage RenderImage(QRgb background = 0xFF000000u);

    // A control is as large as it was made: layouts keep that size.
    QSize sizeHint() const override { return size(); }
    QSize minimumSizeHint() const override { return size(); }

signals:
    void OnMouseEnter(QObject *Sender);
    void OnMouseLeave(QObject *Sender);
    void OnClick(QObject *Sender);
    void OnDblClick(QObject *Sender);
    void OnMouseDown(QObject *Sender, TControl::TMouseButton Button, int Shift, int X, int Y);
    void OnMouseUp(QObject *Sender, TControl::TMouseButton Button, int Shift, int X, int Y);
    void OnMouseMove(QObject *Sender, int Shift, int X, int Y);
    void OnDragOver(QObject *Sender, QObject *Source, int X, int Y, TControl::TDragState State, bool &Accept);
    void OnDragDrop(QObject *Sender, QObject *Source, int X, int Y);
    void OnEndDrag(QObject *Sender, QObject *Target, int X, int Y);

protected:
    // The event hooks: each base version raises its event. Overrides call
    // the inherited one where the event should still be raised.
    virtual void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y);
    virtual void MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y);
    virtual void MouseMove(TShiftState Shift, int X, int Y);
    virtual void Click();
    virtual void DblClick();
    virtual void MouseEnter();
    virtual void MouseLeave();

    // Whether the point belongs to the control: a press where it does not
    // goes, with the rest of that press, to whatever lies beneath.
    virtual bool HitTest(int X, int Y) const { Q_UNUSED(X); Q_UNUSED(Y); return true; }

    // Draws the whole picture; called with the off-screen canvas. A control
    // that is not opaque finds on the canvas what lies beneath it.
    virtual void Paint(TCanvas &canvas) { Q_UNUSED(canvas); }
    // True when Paint covers every pixel, so nothing under it need be drawn.
    virtual bool PaintsOpaque() const { return FControlStyle & csOpaque; }
    // Re-reads PaintsOpaque after a change of style or transparency.
    void UpdateOpacity();
    // A constructor's colour that leaves ParentColor as it is: the control
    // is made with no parent in the framework's order, so the colour holds
    // until the control is placed on another parent or its parent's colour
    // changes.
    void SetDefaultColor(TColor color) { applyColor(color); }
    // Called after Color changed (own or inherited).
    virtual void ColorChanged() { Invalidate(); }
    // Called after the control's size changed, the new size in place.
    virtual void Resize() {}

    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    bool event(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool handleEvent(QEvent *event);
    bool acceptsDrag(QDropEvent *event, TDragState state);
    // Hands a mouse event to the widget the press went through to.
    bool passOn(QMouseEvent *event);
    void boundsChanged();
    void paintInto(QImage &image);
    void copyBeneath(QPainter &painter);
    void applyColor(TColor color);
    void adoptParentColor();
    void parentColorChanged(TColor color);

    TColor FColor = clBtnFace;
    bool FParentColor = true;
    bool FClicked = false;
    bool FPaintPending = false;
    // An opaque control's last picture stays good until it is invalidated,
    // so showing it again (an exposure, a repaint of the parent) is one copy.
    bool FPictureValid = false;
    bool FInBounds = false;
    bool FShowHint = true;
    // The palettes (own, application) when last compared, and whether the
    // control's own differed: its system colours then come from it.
    std::pair<qint64, qint64> FPaletteKeys{-1, -1};
    bool FOwnPalette = false;
    bool FParentShowHint = true;
    bool FDragging = false;
    TCursor FCursor = 0;
    TCursor FDragCursor = -12;
    TDragMode FDragMode = dmManual;
    TControlStyle FControlStyle = csCaptureMouse | csClickEvents | csDoubleClicks;
    TAlign FAlign = alNone;
    TColor FFontColor = clWindowText;
    QPointer<QMenu> FPopupMenu;
    QPointer<QWidget> FPassedTo;   // the widget beneath that has the current press
    QString FNameText;             // the name the text last followed
    mutable TFont FCanvasFont;
    mutable bool FCanvasFontMade = false;
    TCanvas *FCanvas = nullptr;
    QImage FBuffer;
    QRect FBounds;
};

// Lays out the aligned controls among the children of `parent`.
void AlignControls(QWidget *parent);

// A control without focus of its own (labels, cells, lamps).
class TGraphicControl : public TControl
{
    Q_OBJECT
public:
    explicit TGraphicControl(QWidget *parent = nullptr);
};

// A control that can take the keyboard focus. Keys arrive as the
// platform's virtual-key codes (VK_LEFT ...), typed characters as
// Windows-1252 codes; a handler that sets Key to 0 consumes it.
class TCustomControl : public TControl
{
    Q_OBJECT
public:
    explicit TCustomControl(QWidget *parent = nullptr);

    // Tab reaches the control; a click focuses it either way.
    bool TabStop() const { return focusPolicy() & Qt::TabFocus; }
    void SetTabStop(bool stop) { setFocusPolicy(stop ? Qt::StrongFocus : Qt::ClickFocus); }
    bool Enabled() const { return isEnabled(); }
    void SetEnabled(bool enabled) { setEnabled(enabled); }

signals:
    void OnKeyDown(QObject *Sender, quint16 &Key, int Shift);
    void OnKeyPress(QObject *Sender, char &Key);
    void OnKeyUp(QObject *Sender, quint16 &Key, int Shift);
    void OnEnter(QObject *Sender);
    void OnExit(QObject *Sender);

protected:
    virtual void KeyDown(quint16 &Key, TShiftState Shift);
    virtual void KeyPress(char &Key);
    virtual void KeyUp(quint16 &Key, TShiftState Shift);
    virtual void DoEnter();
    virtual void DoExit();

    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};

// The platform's virtual-key codes that controls handle by name.
constexpr quint16 VK_BACK = 0x08, VK_TAB = 0x09, VK_RETURN = 0x0D, VK_SHIFT = 0x10, VK_CONTROL = 0x11,
    VK_MENU = 0x12, VK_ESCAPE = 0x1B, VK_SPACE = 0x20, VK_PRIOR = 0x21, VK_NEXT = 0x22, VK_END = 0x23,
    VK_HOME = 0x24, VK_LEFT = 0x25, VK_UP = 0x26, VK_RIGHT = 0x27, VK_DOWN = 0x28, VK_INSERT = 0x2D,
    VK_DELETE = 0x2E, VK_ADD = 0x6B, VK_SUBTRACT = 0x6D;

// The platform's virtual-key code of a Qt key (0 when it has none).
quint16 VirtualKey(int qtKey, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

// A canvas on a widget as it is on the screen, for drawing outside painting
// (drag feedback, drawing on another control). It starts with the widget's
// current picture, children included; Flush shows what was drawn over the
// widget until the canvas is flushed again or destroyed, and pixels drawn
// back to what they were show the widget itself again (so XOR feedback
// drawn twice disappears). Destroying the canvas removes what it showed.
class TControlCanvas : public TCanvas
{
public:
    explicit TControlCanvas(QWidget *widget);
    ~TControlCanvas();
    TControlCanvas(const TControlCanvas &) = delete;
    TControlCanvas &operator=(const TControlCanvas &) = delete;

    QWidget *Widget() const { return FWidget; }
    // Puts the drawing on the screen now.
    void Flush();

private:
    QWidget *FWidget;
    QImage FBase;
    QImage FPicture;
    QWidget *FOverlay = nullptr;
};
