#pragma once
// What the windowed and non-windowed blend painters share: the colour
// blend of the form background (bands top to bottom, left to right or rings
// toward the centre) or the steel texture over the whole control, a dashed
// outline in the designer, then OnPaint.

#include "host/tblend.h"
#include "host/tcontrol.h"
#include "host/tsteel.h"

#include <stdexcept>

// The blend over a w x h area; ring blends of no ring at all divide by
// zero, as the platform's blend does, and raise.
void PaintBackgroundBlend(TCanvas &canvas, gradType type, int bands, const TBlend &blend, int w, int h);

template <class Base>
class TBlendPainter : public Base
{
public:
    explicit TBlendPainter(QWidget *parent) : Base(parent)
    {
        this->SetDefaultColor(0x00FF00FF);   // ParentColor stays true
        this->SetBounds(this->Left(), this->Top(), 30, 30);
        this->SetControlStyle(this->ControlStyle() | csOpaque);
        this->UpdateOpacity();
        FBlend = TBlend(this->Color(), FEndColor);
    }

    bool SteelLook() const { return FSteel; }
    void SetSteel(bool steel)
    {
        if (steel == FSteel)
            return;
        FSteel = steel;
        this->Refresh();
    }
    gradType FillType() const { return FFillType; }
    void SetGrad(gradType type)
    {
        FFillType = type;
        ColorChanged();
    }
    TColor EndColor() const { return FEndColor; }
    void SetEndColor(TColor color)
    {
        if (color == FEndColor)
            return;
        FEndColor = color;
        ColorChanged();
    }
    int Bands() const { return FBands; }
    void SetBands(int bands)
    {
        if (bands == FBands)
            return;
        FBands = bands;
        ColorChanged();
    }

protected:
    virtual void DoOnPaint() = 0;
    void ColorChanged() override
    {
        Base::ColorChanged();
        FBlend = TBlend(this->Color(), FEndColor);
    }
    void Paint(TCanvas &canvas) override
    {
        const int w = this->Width(), h = this->Height();
        if (FSteel) {
            canvas.Brush.SetBitmap(TSteel());
            canvas.FillRect(Rect(0, 0, w, h));
            canvas.Brush.SetBitmap(QImage());
        } else {
            PaintBackgroundBlend(canvas, FFillType, FBands, FBlend, w, h);
        }
        if (this->IsDesigning())
            PaintDesignOutline(canvas, w, h);
        DoOnPaint();
    }

private:
    bool FSteel = false;
    gradType FFillType = gVert;
    TColor FEndColor = clBlack;
    int FBands = 255;
    TBlend FBlend;
};
