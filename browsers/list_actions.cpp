// SPDX-License-Identifier: MIT
// What the buttons and the "File Operations" menu of the "File List Browser" do with its file.
#include "browsers/browser_work.h"
#include "browsers/file_status.h"
#include "browsers/file_type.h"
#include "browsers/head.h"
#include "browsers/listed_file.h"
#include "browsers/notify.h"
#include "shell/background.h"
#include "shell/editor.h"
#include "shell/operands.h"
#include "shell/print.h"
#include "shell/program_variable.h"
#include "shell/send.h"
#include "shell/viewer.h"
#include "ui/default_settings.h"
#include "ui/file_status.h"
#include "ui/remote_copy.h"

#include <fmt/format.h>
#include <sys/stat.h>

namespace {

constexpr MissingTexts missing_for_commands{.directory = "Directory name not defined"};

/// Does something with the file that is named.
template <typename Action>
Message with_file(Action action, const MissingTexts& missing = {}) {
    const ListedFile file = listed_file(missing);
    return file ? action(file) : file.refusal;
}

/// The same with what has been found out of it on its disk.
template <typename Ask, typename Action>
Message with_examined_file(Ask ask, Action action) {
    return with_file(
        [=](const ListedFile& file) {
            return ask_disk([=] { return ask(file.path); },
                            [=](auto found) { return action(file, std::move(found)); });
        },
        missing_for_commands);
}

/// Types a command for a file that an environment variable names.
Message send_to_program(const char* variable, Words value) {
    return with_file([=](const ListedFile& file) {
        Message refusal = unset_program(variable);
        return refusal.empty() ? send(CommandLine(value).path(file.path)) : refusal;
    });
}

}  // namespace

Message FileListBrowserExecute() {
    return with_file([](const ListedFile& file) { return send(CommandLine().path(file.path)); });
}

Message FileListBrowserEdit() {
    return with_file([](const ListedFile& file) { return edit_file(file.path); });
}

Message FileListBrowserDocument() {
    return with_file([](const ListedFile& file) { return view_file(Viewer::framemaker, file.path); });
}

Message FileListBrowserPrint() {
    return with_file([](const ListedFile& file) -> Message {
        const std::string users_command = default_settings().print_command.text();
        const std::optional<std::string> command = print_command(users_command, file.path, file.name);
        if (!command) {
            return name_refusal(file.name);
        }
        run_in_background(CommandLine::of_user(*command), print_ampersand(users_command));
        return {};
    });
}

Message FileListBrowserPermissions() {
    return with_file([](const ListedFile& file) -> Message {
        show_file_status(file_list_browser(), file.path, file.name);
        file_status().set_right_footer("Click a file name to display status");
        file_status().open();
        return {};
    });
}

Message FileListBrowserCopyToWorking() {
    return with_examined_file(file_mode, [](const ListedFile& file, std::optional<mode_t> mode) -> Message {
        if (!mode || S_ISDIR(*mode)) {
            return mode ? "Not a file" : "Illegal file";
        }
        return send(CommandLine("cp").path(file.path).word("."));
    });
}

Message FileListBrowserCd() {
    return with_examined_file(file_mode, [](const ListedFile& file, std::optional<mode_t> mode) -> Message {
        if (!mode || !S_ISDIR(*mode)) {
            return mode ? "Not a directory" : "Illegal directory";
        }
        return send(CommandLine("cd").path(file.path));
    });
}

Message FileListBrowserHead() {
    return with_examined_file(head_of,
                              [](const ListedFile& /*file*/, const Head& head) { return show_head(head); });
}

Message File_menu_select() {
    return with_file([](const ListedFile& file) -> Message {
        file_list_browser().selected.set_name(file.path);
        return {};
    });
}

Message File_menu_copy_remote() {
    return with_file(
        [](const ListedFile& /*file*/) -> Message {
            remote_copy().open_for(RemoteCopy::Side::listed_file);
            return {};
        },
        {.directory = "Destination directory not defined", .name = "Destination file name not defined"});
}

Message File_menu_open_pdf() { return send_to_program("OPENPDF", "$OPENPDF"); }

Message File_menu_open_html() { return send_to_program("OPENHTML", "$OPENHTML"); }
