// SPDX-License-Identifier: MIT
// "Concatenate": the selected files, or their first lines, one behind the other in one file.
#include "browsers/paths.h"
#include "browsers/tree/walk.h"
#include "commands/notify.h"
#include "commands/script.h"
#include "shell/operands.h"
#include "shell/process.h"
#include "shell/text.h"
#include "ui/concatenate_files_window.h"
#include "ui/file_tree_browser.h"

#include <fmt/format.h>
#include <sys/stat.h>

namespace {

const WalkRule& files_and_a_directory() {
    static const WalkRule rule{.none = "No file selected",
                               .illegal = "Illegal file",
                               .checks = {{[](const WalkCounts& counts) { return counts.directories > 1; },
                                           "Can't select more than one destination directory"},
                                          {[](const WalkCounts& counts) { return counts.files < 2; },
                                           "Must select at least two files to concatenate"}}};
    return rule;
}

/// Where the output goes, and what is said about that.
struct Output {
    std::string path;
    std::string_view hint;
};

Output output_for(const std::string& name, const std::vector<WalkedNode>& nodes) {
    if (name.starts_with('/')) {
        return {name, "Absolute path used for output file"};
    }
    const WalkedNode& directory = directory_among(nodes);
    if (!S_ISDIR(directory.glance.mode)) {
        return {name, "Output file will be placed in working directory"};
    }
    return {path_in(directory.path, name), "Output file will be placed in directory selected"};
}

Message concatenate(const std::vector<WalkedNode>& nodes, const std::string& name, int lines) {
    std::string script = "# Orvik concatenate files\n\n";
    script += lines == 0 ? "cat " : fmt::format("head -{} ", lines);
    for (const WalkedNode& node : nodes) {
        if (S_ISREG(node.glance.mode)) {
            script += " \\\n" + in_script(node.path);
        }
    }
    const Output output = output_for(name, nodes);
    script += fmt::format(" > {}\n", in_script(output.path));
    Message refusal = run_script(startup_dir, script, Remember::nothing);
    if (refusal.empty()) {
        concatenate_files_window().set_right_footer(output.hint);
    }
    return refusal;
}

Message propose(const std::vector<WalkedNode>& nodes) {
    std::string name;
    for (const WalkedNode& node : nodes) {
        if (S_ISREG(node.glance.mode)) {
            name = getfilename(node.path) + ".cat";
        }
    }
    ConcatenateFiles& window = concatenate_files_window();
    window.output_file_name.set_name(name);
    window.set_left_footer("");
    window.set_right_footer(output_for(name, nodes).hint);
    window.open();
    return {};
}

}  // namespace

Message concatenate_files() { return walk_selection(file_tree_browser(), files_and_a_directory(), propose); }

Message ConcatenateRun() {
    ConcatenateFiles& window = concatenate_files_window();
    const std::string name = with_home_directory(window.output_file_name.text());
    const int lines = window.number_of_lines.value();
    if (name.empty()) {
        return "Output file name not specified";
    }
    if (lines < 0) {
        return "Number of lines is negative";
    }
    return walk_selection(
        window, files_and_a_directory(),
        [name, lines](const std::vector<WalkedNode>& nodes) { return concatenate(nodes, name, lines); });
}
