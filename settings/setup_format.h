// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

// The text of the setup file "Orvik.setup": a header and a value a line. A line's number says what it means;
// which control that is, the windows' side knows.

/// Lines of the file, the header among them.
inline constexpr std::size_t setup_lines = 90;
/// Bytes of a line that are read at a time, its line feed among them. What follows is the next line.
inline constexpr std::size_t longest_setup_line = 1023;

/// The lines of a setup file, without line feeds: line n of the file is element n - 1, the header the first.
using SetupLines = std::array<std::string, setup_lines>;
/// The values to be written, of the lines 2 to 90.
using SetupValues = std::span<const std::string, setup_lines - 1>;

/// Reads the contents of a setup file; nothing when its first line does not hold "ORVIK_SETUP". Missing lines
/// are empty, a NUL ends a line's value, what follows the last line is ignored.
[[nodiscard]] std::optional<SetupLines> parse_setup(std::string_view contents);

/// The contents of a setup file with these values.
[[nodiscard]] std::string format_setup(SetupValues values);

/// The first line, 2 to 90, whose value would not come back when read: it holds a line feed or a NUL, or does
/// not fit into a line together with its line feed. Nothing when all can be written.
[[nodiscard]] std::optional<std::size_t> unwritable_setup_line(SetupValues values);

/// The number at the beginning of a value, as scanf's "%d" takes it: white space, a sign, digits. 0 when
/// there is none; the nearest int when it is too large.
[[nodiscard]] int parse_number(std::string_view value);
