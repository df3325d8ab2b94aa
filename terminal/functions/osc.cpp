// SPDX-License-Identifier: MIT
#include "terminal/terminal.h"
#include "terminal/text_codes.h"
#include "terminal/utf8.h"

#include <algorithm>
#include <cassert>
#include <charconv>

// Operating system commands: titles, colours and links. All others are read and ignored: nothing written to
// the terminal gets at the directory shown, notices or files, nor, unless the user permits it, the clipboard.

namespace terminal {

namespace {

/// Cuts the text up to the next semicolon off.
std::string_view take_field(std::string_view& text) {
    const std::size_t end = text.find(';');
    const std::string_view field = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return field;
}

/// A number of digits only; -1 for anything else.
int parse_number(std::string_view text) {
    int value = -1;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    return result.ec == std::errc{} && result.ptr == end ? value : -1;
}

constexpr int special_base = 256;  // OSC 4 takes the colours of OSC 5 from here on
constexpr int special_count = static_cast<int>(Palette::role_count) - static_cast<int>(ColourRole::bold);

constexpr int first_role = 10;  // OSC 10 to 19 set what OSC 110 to 119 reset
constexpr int last_role = 19;

ColourRole role_of(int number) { return static_cast<ColourRole>(number % 100 - first_role); }
ColourRole special_role(int index) {
    return static_cast<ColourRole>(static_cast<int>(ColourRole::bold) + index - special_base);
}
bool is_colour(int index) { return index >= 0 && index < special_base + special_count; }

}  // namespace

void Terminal::operating_system_command(std::string_view data) {
    const std::string_view text = take_field(data);
    const int number = parse_number(text);
    last_character_ = 0;
    switch (number) {
        case 0:
        case 1:
        case 2:
            set_titles(number, data);
            break;
        case 4:
            osc_palette(text, 0, data);
            break;
        case 5:
            osc_palette(text, special_base, data);
            break;
        case 8:
            set_link(data);
            break;
        case 52:
            osc_selection(data);
            break;
        case 104:
            osc_reset_palette(0, data);
            break;
        case 105:
            osc_reset_palette(special_base, data);
            break;
        default:
            osc_role(number, data);
            break;
    }
    assert(is_consistent());
}

/// `8 ; parameters ; address`. Addresses are in printable ASCII; with anything else, or when there are too
/// many, the text that follows is no link.
void Terminal::set_link(std::string_view data) {
    std::string_view parameters = take_field(data);
    pen();  // so that its other attributes are up to date
    pen_.link = 0;
    const bool printable =
        data.find_first_not_of(
            "!\"#$%&'()*+,-./"
            "0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`abcdefghijklmnopqrstuvwxyz{|}~") ==
        std::string_view::npos;
    if (data.empty() || data.size() > max_link || !printable) {
        return;
    }
    Link link{{}, std::string(data)};
    const std::size_t id = parameters.find("id=");
    if (id != std::string_view::npos) {
        parameters.remove_prefix(id + 3);
        link.id = cut_utf8(parameters.substr(0, parameters.find(':')), max_link);
    }
    auto number = links_.intern(link);
    if (!number && links_.wants_collection()) {
        collect_unused();
        number = links_.intern(link);
    }
    pen_.link = static_cast<LinkId>(number.value_or(0));
}

void Terminal::palette_changed() { epoch_ = ++clock_; }

/// Ends with ST always, whatever ended the question: a reply holds no BEL.
void Terminal::reply_colour(std::string_view prefix, Rgb colour) {
    reply("\x1b]" + std::string(prefix) + ';' + colour_text(colour) + "\x1b\\");
}

/// A number of colour names is looked up by the client, each once: it may have to ask the X server.
std::optional<Rgb> Terminal::colour(std::string_view text) {
    if (const auto colour = parse_colour(text)) {
        return colour;
    }
    const bool is_name = !text.empty() && text.size() <= max_colour_name &&
                         std::ranges::all_of(text, [](char c) { return c >= 0x20 && c < 0x7F; });
    if (!is_name || text == "?") {
        return std::nullopt;
    }
    const auto asked =
        std::ranges::find_if(asked_colours_, [text](const auto& known) { return known.first == text; });
    if (asked != asked_colours_.end()) {
        return asked->second;
    }
    if (asked_colours_.size() == max_asked_colours) {
        return std::nullopt;
    }
    return asked_colours_.emplace_back(text, client_.named_colour(text)).second;
}

/// Pairs of index and colour; "?" asks. Indices count from `base` on.
void Terminal::osc_palette(std::string_view number, int base, std::string_view data) {
    while (!data.empty()) {
        const int given = parse_number(take_field(data));
        const std::string_view text = take_field(data);
        if (given < 0 || !is_colour(base + given)) {
            continue;
        }
        const int index = base + given;
        const bool special = index >= special_base;
        if (text == "?") {
            reply_colour(std::string(number) + ';' + std::to_string(given),
                         special ? palette_.colour(special_role(index)) : palette_.colour(index));
        } else if (const auto wanted = colour(text)) {
            special ? palette_.set(special_role(index), *wanted) : palette_.set(index, *wanted);
            palette_changed();
        }
    }
}

/// 10 to 19: the colours from role `number` on. 110 to 119: takes one back.
void Terminal::osc_role(int number, std::string_view data) {
    if (number >= 100 + first_role && number <= 100 + last_role) {
        palette_.reset(role_of(number));
        palette_changed();
        return;
    }
    for (; number >= first_role && number <= last_role && !data.empty(); ++number) {
        const std::string_view text = take_field(data);
        if (text == "?") {
            reply_colour(std::to_string(number), palette_.colour(role_of(number)));
        } else if (const auto wanted = colour(text)) {
            palette_.set(role_of(number), *wanted);
            palette_changed();
        }
    }
}

/// Without an index all of OSC 4's or 5's.
void Terminal::osc_reset_palette(int base, std::string_view data) {
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
    palette_changed();
}

/// `selections ; text in base 64`. Never read; written where the user permits it.
void Terminal::osc_selection(std::string_view data) {
    const std::string_view which = take_field(data);
    const std::string text = from_base64(data);
    const bool is_text = text.find('\0') == std::string::npos;
    if (!permissions_.clipboard || data == "?" || text.empty() || !is_text) {
        return;
    }
    const bool clipboard = which.find('c') != std::string_view::npos;
    client_.selection_written(clipboard ? Client::Selection::clipboard : Client::Selection::primary, text);
}

}  // namespace terminal
