// SPDX-License-Identifier: MIT
#include "fuzz/check.h"
#include "fuzz/input.h"
#include "shell/status_file.h"

#include <algorithm>

/// The file in which the shell tells its state.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ShellStatus status = parse_status(as_text(data, size));
    const std::pair<std::string_view, std::size_t> values[] = {
        {status.prompt, 79}, {status.cwd, 1023}, {status.host, 79}, {status.user, 79}, {status.view, 99}};
    for (const auto& [value, longest] : values) {
        require(value.size() <= longest, "a value is too long");
        require(value.find_first_of(std::string_view("\n\0", 2)) == std::string_view::npos,
                "more than a line");
    }
    const std::string again = "P:" + status.prompt + "\nC:" + status.cwd + "\nH:" + status.host +
                              "\nU:" + status.user + "\nV:" + status.view + "\n";
    (void)status_line(parse_status(again), status_view | status_host | status_pid | status_user, 1);
    return 0;
}
