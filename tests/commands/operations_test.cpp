// SPDX-License-Identifier: MIT
#include "browsers/tree/deed.h"
#include "tests/commands/operation_windows.h"
#include "tests/support/hostile_names.h"
#include "ui/add_new_directory.h"
#include "ui/add_rename_save.h"
#include "ui/copy_and_rename.h"
#include "ui/file_list_browser.h"

#include <future>

#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

class OperationsTest : public OperationWindows {};

TEST_F(OperationsTest, PutFilesIntoTheSelectedDirectory) {
    const std::string to_a = path("top/a");
    const struct {
        Message (*procedure)();
        Labels selection;
        std::string footer;
        Paths changes;
        bool tree_changes = true;
    } cases[] = {
        {copy_file, {}, "No files selected", {}},
        {copy_file, {"a"}, "Specify one destination directory", {}},
        {copy_file, {"sub", "a", "zip"}, "Specify one destination directory", {}},
        {copy_file, {"sub"}, "No files to copy", {}},
        {copy_file, {"sub", "b c"}, "", {"+sub/b c=top/b c"}},
        {copy_file, {"sub", "a", "dangle"}, "", {"+sub/a_NEW=top/a", "+sub/dangle_NEW=top/dangle"}},
        {copy_file, {"", "a"}, "", {"+a_NEW=top/a"}},
        {copy_file, {"/proc/self/mem", "zip", "a"}, "Copy error", {"+zip/a=top/a"}},
        {copy_file,
         {"zip", "a", "sub/a", "b c"},
         "",
         {"+zip/a=top/a", "+zip/a_NEW=top/sub/a", "+zip/b c=top/b c"}},
        {copy_file, {"/proc/self", "a"}, "Copy error", {}},
        {move_file, {"sub", "zip"}, "Specify one destination directory", {}},
        {move_file, {"zip"}, "No files to move", {}},
        {move_file,
         {"zip", "a", "sub/x.h"},
         "",
         {"-a=top/a", "+zip/a=top/a", "-sub/x.h=top/sub/x.h", "+zip/x.h=top/sub/x.h"}},
        {move_file,
         {"sub", "b c", "dangle", "a"},
         "File already exists",
         {"-b c=top/b c", "+sub/b c=top/b c"}},
        {move_file, {"sub", "sub/x.h"}, "File already exists", {}},
        {move_file, {"sub", "/proc/self/mem", "b c"}, "Rename error", {"-b c=top/b c", "+sub/b c=top/b c"}},
        {replace_file, {}, "No files selected", {}},
        {replace_file, {"a"}, "Specify one destination directory", {}},
        {replace_file, {"sub"}, "No files selected", {}},
        {replace_file,
         {"sub", "a"},
         "Double-click to refresh directory",
         {"-sub/a=top/sub/a", "+sub/a=top/a"},
         false},
        {replace_file, {"sub", "sub/x.h", "a"}, "Copy error", {}},
        {add_link_hard, {"a"}, "Specify one directory where to put the link", {}},
        {add_link_hard, {"zip", "a", "b c"}, "Specify one file to link", {}},
        {add_link_hard, {"zip", "a"}, "", {"+zip/a=top/a"}},
        {add_link_hard, {"zip", "/proc/self/mem"}, "Link error", {}},
        {add_link_symbolic, {"zip"}, "Specify one file to link", {}},
        {add_link_symbolic, {"zip", "a"}, "", {"+zip/a->" + to_a}},
        {add_link_symbolic, {"sub", "dangle"}, "File already exists", {}},
    };
    for (const auto& row : cases) {
        lay_out();
        const Paths disk = on_disk();
        const Paths tree = in_tree(top);
        select_at(row.selection);
        EXPECT_EQ(after(row.procedure), row.footer) << testing::PrintToString(row.selection);
        EXPECT_EQ(changes(disk, on_disk()), row.changes)
            << row.footer << testing::PrintToString(row.selection);
        EXPECT_EQ(changes(tree, in_tree(top)), row.tree_changes ? as_nodes(row.changes) : Paths())
            << row.footer;
    }
    EXPECT_FALSE(fs::exists(path("outside")));  // where the dangling link leads
    struct stat twin {};
    select_at({"zip", "a"});
    EXPECT_EQ(after(add_link_hard), "");
    EXPECT_EQ(stat(to_a.c_str(), &twin), 0);
    EXPECT_EQ(twin.st_nlink, 2U);
    home.write("top/sub/a_NEW", "");
    select_at({"zip", "sub", "b c"});
    file_tree().deselect(node_at("zip"));
    file_tree().select(node_at("a"));
    file_tree().select(node_at("dangle"));
    EXPECT_EQ(after(copy_file), "File alrerady exists");
    EXPECT_EQ(fs::exists(path("top/sub/b c")), true);
    EXPECT_EQ(fs::exists(path("top/sub/dangle_NEW")), false);
    fs::remove(path("top/a"));
    EXPECT_EQ(after(move_file), "Illegal file");
}

