#include "qhint.h"

#include "labels/qhintwindow.h"

#include "host/tapplication.h"

#include <QToolTip>

TqHint::TqHint(QWidget *owner) : TComponent(owner), FFont(QToolTip::font())
{
    install();
}

TqHint::~TqHint()
{
    uninstall();
}

TqHintWindow *TqHint::Window()
{
    if (!FWindow)
        FWindow = std::make_unique<TqHintWindow>(this);
    return FWindow.get();
}

// Only a live, active hint on a form that runs shows the tips.
void TqHint::install()
{
    if (FInstalled || !FActive || IsDesigning())
        return;
    Application()->SetHintPause(FPause);
    Application()->SetHintHidePause(FHidePause);
    Application()->InstallHintWindow(Window());
    FInstalled = true;
}

void TqHint::uninstall()
{
    if (!FInstalled)
        return;
    if (TApplication *app = Application())
        app->RemoveHintWindow(FWindow.get());
    FInstalled = false;
}

void TqHint::SetActive(bool active)
{
    if (active == FActive)
        return;
    FActive = active;
    if (active)
        install();
    else
        uninstall();
}

void TqHint::SetDesigning(bool designing)
{
    TComponent::SetDesigning(designing);
    if (designing)
        uninstall();
    else
        install();
}

void TqHint::SetPause(int millis)
{
    FPause = qMax(0, millis);
    if (FInstalled)
        Application()->SetHintPause(FPause);
}

void TqHint::SetHidePause(int millis)
{
    FHidePause = qMax(0, millis);
    if (FInstalled)
        Application()->SetHintHidePause(FHidePause);
}
