// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

#include <unistd.h>

namespace terminal {

/// Owns a file descriptor and closes it at the end, unless it is released; negative for none.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() { reset(-1); }
    Descriptor(Descriptor&& other) noexcept : number_(other.release()) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    [[nodiscard]] int get() const { return number_; }
    /// Closes it and owns another one.
    void reset(int number) {
        if (number_ >= 0) {
            close(number_);
        }
        number_ = number;
    }
    [[nodiscard]] int release() { return std::exchange(number_, -1); }

  private:
    int number_;
};

}  // namespace terminal
