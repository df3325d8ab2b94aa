// SPDX-License-Identifier: MIT
#include "browsers/tree/walk.h"

#include "browsers/tree/file_tree.h"
#include "browsers/window_work.h"
#include "toolkit/frame.h"

#include <algorithm>
#include <utility>

#include <sys/stat.h>

namespace {

struct Walk {
    std::vector<WalkedNode> nodes;  ///< up to the first one that leads nowhere
    bool is_whole = true;           ///< no path led nowhere
    bool is_stopped = false;
};

Walk examine(Walk walk, Progress& progress) {
    for (auto node = walk.nodes.begin(); node != walk.nodes.end(); ++node) {
        if (!glance_at(node->path, node->glance)) {
            walk.is_whole = false;
            walk.nodes.erase(node, walk.nodes.end());
            break;
        }
        if (!progress.next()) {
            walk.is_stopped = true;
            break;
        }
    }
    return walk;
}

WalkCounts counts_of(const std::vector<WalkedNode>& nodes) {
    WalkCounts counts{.nodes = nodes.size()};
    for (const WalkedNode& node : nodes) {
        counts.directories += S_ISDIR(node.glance.mode) ? 1 : 0;
        counts.files += S_ISREG(node.glance.mode) ? 1 : 0;
    }
    return counts;
}

/// Why the action is not done; empty when it is.
std::string_view refusal(const WalkRule& rule, const Walk& walk) {
    const auto is_gone = [](const WalkedNode& node) { return node.reference.node() == nullptr; };
    if (!walk.is_whole || std::ranges::any_of(walk.nodes, is_gone)) {
        return rule.illegal;
    }
    if (walk.is_stopped) {
        return "Stopped";
    }
    const WalkCounts counts = counts_of(walk.nodes);
    for (const WalkCheck& check : rule.checks) {
        if (check.fails(counts)) {
            return check.message;
        }
    }
    return {};
}

Message act(const WalkRule& rule, const Walk& walk, const WalkAction& action) {
    const std::string_view why_not = refusal(rule, walk);
    const bool acts = why_not.empty() || (rule.up_to_illegal && !walk.is_whole && !walk.nodes.empty());
    Message message = acts ? action(walk.nodes) : Message();
    return message.empty() ? Message(why_not) : message;
}

}  // namespace

const WalkedNode& directory_among(const std::vector<WalkedNode>& nodes) {
    const auto is_directory = [](const WalkedNode& node) { return S_ISDIR(node.glance.mode); };
    const auto found = std::ranges::find_if(nodes, is_directory);
    return found == nodes.end() ? nodes.front() : *found;
}

std::vector<WalkedNode> selected_nodes() {
    std::vector<WalkedNode> nodes;
    for (TreeNode* node : rectobj_get_selected_list(file_tree())) {
        nodes.push_back({.reference = reference_to(node), .path = file_tag(node).path()});
    }
    return nodes;
}

WalkRule one_parent_directory() {
    return {.none = "No directory selected",
            .illegal = "Illegal directory",
            .checks = {{[](const WalkCounts& counts) { return counts.directories != 1 || counts.files > 0; },
                        "Select one parent directory"}}};
}

Message walk(Frame& asker, const WalkRule& rule, std::vector<WalkedNode> nodes, WalkAction action) {
    if (nodes.empty()) {
        return Message(rule.none);
    }
    Walk selected{.nodes = std::move(nodes)};
    return work_for(
        asker, "Files examined", [selected](Progress& progress) { return examine(selected, progress); },
        [&asker, rule, action = std::move(action)](const Walk& walk) {
            Message message = act(rule, walk, action);
            if (rule.also_tells != nullptr) {
                rule.also_tells->set_left_footer(message);
            }
            return message;
        });
}

Message walk_selection(Frame& asker, const WalkRule& rule, WalkAction action) {
    return walk(asker, rule, selected_nodes(), std::move(action));
}
