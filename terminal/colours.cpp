// SPDX-License-Identifier: MIT
#include "terminal/colours.h"

#include "terminal/limits.h"
#include "terminal/text_codes.h"

#include <algorithm>

namespace terminal {

namespace {

constexpr int special_base = 256;  // OSC 4 takes the colours of OSC 5 from here on
constexpr int special_count = static_cast<int>(Palette::role_count) - static_cast<int>(ColourRole::bold);

constexpr int first_role = 10;  // OSC 10 to 19 set what OSC 110 to 119 reset
constexpr int last_role = 19;
constexpr int reset_offset = 100;

ColourRole role_of(int number) { return static_cast<ColourRole>(number - first_role); }
ColourRole special_role(int index) {
    return static_cast<ColourRole>(static_cast<int>(ColourRole::bold) + index - special_base);
}
bool is_colour(int index) { return index >= 0 && index < special_base + special_count; }
bool is_role(int number) { return number >= first_role && number <= last_role; }

std::string answer(std::string_view prefix, Rgb colour) {
    return std::string(prefix) + ';' + colour_text(colour);
}

}  // namespace

Colours::Outcome Colours::command(std::string_view number, std::string_view data) {
    Outcome outcome{true, false, {}};
    const int command = parse_number(number);
    switch (command) {
        case 4:
            set_indexed(number, 0, data, outcome);
            return outcome;
        case 5:
            set_indexed(number, special_base, data, outcome);
            return outcome;
        case 4 + reset_offset:
            reset_indexed(0, data);
            break;
        case 5 + reset_offset:
            reset_indexed(special_base, data);
            break;
        default:
            if (is_role(command)) {
                set_roles(command, data, outcome);
                return outcome;
            }
            if (!is_role(command - reset_offset)) {
                return {};
            }
            palette_.reset(role_of(command - reset_offset));
            break;
    }
    outcome.changed = true;
    return outcome;
}

/// A number of colour names is looked up, each once: whoever knows them may have to ask the X server.
std::optional<Rgb> Colours::colour(std::string_view text) {
    if (const auto colour = parse_colour(text)) {
        return colour;
    }
    const bool is_name = !text.empty() && text.size() <= max_colour_name &&
                         std::ranges::all_of(text, [](char c) { return c >= 0x20 && c < 0x7F; });
    if (!is_name) {
        return std::nullopt;
    }
    const auto asked =
        std::ranges::find_if(asked_, [text](const auto& known) { return known.first == text; });
    if (asked != asked_.end()) {
        return asked->second;
    }
    if (asked_.size() == max_asked_colours) {
        return std::nullopt;
    }
    return asked_.emplace_back(text, named_colour_(text)).second;
}

/// Pairs of index and colour; "?" asks. Indices count from `base` on.
void Colours::set_indexed(std::string_view number, int base, std::string_view data, Outcome& outcome) {
    while (!data.empty()) {
        const int given = parse_number(take_field(data));
        const std::string_view text = take_field(data);
        if (given < 0 || !is_colour(base + given)) {
            continue;
        }
        const int index = base + given;
        const bool special = index >= special_base;
        if (text == "?") {
            outcome.answers.push_back(
                answer(std::string(number) + ';' + std::to_string(given),
                       special ? palette_.colour(special_role(index)) : palette_.colour(index)));
        } else if (const auto wanted = colour(text)) {
            special ? palette_.set(special_role(index), *wanted) : palette_.set(index, *wanted);
            outcome.changed = true;
        }
    }
}

/// The colours from role `number` on.
void Colours::set_roles(int number, std::string_view data, Outcome& outcome) {
    for (; is_role(number) && !data.empty(); ++number) {
        const std::string_view text = take_field(data);
        if (text == "?") {
            outcome.answers.push_back(answer(std::to_string(number), palette_.colour(role_of(number))));
        } else if (const auto wanted = colour(text)) {
            palette_.set(role_of(number), *wanted);
            outcome.changed = true;
        }
    }
}

/// Without an index all of OSC 4's or 5's.
void Colours::reset_indexed(int base, std::string_view data) {
    if (data.empty()) {
        base == 0 ? palette_.reset_indexed() : palette_.reset_special();
    }
    while (!data.empty()) {
        const int given = parse_number(take_field(data));
        if (given < 0 || !is_colour(base + given)) {
            continue;
        }
        const int index = base + given;
        index >= special_base ? palette_.reset(special_role(index)) : palette_.reset(index);
    }
}

}  // namespace terminal
