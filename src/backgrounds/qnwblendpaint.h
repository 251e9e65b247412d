#pragma once
// The blend painter without a window of its own; it can let the mouse
// through to what lies beneath.

#include "backgrounds/qblendpainter.h"

class TqNWBlendPaint : public TBlendPainter<TGraphicControl>
{
    Q_OBJECT
    Q_PROPERTY(QString Hint READ Hint WRITE SetHint)
    Q_PROPERTY(int Cursor READ Cursor WRITE SetCursor)
    Q_PROPERTY(int Width READ Width WRITE SetWidth STORED false)
    Q_PROPERTY(int Height READ Height WRITE SetHeight STORED false)
    Q_PROPERTY(bool PassMouseOn READ PassMouseOn WRITE SetPassMouseOn)
    Q_PROPERTY(bool SteelLook READ SteelLook WRITE SetSteel)
    Q_PROPERTY(Graphics::gradType FillType READ FillType WRITE SetGrad)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(bool ParentColor READ ParentColor WRITE SetParentColor)
    Q_PROPERTY(TColor EndColor READ EndColor WRITE SetEndColor)
    Q_PROPERTY(int Bands READ Bands WRITE SetBands)
    Q_PROPERTY(Controls::TAlign Align READ Align WRITE SetAlign)
    Q_PROPERTY(bool ParentShowHint READ ParentShowHint WRITE SetParentShowHint)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)
    Q_PROPERTY(int DragCursor READ DragCursor WRITE SetDragCursor)
    Q_PROPERTY(TDragMode DragMode READ DragMode WRITE SetDragMode)

public:
    explicit TqNWBlendPaint(QWidget *parent = nullptr);
    // Clicks and mouse moves go to what lies beneath.
    bool PassMouseOn() const { return testAttribute(Qt::WA_TransparentForMouseEvents); }
    void SetPassMouseOn(bool pass) { setAttribute(Qt::WA_TransparentForMouseEvents, pass); }

signals:
    void OnPaint(QObject *Sender);

protected:
    void DoOnPaint() override { emit OnPaint(this); }
};
