#pragma once
// A bevel for grouping on a panel: a lowered or raised box, an etched frame,
// or one etched line along an edge (top, bottom, left, right), in the button
// shadow and highlight colours, like a panel's bevel. Only the lines are
// drawn: what lies under the frame shows through.
//
// Properties (defaults): Shape (fsBox), Style (fsLowered), Width 50,
// Height 50, and the usual Align, Hint, ShowHint, Visible.

#include "host/tcontrol.h"

class TqFrame : public TGraphicControl
{
    Q_OBJECT
    Q_PROPERTY(int Width READ Width WRITE SetWidth STORED false)
    Q_PROPERTY(int Height READ Height WRITE SetHeight STORED false)
    Q_PROPERTY(TqFrameShape Shape READ Shape WRITE SetShape)
    Q_PROPERTY(TqFrameStyle Style READ Style WRITE SetStyle)
    Q_PROPERTY(Controls::TAlign Align READ Align WRITE SetAlign)
    Q_PROPERTY(QString Hint READ Hint WRITE SetHint)
    Q_PROPERTY(bool ParentShowHint READ ParentShowHint WRITE SetParentShowHint)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)

public:
    enum TqFrameShape { fsBox, fsFrame, fsTopLine, fsBottomLine, fsLeftLine, fsRightLine };
    Q_ENUM(TqFrameShape)
    enum TqFrameStyle { fsLowered, fsRaised };
    Q_ENUM(TqFrameStyle)

    explicit TqFrame(QWidget *parent = nullptr);

    TqFrameShape Shape() const { return FShape; }
    void SetShape(TqFrameShape shape);
    TqFrameStyle Style() const { return FStyle; }
    void SetStyle(TqFrameStyle style);

protected:
    void Paint(TCanvas &canvas) override;

private:
    TqFrameShape FShape = fsBox;
    TqFrameStyle FStyle = fsLowered;
};
