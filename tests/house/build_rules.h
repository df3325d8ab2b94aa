// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// Reads every CMakeLists.txt of a source tree and reports what could leave a file out unnoticed, one text a
/// fault: "path:line: what is wrong", sorted. A build file names its sources and folders one by one, so that
/// a missing one stops the build, and every C++ source is named.
[[nodiscard]] std::vector<std::string> build_faults(const std::filesystem::path& tree);
