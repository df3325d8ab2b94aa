// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/palette.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace terminal {

/// The colours in force, and the operating system commands that set, reset and ask for them.
class Colours {
  public:
    /// Tells a colour by a name that only the X server or Xlib knows.
    using NamedColour = std::function<std::optional<Rgb>(std::string_view name)>;
    explicit Colours(NamedColour named_colour) : named_colour_(std::move(named_colour)) {}

    [[nodiscard]] const Palette& palette() const { return palette_; }
    [[nodiscard]] Palette& palette() { return palette_; }

    struct Outcome {
        bool known = false;  ///< it was a command about colours
        bool changed = false;
        std::vector<std::string> answers;  ///< to what was asked: the bodies of OSC replies
    };
    /// OSC 4, 5, 10 to 19, 104, 105, 110 to 119.
    Outcome command(std::string_view number, std::string_view data);

  private:
    [[nodiscard]] std::optional<Rgb> colour(std::string_view text);
    void set_indexed(std::string_view number, int base, std::string_view data, Outcome& outcome);
    void set_roles(int number, std::string_view data, Outcome& outcome);
    void reset_indexed(int base, std::string_view data);

    NamedColour named_colour_;
    Palette palette_;
    std::vector<std::pair<std::string, std::optional<Rgb>>> asked_;  // what `named_colour_` said
};

}  // namespace terminal
