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

xcb_connection_t* x_connection() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 == nullptr ? nullptr : x11->connection();
}

/// One that knows the Extended Window Manager Hints, which are all that are in use.
bool has_window_manager(xcb_connection_t* connection) {
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const auto cookie = xcb_get_property(connection, 0, root, atom(connection, "_NET_SUPPORTING_WM_CHECK"),
                                         XCB_ATOM_WINDOW, 0, 1);
    const std::unique_ptr<xcb_get_property_reply_t, decltype(&std::free)> reply(
        xcb_get_property_reply(connection, cookie, nullptr), &std::free);
    return reply != nullptr && xcb_get_property_value_length(reply.get()) > 0;
}

}  // namespace

void stand_alone(QWidget& popup) {
    xcb_connection_t* const connection = x_connection();
    if (connection == nullptr) {
        return;
    }
    const auto window = static_cast<xcb_window_t>(popup.winId());
    // The window manager looks at the type when the owner changes.
    constexpr int bits = 32;
    const xcb_atom_t normal = atom(connection, "_NET_WM_WINDOW_TYPE_NORMAL");
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, atom(connection, "_NET_WM_WINDOW_TYPE"),
                        XCB_ATOM_ATOM, bits, 1, &normal);
    popup.windowHandle()->setTransientParent(nullptr);
    xcb_delete_property(connection, window, XCB_ATOM_WM_TRANSIENT_FOR);
    xcb_flush(connection);
}

void return_keyboard(QWidget& window) {
    xcb_connection_t* const connection = x_connection();
    if (connection != nullptr && !has_window_manager(connection) && window.isVisible()) {
        window.activateWindow();
    }
}
