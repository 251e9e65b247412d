#pragma once
// The shape button: a push button shaped as a rectangle, one of eight
// triangles, a plus, a minus, an ellipse or a shape the application
// supplies. It is filled and bevelled inside its outline only, and a press
// outside the outline goes to whatever lies beneath. The plus and minus
// shapes answer the plus and minus keys.

#include "host/tcontrol.h"
#include "host/tregion.h"

#include <QKeyEvent>

class TqShapeBtn : public TGraphicControl
{
    Q_OBJECT
    Q_PROPERTY(int Width READ Width WRITE SetWidth STORED false)
    Q_PROPERTY(int Height READ Height WRITE SetHeight STORED false)
    Q_PROPERTY(int DragCursor READ DragCursor WRITE SetDragCursor)
    Q_PROPERTY(TDragMode DragMode READ DragMode WRITE SetDragMode)
    Q_PROPERTY(bool Transparent READ Transparent WRITE SetTransparent)
    Q_PROPERTY(QChar AcceleratorKey READ GetAccelkey WRITE SetAccelKey)
    Q_PROPERTY(sbType Shape READ Shape WRITE SetShape)
    Q_PROPERTY(TColor HighLightColor READ HighLightColor WRITE SetHigh)
    Q_PROPERTY(TColor ShadowColor READ ShadowColor WRITE SetShadow)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(bool ParentColor READ ParentColor WRITE SetParentColor)
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(bool ParentShowHint READ ParentShowHint WRITE SetParentShowHint)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)

public:
    QAccessible::Role AccessibleRole() const override { return QAccessible::Button; }
    bool AccessiblePress() override
    {
        if (!isEnabled())
            return false;
        Click();
        return true;
    }
    enum sbType {
        sbRectangle, sbUpTriangle, sbDnTriangle, sbLTriangle, sbRTriangle, sbTLTriangle, sbTRTriangle,
        sbBLTriangle, sbBRTriangle, sbPlus, sbMinus, sbCircle, sbOwnerDraw
    };
    Q_ENUM(sbType)

    explicit TqShapeBtn(QWidget *parent = nullptr);

    // Nothing is painted (the designer shows a black outline); it still
    // answers the mouse inside its shape.
    bool Transparent() const { return FTransparent; }
    void SetTransparent(bool transparent);
    // The key that clicks the button; a space for none.
    QChar GetAccelkey() const;
    void SetAccelKey(QChar key);
    sbType Shape() const { return FShape; }
    // The plus and minus make their keys the accelerator; any other shape
    // clears it.
    void SetShape(sbType shape);
    TColor HighLightColor() const { return FHighLightColor; }
    void SetHigh(TColor color);
    TColor ShadowColor() const { return FShadowColor; }
    void SetShadow(TColor color);

    // The shape's region in control coordinates, as last built.
    const TRegion &Region() const { return FRegion; }
    bool Pressed() const { return FPressed; }

    // The region of a shape on a control of width x height (not the
    // owner-drawn one).
    static TRegion ShapeRegion(sbType shape, int width, int height);

signals:
    void OnPaint(QObject *Sender);
    // Builds the region of sbOwnerDraw: store it in Region.
    void OnGetRegion(QObject *Sender, TRegion &Region, int Width, int Height);
    // Draws the face of sbOwnerDraw.
    void OnOwnerDraw(QObject *Sender, TCanvas *Canvas, bool Down, int Width, int Height, const TRegion &Region,
                     TColor Shadow, TColor Highlight);

protected:
    // Builds the region from Shape and the size.
    virtual void RgnFromShape();
    bool HitTest(int X, int Y) const override;
    void Paint(TCanvas &canvas) override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void MouseMove(TShiftState Shift, int X, int Y) override;
    void MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    // Passes on only while the button is pressed: a release after dragging
    // out of the shape does not click.
    void Click() override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool event(QEvent *event) override;

private:
    void setAccel(const QString &accel);
    void drawRectangle(TCanvas &c);
    void drawEllipse(TCanvas &c);
    void drawTriangle(TCanvas &c, int which);
    void drawPlus(TCanvas &c);
    void drawMinus(TCanvas &c);
    TColor light() const { return FPressed ? TColor(clBlack) : FHighLightColor; }
    TColor dark() const { return FPressed ? FHighLightColor : TColor(clBlack); }

    bool FTransparent = false;
    QString FAccel = QStringLiteral(" ");
    sbType FShape = sbRectangle;
    TColor FHighLightColor = clBtnHighlight;
    TColor FShadowColor = clBtnShadow;
    TRegion FRegion;
    QSize FRegionSize;
    bool FPressed = false;
    bool FTracking = false;
    int FShortcut = 0;
};

using sbType = TqShapeBtn::sbType;
