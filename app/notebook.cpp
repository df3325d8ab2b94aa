// SPDX-License-Identifier: MIT
// The buttons of "Notebook".
#include "app/notebook.h"

#include "app/notify.h"
#include "app/pane_file.h"
#include "shell/background.h"
#include "shell/files.h"
#include "shell/messages.h"
#include "shell/operands.h"
#include "shell/print.h"
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

void NotebookSave() { notebook_file.save(notebook(), notebook().text, notebook_path()); }

void NotebookLoad() { notebook_file.load(notebook(), notebook().text, notebook_path()); }

void NotebookPrint() {
    const std::string text = notebook().text.text();
    if (text.empty()) {
        notebook().set_left_footer("Nothing to print");
        return;
    }
    // Everybody may write into /tmp: a link that somebody has put there must not lead to another file.
    const int error = save_file(notebook_print_file, text, {.links = Links::replace, .exact_mode = 0600});
    if (error != 0) {
        notebook().set_left_footer(
            fmt::format("Could not write {}: {}", notebook_print_file, std::strerror(error)));
        return;
    }
    const std::optional<std::string> command =
        print_command(default_settings().print_command.text(), notebook_print_file);
    if (!command) {
        notebook().set_left_footer(name_refusal(notebook_print_file));
        return;
    }
    run_in_background(*command);
    notebook().set_left_footer(fmt::format("Printing: {}", *command));
}

void NotebookClear() {
    notebook().set_left_footer("");
    if (may_discard(notebook(), notebook().text)) {
        clear_window(notebook().text);
    }
}
