// SPDX-License-Identifier: MIT
#pragma once

namespace terminal {

/// Cells a character takes: 0 for what joins the character before it (combining marks, joiners, selectors),
/// 2 for East Asian wide and emoji characters. Counted by single characters, as wcwidth(3) does and programs
/// therefore expect, also within sequences that a font draws as one emoji.
int character_width(char32_t character);

}  // namespace terminal
