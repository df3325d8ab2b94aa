// SPDX-License-Identifier: MIT
#pragma once

/// Makes terminal views known to assistive tools: role terminal, with the accessible text interface. May be
/// called more than once.
void install_terminal_accessibility();
