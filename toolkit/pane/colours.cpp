// SPDX-License-Identifier: MIT
#include "toolkit/pane/colours.h"

#include <QGuiApplication>
#include <qguiapplication_platform.h>

#include <string>

#include <X11/Xlib.h>

std::optional<terminal::Rgb> x_colour(std::string_view name) {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr) {
        return std::nullopt;
    }
    Display* const display = x11->display();
    XColor colour{};
    if (XParseColor(display, DefaultColormap(display, DefaultScreen(display)), std::string(name).c_str(),
                    &colour) == 0) {
        return std::nullopt;
    }
    const auto high_byte = [](unsigned short value) { return static_cast<std::uint8_t>(value >> 8); };
    return terminal::Rgb{high_byte(colour.red), high_byte(colour.green), high_byte(colour.blue)};
}
