// SPDX-License-Identifier: MIT
#include "terminal/terminal.h"

#include <array>

// What text gets on its way to the screen: attributes, protection, character sets; the cursor's look; and how
// keys are sent.

namespace terminal {

void Terminal::sgr(Function function) { apply_sgr(function.parameters, pen_.change().style); }

void Terminal::xtpushsgr(Function /*function*/) { pen_.push_style(); }
void Terminal::xtpopsgr(Function /*function*/) { pen_.pop_style(); }

void Terminal::decsca(Function function) {
    pen_.change().guarded = function.parameters.get(0) == 1;
    guards_areas_ = false;  // of the two ways to protect the one used last counts, as on xterm
}

void Terminal::spa(Function /*function*/) { pen_.change().area_guarded = guards_areas_ = true; }
void Terminal::epa(Function /*function*/) { pen_.change().area_guarded = false; }

/// 0 is the standard cursor; then by twos block, underline, bar, the odd ones blinking.
void Terminal::decscusr(Function function) {
    const int style = function.parameters.get(0);
    if (style > 6) {
        return;
    }
    cursor_shape_ = style <= 2 ? CursorShape::block : style <= 4 ? CursorShape::underline : CursorShape::bar;
    inner_.cursor_blinking = style % 2 == 1;
    count_change();
}

void Terminal::deckpam(Function /*function*/) { modes_.application_keypad = true; }
void Terminal::deckpnm(Function /*function*/) { modes_.application_keypad = false; }

namespace {

constexpr int modify_other_keys = 4;  // of xterm's resources for keys the one that can be changed here

}  // namespace

/// `CSI > 4 ; 0 to 2 m`; without a value, or without any parameter, back to the beginning.
void Terminal::xtmodkeys(Function function) {
    const bool concerns_it =
        function.parameters.size() == 0 || function.parameters.get(0) == modify_other_keys;
    const int value = function.parameters.get(1);
    if (concerns_it && value <= 2) {
        modes_.modify_other_keys = value;
    }
}

void Terminal::xtunmodkeys(Function function) {
    if (function.parameters.get(0) == modify_other_keys) {
        modes_.modify_other_keys = 0;
    }
}

void Terminal::xtqmodkeys(Function function) {
    constexpr std::array fixed = {0, 2, 2};  // keyboard, cursor keys, function keys
    const int which = function.parameters.get(0);
    if (which == modify_other_keys) {
        reply("\x1b[>4;" + std::to_string(modes_.modify_other_keys) + 'm');
    } else if (which < static_cast<int>(fixed.size())) {
        reply("\x1b[>" + std::to_string(which) + ';' +
              std::to_string(fixed[static_cast<std::size_t>(which)]) + 'm');
    }
}

void Terminal::scs(Function function) {
    const std::string code = {function.intermediates[1], function.final};
    sets_.designate(function.intermediates[0], function.intermediate_count > 1 ? code : code.substr(1),
                    inner_.national_sets ? NationalSets::shown : NationalSets::hidden);
}

void Terminal::ls2(Function /*function*/) { sets_.invoked = 2; }
void Terminal::ls3(Function /*function*/) { sets_.invoked = 3; }
void Terminal::ls1r(Function /*function*/) { sets_.right = 1; }
void Terminal::ls2r(Function /*function*/) { sets_.right = 2; }
void Terminal::ls3r(Function /*function*/) { sets_.right = 3; }
void Terminal::ss2(Function /*function*/) { sets_.single_shift = 2; }
void Terminal::ss3(Function /*function*/) { sets_.single_shift = 3; }

}  // namespace terminal
