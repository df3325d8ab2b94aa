// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

class Frame;

/// Types a line and has the shell's state shown afterwards; whether it was typed. The frame's left footer is
/// cleared, or tells why it was not.
bool send_line(Frame& frame, std::string_view line);
