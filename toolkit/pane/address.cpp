// SPDX-License-Identifier: MIT
#include "toolkit/pane/address.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

using terminal::Position;
using terminal::Terminal;

namespace {

constexpr std::size_t longest = 2048;  ///< cells looked at on either side
constexpr std::array schemes{std::string_view("http://"), std::string_view("https://")};

/// RFC 3986, but for the quote, which more often stands round an address than in it.
bool may_be_in_address(char32_t c) {
    constexpr std::string_view marks = "-._~:/?#[]@!$&()*+,;=%";
    const bool letter = (c >= U'a' && c <= U'z') || (c >= U'A' && c <= U'Z') || (c >= U'0' && c <= U'9');
    return letter || (c < 128 && marks.find(static_cast<char>(c)) != std::string_view::npos);
}

/// The character of a cell where it may be part of an address.
std::optional<char> character_at(const Terminal& terminal, Position place) {
    const std::span<const terminal::Cell> cells = terminal.row(place.row).cells;
    const auto column = static_cast<std::size_t>(place.column);
    if (column >= cells.size() || cells[column].is_cluster() || cells[column].is_wide_tail() ||
        !may_be_in_address(cells[column].character())) {
        return std::nullopt;
    }
    return static_cast<char>(cells[column].character());
}

/// The cell before it in its line.
std::optional<Position> before(const Terminal& terminal, Position place) {
    if (place.column > 0) {
        return Position{place.row, place.column - 1};
    }
    if (place.row == terminal.first_row() || !terminal.row(place.row - 1).wrapped) {
        return std::nullopt;
    }
    return Position{place.row - 1, static_cast<int>(terminal.row(place.row - 1).cells.size()) - 1};
}

std::optional<Position> behind(const Terminal& terminal, Position place) {
    const terminal::Row row = terminal.row(place.row);
    if (place.column + 1 < std::ssize(row.cells)) {
        return Position{place.row, place.column + 1};
    }
    return row.wrapped && place.row + 1 < terminal.end_row() ? std::optional(Position{place.row + 1, 0})
                                                             : std::nullopt;
}

/// Where the address of a run of characters begins that holds the one at `at`.
std::size_t find_begin(const std::string& run, std::size_t at) {
    std::size_t begin = std::string::npos;
    for (const std::string_view scheme : schemes) {
        const std::size_t found = run.rfind(scheme, at);
        begin = found != std::string::npos && (begin == std::string::npos || found > begin) ? found : begin;
    }
    return begin;
}

/// The length without what only stands behind the address.
std::size_t length_of(std::string_view address) {
    constexpr std::string_view sentence_marks = ".,;:!?*";
    for (;;) {
        const char last = address.back();
        const char opening = last == ')' ? '(' : '[';
        const bool closes = last == ')' || last == ']';
        const bool unopened =
            closes && std::ranges::count(address, last) > std::ranges::count(address, opening);
        if (!unopened && sentence_marks.find(last) == std::string_view::npos) {
            return address.size();
        }
        address.remove_suffix(1);
    }
}

}  // namespace

PlainAddress address_at(const Terminal& terminal, Position place) {
    if (place.row < terminal.first_row() || place.row >= terminal.end_row() ||
        !character_at(terminal, place)) {
        return {};
    }
    std::vector<Position> places;
    for (std::optional<Position> at = place; at && places.size() < longest; at = before(terminal, *at)) {
        if (!character_at(terminal, *at)) {
            break;
        }
        places.push_back(*at);
    }
    std::ranges::reverse(places);
    const std::size_t own = places.size() - 1;
    for (std::optional<Position> at = behind(terminal, place); at && places.size() < own + longest;
         at = behind(terminal, *at)) {
        if (!character_at(terminal, *at)) {
            break;
        }
        places.push_back(*at);
    }
    std::string run;
    for (const Position& at : places) {
        run += *character_at(terminal, at);
    }
    const std::size_t begin = find_begin(run, own);
    if (begin == std::string::npos) {
        return {};
    }
    const std::size_t length = length_of(std::string_view(run).substr(begin));
    const std::string text = run.substr(begin, length);
    const bool names_host = text.find("://") + 3 < text.size();
    if (own >= begin + length || !names_host) {
        return {};
    }
    const Position last = places[begin + length - 1];
    return {text, {places[begin], {last.row, last.column + 1}}};
}
