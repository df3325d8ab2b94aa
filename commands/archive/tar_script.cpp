// SPDX-License-Identifier: MIT
#include "commands/archive/tar_script.h"

#include "browsers/paths.h"
#include "shell/quoting.h"
#include "shell/text.h"

#include <algorithm>

#include <fmt/format.h>

namespace {

/// What stands before a ":" is a host for tar, unless there is a "/" in it.
std::string archive_operand(const std::string& archive) {
    const bool like_a_host = archive.find(':') < archive.find('/');
    return like_a_host ? "./" + archive : archive;
}

/// GNU tar reads a backslash in the name of a file to be packed as C does.
bool has_backslash(const PackedFile& file) { return file.path.find('\\') != std::string::npos; }

std::string packed_operand(const PackedFile& file, PackedNames names, ShellFamily shell) {
    const auto word = [shell](const std::string& name) { return script_word(name, shell); };
    if (names == PackedNames::absolute) {
        return word(file.path);
    }
    if (file.is_directory) {
        return fmt::format("-C {} .", word(file.path));
    }
    return fmt::format("-C {} {}", word(parent_directory(file.path)), word(getfilename(file.path)));
}

std::string change_directory(const std::string& directory, ShellFamily shell) {
    return directory.empty() ? "" : fmt::format("cd {}\n", script_word(directory, shell));
}

}  // namespace

std::string pack_script(const std::string& archive, const std::string& directory,
                        const std::vector<PackedFile>& files, PackedNames names, ShellFamily shell) {
    std::string script = "# Orvik pack files using tar\n\n" + change_directory(directory, shell) +
                         "tar cfv " + script_word(archive_operand(archive), shell);
    if (std::ranges::any_of(files, has_backslash)) {
        script += " \\\n--no-unquote";
    }
    for (const PackedFile& file : files) {
        script += " \\\n" + packed_operand(file, names, shell);
    }
    return script + "\n";
}

std::string unpack_script(const std::string& archive, const std::string& directory, ShellFamily shell) {
    return "# Orvik unpack file\n\n" + change_directory(directory, shell) + "tar xfv " +
           script_word(archive_operand(archive), shell) + "\n";
}
