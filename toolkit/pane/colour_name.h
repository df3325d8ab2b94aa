// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/style.h"

#include <optional>
#include <string_view>

/// A colour as Xlib reads it (XParseColor): by its name on the X server, or in a device-independent form, as
/// "rgbi:1/0.5/0" or "CIELab:50/20/20". May ask the server. Nothing for what is none, or without X.
std::optional<terminal::Rgb> x_colour(std::string_view name);
