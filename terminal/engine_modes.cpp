// SPDX-License-Identifier: MIT
#include "terminal/engine.h"
#include "terminal/sgr.h"

#include <algorithm>
#include <type_traits>

// Modes, margins, character sets and resets.

namespace terminal {

/// A mode that can be set, reset, asked for and saved.
struct Engine::Mode {
    int number;
    void (Engine::*set)(bool);
    bool (Engine::*get)() const;

    static std::span<const Mode> ansi();
    static std::span<const Mode> dec();
    static const Mode* find(std::span<const Mode> modes, int number) {
        const auto found = std::ranges::find(modes, number, &Mode::number);
        return found == modes.end() ? nullptr : &*found;
    }

    template <auto flag>
    static constexpr Mode of(int number) {
        return {number, &Engine::set_mode<flag>, &Engine::mode<flag>};
    }
    template <MouseTracking tracking>
    static constexpr Mode of_tracking(int number) {
        return {number, &Engine::set_mouse_tracking<tracking>, &Engine::has_mouse_tracking<tracking>};
    }
    template <MouseEncoding encoding>
    static constexpr Mode of_encoding(int number) {
        return {number, &Engine::set_mouse_encoding<encoding>, &Engine::has_mouse_encoding<encoding>};
    }
};

template <auto flag>
void Engine::set_mode(bool on) {
    if constexpr (std::is_same_v<decltype(flag), bool Modes::*>) {
        modes_.*flag = on;
    } else {
        inner_.*flag = on;
    }
    count_change();
}

template <auto flag>
bool Engine::mode() const {
    if constexpr (std::is_same_v<decltype(flag), bool Modes::*>) {
        return modes_.*flag;
    } else {
        return inner_.*flag;
    }
}

template <MouseTracking tracking>
void Engine::set_mouse_tracking(bool on) {
    modes_.mouse_tracking = on ? tracking : MouseTracking::off;
}
template <MouseTracking tracking>
bool Engine::has_mouse_tracking() const {
    return modes_.mouse_tracking == tracking;
}
template <MouseEncoding encoding>
void Engine::set_mouse_encoding(bool on) {
    modes_.mouse_encoding = on ? encoding : MouseEncoding::classic;
}
template <MouseEncoding encoding>
bool Engine::has_mouse_encoding() const {
    return modes_.mouse_encoding == encoding;
}

std::span<const Engine::Mode> Engine::Mode::ansi() {
    static constexpr Mode modes[] = {
        of<&InnerModes::insert>(4),
        of<&Modes::newline>(20),
    };
    return modes;
}

std::span<const Engine::Mode> Engine::Mode::dec() {
    static constexpr Mode modes[] = {
        of<&Modes::application_cursor_keys>(1),
        {5, &Engine::set_reverse_video, &Engine::mode<&Modes::reverse_video>},
        {6, &Engine::set_origin, &Engine::mode<&InnerModes::origin>},
        of<&InnerModes::autowrap>(7),
        of_tracking<MouseTracking::press>(9),
        of<&InnerModes::cursor_blinking>(12),
        of<&InnerModes::cursor_visible>(25),
        of<&InnerModes::reverse_wrap>(45),
        {47, &Engine::set_alternate, &Engine::is_alternate},
        of<&Modes::application_keypad>(66),
        of<&Modes::backarrow_sends_backspace>(67),
        {69, &Engine::set_side_margins, &Engine::mode<&InnerModes::side_margins>},
        of_tracking<MouseTracking::press_release>(1000),
        of_tracking<MouseTracking::drag>(1002),
        of_tracking<MouseTracking::motion>(1003),
        of<&Modes::focus_events>(1004),
        of_encoding<MouseEncoding::utf8>(1005),
        of_encoding<MouseEncoding::sgr>(1006),
        of<&Modes::alternate_scroll>(1007),
        of_encoding<MouseEncoding::urxvt>(1015),
        {1047, &Engine::set_alternate_cleared, &Engine::is_alternate},
        {1048, &Engine::set_saved_cursor, &Engine::is_alternate},
        {1049, &Engine::set_alternate_saved, &Engine::is_alternate},
        of<&Modes::bracketed_paste>(2004),
        of<&Modes::synchronized_output>(2026),
    };
    return modes;
}

void Engine::change_modes(Function function, bool on) {
    const auto modes = function.prefix == '?' ? Mode::dec() : Mode::ansi();
    for (std::size_t i = 0; i < function.parameters.size(); ++i) {
        if (const Mode* const mode = Mode::find(modes, function.parameters.get(i))) {
            (this->*mode->set)(on);
        }
    }
}

void Engine::sm(Function function) { change_modes(function, true); }
void Engine::rm(Function function) { change_modes(function, false); }
void Engine::decset(Function function) { change_modes(function, true); }
void Engine::decrst(Function function) { change_modes(function, false); }

void Engine::xtsave(Function function) {
    for (std::size_t i = 0; i < function.parameters.size(); ++i) {
        const Mode* const mode = Mode::find(Mode::dec(), function.parameters.get(i));
        if (mode != nullptr) {
            std::erase_if(saved_modes_, [mode](const auto& saved) { return saved.first == mode->number; });
            saved_modes_.emplace_back(mode->number, (this->*mode->get)());
        }
    }
}

void Engine::xtrestore(Function function) {
    for (std::size_t i = 0; i < function.parameters.size(); ++i) {
        const auto saved = std::ranges::find(saved_modes_, function.parameters.get(i),
                                             [](const auto& entry) { return entry.first; });
        if (saved != saved_modes_.end()) {
            (this->*Mode::find(Mode::dec(), saved->first)->set)(saved->second);
        }
    }
}

/// The reply names the mode and says 1 for set, 2 for reset, 0 for unknown.
void Engine::decrqm(Function function) {
    const bool is_private = function.prefix == '?';
    const int number = function.parameters.get(0);
    const Mode* const mode = Mode::find(is_private ? Mode::dec() : Mode::ansi(), number);
    const int state = mode == nullptr ? 0 : (this->*mode->get)() ? 1 : 2;
    reply("\x1b[" + std::string(is_private ? "?" : "") + std::to_string(number) + ';' +
          std::to_string(state) + "$y");
}

void Engine::set_origin(bool on) {
    inner_.origin = on;
    move_in_origin(0, 0);
}

void Engine::set_side_margins(bool on) {
    inner_.side_margins = on;
    if (!on) {
        margins_.left = 0;
        margins_.right = size().columns;
    }
}

void Engine::set_reverse_video(bool on) {
    modes_.reverse_video = on;
    epoch_ = ++clock_;
}

/// Shows the one or the other screen. The cursor is one for both.
void Engine::set_alternate(bool on) {
    if (is_alternate() == on) {
        return;
    }
    modes_.alternate_screen = on;
    screen_ = on ? &alternate_ : &primary_;
    if (on && alternate_.size() != size()) {
        alternate_.reset(size(), alternate_.top());
    }
    epoch_ = ++clock_;
}

void Engine::set_alternate_cleared(bool on) {
    if (!on && is_alternate()) {
        alternate_.reset(size(), alternate_.top() + size().rows);
    }
    set_alternate(on);
}

void Engine::set_alternate_saved(bool on) {
    if (is_alternate() == on) {
        return;
    }
    if (!on) {
        set_alternate(false);
        restore_cursor();
        return;
    }
    save_cursor();
    set_alternate(true);
    alternate_.reset(size(), alternate_.top() + size().rows);
}

void Engine::set_saved_cursor(bool on) {
    if (on) {
        save_cursor();
    } else {
        restore_cursor();
    }
}

void Engine::reset_margins() { margins_ = screen_->all(); }

void Engine::decstbm(Function function) {
    const int top = function.parameters.count(0);
    const int asked = function.parameters.get(1);
    const int bottom = asked == 0 ? size().rows : std::min(asked, size().rows);
    if (top < bottom) {
        margins_.top = top - 1;
        margins_.bottom = bottom;
        move_in_origin(0, 0);
    }
}

/// What DECSTR resets, and a full reset too.
void Engine::soft_reset() {
    inner_.insert = inner_.origin = inner_.reverse_wrap = inner_.side_margins = false;
    inner_.autowrap = inner_.cursor_visible = true;
    modes_.application_cursor_keys = modes_.application_keypad = false;
    reset_margins();
    style_ = Style{};
    pen_.link = 0;
    guarded_ = whole_rectangles_ = false;
    change_pen();
    sets_ = CharacterSets{};
    saved() = SavedCursor{};
    cursor_.wrap_pending = false;
}

void Engine::decstr(Function /*function*/) { soft_reset(); }
void Engine::ris(Function /*function*/) { reset(); }

void Engine::reset() {
    set_alternate(false);
    modes_ = Modes{};
    inner_ = InnerModes{};
    saved_ = {};
    saved_modes_.clear();
    cursor_shape_ = CursorShape::block;
    last_character_ = 0;
    soft_reset();
    scrollback_.close();
    screen_->fill(screen_->all(), Cell{});
    move_to(0, 0);
    reset_tabs(0);
    palette_.reset_all();
    palette_changed();
}

void Engine::sgr(Function function) {
    apply_sgr(function.parameters, style_);
    change_pen();
}

void Engine::decsca(Function function) {
    guarded_ = function.parameters.get(0) == 1;
    change_pen();
}

/// 0 is the standard cursor; then by twos block, underline, bar, the odd ones blinking.
void Engine::decscusr(Function function) {
    const int style = function.parameters.get(0);
    if (style > 6) {
        return;
    }
    cursor_shape_ = style <= 2 ? CursorShape::block : style <= 4 ? CursorShape::underline : CursorShape::bar;
    inner_.cursor_blinking = style % 2 == 1;
    count_change();
}

void Engine::deckpam(Function /*function*/) { modes_.application_keypad = true; }
void Engine::deckpnm(Function /*function*/) { modes_.application_keypad = false; }

/// `ESC ( F` to `ESC + F` designate G0 to G3.
void Engine::scs(Function function) {
    const auto index = static_cast<std::size_t>(function.intermediates[0] - '(');
    sets_.designated[index] = character_set(function.final);
}

void Engine::ls2(Function /*function*/) { sets_.invoked = 2; }
void Engine::ls3(Function /*function*/) { sets_.invoked = 3; }
void Engine::ss2(Function /*function*/) { sets_.single_shift = 2; }
void Engine::ss3(Function /*function*/) { sets_.single_shift = 3; }

}  // namespace terminal
