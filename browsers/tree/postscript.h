// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/tree/plot_page.h"

#include <string>

// The page as PostScript. Texts stand between parentheses as they are: the format is kept, and a name that
// holds a parenthesis or a backslash spoils what is behind it.

std::string generate_psheader(const PlotPage& page);
std::string generate_psfile(const PlotPage& page);
std::string generate_pstrailer();

/// Whether all names show as they are.
bool is_plain_postscript(const PlotPage& page);
