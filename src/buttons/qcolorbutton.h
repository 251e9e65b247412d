#pragma once
// What the windowed and the non-windowed colour button share: one picture
// (face, two-pixel bevel, caption at nine places, focus) and one state
// machine (pressed, tracking, hot while flat), over either base control.

#include "host/tbitmap.h"
#include "host/tcodepage.h"
#include "host/tcontrol.h"

#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>

#include <algorithm>
#include <type_traits>
#include <utility>
#include <vector>

namespace Buttons {
Q_NAMESPACE
// Despite its name it places the caption vertically.
enum qbHorzAlign { qbha_Center, qbha_Top, qbha_Bottom };
Q_ENUM_NS(qbHorzAlign)
// Where a glyph button has its glyph.
enum TButtonLayout { blGlyphLeft, blGlyphRight, blGlyphTop, blGlyphBottom };
Q_ENUM_NS(TButtonLayout)
} // namespace Buttons
using namespace Buttons;

// True when `key` is the accelerator of `caption` (the character after a
// single '&', in either case).
bool IsAccel(QChar key, const QString &caption);
// The character a key press types, also with Alt held (null for none).
QChar TypedChar(const QKeyEvent *event);

template <class Base>
class TColorButton : public Base
{
    static constexpr bool kWindowed = std::is_base_of_v<TCustomControl, Base>;

public:
    QAccessible::Role AccessibleRole() const override { return QAccessible::Button; }
    bool AccessiblePress() override
    {
        if (!this->isEnabled())
            return false;
        this->Click();
        return true;
    }
    bool Flat() const { return FFlat; }
    void SetFlat(bool flat)
    {
        if (FFlat == flat)
            return;
        FFlat = flat;
        SetMouseIn();
        this->Invalidate();
    }
    qbHorzAlign HorzAlign() const { return FHorzAlign; }
    void SetHorzAlign(qbHorzAlign align) { FHorzAlign = align; this->Invalidate(); }
    bool MultipleLines() const { return FMultipleLines; }
    void SetMultipleLines(bool multiple) { FMultipleLines = multiple; this->Invalidate(); }
    bool WordWrap() const { return FWordWrap; }
    void SetWordWrap(bool wrap) { FWordWrap = wrap; this->Invalidate(); }
    TAlignment Alignment() const { return FAlignment; }
    void SetAlign(TAlignment alignment)
    {
        if (FAlignment == alignment)
            return;
        FAlignment = alignment;
        this->Invalidate();
    }
    // Escape clicks a windowed button that has it.
    bool Cancel() const { return FCancel; }
    void SetCancel(bool cancel) { FCancel = cancel; }
    // May hold an accelerator ("&OK").
    QString Caption() const { return FCaption; }
    void SetCaption(const QString &caption)
    {
        if (FCaption == caption)
            return;
        FCaption = caption;
        // Alt with the accelerator clicks it wherever the focus is.
        if (FShortcut)
            this->releaseShortcut(FShortcut);
        const QKeySequence mnemonic = QKeySequence::mnemonic(caption);
        FShortcut = mnemonic.isEmpty() ? 0 : this->grabShortcut(mnemonic, Qt::WindowShortcut);
        this->Invalidate();
    }
    TColor HighLightColor() const { return FHighLightColor; }
    void SetHigh(TColor color)
    {
        if (FHighLightColor == color)
            return;
        FHighLightColor = color;
        this->Invalidate();
    }
    TColor ShadowColor() const { return FShadowColor; }
    void SetShadow(TColor color)
    {
        if (FShadowColor == color)
            return;
        FShadowColor = color;
        this->Invalidate();
    }

    QString Text() const override { return FCaption; }
    void SetText(const QString &text) override { SetCaption(text); }

    // The state machine, for tests and subclasses.
    bool MouseIn() const { return FMouseIn; }
    bool Pressed() const { return FPressed; }
    bool Tracking() const { return FTracking; }

protected:
    explicit TColorButton(QWidget *parent) : Base(parent)
    {
        this->SetControlStyle(csCaptureMouse | csClickEvents | csSetCaption | csOpaque | csDoubleClicks);
        this->SetBounds(this->x(), this->y(), 89, 33);
        this->SetColor(clWindow);
        this->SetParentColor(true);
        if (this->parentWidget())
            this->window()->installEventFilter(this);
    }

