// SPDX-License-Identifier: MIT
#include "terminal/tab_stops.h"

#include <algorithm>
#include <charconv>

#include <fmt/format.h>

namespace terminal {

namespace {

constexpr std::size_t distance = 8;

}  // namespace

void TabStops::resize(int columns) {
    const std::size_t before = stops_.size();
    stops_.resize(static_cast<std::size_t>(columns));
    for (std::size_t column = before; column < stops_.size(); ++column) {
        stops_[column] = column % distance == 0;
    }
}

void TabStops::reset() {
    const int columns = this->columns();
    stops_.clear();
    resize(columns);
}

int TabStops::next(int column, int last) const {
    do {
        ++column;
    } while (column < last && !stops_[static_cast<std::size_t>(column)]);
    return column;
}

int TabStops::previous(int column, int first) const {
    do {
        --column;
    } while (column > first && !stops_[static_cast<std::size_t>(column)]);
    return column;
}

std::string TabStops::text() const {
    std::string text;
    for (std::size_t column = 0; column < stops_.size(); ++column) {
        if (stops_[column]) {
            text += fmt::format("{}{}", text.empty() ? "" : "/", column + 1);
        }
    }
    return text;
}

void TabStops::take(std::string_view text) {
    if (text.find_first_not_of("0123456789/") != std::string_view::npos) {
        return;
    }
    clear_all();
    while (!text.empty()) {
        const std::string_view number = text.substr(0, text.find('/'));
        std::size_t column = 0;
        std::from_chars(number.data(), number.data() + number.size(), column);
        if (column >= 1 && column <= stops_.size()) {
            stops_[column - 1] = true;
        }
        text.remove_prefix(std::min(number.size() + 1, text.size()));
    }
}

}  // namespace terminal
