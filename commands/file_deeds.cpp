// SPDX-License-Identifier: MIT
#include "commands/file_deeds.h"

#include "browsers/listed_file.h"
#include "browsers/paths.h"
#include "shell/file_copy.h"
#include "shell/file_rename.h"
#include "shell/text.h"
#include "terminal/descriptor.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// What has come of a call that makes a name and fails with EEXIST where something has it.
Deed made(int result, const std::string& name, std::string_view exists, std::string_view otherwise) {
    if (result == 0) {
        return {.new_name = name};
    }
    return {.fault = errno == EEXIST ? exists : otherwise};
}

}  // namespace

Deed copy_as(const FileAndDirectory& at, const std::string& name) {
    const std::string target = path_in(at.directory, name);
    if (is_there(target)) {
        return {.fault = "File already exists"};
    }
    if (file_copy(target, at.file) != COPY_OK) {
        return {.fault = "Copy error"};
    }
    return {.new_name = name};
}

Deed copy_into(const FileAndDirectory& at) {
    const std::optional<std::string> name = name_for_copy(at.directory, getfilename(at.file));
    return name ? copy_as(at, *name) : Deed{.fault = "File alrerady exists", .ends = true};
}

Deed move_into(const FileAndDirectory& at) {
    const std::string name = getfilename(at.file);
    const int error = rename_to_new(at.file, path_in(at.directory, name));
    if (error == EEXIST) {
        return {.fault = "File already exists", .ends = true};
    }
    if (error != 0) {
        return {.fault = "Rename error"};
    }
    return {.is_gone = true, .new_name = name};
}

Deed replace_in(const FileAndDirectory& at) {
    if (file_copy(path_in(at.directory, getfilename(at.file)), at.file) != COPY_OK) {
        return {.fault = "Copy error", .ends = true};
    }
    return {};
}

Deed link_into(const FileAndDirectory& at) {
    // The file itself, not a symbolic link to it, which would lead elsewhere from there.
    const std::string name = getfilename(at.file);
    return made(
        linkat(AT_FDCWD, at.file.c_str(), AT_FDCWD, path_in(at.directory, name).c_str(), AT_SYMLINK_FOLLOW),
        name, "File already exists", "Link error");
}

Deed link_symbolically_into(const FileAndDirectory& at) {
    const std::string name = getfilename(at.file);
    return made(symlink(at.file.c_str(), path_in(at.directory, name).c_str()), name, "File already exists",
                "Link error");
}

Deed rename_in(const FileAndDirectory& at, const std::string& name) {
    const int error = rename_to_new(at.file, path_in(at.directory, name));
    if (error == EEXIST) {
        return {.fault = "File or directory already exists"};
    }
    if (error != 0) {
        return {.error = error};
    }
    return {.is_gone = true, .new_name = name};
}

Deed make_file(const std::string& directory, const std::string& name) {
    constexpr mode_t mode = 0666;  // the umask is taken off
    const terminal::Descriptor file(
        open(path_in(directory, name).c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
    return made(file.get() < 0 ? -1 : 0, name, "File already exists", "Add file error");
}

Deed make_directory(const std::string& directory, const std::string& name) {
    constexpr mode_t mode = 0755;
    if (mkdir(path_in(directory, name).c_str(), mode) == 0) {
        return {.new_name = name};
    }
    if (errno == EEXIST) {
        return {.fault = "Directory already exists"};
    }
    return {.error = errno};
}

Deed remove_file(const WalkedNode& node) {
    if (!S_ISREG(node.glance.mode)) {
        return {.fault = "Not a regular file", .ends = true};
    }
    if (unlink(node.path.c_str()) != 0) {
        return {.fault = "File not deleted"};
    }
    return {.is_gone = true};
}

Deed remove_directory(const WalkedNode& node) {
    if (rmdir(node.path.c_str()) != 0) {
        return {.error = errno};
    }
    return {.is_gone = true};
}
