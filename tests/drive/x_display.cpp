// SPDX-License-Identifier: MIT
#include "tests/drive/x_display.h"

#include <cstdio>
#include <cstdlib>
#include <vector>

#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

namespace {

/// A window may go between two requests about it: what is asked then has no answer.
int ignore_error(Display* /*display*/, XErrorEvent* /*error*/) { return 0; }

KeySym key_symbol(char character) {
    switch (character) {
        case '\n':
            return XK_Return;
        case '\t':
            return XK_Tab;
        default:
            return static_cast<unsigned char>(character);  // the symbols of ASCII are its codes
    }
}

}  // namespace

struct XDisplay::Connection {
    Display* display = XOpenDisplay(nullptr);

    [[nodiscard]] Window root() const { return DefaultRootWindow(display); }
    [[nodiscard]] Atom atom(const char* name) const { return XInternAtom(display, name, False); }

    /// The values of a property of 32-bit items.
    [[nodiscard]] std::vector<unsigned long> values(Window window, const char* property, Atom type) const {
        const auto [data, count] = read(window, property, type);
        const auto* const longs = reinterpret_cast<const unsigned long*>(data);
        std::vector<unsigned long> result(longs, longs + (data == nullptr ? 0 : count));
        XFree(data);
        return result;
    }

    [[nodiscard]] std::string text(Window window, const char* property) const {
        const auto [data, count] = read(window, property, atom("UTF8_STRING"));
        std::string result(reinterpret_cast<const char*>(data), data == nullptr ? 0 : count);
        XFree(data);
        return result;
    }

    void key(KeyCode code, bool down, unsigned long wait = 0) const {
        XTestFakeKeyEvent(display, code, down ? True : False, wait);
    }

    void press(KeySym symbol, KeySym held, unsigned long wait = 0) const {
        const KeyCode code = XKeysymToKeycode(display, symbol);
        if (held == NoSymbol && XkbKeycodeToKeysym(display, code, 0, 0) != symbol) {
            held = XK_Shift_L;
        }
        const KeyCode held_code = held == NoSymbol ? KeyCode{0} : XKeysymToKeycode(display, held);
        if (held_code != 0) {
            key(held_code, true);
        }
        key(code, true, wait);
        key(code, false);
        if (held_code != 0) {
            key(held_code, false);
        }
        XFlush(display);
    }

  private:
    struct Property {
        unsigned char* data = nullptr;
        unsigned long count = 0;
    };

    [[nodiscard]] Property read(Window window, const char* property, Atom type) const {
        Property result;
        Atom actual_type = None;
        int format = 0;
        unsigned long rest = 0;
        constexpr long longest = 4096;
        XGetWindowProperty(display, window, atom(property), 0, longest, False, type, &actual_type, &format,
                           &result.count, &rest, &result.data);
        return result;
    }
};

XDisplay::XDisplay() : connection_(std::make_unique<Connection>()) {
    if (connection_->display == nullptr) {
        std::fprintf(stderr, "can't open the display\n");
        std::exit(1);
    }
    XSetErrorHandler(ignore_error);
}

XDisplay::~XDisplay() { XCloseDisplay(connection_->display); }

void XDisplay::type(std::string_view text, unsigned long wait) {
    for (const char character : text) {
        connection_->press(key_symbol(character), NoSymbol, wait);
    }
}

void XDisplay::press_key(std::string_view key, std::string_view held) {
    connection_->press(XStringToKeysym(std::string(key).c_str()),
                       held.empty() ? NoSymbol : XStringToKeysym(std::string(held).c_str()));
}

void XDisplay::click(const Rectangle& place, int button) {
    XTestFakeMotionEvent(connection_->display, -1, place.x + place.width / 2, place.y + place.height / 2,
                         CurrentTime);
    XTestFakeButtonEvent(connection_->display, static_cast<unsigned>(button), True, CurrentTime);
    XTestFakeButtonEvent(connection_->display, static_cast<unsigned>(button), False, CurrentTime);
    XFlush(connection_->display);
}

std::optional<WindowId> XDisplay::window(pid_t process, std::string_view title) const {
    for (const WindowId window : connection_->values(connection_->root(), "_NET_CLIENT_LIST", XA_WINDOW)) {
        const auto owner = connection_->values(window, "_NET_WM_PID", XA_CARDINAL);
        if (!owner.empty() && owner.front() == static_cast<unsigned long>(process) &&
            this->title(window) == title) {
            return window;
        }
    }
    return std::nullopt;
}

std::string XDisplay::title(WindowId window) const { return connection_->text(window, "_NET_WM_NAME"); }

Rectangle XDisplay::screen() const { return place(connection_->root()); }

Rectangle XDisplay::place(WindowId window) const {
    Window root = None;
    Window child = None;
    int x = 0;
    int y = 0;
    unsigned width = 0;
    unsigned height = 0;
    unsigned border = 0;
    unsigned depth = 0;
    XGetGeometry(connection_->display, window, &root, &x, &y, &width, &height, &border, &depth);
    XTranslateCoordinates(connection_->display, window, connection_->root(), 0, 0, &x, &y, &child);
    return {x, y, static_cast<int>(width), static_cast<int>(height)};
}

Rectangle XDisplay::place_with_frame(WindowId window) const {
    Rectangle outer = place(window);
    const auto frame = connection_->values(window, "_NET_FRAME_EXTENTS", XA_CARDINAL);
    if (frame.size() == 4) {  // left, right, top, bottom (EWMH)
        outer.x -= static_cast<int>(frame[0]);
        outer.y -= static_cast<int>(frame[2]);
        outer.width += static_cast<int>(frame[0] + frame[1]);
        outer.height += static_cast<int>(frame[2] + frame[3]);
    }
    return outer;
}

bool XDisplay::iconified(WindowId window) const {
    const auto state = connection_->values(window, "WM_STATE", connection_->atom("WM_STATE"));
    return !state.empty() && state.front() == IconicState;
}

void XDisplay::resize(WindowId window, int width, int height) {
    XResizeWindow(connection_->display, window, static_cast<unsigned>(width), static_cast<unsigned>(height));
    XFlush(connection_->display);
}

void XDisplay::close(WindowId window) {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = connection_->atom("_NET_CLOSE_WINDOW");
    event.xclient.format = 32;
    event.xclient.data.l[1] = 2;  // the request comes from a pager: the user's own wish (EWMH)
    XSendEvent(connection_->display, connection_->root(), False,
               SubstructureRedirectMask | SubstructureNotifyMask, &event);
    XFlush(connection_->display);
}

void XDisplay::kill_client(WindowId window) {
    XKillClient(connection_->display, window);
    XFlush(connection_->display);
}
