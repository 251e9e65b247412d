#pragma once
// Window-manager hints that Qt has no call for, set on a top-level window
// directly. On X11 they are the desktop's _NET_WM_STATE atoms; on other
// window systems the calls answer false and change nothing.

class QWindow;

// Whether this window system takes the hints below.
bool HasWindowHints();
// Keeps a top-level window off the taskbar and the pager, or puts it back.
// Before the window is shown the hint goes on the window itself (Qt keeps
// it when it maps the window); once shown the window manager is asked.
// False where the window system has no such hint.
bool SetSkipTaskbar(QWindow *window, bool skip);
// Whether the window's state keeps it off the taskbar, as the window manager
// last set it (or as set before the window was shown).
bool SkipsTaskbar(QWindow *window);
// Asks the window manager for a border alone, without a title bar, on a
// top-level window (its own decorations are what Qt's window flags ask for
// otherwise); `sizable` keeps the user's resizing. Best set after the native
// window exists and before it is shown; a shown window is redecorated.
// False where the window system has no such hint.
bool SetBorderOnly(QWindow *window, bool sizable);
