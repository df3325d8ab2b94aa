// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace terminal {

enum class MouseTracking : std::uint8_t { off, press, press_release, drag, motion };  ///< 9, 1000, 1002, 1003
enum class MouseEncoding : std::uint8_t { classic, utf8, sgr, urxvt };                ///< -, 1005, 1006, 1015

/// What the program in the terminal has switched on and the one who shows the terminal must know.
struct Modes {
    bool application_cursor_keys = false;    ///< DECCKM
    bool application_keypad = false;         ///< DECNKM, DECKPAM
    bool backarrow_sends_backspace = false;  ///< DECBKM
    bool newline = false;                    ///< LNM: Return sends CR LF
    bool reverse_video = false;              ///< DECSCNM
    bool alternate_screen = false;           ///< 47, 1047, 1049
    bool alternate_scroll = true;            ///< 1007: the wheel sends arrow keys on the alternate screen
    bool bracketed_paste = false;            ///< 2004
    bool focus_events = false;               ///< 1004
    bool synchronized_output = false;        ///< 2026: do not paint until it ends (or a moment has passed)
    MouseTracking mouse_tracking = MouseTracking::off;
    MouseEncoding mouse_encoding = MouseEncoding::classic;
};

}  // namespace terminal
