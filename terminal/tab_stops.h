// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace terminal {

/// The columns that HT goes to.
class TabStops {
  public:
    explicit TabStops(int columns) { resize(columns); }

    /// Columns that come in get the stops of a new terminal.
    void resize(int columns);
    void reset();
    void set(int column) { stops_[static_cast<std::size_t>(column)] = true; }
    void clear(int column) { stops_[static_cast<std::size_t>(column)] = false; }
    void clear_all() { stops_.assign(stops_.size(), false); }

    /// The first stop behind a column, at most `last`.
    [[nodiscard]] int next(int column, int last) const;
    /// The last stop before a column, at least `first`.
    [[nodiscard]] int previous(int column, int first) const;
    [[nodiscard]] int columns() const { return static_cast<int>(stops_.size()); }

    /// As DECTABSR and DECRSPS write them: "9/17/25".
    [[nodiscard]] std::string text() const;
    /// Takes such a text back; anything but digits and "/" changes nothing, columns beyond are left out.
    void take(std::string_view text);

  private:
    std::vector<bool> stops_;
};

}  // namespace terminal
