// SPDX-License-Identifier: MIT
#include "commands/subversion/notify.h"
#include "tests/browsers/tree/tree_windows.h"
#include "ui/checkout_from_repository.h"
#include "ui/message_board.h"
#include "ui/subversion_branch_tag.h"
#include "ui/subversion_commit.h"

namespace fs = std::filesystem;

namespace {

class SubversionTest : public TreeWindows {
  protected:
    void SetUp() override {
        TreeWindows::SetUp();
        home.write("top/v@2", "");
        home.write("top/$(id)@", "");
        top_ = root(path("top"));
    }
    void select_below_top(const Labels& labels) const {
        std::vector<TreeNode*> nodes;
        for (const std::string& label : labels) {
            nodes.push_back(child(top_, label));
        }
        select(nodes);
    }
    /// What a button leaves in its window's footer, and what it types, which the Message Board shows as well.
    std::string outcome(Message (*procedure)(), Frame& window) {
        const std::string footer = footer_after(procedure, window);
        const std::string line = typed();
        EXPECT_EQ(message_board().text.text(), line);
        textsw_reset(message_board().text);
        return footer + "|" + line;
    }

    TreeNode* top_ = nullptr;
};

TEST_F(SubversionTest, TypesALineForOneFileOrDirectory) {
    const std::string top = path("top/");
    const struct {
        Message (*procedure)();
        std::string command;
    } entries[] = {
        {SubversionMenuUpdate, "update"},
        {SubversionMenuAdd, "add"},
        {SubversionMenuDelete, "delete"},
        {SubversionMenuDiff, "diff"},
        {SubversionMenuLog, "log"},
        {SubversionMenuRevert, "revert"},
        {SubversionMenuStatusAll, "status --verbose"},
        {SubversionMenuStatusChanges, "status"},
    };
    for (const auto& [procedure, command] : entries) {
        file_tree().clear_selection();
        EXPECT_EQ(procedure(), "No selection made");
        select_below_top({"a", "b c"});
        EXPECT_EQ(footer_after(procedure), "Select one file");
        EXPECT_EQ(typed(), "");
        for (const char* label : {"b c", "sub", "v@2", "$(id)@"}) {
            select_below_top({label});
            EXPECT_EQ(footer_after(procedure), "");
        }
        const std::string line = "svn " + command + " ";
        const std::string at = command == "diff" ? "" : "@";  // svn diff takes no revision there
        EXPECT_EQ(typed(), line + '"' + top + "b c\"\n" + line + '"' + top + "sub\"\n" + line + '"' + top +
                               "v@2" + at + "\"\n" + line + '\'' + top + "$(id)@" + at + "'\n");
    }
    select_below_top({"a"});
    fs::remove(path("top/a"));
    EXPECT_EQ(footer_after(SubversionMenuLog), "Illegal file");
    EXPECT_EQ(footer_after(SubversionMenuCommit), "Illegal file");
    select_below_top({"b c", "sub"});
    EXPECT_EQ(footer_after(SubversionMenuCommit), "Select one file");
    EXPECT_FALSE(subversion_commit().shown());
    select_below_top({"sub"});
    EXPECT_EQ(footer_after(SubversionMenuCommit), "");
    EXPECT_TRUE(subversion_commit().shown());
    SubversionMenuBranch();
    EXPECT_TRUE(subversion_branch_tag().shown());
    for (void (*opener)() : {SubversionMenuCheckout, SubversionMenuCopy, SubversionMenuMove}) {
        checkout_from_repository().hide();
        opener();
        EXPECT_TRUE(checkout_from_repository().shown());
    }
}

TEST_F(SubversionTest, ChecksOutAndListsTheChosenRepository) {
    CheckoutFromRepository& window = checkout_from_repository();
    window.repository_1_url.set_text("file:///repo");
    window.repository_2_url.set_text("svn+ssh://me@host/a b");
    const std::string sub = path("top/sub");
    const struct {
        int repository;
        std::string revision;
        Labels selection;
        std::string checked_out;
        std::string listed;
    } cases[] = {
        {2, "", {"sub"}, "Subversion repository 3 not specified|", "Subversion repository 3 not specified|"},
        {0, "", {}, "No destination directory specified|", "|svn list file:///repo &\n"},
        {0, "", {"sub"}, "|svn checkout \"file:///repo\" " + sub + " &\n", "|svn list file:///repo &\n"},
        {0, "7", {"sub", "a"}, "Not a directory|", "|svn list  --revision 7 file:///repo &\n"},
        {1,
         "{2026-01-02}",
         {"zip", "sub"},
         "|svn checkout  --revision '{2026-01-02}' \"svn+ssh://me@host/a b\" " + sub + " &\n",
         "|svn list  --revision '{2026-01-02}' 'svn+ssh://me@host/a b' &\n"},
    };
    for (const auto& row : cases) {
        window.repository.set_value(row.repository);
        window.revision.set_text(row.revision);
        select_below_top(row.selection);
        EXPECT_EQ(outcome(SubversionCheckoutButton, window), row.checked_out);
        EXPECT_EQ(outcome(SubversionListButton, window), row.listed);
    }
    EXPECT_EQ(window.destination_directory.text(), sub);
    fs::remove_all(sub);
    EXPECT_EQ(outcome(SubversionCheckoutButton, window), "Illegal directory|");
}

TEST_F(SubversionTest, GivesTheMessageAsItIs) {
    SubversionCommit& commit = subversion_commit();
    SubversionBranchTag& branch = subversion_branch_tag();
    EXPECT_EQ(outcome(Subversion_commit_button, commit), "Message not specified|");
    EXPECT_EQ(outcome(Subversion_branch_button, branch), "Branch/tag name not specified|");
    branch.branch_tag_name.set_text("^/tags/1");
    EXPECT_EQ(outcome(Subversion_branch_button, branch), "Message not specified|");
    const std::string top = path("top/");
    const struct {
        std::string message;
        std::string name;
        Labels selection;
        std::string commits;
        std::string copies;
    } cases[] = {
        {"fix it", "x", {}, "No files specified|", "No files specified|"},
        {"fix it, ok?",
         "file:///r/v@2",
         {"a", "b c", "v@2"},
         "|svn commit --message \"fix it, ok?\" " + top + "a &\nsvn commit --message \"fix it, ok?\" '" +
             top + "b c' &\nsvn commit --message \"fix it, ok?\" " + top + "v@2@ &\n",
         "|svn copy " + top + "a file:///r/v@2@ --message \"fix it, ok?\"  &\nsvn copy '" + top +
             "b c' file:///r/v@2@ --message \"fix it, ok?\"  &\nsvn copy " + top +
             "v@2@ file:///r/v@2@ --message \"fix it, ok?\"  &\n"},
        {"-\"$HOME\"`id`'\\",
         "^/v@2@",
         {"sub"},
         "|svn commit --message '-\"$HOME\"`id`'\\''\\' " + top + "sub &\n",
         "|svn copy " + top + "sub '^/v@2@' --message '-\"$HOME\"`id`'\\''\\'  &\n"},
        {"wow!",
         "svn://me@host/-x",
         {"sub"},
         "|svn commit --message $'wow\\041' " + top + "sub &\n",
         "|svn copy " + top + "sub svn://me@host/-x --message $'wow\\041'  &\n"},
    };
    for (const auto& row : cases) {
        commit.message.set_text(row.message);
        branch.message.set_text(row.message);
        branch.branch_tag_name.set_text(row.name);
        select_below_top(row.selection);
        EXPECT_EQ(outcome(Subversion_commit_button, commit), row.commits);
        EXPECT_EQ(outcome(Subversion_branch_button, branch), row.copies);
    }
    select_below_top({"sub", "a", "zip"});
    fs::remove(path("top/a"));
    EXPECT_EQ(outcome(Subversion_commit_button, commit),
              "Illegal file|svn commit --message $'wow\\041' " + top + "sub &\n");
}

}  // namespace