    // The face inside the bevel: plain Color here.
    virtual void PaintFace(TCanvas &canvas)
    {
        canvas.Brush.SetColor(this->Color());
        canvas.Pen.SetWidth(1);
        canvas.FillRect(this->ClientRect());
    }
    // The caption is bold while this is true.
    virtual bool BoldCaption() const { return false; }
    // Where the caption goes; a glyph button keeps the rest for its glyph.
    virtual TRect CaptionRect() const { return Rect(5, 5, this->width() - 5, this->height() - 5); }
    // Drawn over the face after the caption (a glyph), pressed or not.
    virtual void PaintGlyph(TCanvas &canvas, bool enabled) { Q_UNUSED(canvas); Q_UNUSED(enabled); }
    // The focus rectangle is drawn while this is true.
    virtual bool ShowsFocus() const { return false; }
    virtual void DoOnPaint() = 0;

    // Whether the face and bevel may be kept from one paint to the next,
    // and what they depend on beyond the state shared here.
    virtual bool FaceKept() const { return true; }
    virtual QByteArray FaceKey() const { return QByteArray(); }

    void Paint(TCanvas &canvas) override
    {
        const int W = this->width(), H = this->height();
        const bool enabled = this->isEnabled();
        const bool bevel = !FFlat || (FMouseIn && enabled) || FPressed || FTracking || this->IsDesigning();
        if (FaceKept()) {
            // The face and bevel change with few things; the caption is
            // drawn over a kept copy.
            const qint64 values[] = {W, H, ColorToRGB(this->Color()), ColorToRGB(FHighLightColor),
                                     ColorToRGB(FShadowColor), FPressed, bevel};
            const QByteArray key = QByteArray(reinterpret_cast<const char *>(values), sizeof values) + FaceKey();
            // The last few looks (raised, pressed, hot ...) are kept.
            auto kept = std::find_if(FFaces.begin(), FFaces.end(), [&](const auto &f) { return f.first == key; });
            if (kept == FFaces.end()) {
                TBitmap face(W, H);
                paintFaceAndBevel(face.Canvas(), bevel);
                if (FFaces.size() == 4)
                    FFaces.pop_back();
                FFaces.insert(FFaces.begin(), {key, face.Image()});
                kept = FFaces.begin();
            }
            canvas.CopyRect(this->ClientRect(), kept->second, this->ClientRect());
        } else {
            paintFaceAndBevel(canvas, bevel);
        }
        paintCaption(canvas, enabled);
        PaintGlyph(canvas, enabled);
        if (ShowsFocus() && enabled) {
            TRect focus = this->ClientRect();
            InflateRect(focus, -3, -3);
            canvas.DrawFocusRect(focus);
        }
        DoOnPaint();
    }

private:
    void paintFaceAndBevel(TCanvas &canvas, bool bevel)
    {
        const int R = this->width() - 1, B = this->height() - 1;
        PaintFace(canvas);
        if (bevel) {
            canvas.Pen.SetColor(FShadowColor);
            canvas.Polyline({{0, B}, {0, 0}, {R, 0}});
            canvas.Polyline({{R - 1, 1}, {R - 1, B - 1}, {0, B - 1}});
            canvas.Pen.SetColor(FPressed ? TColor(clBlack) : FHighLightColor);
            canvas.Polyline({{1, B}, {1, 1}, {R, 1}});
            canvas.Pen.SetColor(FPressed ? FHighLightColor : TColor(clBlack));
            canvas.Polyline({{R, 0}, {R, B}, {0, B}});
        }
    }

    void paintCaption(TCanvas &canvas, bool enabled)
    {
        TRect r = CaptionRect();
        canvas.Font = this->CanvasFont();
        canvas.Font.SetStyle(BoldCaption() ? fsBold : 0);
        if (enabled && FPressed)
            OffsetRect(r, 1, 1);
        canvas.Brush.SetStyle(bsClear);
        const unsigned flags = CaptionFlags();
        if (enabled) {
            canvas.DrawText(FCaption, r, flags);
        } else {   // engraved
            OffsetRect(r, 1, 1);
            canvas.Font.SetColor(clWhite);
            canvas.DrawText(FCaption, r, flags);
            OffsetRect(r, -1, -1);
            canvas.Font.SetColor(clGray);
            canvas.DrawText(FCaption, r, flags);
        }
        canvas.Brush.SetStyle(bsSolid);
    }

public:
    // The text flags of the caption: vertical place (only on one line),
    // lines, wrapping, horizontal place.
    unsigned CaptionFlags() const
    {
        unsigned flags = FHorzAlign == qbha_Center ? DT_VCENTER : FHorzAlign == qbha_Bottom ? DT_BOTTOM : DT_TOP;
        if (!FMultipleLines)
            flags |= DT_SINGLELINE;
        if (FWordWrap)
            flags |= DT_WORDBREAK;
        if (FAlignment == taRightJustify)
            flags |= DT_RIGHT;
        else if (FAlignment == taCenter)
            flags |= DT_CENTER;
        return flags;
    }

protected:
    // Hot tracking: whether the pointer is over the button now, told to the
    // enter and leave handling, which repaints and raises the event.
    void SetMouseIn()
    {
        if (!this->isEnabled() || (kWindowed && !FFlat))
            return;
        FMouseIn = !this->underMouse();
        if (FMouseIn)
            MouseLeave();
        else
            MouseEnter();
    }
    void MouseEnter() override
    {
        if (FFlat && !FMouseIn && this->isEnabled()) {
            FMouseIn = true;
            this->Repaint();
        }
        Base::MouseEnter();
    }
    void MouseLeave() override
    {
        if (FFlat && (!kWindowed || FMouseIn) && !FTracking) {
            FMouseIn = false;
            this->Invalidate();
        }
        Base::MouseLeave();
    }

