// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/modes.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace terminal {

/// Keys that send a sequence of their own; all others send their text.
enum class Key : std::uint8_t {
    none,
    up,
    down,
    right,
    left,
    home,
    end,
    insert,
    remove,
    page_up,
    page_down,
    f1,
    f2,
    f3,
    f4,
    f5,
    f6,
    f7,
    f8,
    f9,
    f10,
    f11,
    f12,
    f13,
    f14,
    f15,
    f16,
    f17,
    f18,
    f19,
    f20,
    backspace,
    tab,
    enter,
    escape,
    keypad_0,
    keypad_1,
    keypad_2,
    keypad_3,
    keypad_4,
    keypad_5,
    keypad_6,
    keypad_7,
    keypad_8,
    keypad_9,
    keypad_decimal,
    keypad_divide,
    keypad_multiply,
    keypad_subtract,
    keypad_add,
    keypad_enter,
    keypad_equal,
    keypad_begin,
};

struct Modifiers {
    bool shift = false;
    bool alt = false;
    bool control = false;
    bool meta = false;
    bool operator==(const Modifiers&) const = default;
};

/// The bytes a key sends, as xterm does (PC-style keys with modifiers as the parameter after "1;"). `text` is
/// what the key types in the user's layout as UTF-8, used for `Key::none` and by keypad keys in numeric mode:
/// control gives the C0 character, alt an escape before it. Empty when the key sends nothing.
std::string encode_key(Key key, Modifiers modifiers, std::string_view text, const Modes& modes);

enum class MouseAction : std::uint8_t { press, release, motion };
enum class MouseButton : std::uint8_t {
    left,
    middle,
    right,
    none,
    wheel_up,
    wheel_down,
    wheel_left,
    wheel_right
};

/// The report of a mouse event at a screen position counted from 0 (in pixels for `sgr_pixels`), in the
/// tracking mode and encoding in force. Nothing when the mode does not report that event.
std::optional<std::string> encode_mouse(MouseAction action, MouseButton button, Modifiers modifiers,
                                        int column, int row, const Modes& modes);

/// The report of the pane getting or losing the focus; empty unless asked for (mode 1004).
std::string encode_focus(bool focused, const Modes& modes);

/// Text as it may be pasted. Every control character but tab and line feed, the line discipline's own
/// characters
/// (`line_discipline`: the c_cc values in force), C1 and end markers of a bracketed paste, however they hide,
/// are made harmless; line ends become CR. In brackets when the program asked for them.
std::string encode_paste(std::string_view text, std::string_view line_discipline, const Modes& modes);
/// Whether a character is not seen but changes how others look or read: Unicode's format characters (Cf),
/// such as overrides of the direction and zero-width spaces, and its line and paragraph separators.
bool is_unseen(char32_t code);
/// Whether a paste should be shown to the user before it is sent: it holds a line end, a control character or
/// one that is not seen.
bool paste_needs_review(std::string_view text);

}  // namespace terminal
