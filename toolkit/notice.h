// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <string_view>

class Frame;

/// Asks a question in a dialog of `owner` and waits for the answer: the index of the chosen button. The first
/// button is the default, the last one is what Escape or closing the dialog gives. The text is shown as plain
/// text.
int notice_prompt(Frame& owner, std::string_view message, std::initializer_list<std::string_view> buttons);
