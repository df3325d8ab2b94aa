// SPDX-License-Identifier: MIT
// "Compare" and "Compare (diff)".
#include "browsers/tree/walk.h"
#include "commands/notify.h"
#include "commands/script.h"
#include "shell/process.h"
#include "shell/program_variable.h"
#include "shell/send.h"
#include "ui/file_tree_browser.h"

namespace {

Message compare_visually(const std::vector<WalkedNode>& nodes) {
    Message refusal = unset_program("DIFF");
    return refusal.empty()
               ? send(CommandLine("$DIFF").path(nodes[0].path).path(nodes[1].path), Remember::message_board)
               : refusal;
}

Message compare(const std::vector<WalkedNode>& nodes) {
    std::string script = "# Orvik compare files\n\n";
    script += nodes.size() == 3 ? "diff3 " : "diff -c ";
    script += in_script(nodes.front().path);
    for (std::size_t i = 1; i < nodes.size(); ++i) {
        script += " \\\n" + in_script(nodes[i].path);
    }
    return run_script(home_dir, script + "\n", Remember::last_command);
}

}  // namespace

Message vcompare_file() {
    constexpr std::string_view wrong_count = "Select two files for comparison";
    return walk_selection(
        file_tree_browser(),
        {.none = wrong_count,
         .illegal = "Illegal file name",
         .checks = {{[](const WalkCounts& counts) { return counts.nodes != 2; }, wrong_count}}},
        compare_visually);
}

Message compare_file() {
    constexpr std::string_view wrong_count = "Select two or three files for comparison";
    return walk_selection(
        file_tree_browser(),
        {.none = wrong_count,
         .illegal = "Illegal file name",
         .checks = {{[](const WalkCounts& counts) { return counts.nodes != 2 && counts.nodes != 3; },
                     wrong_count}}},
        compare);
}
