// SPDX-License-Identifier: MIT
#pragma once

#include "settings/setup_format.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"

#include <array>
#include <string>
#include <string_view>
#include <variant>

/// A line that belongs to no control any more: what is written there; what is read there is ignored.
struct UnusedLine {
    std::string_view text;
};

/// A line of the setup file and the control whose value it holds.
struct SetupEntry {
    std::size_t line;
    std::variant<TextField*, NumberField*, Choice*, CheckBoxes*, CheckBox*, UnusedLine> control;
};

using SetupTable = std::array<SetupEntry, setup_lines - 1>;

/// The lines 2 to 90, in order. All windows exist.
[[nodiscard]] SetupTable setup_table();

/// The values of all controls as the file's lines 2 to 90.
[[nodiscard]] std::array<std::string, setup_lines - 1> setup_values();
/// Sets every control from its line.
void set_setup_values(const SetupLines& lines);
