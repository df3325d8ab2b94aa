// SPDX-License-Identifier: MIT
#include "commands/missing_program.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include <fmt/format.h>
#include <unistd.h>

namespace {

struct Packaged {
    std::string_view program;
    std::string_view package;
};

constexpr std::array packages{
    Packaged{"ssh", "openssh-client"}, Packaged{"scp", "openssh-client"}, Packaged{"rlogin", "rsh-client"},
    Packaged{"rcp", "rsh-client"},     Packaged{"mail", "bsd-mailx"},     Packaged{"uuencode", "sharutils"},
};

bool is_in_path(std::string_view name) {
    const char* const path = std::getenv("PATH");
    std::string_view rest = path == nullptr ? "/usr/bin:/bin" : path;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(':'), rest.size());
        // An empty part is the working directory.
        if (access(fmt::format("{}/{}", end == 0 ? "." : rest.substr(0, end), name).c_str(), X_OK) == 0) {
            return true;
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return false;
}

}  // namespace

std::string missing_program(std::string_view name) {
    if (is_in_path(name)) {
        return {};
    }
    const auto* const found = std::ranges::find(packages, name, &Packaged::program);
    const std::string package =
        found == packages.end() ? "" : fmt::format(": the Debian package {} has it", found->package);
    return fmt::format("{} not found in PATH{}", name, package);
}
