// SPDX-License-Identifier: MIT
// The buttons of "Notebook".
#include "app/notebook.h"

#include "app/notify.h"
#include "app/pane_file.h"
#include "shell/background.h"
#include "shell/command_line.h"
#include "shell/files.h"
#include "shell/messages.h"
#include "shell/operands.h"
#include "shell/print.h"
#include "shell/text.h"
#include "ui/default_settings.h"
#include "ui/environment_setup.h"
#include "ui/notebook.h"

#include <cstring>

#include <fmt/format.h>

namespace {

PaneFile notebook_file;

std::string notebook_path() {
    return PaneFile::path(environment_setup().notebook_directory.text(), notebook().file_name.text(),
                          "notebook.txt");
}

}  // namespace

Message NotebookSave() { return notebook_file.save(notebook(), notebook().text, notebook_path()); }

Message NotebookLoad() { return notebook_file.load(notebook(), notebook().text, notebook_path()); }

Message NotebookPrint() {
    const std::string text = notebook().text.text();
    if (text.empty()) {
        return "Nothing to print";
    }
    // Everybody may write into /tmp: a link that somebody has put there must not lead to another file.
    const int error = save_file(notebook_print_file, text, {.links = Links::replace, .exact_mode = 0600});
    if (error != 0) {
        return fmt::format("Could not write {}: {}", notebook_print_file, std::strerror(error));
    }
    const std::optional<std::string> command = print_command(
        default_settings().print_command.text(), notebook_print_file, getfilename(notebook_print_file));
    if (!command) {
        return name_refusal(notebook_print_file);
    }
    run_in_background(CommandLine::of_user(*command));
    return fmt::format("Printing: {}", *command);
}

Message NotebookClear() {
    if (may_discard(notebook(), notebook().text)) {
        clear_window(notebook().text);
    }
    return {};
}
