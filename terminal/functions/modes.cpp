// SPDX-License-Identifier: MIT
#include "terminal/terminal.h"

#include <algorithm>
#include <type_traits>

// Modes and margins.

namespace terminal {

/// A mode that can be set, reset, asked for and saved.
struct Terminal::Mode {
    int number;
    void (Terminal::*set)(bool);
    bool (Terminal::*get)() const;

    static std::span<const Mode> ansi();
    static std::span<const Mode> dec();
    static const Mode* find(std::span<const Mode> modes, int number) {
        const auto found = std::ranges::find(modes, number, &Mode::number);
        return found == modes.end() ? nullptr : &*found;
    }

    template <auto flag>
    static constexpr Mode of(int number) {
        return {number, &Terminal::set_mode<flag>, &Terminal::mode<flag>};
    }
    template <MouseTracking tracking>
    static constexpr Mode of_tracking(int number) {
        return {number, &Terminal::set_mouse_tracking<tracking>, &Terminal::has_mouse_tracking<tracking>};
    }
    template <MouseEncoding encoding>
    static constexpr Mode of_encoding(int number) {
        return {number, &Terminal::set_mouse_encoding<encoding>, &Terminal::has_mouse_encoding<encoding>};
    }
};

template <auto flag>
void Terminal::set_mode(bool on) {
    if constexpr (std::is_same_v<decltype(flag), bool Modes::*>) {
        modes_.*flag = on;
    } else {
        inner_.*flag = on;
    }
    count_change();
}

template <auto flag>
bool Terminal::mode() const {
    if constexpr (std::is_same_v<decltype(flag), bool Modes::*>) {
        return modes_.*flag;
    } else {
        return inner_.*flag;
    }
}

template <MouseTracking tracking>
void Terminal::set_mouse_tracking(bool on) {
    modes_.mouse_tracking = on ? tracking : MouseTracking::off;
}
template <MouseTracking tracking>
bool Terminal::has_mouse_tracking() const {
    return modes_.mouse_tracking == tracking;
}
template <MouseEncoding encoding>
void Terminal::set_mouse_encoding(bool on) {
    modes_.mouse_encoding = on ? encoding : MouseEncoding::classic;
}
template <MouseEncoding encoding>
bool Terminal::has_mouse_encoding() const {
    return modes_.mouse_encoding == encoding;
}

std::span<const Terminal::Mode> Terminal::Mode::ansi() {
    static constexpr Mode modes[] = {
        of<&InnerModes::insert>(4),
        {12, &Terminal::set_send_receive, &Terminal::has_send_receive},
        of<&Modes::newline>(20),
    };
    return modes;
}

std::span<const Terminal::Mode> Terminal::Mode::dec() {
    static constexpr Mode modes[] = {
        of<&Modes::application_cursor_keys>(1),
        {2, &Terminal::set_ansi, &Terminal::is_ansi},
        {3, &Terminal::set_columns, &Terminal::mode<&InnerModes::columns_132>},
        of<&InnerModes::smooth_scroll>(4),
        {5, &Terminal::set_reverse_video, &Terminal::mode<&Modes::reverse_video>},
        {6, &Terminal::set_origin, &Terminal::mode<&InnerModes::origin>},
        {7, &Terminal::set_autowrap, &Terminal::mode<&InnerModes::autowrap>},
        of<&Modes::auto_repeat>(8),
        of_tracking<MouseTracking::press>(9),
        of<&InnerModes::cursor_blinking>(12),
        of<&InnerModes::printer_form_feed>(18),
        of<&InnerModes::printer_extent>(19),
        of<&InnerModes::cursor_visible>(25),
        of<&InnerModes::allow_columns>(40),
        of<&InnerModes::tab_wraps>(41),
        of<&InnerModes::national_sets>(42),
        of<&InnerModes::reverse_wrap>(45),
        {47, &Terminal::set_alternate, &Terminal::is_alternate},
        of<&Modes::application_keypad>(66),
        of<&Modes::backarrow_sends_backspace>(67),
        {69, &Terminal::set_side_margins, &Terminal::mode<&InnerModes::side_margins>},
        of_tracking<MouseTracking::press_release>(1000),
        of_tracking<MouseTracking::drag>(1002),
        of_tracking<MouseTracking::motion>(1003),
        of<&Modes::focus_events>(1004),
        of_encoding<MouseEncoding::utf8>(1005),
        of_encoding<MouseEncoding::sgr>(1006),
        of<&Modes::alternate_scroll>(1007),
        of_encoding<MouseEncoding::urxvt>(1015),
        of_encoding<MouseEncoding::sgr_pixels>(1016),
        of<&InnerModes::far_reverse_wrap>(1045),
        {1046, &Terminal::set_allow_alternate, &Terminal::mode<&InnerModes::allow_alternate>},
        {1047, &Terminal::set_alternate_cleared, &Terminal::is_alternate},
        {1048, &Terminal::set_saved_cursor, &Terminal::has_saved_cursor},
        {1049, &Terminal::set_alternate_saved, &Terminal::is_alternate},
        of<&Modes::bracketed_paste>(2004),
        of<&Modes::synchronized_output>(2026),
    };
    return modes;
}

namespace {

// What DECRQM answers.
constexpr int mode_unknown = 0;
constexpr int mode_set = 1;
constexpr int mode_reset = 2;
constexpr int mode_always_set = 3;
constexpr int mode_always_reset = 4;

struct FixedMode {
    int number;
    int state;
};

/// Modes of ECMA-48 that a terminal like this cannot set: GATM, KAM (a file that is shown must not lock the
/// keyboard), CRM, SRTM, VEM, HEM, PUM, FEAM, FETM, MATM,
/// TTM, SATM, TSM, EBM.
constexpr FixedMode fixed_ansi[] = {
    {1, mode_always_reset},  {2, mode_always_reset},  {3, mode_always_reset},  {5, mode_always_reset},
    {7, mode_always_reset},  {10, mode_always_reset}, {11, mode_always_reset}, {13, mode_always_reset},
    {14, mode_always_reset}, {15, mode_always_reset}, {16, mode_always_reset}, {17, mode_always_reset},
    {18, mode_always_reset}, {19, mode_always_reset},
};
/// DECARM (it can be set, but as on xterm is not told), DECHCCM, DECVCCM and DECPCCM (a screen shows its
/// whole page), DECKBUM, DECXRLM, DECKPM; and xterm's: the margin's bell, logging, highlight tracking,
/// scrolling at output and at keys, alt and meta by the eighth bit or by an escape, Delete as DEL, selections
/// and bells that do more, and other function keys.
constexpr FixedMode fixed_dec[] = {
    {8, mode_always_reset},    {44, mode_always_reset},   {46, mode_always_reset},
    {60, mode_always_reset},   {61, mode_always_reset},   {64, mode_always_reset},
    {68, mode_always_reset},   {73, mode_always_reset},   {81, mode_always_reset},
    {1001, mode_always_reset}, {1010, mode_always_reset}, {1011, mode_always_set},
    {1034, mode_always_reset}, {1036, mode_always_set},   {1037, mode_always_reset},
    {1039, mode_always_set},   {1041, mode_always_reset}, {1042, mode_always_reset},
    {1043, mode_always_reset}, {1050, mode_always_reset}, {1051, mode_always_reset},
    {1052, mode_always_reset}, {1053, mode_always_reset}, {1060, mode_always_reset},
};

}  // namespace

void Terminal::change_modes(Function function, bool on) {
    const auto modes = function.prefix == '?' ? Mode::dec() : Mode::ansi();
    for (std::size_t i = 0; i < function.parameters.size(); ++i) {
        if (const Mode* const mode = Mode::find(modes, function.parameters.get(i))) {
            (this->*mode->set)(on);
        }
    }
}

void Terminal::sm(Function function) { change_modes(function, true); }
void Terminal::rm(Function function) { change_modes(function, false); }
void Terminal::decset(Function function) { change_modes(function, true); }
void Terminal::decrst(Function function) { change_modes(function, false); }

void Terminal::xtsave(Function function) {
    for (std::size_t i = 0; i < function.parameters.size(); ++i) {
        const Mode* const mode = Mode::find(Mode::dec(), function.parameters.get(i));
        if (mode != nullptr) {
            std::erase_if(saved_modes_, [mode](const auto& saved) { return saved.first == mode->number; });
            saved_modes_.emplace_back(mode->number, (this->*mode->get)());
        }
    }
}

void Terminal::xtrestore(Function function) {
    for (std::size_t i = 0; i < function.parameters.size(); ++i) {
        const auto saved = std::ranges::find(saved_modes_, function.parameters.get(i),
                                             [](const auto& entry) { return entry.first; });
        if (saved != saved_modes_.end()) {
            (this->*Mode::find(Mode::dec(), saved->first)->set)(saved->second);
        }
    }
}

int Terminal::mode_state(std::span<const Mode> modes, int number) const {
    const Mode* const mode = Mode::find(modes, number);
    if (mode == nullptr) {
        return mode_unknown;
    }
    return (this->*mode->get)() ? mode_set : mode_reset;
}

void Terminal::decrqm(Function function) {
    const bool is_private = function.prefix == '?';
    const int number = function.parameters.get(0);
    const std::span<const FixedMode> fixed = is_private ? std::span<const FixedMode>(fixed_dec) : fixed_ansi;
    const auto found = std::ranges::find(fixed, number, &FixedMode::number);
    const int state =
        found != fixed.end() ? found->state : mode_state(is_private ? Mode::dec() : Mode::ansi(), number);
    reply("\x1b[" + std::string(is_private ? "?" : "") + std::to_string(number) + ';' +
          std::to_string(state) + "$y");
}

void Terminal::set_send_receive(bool on) { modes_.local_echo = !on; }

/// A wrap that was pending is off too.
void Terminal::set_autowrap(bool on) {
    inner_.autowrap = on;
    cursor_.wrap_pending = cursor_.wrap_pending && on;
}

/// A VT52 has one character set and no margins.
void Terminal::set_ansi(bool on) {
    modes_.vt52 = !on;
    parser_.set_language(on ? Parser::Language::ansi : Parser::Language::vt52);
    sets_ = CharacterSets{};
    if (!on) {
        inner_.origin = inner_.side_margins = false;
        reset_margins();
    }
}

/// DECCOLM, where xterm's mode 40 and the user let it: besides the width it empties the screen and resets the
/// margins. (DECNCSM, which would keep the text, is a VT510's.)
void Terminal::set_columns(bool on) {
    if (!inner_.allow_columns || !permissions_.window_operations) {
        return;
    }
    constexpr int narrow = 80;
    constexpr int wide = 132;
    inner_.columns_132 = on;
    request_size({on ? wide : narrow, size().rows});
    inner_.side_margins = false;
    reset_margins();
    fill(screen_->all(), blank());
    move_in_origin(0, 0);
}

/// Without the permission to show the alternate screen a program goes back to the primary one.
void Terminal::set_allow_alternate(bool on) {
    if (!on) {
        set_alternate(false);
    }
    inner_.allow_alternate = on;
}

void Terminal::set_origin(bool on) {
    inner_.origin = on;
    move_in_origin(0, 0);
}

/// Of a VT420.
void Terminal::set_side_margins(bool on) {
    inner_.side_margins = on && level_ >= 4;
    if (!on) {
        margins_.left = 0;
        margins_.right = size().columns;
    }
}

void Terminal::set_reverse_video(bool on) {
    modes_.reverse_video = on;
    epoch_ = ++clock_;
}

/// Shows the one or the other screen. The cursor is one for both.
void Terminal::set_alternate(bool on) {
    if (is_alternate() == on || !inner_.allow_alternate) {
        return;
    }
    modes_.alternate_screen = on;
    screen_ = on ? &alternate_ : &primary_;
    if (on && alternate_.size() != size()) {
        alternate_.reset(size(), alternate_.top());
    }
    epoch_ = ++clock_;
}

void Terminal::set_alternate_cleared(bool on) {
    if (!on && is_alternate()) {
        alternate_.reset(size(), alternate_.top() + size().rows);
    }
    set_alternate(on);
}

void Terminal::set_alternate_saved(bool on) {
    if (!inner_.allow_alternate || (!on && !is_alternate())) {
        return;
    }
    if (!on) {
        set_alternate(false);
        if (saved().saved) {  // a program may have come by 47 or 1047
            restore_cursor();
        }
        return;
    }
    save_cursor();
    set_alternate(true);
    alternate_.reset(size(), alternate_.top() + size().rows);
}

void Terminal::set_saved_cursor(bool on) {
    if (on) {
        save_cursor();
    } else {
        restore_cursor();
    }
}

void Terminal::decstbm(Function function) {
    const int top = function.parameters.count(0);
    const int asked = function.parameters.get(1);
    const int bottom = asked == 0 ? size().rows : std::min(asked, size().rows);
    if (top < bottom) {
        margins_.top = top - 1;
        margins_.bottom = bottom;
        move_in_origin(0, 0);
    }
}

}  // namespace terminal