TEST_F(OperationsTest, CopyTheFileOfTheList) {
    FileListBrowser& list = file_list_browser();
    list.directory.set_text("");
    EXPECT_EQ(copy_file_from_list(), "Source directory not defined");
    list.directory.set_text(path("top"));
    EXPECT_EQ(copy_file_from_list(), "Source file name not defined");
    const struct {
        std::string name;
        Labels selection;
        std::string footer;
        Paths changes;
    } cases[] = {
        {"a", {}, "No destination directory selected", {}},
        {"a", {"sub", "zip"}, "Specify one destination directory", {}},
        {"a", {"sub", "b c"}, "Select source file from file list browser", {}},
        {"zip", {"sub"}, "Select source file from file list browser", {}},
        {"none", {"sub"}, "Select source file from file list browser", {}},
        {"a", {"sub"}, "", {"+sub/a_NEW=top/a"}},
        {"a", {"sub"}, "File alrerady exists", {}},
    };
    for (const auto& row : cases) {
        const Paths disk = on_disk();
        const Paths tree = in_tree(top);
        list.file_name.set_text(row.name);
        select_at(row.selection);
        EXPECT_EQ(after(copy_file_from_list), row.footer);
        EXPECT_EQ(changes(disk, on_disk()), row.changes);
        EXPECT_EQ(changes(tree, in_tree(top)), as_nodes(row.changes));
    }
}

TEST_F(OperationsTest, RemoveWhatTheNoticeHasListed) {
    file_tree().clear_selection();
    EXPECT_EQ(delete_file(), "No files selected");
    EXPECT_EQ(delete_directory(), "No directory selected");
    const struct {
        Message (*procedure)();
        Labels selection;
        const char* button;
        std::string question;
        std::string footer;
        Paths changes;
    } cases[] = {
        {delete_file, {"a"}, "Cancel", "Remove file(s) ?", "", {}},
        {delete_file, {"b c", "a"}, "Yes", "Remove file(s) ?", "", {"-a=top/a", "-b c=top/b c"}},
        {delete_file, {"a", "zip", "b c"}, "Yes", "Remove file(s) ?", "Not a regular file", {"-a=top/a"}},
        {delete_file, {"/proc/self/mem", "a"}, "Yes", "Remove file(s) ?", "File not deleted", {"-a=top/a"}},
        {delete_directory, {"sub", "zip"}, "Yes", "Remove directory ?", "Directory not empty", {"-zip"}},
        {delete_directory, {"a"}, "Yes", "Remove directory ?", "Not a directory", {}},
        {delete_directory, {"zip"}, "Cancel", "Remove directory ?", "", {}},
        {FileTreeRemove, {"zip"}, "Yes", "Remove directory ?", "", {"-zip"}},
        {FileTreeRemove, {"a"}, "Yes", "Remove file(s) ?", "", {"-a=top/a"}},
    };
    for (const auto& row : cases) {
        lay_out();
        const Paths disk = on_disk();
        const Paths tree = in_tree(top);
        std::string listed = row.question + "|";
        for (const std::string& label : row.selection) {
            listed += (listed.back() == '|' ? "" : "\n") + (label[0] == '/' ? label : path("top/") + label);
        }
        select_at(row.selection);
        answer(row.button);
        EXPECT_EQ(after(row.procedure), row.footer);
        EXPECT_EQ(asked, listed);
        EXPECT_EQ(changes(disk, on_disk()), row.changes) << listed;
        EXPECT_EQ(changes(tree, in_tree(top)), as_nodes(row.changes)) << listed;
    }
    lay_out();
    select_at({"a"});
    fs::rename(path("top/a"), path("top/renamed"));
    answer("Yes");
    EXPECT_EQ(after(delete_file), "Illegal file");
}

