#include "qcolorbtn.h"

#include <QDialog>

TqColorBtn::TqColorBtn(QWidget *parent) : TColorButton<TCustomControl>(parent)
{
    SetTabStop(true);
    FFocusWatch = connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { focusChanged(now); });
}

TqColorBtn::~TqColorBtn()
{
    disconnect(FFocusWatch);
}

void TqColorBtn::SetDefault(bool isDefault)
{
    FDefault = isDefault;
    // Every colour button of the form decides again which one is active.
    QWidget *form = window();
    for (TqColorBtn *b : form->findChildren<TqColorBtn *>())
        b->focusChanged(form->focusWidget());
    if (form != this)
        focusChanged(form->focusWidget());
    Invalidate();
}

void TqColorBtn::focusChanged(QWidget *focused)
{
    if (focused && focused->window() != window())
        return;
    auto *button = qobject_cast<TqColorBtn *>(focused);
    FActive = button ? button == this : FDefault;
    if (!hasFocus()) {   // a press pending from the keyboard ends without a click
        SetPressed(false);
        SetTracking(false);
    }
    SetMouseIn();
    Invalidate();
}

void TqColorBtn::Click()
{
    SetMouseInFlag(false);
    SetMouseIn();
    ResetPress();
    Repaint();
    if (QWidget *form = parentWidget() ? window() : nullptr) {
        form->setProperty("ModalResult", FModalResult);
        if (auto *dialog = qobject_cast<QDialog *>(form); dialog && FModalResult != mrNone)
            dialog->done(FModalResult);
    }
    TColorButton<TCustomControl>::Click();
}

// The space bar presses the button and its release clicks it; auto-repeat
// changes nothing. Enter clicks a focused button.
void TqColorBtn::KeyDown(quint16 &Key, TShiftState Shift)
{
    if (Key == VK_SPACE) {
        if (!Pressed()) {
            setFocus(Qt::OtherFocusReason);
            SetMouseIn();
            SetTracking(false);
            SetPressed(true);
            Repaint();
        }
        Key = 0;
        return;
    }
    if (Key == VK_RETURN && hasFocus()) {
        Key = 0;
        Click();
        return;
    }
    TColorButton<TCustomControl>::KeyDown(Key, Shift);
}

void TqColorBtn::KeyUp(quint16 &Key, TShiftState Shift)
{
    if (Key == VK_SPACE) {
        if (Pressed() && !Tracking()) {
            Click();
            SetPressed(false);
            SetMouseIn();
            Repaint();
        }
        Key = 0;
        return;
    }
    TColorButton<TCustomControl>::KeyUp(Key, Shift);
}

// Enter for the active button, Escape for a cancel button, without
// modifiers; then the accelerator.
bool TqColorBtn::DialogKey(QKeyEvent *event)
{
    const int key = event->key();
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool canFocus = isEnabled() && isVisible() && focusPolicy() != Qt::NoFocus;
    if (plain && canFocus
        && (((key == Qt::Key_Return || key == Qt::Key_Enter) && FActive) || (key == Qt::Key_Escape && Cancel()))) {
        Click();
        return true;
    }
    return canFocus && TColorButton<TCustomControl>::DialogKey(event);
}
