#pragma once
// The gradient button: the colour button with its face filled by a blend
// from Color to EndColor, top to bottom, left to right or in rings toward
// the centre; the blend moves a pixel down and right while pressed.

#include "buttons/qcolorbtn.h"
#include "host/tblend.h"

class TqGradBtn : public TqColorBtn
{
    Q_OBJECT
    Q_PROPERTY(Graphics::gradType FillType READ FillType WRITE SetGrad)
    Q_PROPERTY(TColor EndColor READ EndColor WRITE SetEndColor)
    Q_PROPERTY(int Bands READ Bands WRITE SetBands)

public:
    explicit TqGradBtn(QWidget *parent = nullptr);

    void SetColor(TColor color) override;
    gradType FillType() const { return FFillType; }
    void SetGrad(gradType type);
    // The last colour of the blend. The channels are taken from the colour
    // values as stored: a system colour blends as its index byte, so use
    // plain colours for a visible blend.
    TColor EndColor() const { return FEndColor; }
    void SetEndColor(TColor color);
    // Steps of the blend; negative paints no face.
    int Bands() const { return FBands; }
    void SetBands(int bands);

protected:
    // Rebuilds the blend from Color and EndColor.
    virtual void ColorSet() { FBlend = TBlend(Color(), FEndColor); }
    // A colour taken from the parent blends too.
    void ColorChanged() override
    {
        ColorSet();
        TqColorBtn::ColorChanged();
    }
    void PaintFace(TCanvas &canvas) override;
    QByteArray FaceKey() const override
    {
        const qint64 values[] = {FFillType, FEndColor, FBands, Color()};
        return QByteArray(reinterpret_cast<const char *>(values), sizeof values);
    }

private:
    gradType FFillType = gVert;
    TColor FEndColor = clBtnFace;
    int FBands = 75;
    TBlend FBlend;
};
