#pragma once
// Hides and shows the title bar of the form it is on. The form's client
// area keeps its height and the frame its place, so the form's outer
// height changes by the title bar's; while the title bar is hidden a press
// on the form itself (not on a control that takes presses) drags the form,
// through the window manager, so it works on Wayland too.
//
// By the form's border style: a sizeable or single form loses its whole
// frame with the title bar (the window manager draws no frame without a
// title); a dialog likewise; a form without a border is left alone; a tool
// window keeps its title bar and only its client height changes by the
// title bar's height, shrinking by it each time the title bar is hidden.

#include "host/tcomponent.h"

#include <optional>

class TFormHook;

class TqTitleBar : public TComponent
{
    Q_OBJECT
    Q_PROPERTY(bool AllowMoveWhitoutTitle READ AllowMoveWhitoutTitle WRITE SetAllowMoveWhitoutTitle)
    Q_PROPERTY(bool TitleBarOnFormShow READ TitleBarOnFormShow WRITE SetTitleBarOnFormShow)

public:
    explicit TqTitleBar(QWidget *owner = nullptr);

    bool AllowMoveWhitoutTitle() const { return FAllowMove; }
    void SetAllowMoveWhitoutTitle(bool allow) { FAllowMove = allow; }
    // Whether the form shows its title bar once loaded.
    bool TitleBarOnFormShow() const { return FOnFormShow; }
    void SetTitleBarOnFormShow(bool show) { FOnFormShow = show; }

    // Whether the form has its title bar now.
    bool IsShowTitleBar() const;
    // Hides or shows the title bar at run time; OnChange follows even when
    // nothing changed (not for a form without a border, nor in the designer).
    void SetTitleBar(bool show);

signals:
    void OnChange(QObject *Sender);

protected:
    virtual void DoOnChange();
    void Loaded() override;

private:
    bool hitTest(QEvent *event);

    bool FAllowMove = true;
    bool FOnFormShow = true;
    bool FShown = true;
    TFormHook *FHook = nullptr;
    std::optional<Qt::WindowFlags> FSavedFlags;   // the form's own, while hidden
};

// The height of a title bar as the running window system draws it: the
// form's own when it shows one, else the style's.
int TitleBarHeight(const QWidget *form);
