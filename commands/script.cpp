// SPDX-License-Identifier: MIT
#include "commands/script.h"

#include "shell/files.h"
#include "shell/process.h"

#include <sys/stat.h>
#include <unistd.h>

bool save_script(const std::string& path, std::string_view text, mode_t mode) {
    struct stat there {};
    if (lstat(path.c_str(), &there) == 0 && there.st_uid != geteuid()) {
        return false;
    }
    return save_file(path, text, {.links = Links::replace, .exact_mode = mode}) == 0;
}

std::string in_script(std::string_view name) { return script_word(name, user_shell.family); }

Message run_script(const std::string& directory, const std::string& text, Remember remember) {
    const std::string path = directory + "/.orvik-script";
    if (!save_script(path, text, 0755)) {
        return "Could not open .orvik-script";
    }
    return send(CommandLine().path(path), remember);
}
