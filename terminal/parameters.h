// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/limits.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <cstddef>

namespace terminal {

/// The parameters of a control sequence (ECMA-48 5.4.2): numbers between semicolons, each with
/// sub-parameters behind colons. Bounded in number and value.
class Parameters {
  public:
    void clear() {
        size_ = 0;
        joined_.reset();
        dropping_ = false;
    }
    void digit(int value) {
        begin();
        if (dropping_) {
            return;
        }
        int& last = values_[size_ - 1];
        last = std::min(std::max(last, 0) * 10 + value, max_parameter_value);
    }
    void semicolon() { next(false); }
    void colon() { next(true); }

    [[nodiscard]] std::size_t size() const { return size_; }
    /// The value; `fallback` where it is missing.
    [[nodiscard]] int get(std::size_t index, int fallback = 0) const {
        return index < size_ && values_[index] != missing ? values_[index] : fallback;
    }
    /// The value as a count or a coordinate: missing and 0 mean 1.
    [[nodiscard]] int count(std::size_t index) const { return std::max(get(index, 1), 1); }
    /// Whether a colon stands before it: it belongs to the parameter before.
    [[nodiscard]] bool is_sub(std::size_t index) const { return index < size_ && joined_[index]; }
    /// Whether there are any sub-parameters.
    [[nodiscard]] bool has_subs() const { return joined_.any(); }
    /// The number of values from `index` on that belong together, sub-parameters included.
    [[nodiscard]] std::size_t group_size(std::size_t index) const {
        std::size_t end = index + 1;
        while (is_sub(end)) {
            ++end;
        }
        return end - index;
    }

  private:
    static constexpr int missing = -1;

    void begin() {
        if (size_ == 0) {
            values_[0] = missing;
            size_ = 1;
        }
    }
    void next(bool joined) {
        begin();
        if (size_ == max_parameters) {
            dropping_ = true;
            return;
        }
        joined_[size_] = joined;
        values_[size_++] = missing;
    }

    std::array<int, max_parameters> values_{};
    std::bitset<max_parameters> joined_;
    std::size_t size_ = 0;
    bool dropping_ = false;
};

}  // namespace terminal
