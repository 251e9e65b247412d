#pragma once
// A size guard: limits the size and the maximised place of the form it is
// on. The form cannot be dragged smaller than MinDragWidth x MinDragHeight
// or larger than MaxDragWidth x MaxDragHeight, and maximised it takes
// MaxWidth x MaxHeight and stays maximised (limits changed while it is are
// applied without restoring it). MaxLeft and MaxTop are the maximised place
// where the window system places maximised windows by the program's word;
// X11 window managers place them themselves. Sizes are the form's Width and
// Height (its client area), places are its Left and Top (its frame), all
// in screen pixels.

#include "host/tcomponent.h"
#include "host/tform.h"

#include <QRect>
#include <QSize>

class TFormHook;

// The eight limits of one query.
struct TSizeLimits
{
    int MaxLeft = 0, MaxTop = 0;
    int MaxWidth = 600, MaxHeight = 400;
    int MaxDragWidth = 600, MaxDragHeight = 400;
    int MinDragWidth = 0, MinDragHeight = 0;
};

// Raises the limits until they agree: the maximised size at least the least
// drag size, the largest drag size at least the maximised size.
void MakeLimitsConsistent(TSizeLimits &limits);
// The taskbar's rectangle (right and bottom exclusive) from a screen and the
// part of it left to windows; empty when nothing is taken.
QRect TaskbarRect(const QRect &screen, const QRect &available);
// Moves the maximised place and the largest drag size off a taskbar on a
// screen of `screen` size.
void AdjustForTaskbar(QSize screen, const QRect &taskbar, TSizeLimits &limits);

class TqMinMax : public TComponent
{
    Q_OBJECT
    Q_PROPERTY(bool AutoTaskBarAjust READ AutoTaskBarAjust WRITE SetAutoTaskBarAjust)
    Q_PROPERTY(bool UseDefaultSize READ UseDefaultSize WRITE SetUseDefaultSize)
    Q_PROPERTY(int MaxLeft READ MaxLeft WRITE SetMaxLeft)
    Q_PROPERTY(int MaxTop READ MaxTop WRITE SetMaxTop)
    Q_PROPERTY(int MaxWidth READ MaxWidth WRITE SetMaxWidth)
    Q_PROPERTY(int MaxHeight READ MaxHeight WRITE SetMaxHeight)
    Q_PROPERTY(int MaxDragWidth READ MaxDragWidth WRITE SetMaxDragWidth)
    Q_PROPERTY(int MaxDragHeight READ MaxDragHeight WRITE SetMaxDragHeight)
    Q_PROPERTY(int MinDragWidth READ MinDragWidth WRITE SetMinDragWidth)
    Q_PROPERTY(int MinDragHeight READ MinDragHeight WRITE SetMinDragHeight)

public:
    explicit TqMinMax(QWidget *owner = nullptr);
    // The form's own limits come back.
    ~TqMinMax() override;

    // Recomputes the maximised place and the largest drag size around the
    // taskbar (the part of the screen the desktop keeps) at each query.
    bool AutoTaskBarAjust() const { return FAutoTaskBarAjust; }
    void SetAutoTaskBarAjust(bool adjust);
    // Takes the window system's own limits into the properties at each
    // query instead of imposing them; the setters then leave the form alone.
    bool UseDefaultSize() const { return FUseDefaultSize; }
    void SetUseDefaultSize(bool use);

    int MaxLeft() const { return FLimits.MaxLeft; }
    void SetMaxLeft(int value) { FLimits.MaxLeft = value; SetSize(); }
    int MaxTop() const { return FLimits.MaxTop; }
    void SetMaxTop(int value) { FLimits.MaxTop = value; SetSize(); }
    int MaxWidth() const { return FLimits.MaxWidth; }
    void SetMaxWidth(int value) { FLimits.MaxWidth = value; SetSize(); }
    int MaxHeight() const { return FLimits.MaxHeight; }
    void SetMaxHeight(int value) { FLimits.MaxHeight = value; SetSize(); }
    int MaxDragWidth() const { return FLimits.MaxDragWidth; }
    void SetMaxDragWidth(int value) { FLimits.MaxDragWidth = value; SetSize(); }
    int MaxDragHeight() const { return FLimits.MaxDragHeight; }
    void SetMaxDragHeight(int value) { FLimits.MaxDragHeight = value; SetSize(); }
    int MinDragWidth() const { return FLimits.MinDragWidth; }
    void SetMinDragWidth(int value) { FLimits.MinDragWidth = value; SetSize(); }
    int MinDragHeight() const { return FLimits.MinDragHeight; }
    void SetMinDragHeight(int value) { FLimits.MinDragHeight = value; SetSize(); }

    // Makes the limits agree and fits the form into them at once (nothing
    // while UseDefaultSize is true; nothing done to a form in the designer).
    virtual void SetSize();

signals:
    // Per query: the program may change the limits of that query (the
    // properties stay as they are).
    void OnSizeChange(QObject *Sender, int &MinDragWidth, int &MinDragHeight, int &MaxWidth, int &MaxHeight,
                      int &MaxDragWidth, int &MaxDragHeight, int &Maxleft, int &MaxTop);

protected:
    void Loaded() override;

private:
    bool answer(QEvent *event);

    TSizeLimits FLimits;
    bool FAutoTaskBarAjust = false;
    bool FUseDefaultSize = false;
    TFormHook *FHook = nullptr;
};
