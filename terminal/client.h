// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/style.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace terminal {

/// The window around the terminal, in pixels of the X screen. All is 0 where there is no window.
struct WindowGeometry {
    struct Extent {
        int width = 0;
        int height = 0;
    };
    struct Point {
        int x = 0;
        int y = 0;
    };
    Extent cell;
    Extent text;  ///< the text area
    Extent window;
    Extent screen;
    Point window_corner;
    Point text_corner;
    bool iconified = false;
};

/// What a program may ask of the window: xterm's window operations, but for those on its size.
struct WindowRequest {
    enum class Kind : std::uint8_t {
        restore,  ///< from an icon
        iconify,
        move,
        raise,
        lower,
        refresh,
        unmaximize,
        maximize,
        maximize_vertically,
        maximize_horizontally,
        leave_full_screen,
        full_screen,
        toggle_full_screen,
    };
    Kind kind = Kind::refresh;
    WindowGeometry::Point corner;  ///< for `move`
};

/// What the engine tells the one who shows it. Called from within `Terminal::write`; must not call back into
/// it.
class Client {
  public:
    virtual ~Client() = default;
    /// An answer for the program in the terminal (a cursor position report, say), to be written to the pty.
    /// Holds no text that a program could choose, but for titles where the user permits them to be reported.
    virtual void reply(std::string_view bytes) = 0;
    virtual void bell() = 0;
    /// OSC 0 and 2: plain text without control characters, at most `max_title` bytes.
    virtual void title_changed(std::string_view title) = 0;

    // Windows and colours are optional: without them their functions report nothing and do nothing.
    /// The program has given the terminal another size, which holds already; the window is to follow.
    virtual void size_changed() {}
    virtual void window_requested(const WindowRequest& /*request*/) {}
    [[nodiscard]] virtual WindowGeometry window() const { return {}; }
    /// A colour by its X11 name, or in one of Xlib's device-independent forms.
    virtual std::optional<Rgb> named_colour(std::string_view /*name*/) { return std::nullopt; }
    /// OSC 52, where permitted: UTF-8 text without NUL for the clipboard or the primary selection.
    enum class Selection : std::uint8_t { clipboard, primary };
    virtual void selection_written(Selection /*selection*/, std::string_view /*text*/) {}
};

}  // namespace terminal
