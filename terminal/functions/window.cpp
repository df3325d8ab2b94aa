// SPDX-License-Identifier: MIT
#include "terminal/terminal.h"

#include <algorithm>
#include <array>

// xterm's window operations: the size and the position of the window, and its titles. Numbers are told to
// all; changing the window and reading titles is the user's to permit.

namespace terminal {

namespace {

std::string report(int kind, int first, int second) {
    return "\x1b[" + std::to_string(kind) + ';' + std::to_string(first) + ';' + std::to_string(second) + 't';
}

std::string report(int kind, WindowGeometry::Extent extent) {
    return report(kind, extent.height, extent.width);
}

std::string report(WindowGeometry::Point corner) {
    return report(3, std::max(corner.x, 0), std::max(corner.y, 0));
}

}  // namespace

/// The terminal has the new size at once, so that what the program writes next already finds it; the window
/// follows. One that cannot has the terminal resized again. It does not outgrow the display.
void Terminal::request_size(Size wanted) {
    if (const auto display = display_size()) {
        wanted.columns = std::min(wanted.columns, std::max(display->columns, size().columns));
        wanted.rows = std::min(wanted.rows, std::max(display->rows, size().rows));
    }
    wanted = within_limits(wanted);
    if (permissions_.window_operations && wanted != size()) {
        resize(wanted, {});
        client_.size_changed();
    }
}

void Terminal::request_window(WindowRequest::Kind kind, WindowGeometry::Point corner) {
    if (permissions_.window_operations) {
        client_.window_requested({kind, corner});
    }
}

/// The characters that the display has room for; nothing where there is no window.
std::optional<Size> Terminal::display_size() const {
    const WindowGeometry window = client_.window();
    if (window.cell.width <= 0 || window.cell.height <= 0) {
        return std::nullopt;
    }
    return Size{window.screen.width / window.cell.width, window.screen.height / window.cell.height};
}

/// `height ; width`. What is left out stays, 0 is the display's.
void Terminal::request_characters(Function function) {
    const Size display = display_size().value_or(size());
    const auto wanted = [&function](std::size_t index, int now, int most) {
        const int value = function.parameters.get(index, now);
        return value == 0 ? most : value;
    };
    request_size({wanted(2, size().columns, display.columns), wanted(1, size().rows, display.rows)});
}

void Terminal::request_pixels(Function function) {
    const auto display = display_size();
    if (!display) {
        return;
    }
    const WindowGeometry::Extent cell = client_.window().cell;
    const auto wanted = [&function](std::size_t index, int now, int most, int pixels) {
        const int value = function.parameters.get(index, now * pixels);
        return value == 0 ? most : value / pixels;
    };
    request_size({wanted(2, size().columns, display->columns, cell.width),
                  wanted(1, size().rows, display->rows, cell.height)});
}

/// Whether it was an operation that changes the window.
bool Terminal::change_window(Function function) {
    using Kind = WindowRequest::Kind;
    constexpr std::array maximizing = {Kind::unmaximize, Kind::maximize, Kind::maximize_vertically,
                                       Kind::maximize_horizontally};
    constexpr std::array filling = {Kind::leave_full_screen, Kind::full_screen, Kind::toggle_full_screen};
    const auto how = static_cast<std::size_t>(function.parameters.get(1));
    switch (function.parameters.get(0)) {
        case 1:
            request_window(Kind::restore);
            return true;
        case 2:
            request_window(Kind::iconify);
            return true;
        case 3:
            request_window(Kind::move, {function.parameters.get(1), function.parameters.get(2)});
            return true;
        case 4:
            request_pixels(function);
            return true;
        case 5:
            request_window(Kind::raise);
            return true;
        case 6:
            request_window(Kind::lower);
            return true;
        case 7:
            request_window(Kind::refresh);
            return true;
        case 8:
            request_characters(function);
            return true;
        case 9:
            request_window(how < maximizing.size() ? maximizing[how] : Kind::refresh);
            return true;
        case 10:
            request_window(how < filling.size() ? filling[how] : Kind::refresh);
            return true;
        default:
            return false;
    }
}

/// In pixels only where there are any.
void Terminal::report_window(Function function) {
    const WindowGeometry window = client_.window();
    const bool exists = window.cell.width > 0 && window.cell.height > 0;
    const bool other = function.parameters.get(1) == 2;
    switch (function.parameters.get(0)) {
        case 11:
            return reply(window.iconified ? "\x1b[2t" : "\x1b[1t");
        case 13:
            return exists ? reply(report(other ? window.text_corner : window.window_corner)) : void();
        case 14:
            return exists ? reply(other ? report(4, window.window)
                                        : report(4, size().rows * window.cell.height,
                                                 size().columns * window.cell.width))
                          : void();
        case 15:
            return exists ? reply(report(5, window.screen)) : void();
        case 16:
            return exists ? reply(report(6, window.cell)) : void();
        case 18:
            return reply(report(8, size().rows, size().columns));
        case 19:
            return exists ? reply(report(9, display_size()->rows, display_size()->columns)) : void();
        default:
            return;
    }
}

void Terminal::xtwinops(Function function) {
    constexpr int first_lines = 24;
    const int operation = function.parameters.get(0);
    switch (operation) {
        case 20:
            return report_title('L', titles_.icon());
        case 21:
            return report_title('l', titles_.window());
        case 22:
            return titles_.push();
        case 23:
            return title_changed(titles_.pop(function.parameters.get(1)));
        default:
            break;
    }
    if (operation >= first_lines) {  // DECSLPP
        request_size({size().columns, operation});
    } else if (!change_window(function)) {
        report_window(function);
    }
}

void Terminal::decscpp(Function function) {
    const int columns = function.parameters.get(0);
    if (columns == 0 || columns == 80 || columns == 132) {
        request_size({columns == 0 ? 80 : columns, size().rows});
    }
}

void Terminal::decsnls(Function function) {
    const int rows = function.parameters.get(0);
    if (rows > 0) {
        request_size({size().columns, rows});
    }
}

/// Titles are text that a program chose: without the user's permission they are never sent.
void Terminal::report_title(char kind, const std::string& title) {
    if (permissions_.window_operations) {
        reply(std::string("\x1b]") + kind + titles_.reported(title) + "\x1b\\");
    }
}

void Terminal::title_changed(bool of_window) {
    if (of_window) {
        client_.title_changed(titles_.window());
    }
}

void Terminal::change_title_modes(Function function, bool on) {
    for (std::size_t i = 0; i < std::max<std::size_t>(function.parameters.size(), 1); ++i) {
        titles_.change_mode(function.parameters.get(i), on);
    }
}

void Terminal::xtsmtitle(Function function) { change_title_modes(function, true); }
void Terminal::xtrmtitle(Function function) { change_title_modes(function, false); }

}  // namespace terminal
