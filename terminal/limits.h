// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace terminal {

// What a program in the terminal can make us store or do is bounded here. Each limit has its test in
// limits_test.cpp.

inline constexpr int min_columns = 2;  ///< a wide character must fit
inline constexpr int max_columns = 2'048;
inline constexpr int min_rows = 1;
inline constexpr int max_rows = 2'048;

inline constexpr std::size_t max_parameters = 32;    ///< of a control sequence; the rest is dropped
inline constexpr int max_parameter_value = 65'535;   ///< greater values are taken for this one
inline constexpr std::size_t max_intermediates = 2;  ///< a sequence with more is ignored
inline constexpr std::size_t max_string = 8'192;     ///< bytes of an OSC or DCS; a longer one is ignored
inline constexpr std::size_t max_title = 1'024;      ///< bytes; a longer title is cut

inline constexpr std::size_t max_saved_states = 10;    ///< pushed titles, pushed attributes
inline constexpr std::size_t max_asked_colours = 256;  ///< different colour names that are looked up
inline constexpr std::size_t max_colour_name = 64;

inline constexpr std::size_t max_styles = 65'535;          ///< at one time, the plain one included
inline constexpr std::size_t max_links = 16'384;           ///< at one time
inline constexpr std::size_t max_link = 2'048;             ///< bytes of an address; a longer one is no link
inline constexpr std::size_t max_clusters = 65'536;        ///< at one time
inline constexpr std::size_t max_cluster_characters = 16;  ///< further combining characters are dropped
inline constexpr std::size_t max_scrollback_rows = 10'000'000;
inline constexpr int max_piece_cells = 8'192;  ///< of a line in the scrollback; a longer one is cut in pieces

}  // namespace terminal