    // Inside for a press or a drag: the right edge is outside, the bottom
    // edge inside.
    bool inside(int x, int y) const { return x >= 0 && x < this->width() && y >= 0 && y <= this->height(); }

    void MouseDown(TControl::TMouseButton Button, TControl::TShiftState Shift, int X, int Y) override
    {
        Base::MouseDown(Button, Shift, X, Y);
        if (Button != TControl::mbLeft || !this->isEnabled() || !inside(X, Y))
            return;
        if (!FPressed) {
            if constexpr (kWindowed)
                this->setFocus(Qt::MouseFocusReason);
            FPressed = true;
            this->Repaint();
        }
        FTracking = true;
    }
    void MouseMove(TControl::TShiftState Shift, int X, int Y) override
    {
        if (!FMouseIn)
            SetMouseIn();
        if (FTracking) {
            const bool in = inside(X, Y);
            if (in != FPressed) {
                FPressed = in;
                this->Repaint();
            }
        }
        Base::MouseMove(Shift, X, Y);
    }
    void MouseUp(TControl::TMouseButton Button, TControl::TShiftState Shift, int X, int Y) override
    {
        Base::MouseUp(Button, Shift, X, Y);
        if (FTracking) {
            FPressed = false;
            FTracking = false;
            SetMouseIn();
            AfterRelease();
        }
    }
    // How the button shows itself again after a release.
    virtual void AfterRelease() { this->Repaint(); }
    // The release of a click, before the button's own Click.
    void ResetPress()
    {
        FPressed = false;
        FTracking = false;
    }
    void SetPressed(bool pressed) { FPressed = pressed; }
    void SetTracking(bool tracking) { FTracking = tracking; }
    void SetMouseInFlag(bool in) { FMouseIn = in; }

    // Keys that reach the form unused: the accelerator of the caption
    // clicks the button (here for both kinds; Enter and Escape for the
    // windowed one in DialogKey).
    virtual bool DialogKey(QKeyEvent *event)
    {
        const QChar key = TypedChar(event);
        if (!key.isNull() && this->isEnabled() && this->isVisible() && IsAccel(key, FCaption)) {
            this->Click();
            return true;
        }
        return false;
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == this->window() && event->type() == QEvent::KeyPress && !this->IsDesigning()
            && DialogKey(static_cast<QKeyEvent *>(event)))
            return true;
        return Base::eventFilter(watched, event);
    }
    // Whether the accelerator may click the button now.
    virtual bool TakesAccelerator() const { return this->isEnabled() && !this->IsDesigning(); }
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::Shortcut) {
            if (TakesAccelerator())
                this->Click();
            return true;
        }
        if (event->type() == QEvent::ParentChange && this->parentWidget())
            this->window()->installEventFilter(this);
        if (event->type() == QEvent::EnabledChange) {
            SetMouseIn();
            this->Invalidate();
        }
        return Base::event(event);
    }

private:
    bool FFlat = false;
    qbHorzAlign FHorzAlign = qbha_Center;
    bool FMultipleLines = false;
    bool FWordWrap = false;
    TAlignment FAlignment = taCenter;
    bool FCancel = false;
    QString FCaption;
    TColor FHighLightColor = clBtnHighlight;
    TColor FShadowColor = clBtnShadow;
    bool FMouseIn = false;
    bool FPressed = false;
    bool FTracking = false;
    int FShortcut = 0;
    std::vector<std::pair<QByteArray, QImage>> FFaces;
};
