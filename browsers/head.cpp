// SPDX-License-Identifier: MIT
#include "browsers/head.h"

#include "browsers/file_type.h"
#include "browsers/first_lines.h"
#include "shell/files.h"
#include "shell/messages.h"
#include "ui/message_board.h"

#include <cerrno>
#include <optional>

#include <fmt/format.h>
#include <sys/stat.h>

Head head_of(const std::string& path) {
    constexpr int lines = 10;
    constexpr std::size_t line_length = 1023;
    const std::optional<mode_t> mode = file_mode(path);
    if (!mode || !S_ISREG(*mode)) {
        return {.path = path, .refusal = mode ? "Not a regular file" : "Illegal file"};
    }
    const FileContents file = read_file(path, lines * line_length);
    if (file.error != 0 && file.error != EFBIG) {
        return {.path = path, .refusal = "Can't open file for read"};
    }
    return {.path = path, .lines = std::string(first_lines(file.text, lines, line_length))};
}

Message show_head(const Head& head) {
    if (head.refusal.empty()) {
        report(fmt::format(" \n\n{} \n\n{}", head.path, head.lines));
        message_board().open();
    }
    return head.refusal;
}
