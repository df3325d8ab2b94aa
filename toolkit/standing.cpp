// SPDX-License-Identifier: MIT
#include "toolkit/standing.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>
#include <qguiapplication_platform.h>

#include <cstdlib>
#include <memory>
#include <string_view>

#include <xcb/xcb.h>

namespace {

xcb_atom_t atom(xcb_connection_t* connection, std::string_view name) {
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
    return reply == nullptr ? xcb_atom_t{XCB_ATOM_NONE} : reply->atom;
}

void set_property(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t name, xcb_atom_t type,
                  std::uint32_t value) {
    constexpr int bits = 32;
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, name, type, bits, 1, &value);
}

}  // namespace

void set_standing(QWidget& popup, Standing standing) {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr) {
        return;
    }
    xcb_connection_t* const connection = x11->connection();
    const auto window = static_cast<xcb_window_t>(popup.winId());
    const bool alone = standing == Standing::alone;
    // The window manager looks at the type when the owner changes.
    set_property(connection, window, atom(connection, "_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM,
                 atom(connection, alone ? "_NET_WM_WINDOW_TYPE_NORMAL" : "_NET_WM_WINDOW_TYPE_DIALOG"));
    if (alone) {
        popup.windowHandle()->setTransientParent(nullptr);
        xcb_delete_property(connection, window, XCB_ATOM_WM_TRANSIENT_FOR);
    } else {
        popup.windowHandle()->setTransientParent(popup.parentWidget()->windowHandle());
        set_property(connection, window, XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW,
                     static_cast<xcb_window_t>(popup.parentWidget()->winId()));
    }
    xcb_flush(connection);
}
