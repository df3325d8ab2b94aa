// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

class Frame;

/// The button that Return presses in a notice: the last one where the others lose something.
enum class DefaultButton : std::uint8_t { first, last };

/// Asks a question in a dialog of `owner` and waits for the answer: the index of the chosen button. The last
/// button is what Escape or closing the dialog gives. The texts are shown as plain text; `details`, such as
/// the names of files, stand under the message, each in a line of its own.
[[nodiscard]] int notice_prompt(Frame& owner, std::string_view message,
                                std::initializer_list<std::string_view> buttons,
                                DefaultButton default_button = DefaultButton::first,
                                const std::vector<std::string>& details = {});

/// Asks with "Yes" and "Cancel" whether something may be done that cannot be taken back. Return is "Cancel".
[[nodiscard]] bool agreed(Frame& owner, std::string_view question,
                          const std::vector<std::string>& details = {});
