// SPDX-License-Identifier: MIT
#include "terminal/style.h"

#include "terminal/parameters.h"

#include <algorithm>
#include <array>
#include <optional>

namespace terminal {

namespace {

using Attribute = void (*)(Style&);

struct Entry {
    int code;
    Attribute apply;
};

/// Attributes without arguments.
constexpr Entry entries[] = {
    {0, [](Style& style) { style = Style{}; }},
    {1, [](Style& style) { style.bold = true; }},
    {2, [](Style& style) { style.faint = true; }},
    {3, [](Style& style) { style.italic = true; }},
    {4, [](Style& style) { style.underline = Underline::single; }},
    {5, [](Style& style) { style.blink = true; }},
    {6, [](Style& style) { style.blink = true; }},
    {7, [](Style& style) { style.reverse = true; }},
    {8, [](Style& style) { style.invisible = true; }},
    {9, [](Style& style) { style.struck = true; }},
    {21, [](Style& style) { style.underline = Underline::twofold; }},
    {22, [](Style& style) { style.bold = style.faint = false; }},
    {23, [](Style& style) { style.italic = false; }},
    {24, [](Style& style) { style.underline = Underline::none; }},
    {25, [](Style& style) { style.blink = false; }},
    {27, [](Style& style) { style.reverse = false; }},
    {28, [](Style& style) { style.invisible = false; }},
    {29, [](Style& style) { style.struck = false; }},
    {39, [](Style& style) { style.foreground = Colour{}; }},
    {49, [](Style& style) { style.background = Colour{}; }},
    {53, [](Style& style) { style.overlined = true; }},
    {55, [](Style& style) { style.overlined = false; }},
    {59, [](Style& style) { style.underline_colour = Colour{}; }},
};

constexpr auto attributes = [] {
    std::array<Attribute, 60> table{};
    for (const Entry& entry : entries) {
        table[static_cast<std::size_t>(entry.code)] = entry.apply;
    }
    return table;
}();

/// The colour that `code` sets: 30 to 37, 90 to 97, 38 and so on.
Colour* colour_of(Style& style, int code) {
    switch (code) {
        case 38:
            return &style.foreground;
        case 48:
            return &style.background;
        case 58:
            return &style.underline_colour;
        default:
            return nullptr;
    }
}

bool set_basic_colour(Style& style, int code) {
    const int bright = code >= 90 ? 8 : 0;
    const int base = code >= 90 ? code - 60 : code;
    if (base >= 30 && base <= 37) {
        style.foreground = Colour::indexed(static_cast<std::uint8_t>(base - 30 + bright));
    } else if (base >= 40 && base <= 47) {
        style.background = Colour::indexed(static_cast<std::uint8_t>(base - 40 + bright));
    } else {
        return false;
    }
    return true;
}

std::uint8_t component(const Parameters& parameters, std::size_t index) {
    return static_cast<std::uint8_t>(std::min(parameters.get(index), 255));
}

struct ExtendedColour {
    std::optional<Colour> colour;
    std::size_t used = 1;  ///< parameters behind the code
};

/// What follows 38, 48 or 58 at `index`: 5 and an index, or 2 and three components.
ExtendedColour extended_colour(const Parameters& parameters, std::size_t index) {
    const std::size_t group = parameters.group_size(index);
    const int kind = parameters.get(index + 1);
    if (group >
        1) {  // in sub-parameters; direct colours have the number of a colour space before them or not
        const std::size_t first = index + (kind == 2 && group >= 6 ? 3 : 2);
        const std::size_t given = index + group > first ? index + group - first : 0;
        if (kind == 5 && given >= 1) {
            return {Colour::indexed(component(parameters, first)), group - 1};
        }
        if (kind == 2 && given >= 3) {
            return {Colour::direct(component(parameters, first), component(parameters, first + 1),
                                   component(parameters, first + 2)),
                    group - 1};
        }
        return {std::nullopt, group - 1};
    }
    if (kind == 5 && index + 2 < parameters.size()) {
        return {Colour::indexed(component(parameters, index + 2)), 2};
    }
    if (kind == 2 && index + 4 < parameters.size()) {
        return {Colour::direct(component(parameters, index + 2), component(parameters, index + 3),
                               component(parameters, index + 4)),
                4};
    }
    return {std::nullopt, parameters.size() - index - 1};  // what is meant by the rest is unknown
}

void append_colour(const Colour& colour, int code, std::string& out) {
    if (colour.kind == Colour::Kind::standard) {
        return;
    }
    out += ';' + std::to_string(code);
    if (colour.kind == Colour::Kind::indexed) {
        out += ":5:" + std::to_string(colour.index());
        return;
    }
    out += ":2:";
    for (const std::uint8_t value : {colour.red, colour.green, colour.blue}) {
        out += ':' + std::to_string(value);
    }
}

}  // namespace

void apply_sgr(const Parameters& parameters, Style& style, std::size_t first) {
    if (first >= parameters.size()) {
        style = Style{};
        return;
    }
    for (std::size_t i = first; i < parameters.size();) {
        const int code = parameters.get(i);
        const std::size_t group = parameters.group_size(i);
        if (Colour* const colour = colour_of(style, code)) {
            const ExtendedColour extended = extended_colour(parameters, i);
            *colour = extended.colour.value_or(*colour);
            i += extended.used + 1;
            continue;
        }
        if (code == 4 && group > 1) {
            style.underline = static_cast<Underline>(std::min(parameters.get(i + 1, 1), 5));
        } else if (!set_basic_colour(style, code) && code < static_cast<int>(attributes.size()) &&
                   attributes[static_cast<std::size_t>(code)] != nullptr) {
            attributes[static_cast<std::size_t>(code)](style);
        }
        i += group;
    }
}

std::string sgr_text(const Style& style) {
    std::string out = "0";
    const auto flag = [&out](bool set, const char* text) { out += set ? text : ""; };
    flag(style.bold, ";1");
    flag(style.faint, ";2");
    flag(style.italic, ";3");
    if (style.underline == Underline::single) {
        out += ";4";
    } else if (style.underline != Underline::none) {
        out += ";4:" + std::to_string(static_cast<int>(style.underline));
    }
    flag(style.blink, ";5");
    flag(style.reverse, ";7");
    flag(style.invisible, ";8");
    flag(style.struck, ";9");
    flag(style.overlined, ";53");
    append_colour(style.foreground, 38, out);
    append_colour(style.background, 48, out);
    append_colour(style.underline_colour, 58, out);
    return out;
}

}  // namespace terminal
