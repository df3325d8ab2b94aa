// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

/// Whether any program, or this one, holds the X primary selection (ICCCM, section 2.6.1).
bool selection_inquire();
/// The contents of the primary selection as text (UTF-8); nothing when nobody holds it or its holder gives no
/// text.
std::optional<std::string> selection_ask();
/// Puts text into the clipboard.
void copy_to_clipboard(const std::string& text);
