// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QFont;

/// Takes over what the desktop says of looks, now and whenever it changes: its fonts, and light or dark where
/// the X resource "Orvik.Palette" does not decide that. To be called once, when the toolkit is ready.
void follow_desktop();
/// Called after such a change, for fonts that the tool has chosen itself.
void on_desktop_change(std::function<void()> changed);

/// The desktop's font of fixed width, in its size.
[[nodiscard]] QFont desktop_fixed_font();
