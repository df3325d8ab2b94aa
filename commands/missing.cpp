// SPDX-License-Identifier: MIT
#include "commands/missing.h"

#include "commands/missing_program.h"
#include "shell/messages.h"

void report_missing(std::string_view program) {
    if (const std::string missing = missing_program(program); !missing.empty()) {
        report(missing + "\n");
    }
}
