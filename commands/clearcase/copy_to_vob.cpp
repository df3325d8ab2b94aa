// SPDX-License-Identifier: MIT
// "Copy Files to Clearcase Vob".
#include "browsers/file_type.h"
#include "browsers/listed_file.h"
#include "browsers/paths.h"
#include "browsers/tree/walk.h"
#include "commands/clearcase/notify.h"
#include "commands/clearcase/tool.h"
#include "commands/clearcase/vob_script.h"
#include "commands/script.h"
#include "shell/editor.h"
#include "shell/operands.h"
#include "toolkit/long_work.h"
#include "ui/copy_files_to_clearcase_vob.h"
#include "ui/file_tree_browser.h"
#include "ui/main_window.h"

#include <optional>
#include <utility>

#include <sys/stat.h>

namespace {

/// What "Run" does, as the window says when it is pressed.
struct Run {
    bool generates = false;
    bool executes = false;
    VobCopy copy;
    std::string script;
    std::string text;  ///< of the script, as far as it has been made
};

/// A path of the window's; the script is run in the shell's directory, so that is where a relative one
/// begins.
std::string path_in_shell(const std::string& written) {
    const std::string path = path_meant(written);
    const std::string cwd = main_window().cwd.text();
    return path.empty() || path.starts_with('/') || cwd.empty() ? path : path_in(cwd, path);
}

void tell(std::string_view message) { copy_files_to_clearcase_vob().set_left_footer(message); }

WalkRule one_selected_directory(std::string_view none, std::string_view another) {
    return {.none = none,
            .illegal = "Illegal directory",
            .checks = {{[](const WalkCounts& counts) { return counts.nodes != 1 || counts.directories != 1; },
                        another}}};
}

/// Why nothing can be generated from the disk's view; empty when it can.
Message source_fault(const VobCopy& copy) {
    if (is_there(copy.destination)) {
        return "Destination directory already exists";
    }
    const std::optional<mode_t> mode = file_mode(copy.source);
    return mode && S_ISDIR(*mode) ? "" : "Illegal file";
}

VobLines first_half(const VobCopy& copy, Progress& progress) {
    const Message fault = source_fault(copy);
    return fault.empty() ? vob_lines(copy, VobPass::make, progress) : VobLines{.fault = fault};
}

/// Writes the script with its second half.
Message write_script(const Run& run, Progress& progress) {
    const VobLines lines = vob_lines(run.copy, VobPass::check_in, progress);
    if (!lines.fault.empty()) {
        return lines.fault;
    }
    return save_script(run.script, run.text + lines.text, 0755) ? "" : "Couldn't open script file";
}

[[nodiscard]] bool make_executable(const std::string& script) {
    const std::optional<mode_t> mode = file_mode(script);
    return mode && S_ISREG(*mode) && chmod(script.c_str(), 0755) == 0;
}

/// Gives a script that is there to the shell.
void execute(const Run& run) {
    start_work(
        copy_files_to_clearcase_vob(), "Files examined",
        [path = run.script](Progress& /*progress*/) { return make_executable(path); },
        [run](bool is_executable) {
            const Message refusal =
                is_executable ? send(CommandLine().path(run.script)) : "Couldn't open script file";
            if (!refusal.empty() || !run.generates) {
                tell(refusal);
            }
        });
}

void generate_second_half(const Run& run) {
    start_work(
        copy_files_to_clearcase_vob(), "Files examined",
        [run](Progress& progress) { return write_script(run, progress); },
        [run](const Message& fault) {
            tell(fault.empty() ? "File tree walk 2 successful" : fault);
            if (fault.empty() && run.executes) {
                execute(run);
            }
        });
}

void generate(const Run& run) {
    start_work(
        copy_files_to_clearcase_vob(), "Files examined",
        [copy = run.copy](Progress& progress) { return first_half(copy, progress); },
        [run](VobLines lines) {
            tell(lines.fault.empty() ? "File tree walk 1 successful" : lines.fault);
            if (lines.fault.empty()) {
                Run next = run;
                next.text = std::move(lines.text);
                generate_second_half(next);
            }
        });
}

}  // namespace

Message ClearcaseMenuCopyFilesToVob() {
    return walk_selection(file_tree_browser(),
                          one_selected_directory("No directory selected", "Select one directory to copy"),
                          [](const std::vector<WalkedNode>& nodes) -> Message {
                              CopyFilesToClearcaseVob& window = copy_files_to_clearcase_vob();
                              if (window.source_directory.text().empty()) {
                                  window.source_directory.set_name(nodes.front().path);
                              }
                              window.open();
                              return {};
                          });
}

Message ClearcaseMenuCopyFilesToVobGet() {
    return walk_selection(
        copy_files_to_clearcase_vob(), one_selected_directory("Select one directory", "Select one directory"),
        [](const std::vector<WalkedNode>& nodes) -> Message {
            copy_files_to_clearcase_vob().destination_directory.set_name(nodes.front().path);
            return {};
        });
}

Message CopyFilesToClearcaseVobEdit() {
    const std::string script = copy_files_to_clearcase_vob().script_file.text();
    return script.empty() ? "Script file not specified" : edit_file(path_in_shell(script));
}

Message ClearcaseMenuCopyFIlesToVobRun() {
    const CopyFilesToClearcaseVob& window = copy_files_to_clearcase_vob();
    const Run run{.generates = (window.script.value() & CopyFilesToClearcaseVob::generate) != 0,
                  .executes = (window.script.value() & CopyFilesToClearcaseVob::execute) != 0,
                  .copy = {.tool = clearcase_tool(),
                           .source = path_in_shell(window.source_directory.text()),
                           .destination = path_in_shell(window.destination_directory.text()),
                           .skips = {window.skip_1.text(), window.skip_2.text(), window.skip_3.text()}},
                  .script = path_in_shell(window.script_file.text())};
    if (run.copy.source.empty()) {
        return "Source directory not specified";
    }
    if (run.copy.destination.empty()) {
        return "Destination directory not specified";
    }
    if (!run.generates && !run.executes) {
        return "Run mode not defined";
    }
    if (run.generates) {
        generate(run);
    } else {
        execute(run);
    }
    return {};
}