TEST_F(OperationsTest, AskForNames) {
    const struct {
        Message (*procedure)();
        Labels selection;
        std::string footer;
        std::string name;
    } cases[] = {
        {rename_file, {}, "No file selected", "old"},
        {rename_file, {"zip"}, "Select one file to rename", "old"},
        {rename_file, {"a", "zip"}, "Select one file to rename", "old"},
        {rename_file, {"b c"}, "", "b c"},
        {rename_directory, {"a"}, "Select one directory to rename", "old"},
        {rename_directory, {""}, "Root directory can not be renamed", "old"},
        {rename_directory, {"sub"}, "", "sub"},
        {FileTreeRename, {"sub"}, "", "sub"},
        {FileTreeRename, {"a"}, "", "a"},
        {copy_rename_file, {}, "No files selected", "old"},
        {copy_rename_file, {"a"}, "Specify one destination directory", "old"},
        {copy_rename_file, {"sub"}, "Select one file to copy", "old"},
        {copy_rename_file, {"sub", "a"}, "", "a"},
    };
    for (const auto& row : cases) {
        const bool copies = row.procedure == copy_rename_file;
        TextField& field = copies ? copy_and_rename().new_name : add_rename_save().new_name;
        Frame& popup = copies ? static_cast<Frame&>(copy_and_rename()) : add_rename_save();
        popup.hide();
        field.set_text("old");
        select_at(row.selection);
        EXPECT_EQ(after(row.procedure), row.footer);
        EXPECT_EQ(field.text(), row.name);
        EXPECT_EQ(popup.shown(), row.footer.empty());
    }
    EXPECT_EQ(add_directory(), "");
    EXPECT_TRUE(add_new_directory().shown());
    add_rename_save().hide();
    EXPECT_EQ(add_file(), "");
    EXPECT_TRUE(add_rename_save().shown());
}

TEST_F(OperationsTest, ActUnderTheNameGiven) {
    const auto rename = std::pair<Frame*, const char*>(&add_rename_save(), "Rename");
    const auto make = std::pair<Frame*, const char*>(&add_rename_save(), "New");
    const auto add = std::pair<Frame*, const char*>(&add_new_directory(), "Add");
    const auto copy = std::pair<Frame*, const char*>(&copy_and_rename(), "Copy");
    const std::string slash = "A name can't hold a \"/\"";
    const struct {
        std::pair<Frame*, const char*> button;
        std::string name;
        Labels selection;
        std::string footer;
        Paths changes;
    } cases[] = {
        {rename, "", {}, "New name not defined", {}},
        {rename, "n", {}, "No file selected", {}},
        {rename, "n", {"a", "b c"}, "Select one file to rename", {}},
        {rename, "n", {""}, "Root directory can not be renamed", {}},
        {rename, "sub/n", {"a"}, slash, {}},
        {rename, "b c", {"a"}, "File or directory already exists", {}},
        {rename, "..", {"a"}, "File or directory already exists", {}},
        {rename, "n", {"a"}, "", {"-a=top/a", "+n=top/a"}},
        {rename, "n", {"zip"}, "", {"-zip", "+n"}},
        {rename, "n", {"/proc/self/mem"}, "Directory does not exists", {}},
        {rename, std::string(256, 'n'), {"a"}, "Path name too long", {}},
        {make, "", {"zip"}, "File name not defined", {}},
        {make, "n/m", {"zip"}, slash, {}},
        {make, "n", {}, "No directory selected", {}},
        {make, "n", {"a"}, "Select one parent directory", {}},
        {make, "a", {"sub"}, "File already exists", {}},
        {make, "dangle", {"sub"}, "File already exists", {}},
        {make, "n", {"/proc/self"}, "Add file error", {}},
        {make, "n", {"zip"}, "", {"+zip/n="}},
        {add, "", {}, "Directory name not defined", {}},
        {add, "n/m", {"zip"}, slash, {}},
        {add, "n", {"sub", "zip"}, "Select one parent directory", {}},
        {add, "a", {"sub"}, "Directory already exists", {}},
        {add, "n", {"/proc/self"}, "Directory does not exists", {}},
        {add, "n", {"zip"}, "", {"+zip/n"}},
        {copy, "n", {"a"}, "Specify one destination directory", {}},
        {copy, "n", {"zip"}, "Select one file to copy", {}},
        {copy, "", {"zip", "a"}, "New name not specified", {}},
        {copy, "../n", {"zip", "a"}, slash, {}},
        {copy, "dangle", {"sub", "a"}, "File already exists", {}},
        {copy, "n", {"/proc/self/mem", "zip"}, "Copy error", {}},
        {copy, "n", {"a", "zip"}, "", {"+zip/n=top/a"}},
    };
    for (const auto& [button, name, selection, footer, expected] : cases) {
        lay_out();
        const Paths disk = on_disk();
        const Paths tree = in_tree(top);
        for (TextField* field : {&add_rename_save().new_name, &add_new_directory().directory_name,
                                 &copy_and_rename().new_name}) {
            field->set_text(name);
        }
        select_at(selection);
        EXPECT_EQ(press(*button.first, button.second), footer) << button.second << " " << name;
        EXPECT_EQ(changes(disk, on_disk()), expected) << footer;
        EXPECT_EQ(changes(tree, in_tree(top)), as_nodes(expected)) << footer;
    }
    lay_out();
    const int place = file_tree().position_among_siblings(node_at("a"));
    add_rename_save().new_name.set_text("zzz");
    select_at({"a"});
    EXPECT_EQ(press(add_rename_save(), "Rename"), "");
    EXPECT_EQ(file_tree().position_among_siblings(node_at("zzz")), place);
}

