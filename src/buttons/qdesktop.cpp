#include "qdesktop.h"

#include <QGuiApplication>
#include <QScreen>

TqDesktop::TqDesktop(QWidget *parent) : TGraphicControl(parent)
{
    SetBounds(Left(), Top(), 100, 100);
    SetControlStyle(ControlStyle() | csOpaque);
    UpdateOpacity();
}

bool TqDesktop::Grab()
{
    FPicture = QImage();
    QWidget *form = window();
    // Where the control will be on the screen: the form's place and its
    // frame, if the window manager told it already.
    const QPoint at = form->geometry().topLeft() + mapTo(form, QPoint(0, 0));
    if (QScreen *screen = form->screen() ? form->screen() : QGuiApplication::primaryScreen()) {
        const QImage shot = screen->grabWindow(0, at.x() - screen->geometry().x(), at.y() - screen->geometry().y(),
                                               width(), height())
                                .toImage();
        if (!shot.isNull() && shot.size() == size())
            FPicture = shot.convertToFormat(QImage::Format_RGB32);
    }
    Invalidate();
    return Grabbed();
}

// The first show: a form shows its controls before it shows itself, so the
// screen is still as it was before the form covers it.
bool TqDesktop::event(QEvent *e)
{
    if (e->type() == QEvent::Show && !FTried && !IsDesigning()) {
        FTried = true;
        Grab();
    }
    return TGraphicControl::event(e);
}

void TqDesktop::Paint(TCanvas &canvas)
{
    if (FPicture.isNull()) {
        canvas.Brush.SetStyle(bsSolid);
        canvas.Brush.SetColor(Color());
        canvas.FillRect(Rect(0, 0, width(), height()));
    } else {
        canvas.Draw(0, 0, FPicture);
    }
    emit OnPaint(this);
}
