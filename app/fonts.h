// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/font.h"

#include <string>

// The font handles of the whole process.

inline Font icon_font;   ///< size 10
inline Font fixed_font;  ///< of fixed width, at the scale of "Orvik.FontSize"
inline Font bold_font;
inline Font default_font;  ///< the text panes' font, named by "Orvik.FontName"

inline Font DS_font_extra_small;  ///< size 8
inline Font DS_font_small;
inline Font DS_font_medium;
inline Font DS_font_large;
inline Font DS_font_extra_small_bold;  ///< size 8
inline Font DS_font_small_bold;
inline Font DS_font_medium_bold;
inline Font DS_font_large_bold;

/// Finds all of them but `default_font`.
void find_fonts();
/// The name of the text panes' font, as "Orvik.FontName" says.
std::string font_name();
/// Applies "Orvik.FontSize" and "Orvik.FontName" to `fixed_font`, `default_font` and the text panes.
void apply_font_resources();