TEST_F(OperationsTest, NamesStayWhatTheyAre) {
    fs::create_directory(path("top/from"));
    int made = 0;
    for (const HostileName& hostile : hostile_names) {
        made += hostile.name.find('/') == std::string::npos ? 1 : 0;
        if (hostile.name.find('/') == std::string::npos) {
            home.write("top/from/" + hostile.name, hostile.name);
        }
    }
    const auto all_of = [this](const std::string& directory, const std::string& with) {
        const TreeNode* const node = node_at(directory);
        std::vector<TreeNode*> nodes = file_tree().children(node);
        if (!with.empty()) {
            nodes.push_back(node_at(with));
        }
        select(nodes);
    };
    for (const char* directory : {"", "from", "sub"}) {
        open(node_at(directory));
    }
    all_of("from", "zip");
    EXPECT_EQ(after(copy_file), "");
    EXPECT_EQ(file_tree().children(node_at("zip")).size(), static_cast<std::size_t>(made));
    int renamed = 0;
    for (const fs::directory_entry& copy : fs::directory_iterator(path("top/zip"))) {
        const std::string name = copy.path().filename();
        EXPECT_EQ(read_file(copy), name);
        add_rename_save().new_name.set_name(name);
        select_at({"sub/x.h"});
        EXPECT_EQ(press(add_rename_save(), "Rename"), "") << name;
        EXPECT_TRUE(fs::exists(path("top/sub/" + name)));
        select({file_tree().children(node_at("sub")).back()});
        add_rename_save().new_name.set_text("x.h");
        EXPECT_EQ(press(add_rename_save(), "Rename"), "") << name;
        ++renamed;
    }
    EXPECT_EQ(renamed, made);
    all_of("zip", "");
    answer("Yes");
    EXPECT_EQ(after(delete_file), "");
    EXPECT_TRUE(fs::is_empty(path("top/zip")));
    ASSERT_TRUE(asked);
    EXPECT_EQ(std::ranges::count(*asked, '\n'), 10);
    EXPECT_TRUE(asked->ends_with("\nand " + std::to_string(made - 10) + " more")) << *asked;
    EXPECT_FALSE(fs::exists(path("top/pwned")));
}

TEST_F(OperationsTest, StopAfterTheCurrentFileAndKeepTheWindow) {
    std::promise<void> reached;
    std::promise<void> go_on;
    Deeds deeds{.directory = {.reference = reference_to(node_at("zip")), .path = path("top/zip")}};
    for (const char* name : {"a", "b c", "dangle"}) {
        deeds.nodes.push_back({.reference = reference_to(node_at(name)), .path = path("top/") + name});
        deeds.nodes.back().glance.mode = S_IFREG;
    }
    deeds.deed = [&](const WalkedNode& node) {
        home.write("top/zip/n", read_file(node.path));
        reached.set_value();
        go_on.get_future().wait();
        return Deed{.is_gone = true, .new_name = "n"};
    };
    EXPECT_EQ(act_on_each(file_tree_browser(), deeds), "");
    reached.get_future().wait();
    const std::string refusal = "Files are being changed. Escape stops that.";
    select_at({"zip", "a"});
    EXPECT_EQ(copy_file(), refusal);
    EXPECT_EQ(SetRootDisplay(path("top")), refusal);
    EXPECT_EQ(FileTreeUp(), refusal);
    file_tree_browser().current_file.set_text(path("top"));
    EXPECT_EQ(FileTreeSetDirectory(), refusal);
    select_at({"sub"});
    EXPECT_EQ(FileTreeDoubleClick(), refusal);
    QTest::keyClick(file_tree_browser().widget(), Qt::Key_Escape);
    go_on.set_value();
    EXPECT_EQ(after([] { return Message(); }), "Stopped: 1 of 3 done");
    EXPECT_EQ(children(node_at("zip")), Labels{"n"});
    EXPECT_EQ(children(top), (Labels{"b c", "dangle", "sub", "zip", "/proc/self/mem", "/proc/self"}));
    deeds.nodes.erase(deeds.nodes.begin());
    deeds.deed = [](const WalkedNode& /*node*/) { return Deed{.error = EIO}; };
    EXPECT_EQ(after([&] { return act_on_each(file_tree_browser(), deeds); }), "Input/output error");
}

}  // namespace
