// SPDX-License-Identifier: MIT
#include "terminal/input.h"

#include <gtest/gtest.h>

namespace terminal {
namespace {

using namespace std::string_literals;

constexpr Modifiers none;
constexpr Modifiers shift{.shift = true};
constexpr Modifiers alt{.alt = true};
constexpr Modifiers control{.control = true};
constexpr Modifiers control_shift{.shift = true, .control = true};
constexpr Modifiers control_alt{.alt = true, .control = true};
constexpr Modifiers meta{.meta = true};
constexpr Modes plain;
constexpr Modes cursor_application{.application_cursor_keys = true};
constexpr Modes keypad_application{.application_keypad = true};

struct KeyCase {
    const char* name;
    Key key;
    Modifiers modifiers;
    std::string text;
    Modes modes;
    std::string sent;
};

const KeyCase key_cases[] = {
    {"letter_of_two_bytes", Key::none, none, "\u00e9", plain, "\u00e9"},
    {"nothing_typed", Key::none, alt, "", plain, ""},
    {"meta_letter", Key::none, meta, "x", plain, "\033x"},
    {"control_made_by_the_keyboard", Key::none, control, "\x03", plain, "\x03"},
    {"control_alt_letter", Key::none, control_alt, "a", plain, "\033\x01"},
    {"control_2", Key::none, control, "2", plain, "\0"s},
    {"control_3", Key::none, control, "3", plain, "\033"},
    {"control_7", Key::none, control, "7", plain, "\x1f"},
    {"control_8", Key::none, control, "8", plain, "\177"},
    {"control_slash", Key::none, control, "/", plain, "\x1f"},
    {"reported_control_digit", Key::none, control, "1", {.modify_other_keys = 1}, "\033[27;5;49~"},
    {"control_letter_not_reported", Key::none, control, "a", {.modify_other_keys = 1}, "\x01"},
    {"reported_control_letter", Key::none, control, "a", {.modify_other_keys = 2}, "\033[27;5;97~"},
    {"shift_letter_not_reported", Key::none, shift, "A", {.modify_other_keys = 2}, "A"},
    {"reported_shift_enter", Key::enter, shift, "", {.modify_other_keys = 1}, "\033[27;2;13~"},
    {"vt52_up", Key::up, shift, "", {.vt52 = true}, "\033A"},
    {"vt52_keypad", Key::keypad_1, none, "1", {.application_keypad = true, .vt52 = true}, "\033?q"},
    {"vt52_lacks_f5", Key::f5, none, "", {.vt52 = true}, ""},
    {"control_digit_without_meaning", Key::none, control, "1", plain, "1"},
    {"control_with_a_word", Key::none, control, "ab", plain, "ab"},

    {"up_in_application_mode", Key::up, none, "", cursor_application, "\033OA"},
    {"shift_up_in_application_mode", Key::up, shift, "", cursor_application, "\033[1;2A"},
    {"control_alt_left", Key::left, control_alt, "", plain, "\033[1;7D"},
    {"meta_down", Key::down, meta, "", plain, "\033[1;9B"},
    {"delete", Key::remove, none, "", plain, "\033[3~"},
    {"control_page_up", Key::page_up, control, "", plain, "\033[5;5~"},

    {"shift_f4", Key::f4, shift, "", plain, "\033[1;2S"},
    {"f6", Key::f6, none, "", plain, "\033[17~"},
    {"f11", Key::f11, none, "", plain, "\033[23~"},
    {"alt_f12", Key::f12, alt, "", plain, "\033[24;3~"},
    {"f20", Key::f20, none, "", plain, "\033[34~"},

    {"backspace_as_bs", Key::backspace, none, "", {.backarrow_sends_backspace = true}, "\b"},
    {"control_backspace", Key::backspace, control, "", plain, "\b"},
    {"alt_backspace", Key::backspace, alt, "", plain, "\033\177"},
    {"shift_tab", Key::tab, shift, "", plain, "\033[Z"},
    {"return", Key::enter, none, "", plain, "\r"},
    {"return_in_newline_mode", Key::enter, none, "", {.newline = true}, "\r\n"},
    {"alt_escape", Key::escape, alt, "", plain, "\033\033"},

    {"keypad_digit", Key::keypad_5, none, "5", plain, "5"},
    {"keypad_digit_in_application_mode", Key::keypad_5, none, "5", keypad_application, "\033Ou"},
    {"keypad_comma_of_the_layout", Key::keypad_decimal, none, ",", plain, ","},
    {"keypad_plus_without_text", Key::keypad_add, none, "", plain, "+"},
    {"keypad_enter", Key::keypad_enter, none, "\r", plain, "\r"},
    {"keypad_enter_in_newline_mode", Key::keypad_enter, none, "", {.newline = true}, "\r\n"},
};

TEST(Keys, SendWhatXtermSends) {
    for (const KeyCase& row : key_cases) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(encode_key(row.key, row.modifiers, row.text, row.modes), row.sent);
    }
}

struct MouseCase {
    const char* name;
    MouseTracking tracking;
    MouseEncoding encoding;
    MouseAction action;
    MouseButton button;
    Modifiers modifiers;
    int column;
    int row;
    std::optional<std::string> sent;
};

using enum MouseAction;
using Button = MouseButton;
using Track = MouseTracking;
using Encode = MouseEncoding;
constexpr auto nothing = std::nullopt;

const MouseCase mouse_cases[] = {
    {"off", Track::off, Encode::sgr, press, Button::left, none, 0, 0, nothing},
    {"x10_press", Track::press, Encode::classic, press, Button::left, none, 0, 0, "\033[M !!"},
    {"x10_knows_no_modifiers", Track::press, Encode::classic, press, Button::right, shift, 9, 4,
     "\033[M\"*%"},
    {"x10_release", Track::press, Encode::classic, release, Button::left, none, 0, 0, nothing},
    {"press_middle", Track::press_release, Encode::classic, press, Button::middle, none, 1, 2, "\033[M!\"#"},
    {"release", Track::press_release, Encode::classic, release, Button::left, none, 0, 0, "\033[M#!!"},
    {"control_press", Track::press_release, Encode::classic, press, Button::left, control, 0, 0, "\033[M0!!"},
    {"wheel_release", Track::press_release, Encode::sgr, release, Button::wheel_up, none, 0, 0, nothing},
    {"motion_not_asked_for", Track::press_release, Encode::sgr, motion, Button::left, none, 0, 0, nothing},
    {"drag", Track::drag, Encode::classic, motion, Button::left, none, 0, 0, "\033[M@!!"},
    {"drag_without_button", Track::drag, Encode::sgr, motion, Button::none, none, 0, 0, nothing},
    {"motion_without_button", Track::motion, Encode::sgr, motion, Button::none, none, 4, 6, "\033[<35;5;7M"},
    {"classic_last_column", Track::press, Encode::classic, press, Button::left, none, 222, 0, "\033[M \xff!"},
    {"classic_beyond", Track::press, Encode::classic, press, Button::left, none, 223, 0, nothing},
    {"classic_beyond_below", Track::press, Encode::classic, press, Button::left, none, 0, 223, nothing},
    {"utf8_last", Track::press, Encode::utf8, press, Button::left, none, 2014, 0, "\033[M \xdf\xbf!"},
    {"utf8_beyond", Track::press, Encode::utf8, press, Button::left, none, 2015, 0, nothing},
    {"sgr_press", Track::press_release, Encode::sgr, press, Button::left, none, 300, 9, "\033[<0;301;10M"},
    {"sgr_release", Track::press_release, Encode::sgr, release, Button::right, alt, 0, 0, "\033[<10;1;1m"},
    {"sgr_wheel_down", Track::drag, Encode::sgr, press, Button::wheel_down, shift, 0, 0, "\033[<69;1;1M"},
    {"urxvt_press", Track::press_release, Encode::urxvt, press, Button::left, none, 300, 9,
     "\033[32;301;10M"},
    {"urxvt_release", Track::press_release, Encode::urxvt, release, Button::left, none, 0, 0, "\033[35;1;1M"},
    {"outside", Track::motion, Encode::sgr, motion, Button::left, none, -1, 0, nothing},
};

TEST(Mouse, ReportsWhatTheModeAsksFor) {
    for (const MouseCase& row : mouse_cases) {
        SCOPED_TRACE(row.name);
        const Modes modes{.mouse_tracking = row.tracking, .mouse_encoding = row.encoding};
        EXPECT_EQ(encode_mouse(row.action, row.button, row.modifiers, row.column, row.row, modes), row.sent);
    }
}

TEST(Focus, IsReportedOnlyWhenAskedFor) {
    EXPECT_EQ(encode_focus(true, plain), "");
    EXPECT_EQ(encode_focus(true, {.focus_events = true}), "\033[I");
    EXPECT_EQ(encode_focus(false, {.focus_events = true}), "\033[O");
}

struct PasteCase {
    const char* name;
    std::string text;
    std::string sent;
    bool reviewed;
};

const PasteCase paste_cases[] = {
    {"plain", "ls -l \u00e9\u4e2d\U0001f600", "ls -l \u00e9\u4e2d\U0001f600", false},
    {"nothing", "", "", false},
    {"lines", "a\nb\r\nc\rd\n", "a\rb\rc\rd\r", true},
    {"tab", "a\tb", "a\tb", true},
    {"controls", "\0\b\x05\x04\033\177\x0c."s, "       .", true},
    {"line_discipline", "a\x03\x15#b", "a   b", true},
    {"printable_line_discipline", "a#b", "a b", false},
    {"c1_in_utf8", "a\u0085\u009bb", "a  b", true},
    {"c1_as_bytes", "a\x85\x9b"s + "b", "a  b", true},
    {"c1_byte_in_a_character", "\u4edb", "\u4edb", false},
    {"overlong_escape", "\xc0\x9b[201~", "\xc0 [201~", true},
    {"stray_byte_above_c1", "a\xe9", "a\xe9", false},
    {"end_marker", "a\033[201~b", "ab", true},
    {"end_marker_of_eight_bits", "a\x9b"s + "201~b", "ab", true},
    {"end_marker_of_c1_in_utf8", "a\u009b201~b", "ab", true},
    {"end_marker_within_itself", "\033[2\033[201~01~b", "b", true},
    {"end_markers_of_both_kinds_nested", "\033[20\x9b"s + "201~1~\x9b"s + "2\033[201~01~b", "b", true},
    {"end_marker_hidden_by_a_control", "\033[2\00101~", " [2 01~", true},
    {"end_marker_tail_after_a_character", "\u66db201~", "\u66db201~", false},
    {"override_of_the_direction", "a\u202eb", "a\u202eb", true},
    {"zero_width", "a\u200bb", "a\u200bb", true},
    {"begin_marker", "\033[200~a", " [200~a", true},
};

TEST(Paste, IsMadeHarmless) {
    for (const PasteCase& row : paste_cases) {
        SCOPED_TRACE(row.name);
        const std::string line_discipline = "\x03\x15#";
        EXPECT_EQ(encode_paste(row.text, line_discipline, plain), row.sent);
        EXPECT_EQ(encode_paste(row.text, line_discipline, {.bracketed_paste = true}),
                  "\033[200~" + row.sent + "\033[201~");
        EXPECT_EQ(paste_needs_review(row.text), row.reviewed);
    }
}

}  // namespace
}  // namespace terminal
