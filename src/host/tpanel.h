#pragma once
// The panel: a control with raised or lowered bevels, a border, a caption
// and the button face's colour, the base of the layout panels.

#include "tcontrol.h"
#include "tform.h"

// Whether a drag of a panel or bar from `press` to `release` (both in the
// dragged control) counts as unmoved: the platform's splitter test, kept
// as it is, a sum across and a difference down.
inline bool DragUnmoved(QPoint press, QPoint release)
{
    return release.x() + press.x() == 0 && release.y() - press.y() == 0;
}

// The bevels of a panel over `r`, outer first, then the border in `color`,
// then the inner: `r` comes back as the rectangle inside them.
void PaintPanelBevels(TCanvas &canvas, TRect &r, TPanelBevel outer, TPanelBevel inner, int bevelWidth,
                      int borderWidth, TColor color);

class TCustomPanel : public TCustomControl
{
    Q_OBJECT
public:
    explicit TCustomPanel(QWidget *parent = nullptr);

    TPanelBevel BevelInner() const { return FBevelInner; }
    void SetBevelInner(TPanelBevel bevel);
    TPanelBevel BevelOuter() const { return FBevelOuter; }
    void SetBevelOuter(TPanelBevel bevel);
    int BevelWidth() const { return FBevelWidth; }
    void SetBevelWidth(int width);
    int BorderWidth() const { return FBorderWidth; }
    void SetBorderWidth(int width);
    // bsSingle draws a one-pixel window frame around the panel.
    TFormBorderStyle BorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TFormBorderStyle style);
    Controls::TAlignment Alignment() const { return FAlignment; }
    void SetAlignment(Controls::TAlignment alignment);
    QString Caption() const { return FCaption; }
    void SetCaption(const QString &caption);

    QString Text() const override { return FCaption; }
    void SetText(const QString &text) override { SetCaption(text); }

signals:
    // After every change of the panel's size.
    void OnResize(QObject *Sender);

protected:
    void Resize() override { emit OnResize(this); }
    // The frame, the bevels, the face and the caption, as panels look.
    void PaintPanel(TCanvas &canvas);
    void PaintCaption(TCanvas &canvas, TRect r);
    void Paint(TCanvas &canvas) override { PaintPanel(canvas); }

private:
    TPanelBevel FBevelInner = bvNone;
    TPanelBevel FBevelOuter = bvRaised;
    int FBevelWidth = 1;
    int FBorderWidth = 0;
    TFormBorderStyle FBorderStyle = bsNone;
    Controls::TAlignment FAlignment = taCenter;
    QString FCaption;
};
