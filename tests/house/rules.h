// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// Reads every C++ file of a source tree and reports what breaks the rules of the house, one text a fault:
/// "path:line: what is wrong", sorted. The rules are about structure: which folder may include which, cycles
/// of modules (a header and its source are one), length, licence lines, and the few names that must not leave
/// their room.
[[nodiscard]] std::vector<std::string> house_faults(const std::filesystem::path& tree);
