// SPDX-License-Identifier: MIT
#include "browsers/file_status.h"

#include "browsers/notify.h"
#include "browsers/tree/file_tree.h"
#include "browsers/window_work.h"
#include "shell/send.h"
#include "ui/file_status.h"

#include <utility>
#include <vector>

#include <fmt/printf.h>
#include <sys/stat.h>

namespace {

constexpr std::string_view items_label = "Files examined";
constexpr std::string_view changed_label = "Files changed";

void say_illegal(Frame& frame) { frame.set_left_footer("Illegal file"); }

void set_boxes(const PermissionBoxes& boxes) {
    FileStatus& window = file_status();
    window.owner.set_value(boxes.owner);
    window.group.set_value(boxes.group);
    window.world.set_value(boxes.world);
}

mode_t chosen_mode() {
    const FileStatus& window = file_status();
    return mode_of(
        {.owner = window.owner.value(), .group = window.group.value(), .world = window.world.value()});
}

/// The boxes are those of another file still.
bool boxes_are_to_come() { return waits_for_work(file_status(), items_label); }
const Message still_examined = "The file is still being examined";

bool in_version_control() { return file_status().file_system.value() == FileStatus::clearcase_vob; }

Message protect(const std::string& path, mode_t mode) {
    return send(CommandLine("cleartool protect").numbers("-chmod {:o}", mode).path(path));
}

}  // namespace

void show_file_status(Frame& frame, const std::string& path, const std::string& name) {
    file_status().file_name.set_name(path);
    start_work(
        file_status(), items_label, [path](Progress& /*progress*/) { return examine_file(path); },
        [&frame, name](const FileFacts& facts) {
            GetFilePermissions(frame, facts);
            GetFileStatus(frame, facts, name);
        });
    await_work(file_status(), hardly_noticed);
}

void GetFileStatus(Frame& frame, const FileFacts& facts, const std::string& name) {
    if (!facts) {
        say_illegal(frame);
        return;
    }
    FileStatus& window = file_status();
    window.file_name_line.set_text(std::string(bare_name_line) + name);
    window.file_type_line.set_text(facts.type);
    window.file_owner_line.set_text(facts.owner);
    window.file_group_line.set_text(facts.group);
    window.file_size_line.set_text(facts.size);
    window.last_accessed_line.set_text(facts.accessed);
    window.last_modified_line.set_text(facts.modified);
    window.status_changed_line.set_text(facts.changed);
}

void GetFilePermissions(Frame& frame, const FileFacts& facts) {
    if (facts) {
        set_boxes(facts.permissions);
    } else {
        say_illegal(frame);
    }
}

void ClearFileStatus() {
    FileStatus& window = file_status();
    window.file_name_line.set_text(bare_name_line);
    window.file_type_line.set_text(bare_type_line);
    window.file_owner_line.set_text(bare_owner_line);
    window.file_group_line.set_text(bare_group_line);
    window.file_size_line.set_text(bare_size_line);
    window.last_accessed_line.set_text(bare_accessed_line);
    window.last_modified_line.set_text(bare_modified_line);
    window.status_changed_line.set_text(bare_changed_line);
    set_boxes({});
}

namespace {

/// A selected node, and how far the walk over all of them has come.
struct NodePath {
    std::string path;
    std::string label;
};
struct Changes {
    std::vector<NodePath> nodes;
    std::size_t done = 0;
    Message fault;
    FileFacts of_faulty;
};

/// Sets the permissions of one file after another; in version control it only looks whether they are there.
Changes change_all(Changes changes, mode_t mode, bool only_look, Progress& progress) {
    for (const NodePath& node : changes.nodes) {
        const FileFacts facts = examine_file(node.path);
        if (!facts) {
            changes.fault = "Illegal file";
        } else if (!only_look && chmod(node.path.c_str(), mode) != 0) {
            changes.fault = fmt::sprintf("Can't change permissions on file : %s", node.label);
            changes.of_faulty = facts;
        } else {
            ++changes.done;
            changes.fault = progress.next() ? "" : "Stopped";
        }
        if (!changes.fault.empty()) {
            break;
        }
    }
    return changes;
}

/// Types the commands for those that are there; returns why it had to stop.
Message protect_all(const Changes& changes, mode_t mode) {
    for (std::size_t i = 0; i < changes.done; ++i) {
        Message refusal = protect(changes.nodes[i].path, mode);
        if (!refusal.empty()) {
            return refusal;
        }
    }
    return changes.fault;
}

Message result_of(const Changes& changes) {
    if (changes.of_faulty) {
        GetFilePermissions(file_status(), changes.of_faulty);
    }
    return changes.fault.empty() ? "Permissions changed" : changes.fault;
}

}  // namespace

Message FilePermissionsSetAll() {
    Changes selected;
    for (const TreeNode* node : rectobj_get_selected_list(file_tree())) {
        selected.nodes.push_back({file_tag(node).path(), file_tag(node).label});
    }
    if (selected.nodes.empty()) {
        return "No files selected";
    }
    if (boxes_are_to_come()) {
        return still_examined;
    }
    return work_for(
        file_status(), changed_label,
        [selected, mode = chosen_mode(), only_look = in_version_control()](Progress& progress) {
            return change_all(selected, mode, only_look, progress);
        },
        [mode = chosen_mode(), typed = in_version_control()](const Changes& changes) {
            return typed ? protect_all(changes, mode) : result_of(changes);
        });
}

Message Set_permissions() {
    const std::string path = file_status().file_name.text();
    if (path.empty()) {
        return "No file selected";
    }
    if (boxes_are_to_come()) {
        return still_examined;
    }
    const mode_t mode = chosen_mode();
    if (in_version_control()) {
        return protect(path, mode);
    }
    struct Change {
        bool done = false;
        FileFacts facts_otherwise;
    };
    return work_for(
        file_status(), changed_label,
        [=](Progress& /*progress*/) {
            const bool done = path.find('\0') == std::string::npos && chmod(path.c_str(), mode) == 0;
            return Change{done, done ? FileFacts{} : examine_file(path)};
        },
        [](const Change& change) -> Message {
            if (!change.done) {
                GetFilePermissions(file_status(), change.facts_otherwise);
            }
            return change.done ? "Permissions changed" : "Couldn't change permissions";
        });
}
