// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// Looks a resource up in the X resource database (Xlib, chapter 15): the server's RESOURCE_MANAGER property
/// or
/// ~/.Xdefaults, the file named by XENVIRONMENT or ~/.Xdefaults-HOST, and the -xrm options, later ones first.
/// The name is tried in the given spelling and with its class name; `fallback` where nothing is set.
std::string defaults_get_string(std::string_view name, std::string_view class_name,
                                std::string_view fallback);
/// Whether the value is "true", "yes", "on" or "1", in letters of either case.
bool defaults_get_boolean(std::string_view name, std::string_view class_name);
/// The same as a whole number; `fallback` also for a value that is none.
int defaults_get_integer(std::string_view name, std::string_view class_name, int fallback);
