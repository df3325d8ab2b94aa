// SPDX-License-Identifier: MIT
#include "browsers/tree/file_tree.h"

#include "browsers/paths.h"
#include "browsers/tree/centring.h"
#include "toolkit/timer.h"
#include "ui/file_tree_browser.h"

#include <utility>

#include <fmt/format.h>
#include <sys/stat.h>

namespace {

std::unique_ptr<FileTag> tag_below(const TreeNode* parent, const std::string& label, const std::string& path,
                                   FileGlance glance) {
    const FileTag* const above = parent == nullptr ? nullptr : &file_tag(parent);
    const bool in_its_place = above != nullptr && path_in(above->path(), label) == path;
    return std::make_unique<FileTag>(label, in_its_place ? std::string() : path, above, std::move(glance));
}

}  // namespace

TreeCanvas& file_tree() { return file_tree_browser().canvas; }

FileTag& file_tag(const TreeNode* node) { return static_cast<FileTag&>(file_tree().record(node)); }

NodeReference reference_to(TreeNode* node) { return {file_tag(node), node}; }

TreeNode* add_leaf(TreeCanvas& tree, TreeNode* parent, std::unique_ptr<FileTag> tag, mode_t mode,
                   int font_size, int position) {
    return tree.add(parent, std::move(tag), font_size, S_ISDIR(mode) ? NodeKind::directory : NodeKind::file,
                    position);
}

TreeNode* AddOneLeaf(const std::string& label, const std::string& path, TreeCanvas& tree, TreeNode* parent,
                     int group, int is_root, int font_size) {
    FileGlance glance;
    if (!glance_at(path, glance)) {
        file_tree_browser().set_left_footer("Illegal file");
        return nullptr;
    }
    const mode_t mode = glance.mode;
    auto tag = tag_below(parent, label, path, std::move(glance));
    tag->group = group;
    tag->is_root = is_root;
    return add_leaf(tree, parent, std::move(tag), mode, font_size);
}

TreeNode* add_examined(const std::string& label, const std::string& path, TreeNode* parent, FileGlance glance,
                       int font_size, int position) {
    const mode_t mode = glance.mode;
    return add_leaf(file_tree(), parent, tag_below(parent, label, path, std::move(glance)), mode, font_size,
                    position);
}

TreeNode* GetRootObject(TreeNode* node) {
    TreeNode* root = nullptr;
    while (node != nullptr && file_tag(node).is_root == 0) {
        root = node = file_tree().parent(node);
    }
    return root;
}

std::string GetFileTreeName(TreeNameKind kind) {
    TreeNode* const node = only_selected();
    if (node == nullptr) {
        return {};
    }
    const std::string path = file_tag(node).path();
    struct stat status {};
    const bool taken = stat(path.c_str(), &status) == 0 &&
                       !(kind == TreeNameKind::not_directories && S_ISDIR(status.st_mode)) &&
                       !(kind == TreeNameKind::not_files && S_ISREG(status.st_mode));
    return taken ? path : std::string();
}

void SelectAllNodes(TreeNode* node) {
    for (TreeNode* child : file_tree().children(node)) {
        file_tree().select(child);
    }
}

void show_selected_count() {
    const int count = file_tree().selected_count();
    file_tree_browser().set_right_footer(count > 1 ? fmt::format("{} selected", count) : "");
}

void SetupTimerFileTree(int milliseconds) {
    constexpr int milliseconds_per_second = 1000;
    itimerval value{};
    value.it_value = {.tv_sec = milliseconds / milliseconds_per_second,
                      .tv_usec = suseconds_t{milliseconds % milliseconds_per_second} * 1000};
    notify_set_itimer_func(file_tree_browser(), DisplaySelectedModule, value);
}

void DisplaySelectedModule() {
    const TreeNode* const node = GlobalObject.node();
    if (node == nullptr) {
        return;
    }
    const TreeCanvas::Area area = file_tree().area(node);
    const TreeCanvas::Scrolling across = file_tree().horizontal();
    const int pixels_per_unit = across.pixels_per_unit;
    file_tree().set_view_start(centred_start(area.x, across, pixels_per_unit),
                               centred_start(area.y, file_tree().vertical(), pixels_per_unit));
}

TreeNode* last_selected() {
    const std::vector<TreeNode*> selected = rectobj_get_selected_list(file_tree());
    return selected.empty() ? nullptr : selected.back();
}

TreeNode* only_selected() {
    const std::vector<TreeNode*> selected = rectobj_get_selected_list(file_tree());
    return selected.size() == 1 ? selected.front() : nullptr;
}
