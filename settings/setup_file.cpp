// SPDX-License-Identifier: MIT
#include "settings/setup_file.h"

#include "browsers/listed_file.h"
#include "browsers/paths.h"
#include "browsers/tree/file_tree.h"
#include "browsers/tree/walk.h"
#include "settings/notify.h"
#include "settings/setup_format.h"
#include "settings/setup_table.h"
#include "settings/unsaved.h"
#include "shell/files.h"
#include "shell/messages.h"
#include "shell/process.h"
#include "ui/add_rename_save.h"
#include "ui/file_tree_browser.h"

#include <cstring>
#include <filesystem>

#include <fmt/format.h>
#include <fmt/printf.h>

namespace {

/// More is not read of a file; what follows the last line has no meaning.
constexpr std::size_t most_bytes = setup_lines * (longest_setup_line + 1);

std::string loaded_file;

/// Saves the setup into a directory of the tree, which gets a leaf for it unless it has one.
Message save_setup_into(const WalkedNode& directory, const std::string& name) {
    const std::string path = path_in(directory.path, name);
    const bool is_new = !is_there(path);
    if (save_setup(path) != 1) {
        return "Could not save setup file";
    }
    if (is_new) {
        TreeNode* const node = directory.reference.node();
        (void)AddOneLeaf(name, path, file_tree(), node, file_tag(node).group, 0,
                         file_tree_browser().font_size.value());
    }
    return {};
}

std::string startup_setup_file() { return fmt::sprintf("%s/Orvik.setup", startup_dir); }

}  // namespace

int save_setup(const std::string& path) {
    const std::array values = setup_values();
    if (const std::optional<std::size_t> line = unwritable_setup_line(values)) {
        report(fmt::format("{} not written: line {} would be too long or hold a line end\n", path, *line));
        return 0;
    }
    if (const int error = save_file(path, format_setup(values)); error != 0) {
        report(fmt::format("{} not written: {}\n", path, std::strerror(error)));
        return 0;
    }
    note_settings_saved();
    return 1;
}

int load_setup(const std::string& path, WhenDoubtful when_doubtful) {
    const LoadedFile file = load_file(path, most_bytes, when_doubtful);
    if (!file.text) {
        return 0;
    }
    const std::optional<SetupLines> lines = parse_setup(*file.text);
    if (!lines) {
        return -1;
    }
    set_setup_values(*lines);
    note_settings_saved();
    loaded_file = path;
    return 1;
}

int load_setup_at_startup() {
    // The setup names a file that the shell is told to source: of a directory that others can write to, as
    // /tmp, it must be the user's own.
    std::error_code unknown;
    const bool at_home = std::filesystem::equivalent(startup_dir, home_dir, unknown);
    int result = at_home ? 0 : load_setup(startup_setup_file(), WhenDoubtful::refuse);
    if (result != 1) {
        result = load_setup(fmt::sprintf("%s/Orvik.setup", home_dir));
    }
    report_load(setup_load, result);
    return result;
}

std::string loaded_setup_file() { return loaded_file; }

Message Save_current_setup() {
    const std::string path = startup_setup_file();
    return save_setup(path) == 1 ? fmt::format("Setup saved to {}", path) : "Could not save Orvik.setup";
}

Message Save_setup_button() {
    const std::string name = add_rename_save().new_name.text();
    WalkRule rule = one_parent_directory();
    rule.also_tells = &file_tree_browser();
    Message refusal =
        name.empty() ? "File name not defined"
                     : walk_selection(add_rename_save(), rule, [name](const std::vector<WalkedNode>& nodes) {
                           return save_setup_into(directory_among(nodes), name);
                       });
    file_tree_browser().set_left_footer(refusal);
    return refusal;
}

Message FileListLoadSetup() {
    const ListedFile file = file_to_load();
    if (!file) {
        return file.refusal;
    }
    const int result = load_setup(file.path);
    return result == 1 ? fmt::format("Setup loaded from {}", file.path) : load_message(setup_load, result);
}
