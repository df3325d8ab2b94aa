// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/terminal.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// Checks what the terminal tells, as it is told, and keeps it.
class CheckedClient : public terminal::Client {
  public:
    void reply(std::string_view bytes) override;
    void bell() override { told += '\a'; }
    void title_changed(std::string_view title) override;

    std::string replies;
    std::string told;
};

/// A row that keeps its number and its stamp shows the same; whoever paints rests on it.
class StampCheck {
  public:
    void look(const terminal::Terminal& terminal);
    /// A resize gives rows other numbers.
    void forget() { seen_.clear(); }

  private:
    struct Seen {
        std::uint64_t stamp = 0;
        std::vector<terminal::Cell> cells;
    };
    std::map<terminal::RowId, Seen> seen_;
};

/// What holds of a terminal at all times: size and cursor are within their limits, wide characters are whole,
/// every cell has text.
void check_picture(const terminal::Terminal& terminal);

/// Writes, and checks that it costs no more time and memory than so few bytes may.
void check_cost(terminal::Terminal& terminal, std::string_view bytes);

/// All that can be seen of a terminal, as text; equal for equal pictures.
std::string picture(const terminal::Terminal& terminal);

/// The logical lines of screen and scrollback, without the blank ones at the end.
std::string all_text(const terminal::Terminal& terminal);
