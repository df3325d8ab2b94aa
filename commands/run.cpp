// SPDX-License-Identifier: MIT
// The entries of the tree's menus that run what is selected, and "Execute Unix Command".
#include "commands/each_node.h"
#include "commands/notify.h"
#include "commands/script.h"
#include "shell/background.h"
#include "shell/operands.h"
#include "shell/process.h"
#include "shell/send.h"
#include "ui/execute_unix_command.h"
#include "ui/file_tree_browser.h"

#include <algorithm>

#include <fmt/format.h>

namespace {

/// The last selected node of a kind; null when there is none.
const WalkedNode* last_of(const std::vector<WalkedNode>& nodes, mode_t kind) {
    const auto found = std::find_if(nodes.rbegin(), nodes.rend(), [kind](const WalkedNode& node) {
        return (node.glance.mode & S_IFMT) == kind;
    });
    return found == nodes.rend() ? nullptr : &*found;
}

/// A program is a directory here, as the bundles of macOS are.
Message run_bundle(const std::vector<WalkedNode>& nodes) {
    const WalkedNode* const program = last_of(nodes, S_IFDIR);
    if (program == nullptr) {
        return "No program specified";
    }
    const WalkedNode* const document = last_of(nodes, S_IFREG);
    if (document == nullptr) {
        return send(CommandLine("open").double_quoted(program->path), Remember::last_command);
    }
    return send(CommandLine("open -a").double_quoted(program->path).double_quoted(document->path),
                Remember::last_command);
}

/// Types the user's command for each node, with what `complete` puts behind it.
template <typename Complete>
Message execute(Complete complete) {
    const std::string command = execute_unix_command().command.text();
    if (command.empty()) {
        return "Command not specified";
    }
    return walk_selection(execute_unix_command(),
                          {.none = "No files selected", .illegal = "Illegal file name"},
                          [command, complete](const std::vector<WalkedNode>& nodes) -> Message {
                              for (const WalkedNode& node : nodes) {
                                  if (!takes_word_behind(command, node.path, user_shell)) {
                                      return name_refusal(node.path);
                                  }
                                  CommandLine line = CommandLine::of_user(command);
                                  complete(line, node.path);
                                  Message refusal = send(line, Remember::last_command);
                                  if (!refusal.empty()) {
                                      return refusal;
                                  }
                              }
                              return {};
                          });
}

/// A terminal's first script is always the same file. The others, of the same selection, have files of their
/// own: the terminals read them at a time that nobody knows.
std::string terminal_script(std::size_t number) {
    return number == 0 ? "/tmp/.orvik-run" : fmt::format("/tmp/.orvik-run-{}", number + 1);
}

/// Opens a terminal emulator in a directory. It gives the script to sh.
Message open_terminal(const std::string& directory, std::size_t number) {
    const std::string script = terminal_script(number);
    const std::string contents = fmt::format("cd {}\ntcsh\n", script_word(directory, ShellFamily::other));
    if (!save_script(script, contents, 0775)) {
        return "Can't open setup file";
    }
    run_in_background(CommandLine("xterm -title XTERM -e").path(script));
    return {};
}

}  // namespace

Message run_bg_file() {
    return walk_selection(file_tree_browser(), {.none = "No file selected", .illegal = "Illegal file"},
                          [](const std::vector<WalkedNode>& nodes) -> Message {
                              for (const WalkedNode& node : nodes) {
                                  Message refusal =
                                      send(CommandLine().double_quoted(node.path).in_background(),
                                           Remember::last_command);
                                  if (!refusal.empty()) {
                                      return refusal;
                                  }
                              }
                              return {};
                          });
}

Message run_fg_file() {
    return walk_selection(file_tree_browser(), {.none = "No program specified", .illegal = "Illegal file"},
                          run_bundle);
}

Message start_xterm() {
    return walk_selection(file_tree_browser(), {.none = "No file selected", .illegal = "Illegal directory"},
                          [](const std::vector<WalkedNode>& nodes) {
                              std::size_t number = 0;
                              return do_with_each(nodes, S_IFDIR, "Not a directory",
                                                  [&number](const WalkedNode& node) {
                                                      return open_terminal(node.path, number++);
                                                  });
                          });
}

Message execute_command() {
    execute_unix_command().open();
    return {};
}

Message Execute_unix_command() {
    return execute([](CommandLine& line, const std::string& path) {
        line.double_quoted(path);
        if (const std::string behind = execute_unix_command().prefix.text(); !behind.empty()) {
            line.raw(behind);
        }
    });
}

Message UnixCommandExecuteBG() {
    return execute([](CommandLine& line, const std::string& path) { line.path(path).in_background(); });
}
