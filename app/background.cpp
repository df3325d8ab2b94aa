// SPDX-License-Identifier: MIT
#include "app/background.h"

#include "app/messages.h"

#include <cstdlib>

void run_in_background(const std::string& command) {
    const std::string line = command + " &\n";
    report(line);
    if (std::system(line.c_str()) == -1) {
        report("No shell could be started for it\n");
    }
}
