// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>
#include <string_view>
#include <vector>

/// UTF-8 bytes as a QString. A byte that is not valid UTF-8 becomes a lone low surrogate (U+DC80 to U+DCFF
/// for the bytes 0x80 to 0xFF, as Python's "surrogateescape" does), so that `from_qstring` gives the same
/// bytes back.
QString to_qstring(std::string_view text);
std::string from_qstring(const QString& text);

/// For text that is only looked at: control characters show as their pictures (U+2400 on), so that a name
/// holding a line feed cannot pass for two.
QString visible_text(std::string_view text);

/// The same for a text that is edited: its bytes that are not valid UTF-8 stay as they are.
QString visible_controls(QString text);

/// A text for a tool tip as it is, whatever it holds: Qt would take one that looks like HTML for that. Long
/// texts go over several lines.
QString plain_tool_tip(std::string_view text);
/// The same for several texts, each beginning a line.
QString plain_tool_tip(const std::vector<std::string>& lines);

/// A label for a widget that takes "&" for the mark of a mnemonic.
QString without_mnemonic(std::string_view label);
