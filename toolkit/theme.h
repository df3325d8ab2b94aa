// SPDX-License-Identifier: MIT
#pragma once

/// Gives all windows the tool's look: one widget style and one set of colours on every desktop.
void apply_theme();
