// SPDX-License-Identifier: MIT
#include "settings/setup_file.h"

#include "browsers/listed_file.h"
#include "settings/notify.h"
#include "settings/setup_format.h"
#include "settings/setup_table.h"
#include "shell/files.h"
#include "shell/messages.h"
#include "shell/process.h"

#include <cstring>
#include <filesystem>

#include <fmt/format.h>
#include <fmt/printf.h>

namespace {

/// More is not read of a file; what follows the last line has no meaning.
constexpr std::size_t most_bytes = setup_lines * (longest_setup_line + 1);

std::string loaded_file;

std::string startup_setup_file() { return fmt::sprintf("%s/Orvik.setup", startup_dir); }

}  // namespace

int save_setup(const std::string& path) {
    const std::array values = setup_values();
    if (const std::optional<std::size_t> line = unwritable_setup_line(values)) {
        report(fmt::format("{} not written: line {} would be too long or hold a line end\n", path, *line));
        return 0;
    }
    if (const int error = save_file(path, format_setup(values)); error != 0) {
        report(fmt::format("{} not written: {}\n", path, std::strerror(error)));
        return 0;
    }
    return 1;
}

int load_setup(const std::string& path, WhenDoubtful when_doubtful) {
    const LoadedFile file = load_file(path, most_bytes, when_doubtful);
    if (!file.text) {
        return 0;
    }
    const std::optional<SetupLines> lines = parse_setup(*file.text);
    if (!lines) {
        return -1;
    }
    set_setup_values(*lines);
    loaded_file = path;
    return 1;
}

int load_setup_at_startup() {
    // The setup names a file that the shell is told to source: of a directory that others can write to, as
    // /tmp, it must be the user's own.
    std::error_code unknown;
    const bool at_home = std::filesystem::equivalent(startup_dir, home_dir, unknown);
    int result = at_home ? 0 : load_setup(startup_setup_file(), WhenDoubtful::refuse);
    if (result != 1) {
        result = load_setup(fmt::sprintf("%s/Orvik.setup", home_dir));
    }
    report_load(setup_load, result);
    return result;
}

std::string loaded_setup_file() { return loaded_file; }

Message Save_current_setup() {
    const std::string path = startup_setup_file();
    return save_setup(path) == 1 ? fmt::format("Setup saved to {}", path) : "Could not save Orvik.setup";
}

Message FileListLoadSetup() {
    const ListedFile file = file_to_load();
    if (!file) {
        return file.refusal;
    }
    const int result = load_setup(file.path);
    return result == 1 ? fmt::format("Setup loaded from {}", file.path) : load_message(setup_load, result);
}
