#pragma once
// Shows the desktop behind it: the part of the screen the control covers,
// taken just before its form first shows (and again by Grab while the form
// is hidden, since a shown form would see itself). Where the window system
// gives no picture of the screen (Wayland, or a screen that cannot be read)
// the control shows its Color instead and Grabbed() says false.
//
// Properties (defaults): Color (the parent's), Width and Height 100, the
// usual Align, Hint, ShowHint, Visible; OnPaint after the picture.

#include "host/tcontrol.h"

class TqDesktop : public TGraphicControl
{
    Q_OBJECT
    Q_PROPERTY(int Width READ Width WRITE SetWidth STORED false)
    Q_PROPERTY(int Height READ Height WRITE SetHeight STORED false)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(bool ParentColor READ ParentColor WRITE SetParentColor)
    Q_PROPERTY(Controls::TAlign Align READ Align WRITE SetAlign)
    Q_PROPERTY(QString Hint READ Hint WRITE SetHint)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)

public:
    explicit TqDesktop(QWidget *parent = nullptr);

    // Takes the screen under the control now; true when there was a picture.
    bool Grab();
    bool Grabbed() const { return !FPicture.isNull(); }

signals:
    void OnPaint(QObject *Sender);

protected:
    void Paint(TCanvas &canvas) override;
    bool event(QEvent *event) override;

private:
    QImage FPicture;
    bool FTried = false;
};
