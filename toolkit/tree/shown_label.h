// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>

/// A label as it is shown: control characters as ^J, bytes that are no UTF-8 as \xff, and characters that
/// are invisible or turn the text around as \u202e.
QString shown_label(std::string_view label);

/// Whether a label is printable ASCII: it is shown as it is then.
[[nodiscard]] bool is_plain(std::string_view label);
