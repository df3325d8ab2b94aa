// SPDX-License-Identifier: MIT
#include "settings/directory_menu.h"

#include "tests/support/scratch_directory.h"

#include <filesystem>
#include <tuple>

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

TEST(DirectoryMenu, MarksEntriesAndHidesSome) {
    const ScratchDirectory directory;
    directory.write("run", "");
    fs::permissions(directory / "run", fs::perms::others_exec, fs::perm_options::add);
    directory.write(".dot", "");
    directory.write("Text", "");
    fs::create_directory(directory / "sub");
    fs::create_directory_symlink("sub", directory / "link");
    const std::tuple<unsigned, std::vector<std::string>> cases[] = {
        {hide_nothing, {".dot", "Text", "link@", "run*", "sub/"}},
        {hide_dot_files, {"Text", "link@", "run*", "sub/"}},
        {hide_dot_files | hide_directories, {"Text", "link@", "run*"}},
    };
    for (const auto& [hide, labels] : cases) {
        const DirectoryMenu menu = read_directory_menu(directory.path(), hide);
        std::vector<std::string> found;
        for (const DirectoryMenu::Entry& entry : menu.entries) {
            found.push_back(entry.label);
        }
        EXPECT_EQ(found, labels);
        EXPECT_EQ(menu.total, 5);
    }
    EXPECT_EQ(read_directory_menu(directory.path(), 1).entries[0].path, directory / "Text");
    EXPECT_EQ(read_directory_menu(directory / "run", 0).outcome, DirectoryMenu::Outcome::illegal);
    for (int i = 4; i < 199; ++i) {
        directory.write("f" + std::to_string(i), "");
    }
    EXPECT_EQ(read_directory_menu(directory.path(), hide_dot_files).entries.size(), 199U);
    EXPECT_EQ(read_directory_menu(directory.path(), hide_nothing).outcome, DirectoryMenu::Outcome::too_many);
    fs::permissions(directory.path(), fs::perms::owner_read, fs::perm_options::remove);
    EXPECT_EQ(read_directory_menu(directory.path(), hide_dot_files).outcome, DirectoryMenu::Outcome::illegal);
    fs::permissions(directory.path(), fs::perms::owner_all);
}

}  // namespace
