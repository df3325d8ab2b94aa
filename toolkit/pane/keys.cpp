// SPDX-License-Identifier: MIT
#include "toolkit/pane/keys.h"

#include "toolkit/text_conversion.h"

#include <QKeyEvent>

#include <array>
#include <cctype>

using terminal::Key;

namespace {

struct KeyName {
    int qt;
    Key key;
    Key on_keypad;  ///< the same key of the keypad, if it differs there
};

constexpr std::array key_names{
    KeyName{Qt::Key_Up, Key::up, Key::up},
    KeyName{Qt::Key_Down, Key::down, Key::down},
    KeyName{Qt::Key_Right, Key::right, Key::right},
    KeyName{Qt::Key_Left, Key::left, Key::left},
    KeyName{Qt::Key_Home, Key::home, Key::home},
    KeyName{Qt::Key_End, Key::end, Key::end},
    KeyName{Qt::Key_Insert, Key::insert, Key::insert},
    KeyName{Qt::Key_Delete, Key::remove, Key::remove},
    KeyName{Qt::Key_PageUp, Key::page_up, Key::page_up},
    KeyName{Qt::Key_PageDown, Key::page_down, Key::page_down},
    KeyName{Qt::Key_Clear, Key::keypad_begin, Key::keypad_begin},
    KeyName{Qt::Key_Backspace, Key::backspace, Key::backspace},
    KeyName{Qt::Key_Tab, Key::tab, Key::tab},
    KeyName{Qt::Key_Backtab, Key::tab, Key::tab},
    KeyName{Qt::Key_Return, Key::enter, Key::enter},
    KeyName{Qt::Key_Enter, Key::enter, Key::keypad_enter},
    KeyName{Qt::Key_Escape, Key::escape, Key::escape},
    KeyName{Qt::Key_Slash, Key::none, Key::keypad_divide},
    KeyName{Qt::Key_Asterisk, Key::none, Key::keypad_multiply},
    KeyName{Qt::Key_Minus, Key::none, Key::keypad_subtract},
    KeyName{Qt::Key_Plus, Key::none, Key::keypad_add},
    KeyName{Qt::Key_Equal, Key::none, Key::keypad_equal},
    KeyName{Qt::Key_Period, Key::none, Key::keypad_decimal},
    KeyName{Qt::Key_Comma, Key::none, Key::keypad_decimal},
};

/// X's second modifier is the Num Lock key by long custom. With it on, the keypad types what is printed on
/// it, whatever mode a program has asked for (as on xterm).
bool num_lock_is_on(const QKeyEvent& event) {
    constexpr quint32 mod2_mask = 1U << 4;
    return (event.nativeModifiers() & mod2_mask) != 0;
}

Key key_of(const QKeyEvent& event) {
    const int code = event.key();
    if (code >= Qt::Key_F1 && code <= Qt::Key_F20) {
        return static_cast<Key>(static_cast<int>(Key::f1) + code - Qt::Key_F1);
    }
    const bool on_keypad = event.modifiers().testFlag(Qt::KeypadModifier);
    if (on_keypad && code >= Qt::Key_0 && code <= Qt::Key_9) {
        return num_lock_is_on(event) ? Key::none
                                     : static_cast<Key>(static_cast<int>(Key::keypad_0) + code - Qt::Key_0);
    }
    for (const KeyName& name : key_names) {
        if (name.qt == code) {
            return on_keypad && !num_lock_is_on(event) ? name.on_keypad : name.key;
        }
    }
    return Key::none;
}

/// What the key types. With control the window system gives the control character; the letter behind it says
/// more.
std::string text_of(const QKeyEvent& event) {
    const QString text = event.text();
    const bool control = event.modifiers().testFlag(Qt::ControlModifier);
    const int code = event.key();
    if (!control || code < Qt::Key_Space || code > Qt::Key_AsciiTilde) {
        return from_qstring(text);
    }
    const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
    return std::string(1, static_cast<char>(shift ? code : std::tolower(code)));
}

}  // namespace

terminal::Modifiers to_modifiers(Qt::KeyboardModifiers modifiers) {
    return {.shift = modifiers.testFlag(Qt::ShiftModifier),
            .alt = modifiers.testFlag(Qt::AltModifier),
            .control = modifiers.testFlag(Qt::ControlModifier),
            .meta = modifiers.testFlag(Qt::MetaModifier)};
}

KeyEvent to_key_event(const QKeyEvent& event) {
    KeyEvent result;
    result.kind = event.type() == QEvent::KeyRelease ? KeyEvent::Kind::release : KeyEvent::Kind::press;
    result.repeated = event.isAutoRepeat();
    result.key = key_of(event);
    result.modifiers = to_modifiers(event.modifiers());
    result.modifiers.shift = result.modifiers.shift || event.key() == Qt::Key_Backtab;
    if (result.key == Key::none || event.modifiers().testFlag(Qt::KeypadModifier)) {
        result.text = text_of(event);
    }
    return result;
}
