// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/terminal.h"
#include "terminal/text.h"

#include <string>
#include <string_view>
#include <vector>

namespace terminal {

inline std::string repeated(std::string_view text, std::size_t count) {
    std::string out;
    for (std::size_t i = 0; i < count; ++i) {
        out += text;
    }
    return out;
}

/// Keeps what the engine tells.
struct Recorder : Client {
    void reply(std::string_view bytes) override {
        replies += bytes;
        ++reply_calls;
    }
    void bell() override { ++bells; }
    void title_changed(std::string_view text) override { titles.emplace_back(text); }
    void size_changed() override { heard += "size|"; }
    void window_requested(const WindowRequest& request) override {
        heard += "window " + std::to_string(static_cast<int>(request.kind)) + ' ' +
                 std::to_string(request.corner.x) + ',' + std::to_string(request.corner.y) + '|';
    }
    [[nodiscard]] WindowGeometry window() const override {
        return {{8, 16}, {80, 64}, {160, 128}, {1600, 640}, {3, 4}, {5, 6}};
    }
    std::optional<Rgb> named_colour(std::string_view name) override {
        return name == "light blue" ? std::optional(Rgb{0xAD, 0xD8, 0xE6}) : std::nullopt;
    }
    void selection_written(Selection selection, std::string_view text) override {
        heard.append(selection == Selection::clipboard ? "clipboard " : "primary ").append(text) += '|';
    }

    std::string replies;
    std::string heard;
    int reply_calls = 0;
    int bells = 0;
    std::vector<std::string> titles;
};

/// A terminal and what it told.
struct Screened {
    explicit Screened(Size size = {10, 4}, std::size_t scrollback_rows = 1'000)
        : terminal({size, scrollback_rows}, recorder) {}

    Recorder recorder;
    Terminal terminal;

    /// The text of a row without blanks at its end.
    [[nodiscard]] std::string row_text(RowId id) const {
        std::string text;
        for (const Cell& cell : terminal.row(id).cells) {
            terminal.append_text(cell, text);
        }
        text.resize(text.find_last_not_of(' ') + 1);
        return text;
    }
    /// The rows of the screen, "|" between them; a row that wraps ends with ">".
    [[nodiscard]] std::string screen() const { return rows(terminal.screen_top(), terminal.end_row()); }
    /// The rows of the scrollback.
    [[nodiscard]] std::string scrollback() const { return rows(terminal.first_row(), terminal.screen_top()); }
    /// Row and column of the cursor on the screen, "2,3"; "2,9+" with a wrap pending.
    [[nodiscard]] std::string cursor() const {
        const Cursor at = terminal.cursor();
        return std::to_string(at.position.row - terminal.screen_top()) + ',' +
               std::to_string(at.position.column) + (at.wrap_pending ? "+" : "");
    }
    /// All logical lines, without blank ones at the end.
    [[nodiscard]] std::string all_text() const {
        std::string text = text_between(terminal, {{terminal.first_row(), 0}, {terminal.end_row(), 0}});
        text.resize(text.find_last_not_of('\n') + 1);
        return text;
    }
    /// The style of a cell of the screen.
    [[nodiscard]] Style style(int row, int column) const {
        const auto cells = terminal.row(terminal.screen_top() + row).cells;
        const auto index = static_cast<std::size_t>(column);
        return index < cells.size() ? terminal.style(cells[index].style) : Style{};
    }

  private:
    [[nodiscard]] std::string rows(RowId begin, RowId end) const {
        std::string text;
        for (RowId id = begin; id < end; ++id) {
            text += (id == begin ? "" : "|") + row_text(id) + (terminal.row(id).wrapped ? ">" : "");
        }
        return text;
    }
};

}  // namespace terminal
