// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/input.h"

#include <cstdint>
#include <string>

/// A key pressed or released in a terminal pane.
struct KeyEvent {
    enum class Kind : std::uint8_t { press, release };
    Kind kind = Kind::press;
    bool repeated = false;                    ///< made by holding the key down
    terminal::Key key = terminal::Key::none;  ///< none: a key that types its text
    terminal::Modifiers modifiers;
    std::string text;  ///< what the key types (UTF-8), before control and alt are applied: "c" for Ctrl+C

    /// Whether this is that letter with control and nothing else.
    [[nodiscard]] bool is_control(char letter) const {
        return key == terminal::Key::none && text.size() == 1 && text.front() == letter &&
               modifiers == terminal::Modifiers{.control = true};
    }
    /// The same with shift too; the letter is a capital then.
    [[nodiscard]] bool is_control_shift(char letter) const {
        return key == terminal::Key::none && text.size() == 1 && text.front() == letter &&
               modifiers == terminal::Modifiers{.shift = true, .control = true};
    }
    bool operator==(const KeyEvent&) const = default;
};
