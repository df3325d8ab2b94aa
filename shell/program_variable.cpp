// SPDX-License-Identifier: MIT
#include "shell/program_variable.h"

#include <cstdlib>

#include <fmt/format.h>

Message unset_program(const char* variable) {
    const char* program = std::getenv(variable);
    const bool set = program != nullptr && *program != '\0';
    return set ? Message() : fmt::format("Environment variable {} is not set", variable);
}
