// SPDX-License-Identifier: MIT
#include "fuzz/check.h"
#include "fuzz/input.h"
#include "settings/history_format.h"

/// The history file. What was read is the same when it is written and read again.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (const auto commands = parse_history(as_text(data, size))) {
        require(parse_history(format_history(*commands)) == commands, "the history does not come back");
    }
    return 0;
}
