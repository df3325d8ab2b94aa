// SPDX-License-Identifier: MIT
#include "terminal/input.h"

#include "terminal/utf8.h"

#include <array>

#include <fmt/format.h>

namespace terminal {
namespace {

constexpr std::string_view escape = "\x1b";

/// How a key's sequence is made.
enum class Form : std::uint8_t {
    cursor,  ///< CSI final, or SS3 final with DECCKM; with modifiers CSI 1;N final
    letter,  ///< SS3 final; with modifiers CSI 1;N final
    number,  ///< CSI number ~; with modifiers CSI number;N ~
    keypad,  ///< SS3 final in application keypad mode, else what is printed on the key
};

struct Sequence {
    Key key;
    Form form;
    int number;    ///< for `Form::number`
    char last;     ///< the final character of the sequence
    char printed;  ///< for `Form::keypad`
};

// xterm's PC-style function keys; the numbers are DEC's, whose keyboards left gaps between groups of keys.
constexpr std::array sequences{
    Sequence{Key::up, Form::cursor, 0, 'A', 0},
    Sequence{Key::down, Form::cursor, 0, 'B', 0},
    Sequence{Key::right, Form::cursor, 0, 'C', 0},
    Sequence{Key::left, Form::cursor, 0, 'D', 0},
    Sequence{Key::keypad_begin, Form::cursor, 0, 'E', 0},
    Sequence{Key::end, Form::cursor, 0, 'F', 0},
    Sequence{Key::home, Form::cursor, 0, 'H', 0},
    Sequence{Key::insert, Form::number, 2, '~', 0},
    Sequence{Key::remove, Form::number, 3, '~', 0},
    Sequence{Key::page_up, Form::number, 5, '~', 0},
    Sequence{Key::page_down, Form::number, 6, '~', 0},
    Sequence{Key::f1, Form::letter, 0, 'P', 0},
    Sequence{Key::f2, Form::letter, 0, 'Q', 0},
    Sequence{Key::f3, Form::letter, 0, 'R', 0},
    Sequence{Key::f4, Form::letter, 0, 'S', 0},
    Sequence{Key::f5, Form::number, 15, '~', 0},
    Sequence{Key::f6, Form::number, 17, '~', 0},
    Sequence{Key::f7, Form::number, 18, '~', 0},
    Sequence{Key::f8, Form::number, 19, '~', 0},
    Sequence{Key::f9, Form::number, 20, '~', 0},
    Sequence{Key::f10, Form::number, 21, '~', 0},
    Sequence{Key::f11, Form::number, 23, '~', 0},
    Sequence{Key::f12, Form::number, 24, '~', 0},
    Sequence{Key::f13, Form::number, 25, '~', 0},
    Sequence{Key::f14, Form::number, 26, '~', 0},
    Sequence{Key::f15, Form::number, 28, '~', 0},
    Sequence{Key::f16, Form::number, 29, '~', 0},
    Sequence{Key::f17, Form::number, 31, '~', 0},
    Sequence{Key::f18, Form::number, 32, '~', 0},
    Sequence{Key::f19, Form::number, 33, '~', 0},
    Sequence{Key::f20, Form::number, 34, '~', 0},
    Sequence{Key::keypad_0, Form::keypad, 0, 'p', '0'},
    Sequence{Key::keypad_1, Form::keypad, 0, 'q', '1'},
    Sequence{Key::keypad_2, Form::keypad, 0, 'r', '2'},
    Sequence{Key::keypad_3, Form::keypad, 0, 's', '3'},
    Sequence{Key::keypad_4, Form::keypad, 0, 't', '4'},
    Sequence{Key::keypad_5, Form::keypad, 0, 'u', '5'},
    Sequence{Key::keypad_6, Form::keypad, 0, 'v', '6'},
    Sequence{Key::keypad_7, Form::keypad, 0, 'w', '7'},
    Sequence{Key::keypad_8, Form::keypad, 0, 'x', '8'},
    Sequence{Key::keypad_9, Form::keypad, 0, 'y', '9'},
    Sequence{Key::keypad_decimal, Form::keypad, 0, 'n', '.'},
    Sequence{Key::keypad_divide, Form::keypad, 0, 'o', '/'},
    Sequence{Key::keypad_multiply, Form::keypad, 0, 'j', '*'},
    Sequence{Key::keypad_subtract, Form::keypad, 0, 'm', '-'},
    Sequence{Key::keypad_add, Form::keypad, 0, 'k', '+'},
    Sequence{Key::keypad_enter, Form::keypad, 0, 'M', '\r'},
    Sequence{Key::keypad_equal, Form::keypad, 0, 'X', '='},
};

int modifier_parameter(Modifiers modifiers) {
    return 1 + (modifiers.shift ? 1 : 0) + (modifiers.alt ? 2 : 0) + (modifiers.control ? 4 : 0) +
           (modifiers.meta ? 8 : 0);
}

std::string with_escape_for_alt(Modifiers modifiers, std::string_view bytes) {
    std::string out;
    if (modifiers.alt || modifiers.meta) {
        out = escape;
    }
    return out.append(bytes);
}

/// The C0 character that control makes of a key, as X's own translation does it (Xlib, XLookupString): the
/// columns 4 to 7 of ASCII, and the digits and the slash for those hard to reach.
char control_character(char c) {
    if ((c >= '@' && c < '\x7f') || c == ' ') {
        return static_cast<char>(c & 0x1f);
    }
    if (c == '2') {
        return '\0';
    }
    if (c >= '3' && c <= '7') {
        return static_cast<char>(c - '3' + 0x1b);
    }
    if (c == '8') {
        return '\x7f';
    }
    return c == '/' ? '\x1f' : c;
}

std::string encode_text(Modifiers modifiers, std::string_view text) {
    if (modifiers.control && text.size() == 1) {
        const char control = control_character(text.front());
        return with_escape_for_alt(modifiers, {&control, 1});
    }
    return text.empty() ? std::string() : with_escape_for_alt(modifiers, text);
}

std::string encode_return(Modifiers modifiers, const Modes& modes) {
    return with_escape_for_alt(modifiers, modes.newline ? "\r\n" : "\r");
}

/// A VT52 has no modifiers, and a keypad and four keys beside the cursor's.
std::string encode_vt52(const Sequence& sequence, const Modes& modes) {
    const std::string_view last(&sequence.last, 1);
    if (sequence.form == Form::keypad && modes.application_keypad) {
        return fmt::format("\x1b?{}", last);
    }
    const bool has_it = sequence.form == Form::letter || (sequence.last >= 'A' && sequence.last <= 'D') ||
                        sequence.last == 'H';
    return has_it && sequence.form != Form::keypad ? fmt::format("\x1b{}", last) : std::string();
}

std::string encode_keypad(const Sequence& sequence, Modifiers modifiers, std::string_view text,
                          const Modes& modes) {
    if (modes.application_keypad) {
        const std::string_view last(&sequence.last, 1);
        return with_escape_for_alt(modifiers, fmt::format("\x1bO{}", last));
    }
    if (sequence.key == Key::keypad_enter) {
        return encode_return(modifiers, modes);
    }
    return encode_text(modifiers, text.empty() ? std::string_view(&sequence.printed, 1) : text);
}

std::string encode_sequence(const Sequence& sequence, Modifiers modifiers, std::string_view text,
                            const Modes& modes) {
    if (modes.vt52 && (sequence.form != Form::keypad || modes.application_keypad)) {
        return encode_vt52(sequence, modes);
    }
    if (sequence.form == Form::keypad) {
        return encode_keypad(sequence, modifiers, text, modes);
    }
    const int parameter = modifier_parameter(modifiers);
    if (sequence.form == Form::number) {
        return parameter == 1 ? fmt::format("\x1b[{}~", sequence.number)
                              : fmt::format("\x1b[{};{}~", sequence.number, parameter);
    }
    if (parameter != 1) {
        return fmt::format("\x1b[1;{}{}", parameter, sequence.last);
    }
    const bool single_shift = sequence.form == Form::letter || modes.application_cursor_keys;
    return fmt::format("\x1b{}{}", single_shift ? 'O' : '[', sequence.last);
}

/// DECBKM chooses between DEL and BS; control sends the other one.
std::string encode_backspace(Modifiers modifiers, const Modes& modes) {
    const bool backspace = modes.backarrow_sends_backspace != modifiers.control;
    return with_escape_for_alt(modifiers, backspace ? "\b" : "\x7f");
}

/// The character that xterm reports a modified key by; 0 for keys that have sequences of their own.
char32_t reported_character(Key key, std::string_view text) {
    switch (key) {
        case Key::none: {
            if (text.empty()) {
                return 0;
            }
            const char* end = text.data();
            const char32_t character = take_utf8(end);
            return end == text.data() + text.size() ? character : 0;
        }
        case Key::backspace:
            return 0x7F;
        case Key::tab:
            return '\t';
        case Key::enter:
            return '\r';
        case Key::escape:
            return 0x1B;
        default:
            return 0;
    }
}

/// xterm's modifyOtherKeys: at 1 what would lose its modifiers is reported as `CSI 27 ; modifiers ; character
/// ~`, at 2 also what has a C0 character or an escape for them.
bool is_reported(Key key, Modifiers modifiers, char32_t character, int level) {
    const bool shift_only = modifiers == Modifiers{.shift = true};
    if (level == 0 || character == 0 || modifiers == Modifiers{} ||
        (shift_only && (key == Key::none || key == Key::tab))) {
        return false;
    }
    if (level >= 2 || key == Key::tab || key == Key::enter || key == Key::escape) {
        return true;
    }
    const bool has_control =
        character < 0x80 && control_character(static_cast<char>(character)) != static_cast<char>(character);
    return key == Key::none && modifiers.control && !has_control;
}

}  // namespace

std::string encode_key(Key key, Modifiers modifiers, std::string_view text, const Modes& modes) {
    const char32_t character = reported_character(key, text);
    if (is_reported(key, modifiers, character, modes.modify_other_keys)) {
        return fmt::format("\x1b[27;{};{}~", modifier_parameter(modifiers), static_cast<unsigned>(character));
    }
    switch (key) {
        case Key::none:
            return encode_text(modifiers, text);
        case Key::backspace:
            return encode_backspace(modifiers, modes);
        case Key::tab:
            return modifiers.shift ? "\x1b[Z" : with_escape_for_alt(modifiers, "\t");
        case Key::enter:
            return encode_return(modifiers, modes);
        case Key::escape:
            return with_escape_for_alt(modifiers, escape);
        default:
            break;
    }
    for (const Sequence& sequence : sequences) {
        if (sequence.key == key) {
            return encode_sequence(sequence, modifiers, text, modes);
        }
    }
    return {};
}

std::string encode_focus(bool focused, const Modes& modes) {
    if (!modes.focus_events) {
        return {};
    }
    return focused ? "\x1b[I" : "\x1b[O";
}

}  // namespace terminal
