// SPDX-License-Identifier: MIT
#include "terminal/engine.h"

#include <cassert>
#include <charconv>

// Operating system commands: title, colours and links. All others are read and ignored: nothing written to
// the terminal gets at the clipboard, the directory shown, notices or files.

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

/// Cuts valid UTF-8 to at most `size` bytes, between characters.
std::string_view cut(std::string_view text, std::size_t size) {
    if (text.size() <= size) {
        return text;
    }
    while (size > 0 && (static_cast<std::uint8_t>(text[size]) & 0xC0) == 0x80) {
        --size;
    }
    return text.substr(0, size);
}

constexpr int first_role = 10;  // OSC 10, 11, 12 set what OSC 110, 111, 112 reset
constexpr int role_count = 3;

ColourRole role_of(int number) { return static_cast<ColourRole>(number % 100 - first_role); }

}  // namespace

void Engine::operating_system_command(std::string_view data) {
    const int number = parse_number(take_field(data));
    switch (number) {
        case 0:
        case 2:
            set_title(data);
            break;
        case 4:
            osc_palette(data);
            break;
        case 8:
            set_link(data);
            break;
        case 10:
        case 11:
        case 12:
            osc_role(number, data);
            break;
        case 104:
            osc_reset_palette(data);
            break;
        case 110:
        case 111:
        case 112:
            palette_.reset(role_of(number));
            palette_changed();
            break;
        default:
            break;
    }
    assert(is_consistent());
}

/// The parser has left no controls in it.
void Engine::set_title(std::string_view text) { client_.title_changed(cut(text, max_title)); }

/// `8 ; parameters ; address`. Addresses are in printable ASCII; with anything else, or when there are too
/// many, the text that follows is no link.
void Engine::set_link(std::string_view data) {
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
        link.id = cut(parameters.substr(0, parameters.find(':')), max_link);
    }
    auto number = links_.intern(link);
    if (!number && links_.wants_collection()) {
        collect_unused();
        number = links_.intern(link);
    }
    pen_.link = static_cast<LinkId>(number.value_or(0));
}

void Engine::palette_changed() { epoch_ = ++clock_; }

/// Ends with ST always, whatever ended the question: a reply holds no BEL.
void Engine::reply_colour(std::string_view prefix, Rgb colour) {
    reply("\x1b]" + std::string(prefix) + ';' + colour_text(colour) + "\x1b\\");
}

/// Pairs of index and colour; "?" asks.
void Engine::osc_palette(std::string_view data) {
    while (!data.empty()) {
        const int index = parse_number(take_field(data));
        const std::string_view text = take_field(data);
        if (index < 0 || index >= Palette::size) {
            continue;
        }
        if (text == "?") {
            reply_colour("4;" + std::to_string(index), palette_.colour(index));
        } else if (const auto colour = parse_colour(text)) {
            palette_.set(index, *colour);
            palette_changed();
        }
    }
}

/// The colours from role `number` on.
void Engine::osc_role(int number, std::string_view data) {
    for (; !data.empty() && number < first_role + role_count; ++number) {
        const std::string_view text = take_field(data);
        if (text == "?") {
            reply_colour(std::to_string(number), palette_.colour(role_of(number)));
        } else if (const auto colour = parse_colour(text)) {
            palette_.set(role_of(number), *colour);
            palette_changed();
        }
    }
}

void Engine::osc_reset_palette(std::string_view data) {
    if (data.empty()) {
        palette_.reset_indexed();
    }
    while (!data.empty()) {
        const int index = parse_number(take_field(data));
        if (index >= 0 && index < Palette::size) {
            palette_.reset(index);
        }
    }
    palette_changed();
}

}  // namespace terminal
