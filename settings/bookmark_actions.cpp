// SPDX-License-Identifier: MIT
// What choosing a bookmark does, and the main window's buttons that make one. The path of a directory, and
// any that names a file, is one word for the shell, whatever it holds.
#include "browsers/file_type.h"
#include "settings/notify.h"
#include "shell/background.h"
#include "shell/editor.h"
#include "shell/operands.h"
#include "shell/process.h"
#include "shell/quoting.h"
#include "shell/send_line.h"
#include "shell/shell.h"
#include "shell/status.h"
#include "shell/text.h"
#include "ui/bookmark_definition.h"
#include "ui/main_window.h"

#include <cstdlib>
#include <filesystem>

#include <fmt/format.h>
#include <fmt/printf.h>
#include <unistd.h>

namespace {

/// A bookmark's path as a word for the user's shell; nothing, and the main window's left footer says why,
/// where it cannot be one.
std::optional<std::string> word_of(const std::string& path) {
    main_window().set_left_footer("");
    if (path.empty()) {
        return std::nullopt;
    }
    const std::string meant = path_meant(path);
    std::optional<std::string> word = shell_word(meant, user_shell);
    if (!word) {
        main_window().set_left_footer(name_refusal(meant));
    }
    return word;
}

/// What an executable's or a script's bookmark types: the file that it names, else its user's own command
/// ("make -k all") as it stands.
std::optional<std::string> command_of(const std::string& path) {
    return access(path_meant(path).c_str(), F_OK) == 0 ? word_of(path) : path;
}

/// Opens a path with the program that an environment variable names; its value may hold options.
void open_with(const char* variable, const std::string& path) {
    main_window().set_left_footer("");
    if (path.empty()) {
        return;
    }
    const char* viewer = std::getenv(variable);
    if (viewer == nullptr || *viewer == '\0') {  // the shell would run the file itself
        main_window().set_left_footer(fmt::format("Environment variable {} is not set", variable));
        return;
    }
    start_in_background(fmt::format("${} {}", variable, script_word(path_meant(path), ShellFamily::other)));
}

/// "Cwd:"; empty, and the left footer says so, when it is.
std::string current_directory() {
    std::string directory = main_window().cwd.text();
    main_window().set_left_footer(directory.empty() ? "Current directory not set" : "");
    return directory;
}

void define_bookmark(std::string_view path, FileType type) {
    BookmarkDefinition& window = bookmark_definition();
    window.bookmarked_file.set_text(path);
    window.bookmark_name.set_text("");
    window.file_type.set_value(type);
    window.set_left_footer("");
    window.open();
    window.bookmark_name.set_focus();
}

}  // namespace

void SetBookmarkDir(const std::string& path) {
    if (const std::optional<std::string> word = word_of(path)) {
        (void)send_line(main_window(), fmt::format("cd {}", *word));
    }
}

void OpenBookmarkSource(const std::string& path) {
    if (!path.empty()) {
        edit_file_silently(path_meant(path));
    }
}

void RunBookmarkExec(const std::string& path) {
    const std::optional<std::string> command = command_of(path);
    if (command && !command->empty()) {
        (void)send_line(main_window(), *command);
    }
}

void RunBookmarkScript(const std::string& path) {
    const std::optional<std::string> command = command_of(path);
    if (command && !command->empty()) {
        main_window().set_left_footer(type_text(*command));
        SetupTimer(refresh_after_command);
        main_window().termpane.set_focus();
    }
}

void OpenBookmarkHTML(const std::string& path) { open_with("OPENHTML", path); }

void OpenBookmarkPDF(const std::string& path) { open_with("OPENPDF", path); }

void OpenBookmarkOther(const std::string& path) {
    main_window().set_left_footer("");
    if (!path.empty()) {
        main_window().command.set_text(path);
        main_window().command.set_focus();
    }
}

void BaseWindowAddBookmark() {
    const std::string directory = current_directory();
    if (!directory.empty()) {
        define_bookmark(directory, FT_DIRECTORY);
    }
}

void BaseWindowBookmark() {
    const std::string directory = current_directory();
    if (directory.empty()) {
        return;
    }
    std::error_code unknown;
    if (!std::filesystem::exists(directory, unknown)) {
        main_window().set_left_footer("Current directory not found");
        return;
    }
    constexpr std::string_view none = "No selection made or selection too long";
    const std::optional<std::string> selected = selected_name(main_window(), none);
    if (!selected) {
        return;
    }
    const std::string name = remove_leading_blanks(remove_trailing_spaces(*selected));
    if (name.empty()) {
        main_window().set_left_footer(none);
        return;
    }
    const std::string path = fmt::sprintf("%s/%s", directory, name);
    const FileType type = GetFileType(path);
    if (type < 0) {
        main_window().set_left_footer("Illegal file");
    } else {
        define_bookmark(path, type);
    }
}
