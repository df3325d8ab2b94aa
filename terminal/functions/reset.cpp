// SPDX-License-Identifier: MIT
#include "terminal/terminal.h"

// Resets, the conformance level, and the form of controls.

namespace terminal {

void Terminal::reset_margins() { margins_ = screen_->all(); }

/// What DECSTR resets, and a full reset too. Unlike a VT420's, autowrap is on then, as on xterm.
void Terminal::soft_reset() {
    inner_.insert = inner_.origin = inner_.reverse_wrap = inner_.far_reverse_wrap = false;
    inner_.side_margins = inner_.national_sets = false;
    inner_.autowrap = inner_.cursor_visible = true;
    modes_.application_cursor_keys = modes_.application_keypad = false;
    modes_.modify_other_keys = 0;
    reset_margins();
    pen_.change() = {};
    pen_.set_link(0);
    guards_areas_ = whole_rectangles_ = false;
    sets_ = CharacterSets{};
    saved() = SavedCursor{};
    cursor_.wrap_pending = false;
}

void Terminal::decstr(Function /*function*/) { soft_reset(); }
void Terminal::ris(Function /*function*/) { full_reset(); }

void Terminal::reset_settings() {
    soft_reset();
    if (modes_.reverse_video) {
        set_reverse_video(false);
    }
    modes_ = Modes{};
    inner_ = InnerModes{};
    saved_ = {};
    saved_modes_.clear();
    pen_.reset_saved();
    cursor_shape_ = CursorShape::block;
    last_character_ = 0;
    checksum_flags_ = 0;
    titles_.reset_modes();
    level_ = top_level;
    encoding_ = Encoding::utf8;
    choose_controls(Controls::of_7_bits);
    parser_.set_language(Parser::Language::ansi);
    tabs_.reset();
    colours_.palette().reset_all();
    palette_changed();
}

void Terminal::full_reset() {
    inner_.allow_alternate = true;
    set_alternate(false);
    if (inner_.columns_132) {
        set_columns(false);
    }
    reset_settings();
    fill(screen_->all(), Cell{});
    move_to(0, 0);
}

void Terminal::reset() {
    parser_.reset();
    full_reset();
    finish();
}

void Terminal::end_of_program() {
    parser_.reset();
    inner_.allow_alternate = true;
    set_alternate_saved(false);
    reset_settings();
    finish();
}

/// `61 to 64 ; controls`: the level, and whether replies use 7-bit controls (1) or 8-bit ones. A reset too
/// (VT420 manual).
void Terminal::decscl(Function function) {
    constexpr int base = 60;
    const int level = function.parameters.get(0) - base;
    if (level < 1 || level > top_level) {
        return;
    }
    full_reset();
    level_ = level;
    if (level > 1 && function.parameters.get(1) != 1) {
        choose_controls(Controls::of_8_bits);
    }
}

void Terminal::s7c1t(Function /*function*/) { choose_controls(Controls::of_7_bits); }
void Terminal::s8c1t(Function /*function*/) { choose_controls(Controls::of_8_bits); }
void Terminal::use_latin1(Function /*function*/) { choose_encoding(Encoding::latin1); }
void Terminal::use_utf8(Function /*function*/) { choose_encoding(Encoding::utf8); }

void Terminal::choose_controls(Controls controls) {
    controls_ = controls;
    update_parser();
}

void Terminal::choose_encoding(Encoding encoding) {
    encoding_ = encoding;
    update_parser();
}

/// A program that wants 8-bit controls in replies may send them too, also within UTF-8.
void Terminal::update_parser() {
    using Wanted = Parser::Encoding;
    const Wanted utf8 = controls_ == Controls::of_8_bits ? Wanted::utf8_with_8bit_controls : Wanted::utf8;
    parser_.set_encoding(encoding_ == Encoding::latin1 ? Wanted::latin1 : utf8);
}

}  // namespace terminal
