// SPDX-License-Identifier: MIT
#include "commands/notify.h"
#include "tests/browsers/tree/tree_windows.h"
#include "ui/default_settings.h"

namespace {

class ToWorkTest : public TreeWindows {};

TEST_F(ToWorkTest, TypesALineForEachOfTheRightKind) {
    TreeNode* const top = root(path("top"));
    const std::string there = path("top/");
    const struct {
        Message (*procedure)();
        Labels selection;
        std::string footer;
        std::string typed;
    } cases[] = {
        {copy_file_to_work, {}, "No files selected", ""},
        {move_dir_to_work, {}, "No file selected", ""},
        {copy_file_to_work, {"a", "b c"}, "", "cp " + there + "a .\ncp '" + there + "b c' .\n"},
        {move_file_to_work, {"a", "sub", "b c"}, "Not a regular file", "mv " + there + "a .\n"},
        {copy_dir_to_work, {"sub", "a"}, "Not a directory", "cp -r " + there + "sub .\n"},
        {move_dir_to_work, {"zip", "sub"}, "", "mv " + there + "zip .\nmv " + there + "sub .\n"},
    };
    for (const auto& row : cases) {
        std::vector<TreeNode*> nodes;
        for (const std::string& label : row.selection) {
            nodes.push_back(child(top, label));
        }
        select(nodes);
        EXPECT_EQ(footer_after(row.procedure), row.footer);
        EXPECT_EQ(typed(), row.typed);
    }
    EXPECT_EQ(default_settings().last_command.text(), "mv " + there + "sub .");
    std::filesystem::remove(path("top/a"));
    select({child(top, "a")});
    EXPECT_EQ(footer_after(copy_file_to_work), "Illegal file");
}

}  // namespace
