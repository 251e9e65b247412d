#include "tqtitlebar.h"

#include "host/tform.h"
#include "platform/windowhints.h"

#include <QApplication>
#include <QPointer>
#include <QStyle>
#include <QWindow>

namespace {

bool hasTitle(const QWidget *form)
{
    const Qt::WindowFlags flags = form->windowFlags();
    return !(flags & Qt::FramelessWindowHint) && (!(flags & Qt::CustomizeWindowHint) || (flags & Qt::WindowTitleHint));
}

// New window flags on a shown form re-create its native window: the frame
// keeps its place, the client area its size, and visibility, activation and
// focus come back. `border` asks for a thin border in place of the title.
void setFlagsKeeping(QWidget *form, Qt::WindowFlags flags, bool border)
{
    const QPoint place = form->pos();
    const QSize size = form->size();
    const bool visible = form->isVisible(), active = form->isActiveWindow();
    QPointer<QWidget> focus = form->focusWidget();
    // A fresh native window: window managers read the decorations when
    // they take a window on, and keep their idea of its frame after.
    form->hide();
    if (QWindow *window = form->windowHandle())
        window->destroy();
    form->setWindowFlags(flags);
    form->move(place);
    form->resize(size);
    if (border) {
        form->winId();   // the new native window, not yet shown
        SetBorderOnly(form->windowHandle(), FormBorderStyle(form) == bsSizeable);
    }
    if (visible)
        form->show();
    if (focus)
        focus->setFocus();
    if (active)
        form->activateWindow();
}

} // namespace

int TitleBarHeight(const QWidget *form)
{
    if (form->isVisible() && hasTitle(form) && form->frameGeometry().top() < form->geometry().top())
        return form->geometry().top() - form->frameGeometry().top();
    return form->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, form);
}

TqTitleBar::TqTitleBar(QWidget *owner) : TComponent(owner)
{
    if (owner)
        FShown = IsShowTitleBar();
}

bool TqTitleBar::IsShowTitleBar() const
{
    return hasTitle(FindForm(this));
}

void TqTitleBar::DoOnChange()
{
    emit OnChange(this);
}

void TqTitleBar::SetTitleBar(bool show)
{
    QWidget *form = FindForm(this);
    if (IsDesigning()) {
        FShown = IsShowTitleBar();
        return;
    }
    const TFormBorderStyle style = FormBorderStyle(form);
    if (style == bsNone)
        return;
    const bool tool = style == bsToolWindow || style == bsSizeToolWin;
    if (show != IsShowTitleBar()) {
        // Without a title there are no title buttons either (Qt would give
        // the title back for them); showing puts the form's own flags back.
        const Qt::WindowFlags titled = Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint
                                       | Qt::WindowCloseButtonHint | Qt::WindowContextHelpButtonHint;
        Qt::WindowFlags flags = form->windowFlags();
        if (show) {
            flags = FSavedFlags ? *FSavedFlags : flags & ~Qt::CustomizeWindowHint;
            FSavedFlags.reset();
        } else {
            FSavedFlags = flags;
            flags = (flags | Qt::CustomizeWindowHint) & ~titled;
        }
        if (!tool) {
            // Hidden, the title leaves a thin border.
            setFlagsKeeping(form, flags, !show);
        } else if (!show) {
            // A tool window keeps its title bar; its height still changes,
            // a fixed size included.
            const QSize size(form->width(), qMax(0, form->height() - TitleBarHeight(form)));
            if (style == bsToolWindow)
                form->setFixedSize(size);
            form->resize(size);
        }
    }
    DoOnChange();
    form->update();
    FShown = IsShowTitleBar();
}

void TqTitleBar::Loaded()
{
    TComponent::Loaded();
    if (!IsDesigning()) {
        SetTitleBar(FOnFormShow);
        delete FHook;
        FHook = new TFormHook(FindForm(this), this, [this](QEvent *e) { return hitTest(e); });
    }
    FShown = IsShowTitleBar();
}

// A press on the form itself while the title bar is hidden drags it.
bool TqTitleBar::hitTest(QEvent *event)
{
    if (event->type() != THitTestEvent::type())
        return false;
    auto *hit = static_cast<THitTestEvent *>(event);
    if (FAllowMove && !FShown && hit->Result == THitTestEvent::HTCLIENT)
        hit->Result = THitTestEvent::HTCAPTION;
    return false;
}
