// SPDX-License-Identifier: MIT
#include "terminal/input.h"

#include <fmt/format.h>

namespace terminal {
namespace {

// A classic report writes a value as one byte after adding 32; the UTF-8 one takes two-byte characters.
constexpr int value_offset = 32;
constexpr int classic_limit = 255 - value_offset;
constexpr int utf8_limit = 2047 - value_offset;

constexpr int no_button = 3;
constexpr int wheel_code = 64;
constexpr int motion_flag = 32;

bool is_wheel(MouseButton button) { return button >= MouseButton::wheel_up; }

bool is_reported(MouseAction action, MouseButton button, MouseTracking tracking) {
    switch (tracking) {
        case MouseTracking::off:
            return false;
        case MouseTracking::press:
            return action == MouseAction::press;
        case MouseTracking::press_release:
            return action != MouseAction::motion;
        case MouseTracking::drag:
            return action != MouseAction::motion || button != MouseButton::none;
        case MouseTracking::motion:
            return true;
    }
    return false;
}

int button_code(MouseButton button) {
    return is_wheel(button) ? wheel_code + static_cast<int>(button) - static_cast<int>(MouseButton::wheel_up)
                            : static_cast<int>(button);
}

int modifier_flags(Modifiers modifiers) {
    return (modifiers.shift ? 4 : 0) + (modifiers.alt || modifiers.meta ? 8 : 0) +
           (modifiers.control ? 16 : 0);
}

void append_value(int value, MouseEncoding encoding, std::string& out) {
    const int character = value + value_offset;
    if (encoding == MouseEncoding::utf8 && character >= 0x80) {
        out += static_cast<char>(0xc0 | (character >> 6));
        out += static_cast<char>(0x80 | (character & 0x3f));
    } else {
        out += static_cast<char>(character);
    }
}

std::optional<std::string> as_characters(int code, int column, int row, MouseEncoding encoding) {
    const int limit = encoding == MouseEncoding::utf8 ? utf8_limit : classic_limit;
    if (column > limit || row > limit) {
        return std::nullopt;
    }
    std::string out = "\x1b[M";
    for (const int value : {code, column, row}) {
        append_value(value, encoding, out);
    }
    return out;
}

}  // namespace

std::optional<std::string> encode_mouse(MouseAction action, MouseButton button, Modifiers modifiers,
                                        int column, int row, const Modes& modes) {
    const bool wheel_release = is_wheel(button) && action != MouseAction::press;
    if (column < 0 || row < 0 || wheel_release || !is_reported(action, button, modes.mouse_tracking)) {
        return std::nullopt;
    }
    const bool names_released_button =
        modes.mouse_encoding == MouseEncoding::sgr || modes.mouse_encoding == MouseEncoding::sgr_pixels;
    const bool released = action == MouseAction::release;
    int code = released && !names_released_button ? no_button : button_code(button);
    code += action == MouseAction::motion ? motion_flag : 0;
    if (modes.mouse_tracking != MouseTracking::press) {
        code += modifier_flags(modifiers);
    }
    // Reports count from 1.
    ++column;
    ++row;
    switch (modes.mouse_encoding) {
        case MouseEncoding::sgr:
        case MouseEncoding::sgr_pixels:
            return fmt::format("\x1b[<{};{};{}{}", code, column, row, released ? 'm' : 'M');
        case MouseEncoding::urxvt:
            return fmt::format("\x1b[{};{};{}M", code + value_offset, column, row);
        case MouseEncoding::classic:
        case MouseEncoding::utf8:
            break;
    }
    return as_characters(code, column, row, modes.mouse_encoding);
}

}  // namespace terminal
