// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Says on the Message Board that a program is not installed, where it is not.
void report_missing(std::string_view program);
