// SPDX-License-Identifier: MIT
#include "settings/load_file.h"

#include "shell/files.h"
#include "shell/messages.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include <fmt/format.h>

namespace {

/// A row or an item for each line of a longer file would hold up the start.
constexpr int most_lines = 100'000;

/// Cuts a text behind so many lines. Whether there was more.
bool cut_behind_lines(std::string& text) {
    std::size_t end = 0;
    for (int line = 0; line < most_lines && end < text.size(); ++line) {
        end = std::min(text.find('\n', end), text.size() - 1) + 1;
    }
    const bool more = end < text.size();
    text.resize(end);
    return more;
}

}  // namespace

LoadedFile load_file(const std::string& path, std::size_t limit, WhenDoubtful when_doubtful) {
    FileContents contents = read_file(path, limit);
    const bool refused = !contents.doubt.empty() && when_doubtful == WhenDoubtful::refuse;
    if (refused) {
        contents.error = EPERM;
        report(fmt::format("{} not loaded: it {}\n", path, contents.doubt));
    } else if (!contents.doubt.empty()) {
        report(fmt::format("Warning: {} {}\n", path, contents.doubt));
    }
    if (cut_behind_lines(contents.text) && contents.error == 0) {
        contents.error = EFBIG;
    }
    if (contents.error == EFBIG) {
        report(fmt::format("{} is too large: only its beginning is loaded\n", path));
    } else if (contents.error != 0) {
        if (!refused && contents.error != ENOENT) {
            report(fmt::format("{} not read: {}\n", path, std::strerror(contents.error)));
        }
        return {.error = contents.error};
    }
    return {.text = std::move(contents.text), .error = contents.error};
}

Message load_message(const LoadTexts& texts, int result) {
    switch (result) {
        case -1:
            return Message(texts.wrong_header);
        case 0:
            return Message(texts.unreadable);
        case 2:
            return Message(texts.bad_line);
        default:
            return {};
    }
}

void report_load(const LoadTexts& texts, int result) {
    if (const Message message = load_message(texts, result); !message.empty()) {
        report(fmt::format("{}\n", message));
    }
    if (result == -1 && !texts.header_hint.empty()) {
        report(fmt::format("{}\n", texts.header_hint));
    }
}
