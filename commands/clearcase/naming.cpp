// SPDX-License-Identifier: MIT
// What the ClearCase tool is asked to put under another name: files moved into a directory, a file or
// directory renamed, a directory made. The tree stays as it is, since only the tool's output tells what came
// of it.
#include "commands/naming.h"

#include "browsers/listed_file.h"
#include "browsers/paths.h"
#include "browsers/window_work.h"
#include "commands/clearcase/notify.h"
#include "commands/clearcase/tool.h"
#include "commands/into_directory.h"
#include "shell/text.h"
#include "ui/add_new_directory.h"
#include "ui/add_rename_save.h"
#include "ui/file_tree_browser.h"

#include <sys/stat.h>

namespace {

/// A line, and what must not be there yet when it is typed.
struct Naming {
    ToolLine line;
    std::string target;
};

struct NamingTexts {
    std::string_view taken;
    std::string_view finished;
};

/// How many of the first targets are not there, and what is said once their lines are typed.
struct FreeTargets {
    std::size_t count = 0;
    std::string_view message;
};

FreeTargets find_free(const std::vector<Naming>& namings, const NamingTexts& texts, Progress& progress) {
    FreeTargets free{.message = texts.finished};
    for (const Naming& naming : namings) {
        if (is_there(naming.target)) {
            free.message = texts.taken;
            break;
        }
        ++free.count;
        if (!progress.next()) {
            return {.count = 0, .message = "Stopped"};
        }
    }
    return free;
}

Message type_first(const std::vector<Naming>& namings, const FreeTargets& free) {
    for (std::size_t i = 0; i < free.count; ++i) {
        Message refusal = namings[i].line.type();
        if (!refusal.empty()) {
            return refusal;
        }
    }
    return Message(free.message);
}

/// Types the lines up to the first one whose target is there. The tree's window tells, too.
Message type_where_free(Frame& window, const std::vector<Naming>& namings, const NamingTexts& texts) {
    return work_for(
        window, "Files examined",
        [namings, texts](Progress& progress) { return find_free(namings, texts, progress); },
        [namings](const FreeTargets& free) { return told_twice(type_first(namings, free)); });
}

Message move_nodes(const std::vector<WalkedNode>& nodes) {
    const std::string& directory = directory_among(nodes).path;
    std::vector<Naming> namings;
    for (const WalkedNode& node : nodes) {
        if (S_ISREG(node.glance.mode)) {
            const std::string target = path_in(directory, getfilename(node.path));
            namings.push_back({ToolLine("mv").path(node.path).path(target), target});
        }
    }
    return type_where_free(file_tree_browser(), namings,
                           {.taken = "File already exists", .finished = "Double click to see file"});
}

}  // namespace

Message ClearCaseMoveFile() { return walk_selection(file_tree_browser(), rule_for_moving(), move_nodes); }

Message ClearCaseRename() {
    const std::string name = add_rename_save().new_name.text();
    Message fault = name_fault(name, "New name not defined");
    if (!fault.empty()) {
        return told_twice(std::move(fault));
    }
    return walk_for(
        add_rename_save(),
        {.none = "No file selected",
         .illegal = "Illegal file",
         .checks = {{[](const WalkCounts& counts) { return counts.nodes != 1; },
                     "Select one file or directory"}}},
        [name](const std::vector<WalkedNode>& nodes) {
            const std::string& old = nodes.front().path;
            const std::string target = path_in(parent_directory(old), name);
            return type_where_free(
                add_rename_save(), {{ToolLine("mv").path(old).path(target), target}},
                {.taken = "File or directory already exists", .finished = "Double click to see file"});
        });
}

Message AddClearCaseDir() {
    const std::string name = add_new_directory().directory_name.text();
    Message fault = name_fault(name, "Directory name not defined");
    if (!fault.empty()) {
        return told_twice(std::move(fault));
    }
    return walk_for(
        add_new_directory(), one_parent_directory(), [name](const std::vector<WalkedNode>& nodes) {
            const std::string target = path_in(nodes.front().path, name);
            return type_where_free(
                add_new_directory(), {{ToolLine("mkdir -nc").path(target), target}},
                {.taken = "Directory already exists", .finished = "Double-click to see new directory"});
        });
}
