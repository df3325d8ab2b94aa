// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace terminal {

enum class MouseTracking : std::uint8_t { off, press, press_release, drag, motion };  ///< 9, 1000, 1002, 1003
/// -, 1005, 1006, 1015, 1016; the last tells pixels of the text area.
enum class MouseEncoding : std::uint8_t { classic, utf8, sgr, urxvt, sgr_pixels };

/// What the program in the terminal has switched on and the one who shows the terminal must know.
struct Modes {
    bool application_cursor_keys = false;    ///< DECCKM
    bool application_keypad = false;         ///< DECNKM, DECKPAM
    bool backarrow_sends_backspace = false;  ///< DECBKM
    bool local_echo = false;                 ///< SRM reset: keys are shown as well as sent
    bool auto_repeat = true;                 ///< DECARM: a key held down is sent again and again
    bool vt52 = false;                       ///< DECANM reset: keys send what a VT52's do
    bool newline = false;                    ///< LNM: Return sends CR LF
    bool reverse_video = false;              ///< DECSCNM
    bool alternate_screen = false;           ///< 47, 1047, 1049
    bool alternate_scroll = true;            ///< 1007: the wheel sends arrow keys on the alternate screen
    bool bracketed_paste = false;            ///< 2004
    bool focus_events = false;               ///< 1004
    bool synchronized_output = false;        ///< 2026: do not paint until it ends (or a moment has passed)
    int modify_other_keys = 0;               ///< XTMODKEYS 4: 0 to 2
    MouseTracking mouse_tracking = MouseTracking::off;
    MouseEncoding mouse_encoding = MouseEncoding::classic;
    bool operator==(const Modes&) const = default;
};

}  // namespace terminal
