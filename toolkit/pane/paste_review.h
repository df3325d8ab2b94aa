// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>

class QWidget;

/// Shows the user what is about to be pasted, with its control characters made visible and with what becomes
/// of it, and calls `accepted` if it is to be pasted. Returns at once.
void review_paste(QWidget* parent, const std::string& text, std::string_view outcome,
                  std::function<void()> accepted);
