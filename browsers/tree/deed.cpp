// SPDX-License-Identifier: MIT
#include "browsers/tree/deed.h"

#include "browsers/paths.h"
#include "browsers/tree/file_tree.h"
#include "browsers/window_work.h"
#include "shell/messages.h"
#include "ui/file_tree_browser.h"

#include <cstring>
#include <utility>

#include <fmt/format.h>
#include <sys/stat.h>

namespace {

/// What has been done with the first of the nodes.
struct Doings {
    std::vector<Deed> deeds;
    bool is_stopped = false;
};

/// A file may have been replaced since it was examined.
Deed act_on(WalkedNode node, const Deeds& deeds) {
    const mode_t type = node.glance.mode & S_IFMT;
    if (!glance_at(node.path, node.glance) || (node.glance.mode & S_IFMT) != type) {
        return {.fault = deeds.illegal, .ends = true};
    }
    Deed deed = deeds.deed(node);
    if (!deed.new_name.empty() && !glance_at(path_in(deeds.directory.path, deed.new_name), deed.glance)) {
        deed.new_name.clear();
        deed.fault = "Illegal file";
    }
    return deed;
}

Doings act_on_all(const Deeds& deeds, Progress& progress) {
    Doings doings;
    for (const WalkedNode& node : deeds.nodes) {
        if (progress.stopping()) {
            doings.is_stopped = true;
            break;
        }
        doings.deeds.push_back(act_on(node, deeds));
        if (doings.deeds.back().ends) {
            break;
        }
        (void)progress.next();
    }
    return doings;
}

/// What takes the place of a file in its own directory stands where that stood.
void change_tree(const WalkedNode& acted_on, const WalkedNode& directory, Deed deed, int font_size) {
    TreeNode* const node = acted_on.reference.node();
    TreeNode* const parent = directory.reference.node();
    int position = TreeCanvas::at_end;
    if (deed.is_gone && node != nullptr) {
        const bool in_its_place = file_tree().parent(node) == parent;
        position = in_its_place ? file_tree().position_among_siblings(node) : position;
        file_tree().destroy(node);
    }
    if (!deed.new_name.empty() && parent != nullptr) {
        const std::string path = path_in(directory.path, deed.new_name);
        (void)add_examined(deed.new_name, path, parent, std::move(deed.glance), font_size, position);
    }
}

/// In the browser's own words where it has some.
Message system_message(int error) {
    file_tree_browser().set_left_footer(std::strerror(error));
    display_error_message(file_tree_browser(), error);
    return file_tree_browser().left_footer();
}

Message message_of(const Deeds& deeds, const Doings& doings) {
    Message message(deeds.finished);
    std::size_t done = 0;
    for (const Deed& deed : doings.deeds) {
        done += deed.is_done() ? 1 : 0;
        if (!deed.is_done()) {
            message = deed.error == 0 ? Message(deed.fault) : system_message(deed.error);
        }
    }
    return doings.is_stopped ? fmt::format("Stopped: {} of {} done", done, deeds.nodes.size()) : message;
}

Message show(const Deeds& deeds, Doings doings, int font_size) {
    Message message = message_of(deeds, doings);
    {
        const RepaintHold hold(file_tree());
        for (std::size_t i = 0; i < doings.deeds.size(); ++i) {
            change_tree(deeds.nodes[i], deeds.directory, std::move(doings.deeds[i]), font_size);
        }
    }
    show_selected_count();
    if (deeds.also_tells != nullptr) {
        deeds.also_tells->set_left_footer(message);
    }
    return message;
}

}  // namespace

Message act_on_each(Frame& window, const Deeds& deeds) {
    const Message message = work_for(
        window, files_done, [deeds](Progress& progress) { return act_on_all(deeds, progress); },
        [deeds, font_size = file_tree_browser().font_size.value()](Doings doings) {
            return show(deeds, std::move(doings), font_size);
        });
    return waits_for_work(window, files_done) ? Message(deeds.meanwhile) : message;
}
