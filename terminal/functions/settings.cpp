// SPDX-License-Identifier: MIT
#include "terminal/terminal.h"
#include "terminal/text_codes.h"

#include <algorithm>
#include <array>
#include <cassert>

#include <fmt/format.h>

// Device control strings: reports of settings, of the terminal's capabilities and of what it presents.

namespace terminal {

namespace {

/// What XTGETTCAP tells, by the names of terminfo and termcap.
struct Capability {
    std::string_view name;
    std::string_view value;
};
constexpr Capability capabilities[] = {
    {"TN", "xterm-256color"}, {"name", "xterm-256color"}, {"Co", "256"}, {"colors", "256"}, {"RGB", "8"},
};

/// DECCIR writes four bits as a character from 4/0 on.
char bits(std::initializer_list<bool> low_first) {
    int value = 0x40;
    int weight = 1;
    for (const bool bit : low_first) {
        value += bit ? weight : 0;
        weight *= 2;
    }
    return static_cast<char>(value);
}

}  // namespace

void Terminal::device_control(const ControlFunction& function, std::string_view data) {
    last_character_ = 0;
    if (function.prefix == 0 && function.intermediate_count == 1) {
        const char intermediate = function.intermediates[0];
        if (function.final == 'q' && intermediate == '$' && level_ >= 3) {
            decrqss(data);
        } else if (function.final == 'q' && intermediate == '+') {
            xtgettcap(data);
        } else if (function.final == 't' && intermediate == '$') {
            decrsps(function, data);
        }
    }
    assert(is_consistent());
}

/// DECRQSS: the settings asked for by the end of the sequence that would make them.
void Terminal::decrqss(std::string_view request) {
    const std::string text = setting(request);
    reply(text.empty() ? "\x1bP0$r\x1b\\" : "\x1bP1$r" + text + std::string(request) + "\x1b\\");
}

/// The parameters; empty for a request that is not known.
std::string Terminal::setting(std::string_view request) const {
    const auto pair = [](int first, int second) {
        return std::to_string(first) + ';' + std::to_string(second);
    };
    const int steady = 2 + 2 * static_cast<int>(cursor_shape_);
    const int controls = controls_ == Controls::of_8_bits ? 0 : 1;
    const std::string rows = std::to_string(size().rows);
    const std::pair<std::string_view, std::string> settings[] = {
        {"m", sgr_text(pen_.style())},
        {"r", pair(margins_.top + 1, margins_.bottom)},
        {"s", pair(margins_.left + 1, margins_.right)},
        {"t", rows},                             // DECSLPP
        {"*|", rows},                            // DECSNLS
        {"$|", std::to_string(size().columns)},  // DECSCPP
        {" q", std::to_string(inner_.cursor_blinking ? steady - 1 : steady)},
        {"\"q", pen_.state().guarded ? "1" : "0"},
        {"\"p", level_ == 1 ? "61" : pair(60 + level_, controls)},
        {"*x", whole_rectangles_ ? "2" : "1"},
    };
    for (const auto& [name, value] : settings) {
        if (name == request) {
            return value;
        }
    }
    return {};
}

/// Names in hexadecimal digits, with semicolons between; the answer ends with the first one not known.
void Terminal::xtgettcap(std::string_view request) {
    std::string known;
    while (!request.empty()) {
        const std::string_view name = request.substr(0, request.find(';'));
        const auto* const found = std::ranges::find(capabilities, from_hexadecimal(name), &Capability::name);
        if (found == std::end(capabilities)) {
            break;
        }
        known += fmt::format("{}{}={}", known.empty() ? "" : ";", hexadecimal(found->name),
                             hexadecimal(found->value));
        request.remove_prefix(std::min(name.size() + 1, request.size()));
    }
    reply(known.empty() ? "\x1bP0+r\x1b\\" : "\x1bP1+r" + known + "\x1b\\");
}

/// `1`: what DECSC would save; `2`: the tab stops.
void Terminal::decrqpsr(Function function) {
    const int report = function.parameters.get(0);
    if (report == 1) {
        deccir();
    } else if (report == 2) {
        dectabsr();
    }
}

/// Cursor information report: row, column, page; attributes, protection and flags as bits; the sets invoked,
/// their sizes and their names.
void Terminal::deccir() {
    const int row = inner_.origin ? cursor_.row - margins_.top : cursor_.row;
    const int column = inner_.origin ? cursor_.column - margins_.left : cursor_.column;
    std::string text = std::to_string(row + 1) + ';' + std::to_string(column + 1) + ";1;";
    text += bits({pen_.style().bold, pen_.style().underline != Underline::none, pen_.style().blink,
                  pen_.style().reverse});
    text += std::string(";") + bits({pen_.state().guarded}) + ';';
    text += bits({inner_.origin, sets_.single_shift == 2, sets_.single_shift == 3, cursor_.wrap_pending});
    text += ';' + std::to_string(sets_.invoked) + ';' + std::to_string(sets_.right) + ';';
    std::string names;
    int weight = 1;
    int sizes = 0x40;
    for (const CharacterSet set : sets_.designated) {
        sizes += set == CharacterSet::latin1 ? weight : 0;
        weight *= 2;
        names += designation(set);
    }
    text += static_cast<char>(sizes);
    reply("\x1bP1$u" + text + ';' + names + "\x1b\\");
}

void Terminal::dectabsr() { reply("\x1bP2$u" + tabs_.text() + "\x1b\\"); }

/// DECRSPS: takes the report of the tab stops back.
void Terminal::decrsps(Function function, std::string_view data) {
    if (function.parameters.get(0) == 2) {
        tabs_.take(data);
    }
}

}  // namespace terminal
