// SPDX-License-Identifier: MIT
#include "toolkit/platform.h"

#include <QGuiApplication>
#include <qguiapplication_platform.h>

#include <X11/Xlib.h>

std::string toolkit_version() { return std::string("Qt ") + qVersion(); }

std::string x_server_version() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr) {
        return "none";
    }
    Display* display = x11->display();
    return std::string(ServerVendor(display)) + ", release " + std::to_string(VendorRelease(display)) +
           ", protocol " + std::to_string(ProtocolVersion(display)) + "." +
           std::to_string(ProtocolRevision(display));
}
