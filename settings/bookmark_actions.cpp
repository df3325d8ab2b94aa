// SPDX-License-Identifier: MIT
// What choosing a bookmark does, and the main window's buttons that make one. The path of a directory, and
// any that names a file, is one word for the shell, whatever it holds.
#include "browsers/browser_work.h"
#include "browsers/define_bookmark.h"
#include "browsers/file_type.h"
#include "browsers/listed_file.h"
#include "settings/notify.h"
#include "shell/background.h"
#include "shell/editor.h"
#include "shell/operands.h"
#include "shell/process.h"
#include "shell/program_variable.h"
#include "shell/selected_text.h"
#include "shell/send.h"
#include "shell/status.h"
#include "shell/text.h"
#include "ui/main_window.h"

#include <filesystem>

#include <fmt/format.h>
#include <fmt/printf.h>
#include <unistd.h>

namespace {

/// What an executable's or a script's bookmark types: the file that it names, else its user's own command
/// ("make -k all") as it stands.
CommandLine command_of(const std::string& path) {
    const std::string meant = path_meant(path);
    return access(meant.c_str(), F_OK) == 0 ? CommandLine().path(meant) : CommandLine::of_user(path);
}

/// Opens a path with the program that an environment variable names; its value may hold options.
Message open_with(const char* variable, Words value, const std::string& path) {
    if (path.empty()) {
        return {};
    }
    Message refusal = unset_program(variable);
    if (refusal.empty()) {
        start_in_background(CommandLine(value).path(path_meant(path)));
    }
    return refusal;
}

const Message no_current_directory = "Current directory not set";

}  // namespace

Message SetBookmarkDir(const std::string& path) {
    return path.empty() ? "" : send(CommandLine("cd").path(path_meant(path)));
}

void OpenBookmarkSource(const std::string& path) {
    if (!path.empty()) {
        edit_file_silently(path_meant(path));
    }
}

Message RunBookmarkExec(const std::string& path) { return path.empty() ? "" : send(command_of(path)); }

Message RunBookmarkScript(const std::string& path) {
    if (path.empty()) {
        return {};
    }
    Message refusal = type(command_of(path));
    SetupTimer(refresh_after_command);
    main_window().termpane.set_focus();
    return refusal;
}

Message OpenBookmarkHTML(const std::string& path) { return open_with("OPENHTML", "$OPENHTML", path); }

Message OpenBookmarkPDF(const std::string& path) { return open_with("OPENPDF", "$OPENPDF", path); }

Message OpenBookmarkOther(const std::string& path) {
    if (!path.empty()) {
        main_window().command.set_text(path);
        main_window().command.set_focus();
    }
    return {};
}

Message FileListBrowserBookmark() {
    const ListedFile file = listed_file();
    if (!file) {
        return file.refusal;
    }
    return ask_disk([path = file.path] { return GetFileType(path); },
                    [path = file.path](FileType type) -> Message {
                        if (type < 0) {
                            return "Illegal file";
                        }
                        define_bookmark(path, type);
                        return {};
                    });
}

Message BaseWindowAddBookmark() {
    const std::string directory = main_window().cwd.text();
    if (directory.empty()) {
        return no_current_directory;
    }
    define_bookmark(directory, FT_DIRECTORY);
    return {};
}

Message BaseWindowBookmark() {
    const std::string directory = main_window().cwd.text();
    if (directory.empty()) {
        return no_current_directory;
    }
    std::error_code unknown;
    if (!std::filesystem::exists(directory, unknown)) {
        return "Current directory not found";
    }
    const SelectedText selected = selected_name(selection_for_button);
    if (!selected) {
        return selected.refusal;
    }
    const std::string name = remove_leading_blanks(remove_trailing_spaces(selected.text));
    if (name.empty()) {
        return Message(selection_for_button.none);
    }
    const std::string path = fmt::sprintf("%s/%s", directory, name);
    const FileType type = GetFileType(path);
    if (type < 0) {
        return "Illegal file";
    }
    define_bookmark(path, type);
    return {};
}
