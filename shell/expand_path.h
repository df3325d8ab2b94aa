// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// Expands a path as its user wrote it: blanks around it are cut, a backslash takes the next character as it
/// stands, "$NAME" and "${NAME}" give the environment variable (left alone when unset), a leading "~" or
/// "~user" the home directory (left alone for an unknown user). Commands in it are never run.
std::string expand_path(std::string_view input);
