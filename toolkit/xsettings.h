// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <string_view>

/// The desktop's settings by their names; numbers as text, colours left out.
using XSettings = std::map<std::string, std::string, std::less<>>;

/// Reads the property in which a desktop keeps its settings ("XSETTINGS", the registry of freedesktop.org).
/// What is damaged ends the reading; what stood before it counts.
[[nodiscard]] XSettings parse_xsettings(std::string_view property);
