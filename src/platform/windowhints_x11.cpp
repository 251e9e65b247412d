#include "windowhints.h"

#include <QGuiApplication>
#include <QtGui/qguiapplication_platform.h>
#include <QWindow>

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

xcb_connection_t *connection()
{
    auto *x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x11 ? x11->connection() : nullptr;
}

xcb_atom_t atom(xcb_connection_t *c, const char *name)
{
    xcb_intern_atom_reply_t *reply =
        xcb_intern_atom_reply(c, xcb_intern_atom(c, 0, uint16_t(strlen(name)), name), nullptr);
    const xcb_atom_t a = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    free(reply);
    return a;
}

std::vector<xcb_atom_t> wmState(xcb_connection_t *c, xcb_window_t w, xcb_atom_t state)
{
    std::vector<xcb_atom_t> atoms;
    xcb_get_property_reply_t *reply =
        xcb_get_property_reply(c, xcb_get_property(c, 0, w, state, XCB_ATOM_ATOM, 0, 1024), nullptr);
    if (reply && reply->format == 32 && reply->type == XCB_ATOM_ATOM) {
        const auto *data = static_cast<const xcb_atom_t *>(xcb_get_property_value(reply));
        atoms.assign(data, data + xcb_get_property_value_length(reply) / 4);
    }
    free(reply);
    return atoms;
}

} // namespace

bool HasWindowHints() { return connection() != nullptr; }

bool SetSkipTaskbar(QWindow *window, bool skip)
{
    xcb_connection_t *c = connection();
    if (!c || !window)
        return false;
    const auto w = xcb_window_t(window->winId());
    const xcb_atom_t state = atom(c, "_NET_WM_STATE");
    const xcb_atom_t taskbar = atom(c, "_NET_WM_STATE_SKIP_TASKBAR");
    const xcb_atom_t pager = atom(c, "_NET_WM_STATE_SKIP_PAGER");
    if (window->isVisible()) {
        // A mapped window's state belongs to the window manager: ask it.
        xcb_client_message_event_t event = {};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = 32;
        event.window = w;
        event.type = state;
        event.data.data32[0] = skip ? 1 : 0;   // add or remove
        event.data.data32[1] = taskbar;
        event.data.data32[2] = pager;
        event.data.data32[3] = 1;              // from an application
        xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(c)).data;
        xcb_send_event(c, 0, screen->root,
                       XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                       reinterpret_cast<const char *>(&event));
    } else {
        std::vector<xcb_atom_t> atoms = wmState(c, w, state);
        atoms.erase(std::remove_if(atoms.begin(), atoms.end(),
                                   [&](xcb_atom_t a) { return a == taskbar || a == pager; }),
                    atoms.end());
        if (skip) {
            atoms.push_back(taskbar);
            atoms.push_back(pager);
        }
        xcb_change_property(c, XCB_PROP_MODE_REPLACE, w, state, XCB_ATOM_ATOM, 32, uint32_t(atoms.size()),
                            atoms.data());
    }
    xcb_flush(c);
    return true;
}

bool SkipsTaskbar(QWindow *window)
{
    xcb_connection_t *c = connection();
    if (!c || !window)
        return false;
    const std::vector<xcb_atom_t> atoms =
        wmState(c, xcb_window_t(window->winId()), atom(c, "_NET_WM_STATE"));
    return std::find(atoms.begin(), atoms.end(), atom(c, "_NET_WM_STATE_SKIP_TASKBAR")) != atoms.end();
}

// The Motif hints every X11 window manager reads: which decorations and
// which functions the window has.
bool SetBorderOnly(QWindow *window, bool sizable)
{
    xcb_connection_t *c = connection();
    if (!c || !window)
        return false;
    enum : uint32_t { Functions = 1, Decorations = 2 };
    enum : uint32_t { FuncResize = 2, FuncMove = 4, FuncMinimize = 8, FuncMaximize = 16, FuncClose = 32 };
    enum : uint32_t { DecorBorder = 2 };
    const uint32_t hints[5] = {Functions | Decorations,
                               FuncMove | FuncMinimize | FuncClose | (sizable ? FuncResize | FuncMaximize : 0u),
                               DecorBorder, 0, 0};
    const xcb_atom_t motif = atom(c, "_MOTIF_WM_HINTS");
    xcb_change_property(c, XCB_PROP_MODE_REPLACE, xcb_window_t(window->winId()), motif, motif, 32, 5, hints);
    xcb_flush(c);
    return true;
}
