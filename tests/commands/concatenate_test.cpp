// SPDX-License-Identifier: MIT
#include "commands/notify.h"
#include "shell/shell_family.h"
#include "tests/browsers/tree/tree_windows.h"
#include "tests/support/hostile_names.h"
#include "ui/concatenate_files_window.h"
#include "ui/copy_to_selected_directory.h"
#include "ui/usb_memory.h"

#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

class ConcatenateTest : public TreeWindows {
  protected:
    void SetUp() override {
        TreeWindows::SetUp();
        top_ = root(path("top"));
    }
    void select_below_top(const Labels& labels) const {
        std::vector<TreeNode*> nodes;
        for (const std::string& label : labels) {
            nodes.push_back(child(top_, label));
        }
        select(nodes);
    }

    static ConcatenateFiles& window() { return concatenate_files_window(); }
    TreeNode* top_ = nullptr;
};

TEST_F(ConcatenateTest, WritesAScriptThatPutsTheOutputInItsPlace) {
    const std::string top = path("top/");
    const std::string head = "# Orvik concatenate files\n\n";
    const std::string both = " \\\n" + top + "a \\\n" + top + "b\\ c > ";
    const struct {
        Labels selection;
        int lines;
        std::string output;
        std::string footer;
        std::string script;
        std::string hint;
    } cases[] = {
        {{"a"}, 0, "", "Output file name not specified"},
        {{}, 0, "x", "No file selected"},
        {{"sub", "a"}, 0, "x", "Must select at least two files to concatenate"},
        {{"sub", "zip", "a", "b c"}, 0, "x", "Can't select more than one destination directory"},
        {{"a", "b c"}, -1, "x", "Number of lines is negative"},
        {{"a", "b c"}, 0, "x", "", "cat " + both + "x\n", "Output file will be placed in working directory"},
        {{"a", "b c", "sub"},
         5,
         "o 'x",
         "",
         "head -5 " + both + "'" + top + "sub/o '\\''x'\n",
         "Output file will be placed in directory selected"},
        {{"a", "sub", "b c"},
         0,
         "/tmp/x",
         "",
         "cat " + both + "/tmp/x\n",
         "Absolute path used for output file"},
    };
    for (const auto& row : cases) {
        fs::remove(path(".orvik-script"));
        window().number_of_lines.set_value(row.lines);
        window().output_file_name.set_text(row.output);
        select_below_top(row.selection);
        EXPECT_EQ(footer_after(ConcatenateRun, window()), row.footer);
        EXPECT_EQ(typed(), row.script.empty() ? "" : path(".orvik-script\n"));
        EXPECT_EQ(read_file(path(".orvik-script")), row.script.empty() ? "" : head + row.script);
        EXPECT_EQ(window().right_footer(), row.hint);
    }
    select_below_top({"b c", "a"});
    EXPECT_EQ(footer_after(concatenate_files), "");
    EXPECT_EQ(window().output_file_name.text(), "a.cat");
    EXPECT_EQ(window().right_footer(), "Output file will be placed in working directory");
}

TEST_F(ConcatenateTest, TheScriptIsOnesOwnWithItsMode) {
    window().output_file_name.set_text("x");
    select_below_top({"a", "b c"});
    const mode_t old = umask(077);
    const std::string script = path(".orvik-script");
    home.write("elsewhere", "kept");
    fs::create_symlink("elsewhere", script);
    EXPECT_EQ(footer_after(ConcatenateRun, window()), "");
    umask(old);
    struct stat status {};
    ASSERT_EQ(lstat(script.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode, S_IFREG | 0755U) << "a link is replaced, not followed";
    EXPECT_EQ(read_file(path("elsewhere")), "kept");
    if (geteuid() == 0) {
        ASSERT_EQ(chown(script.c_str(), 65534, 65534), 0);
        EXPECT_EQ(footer_after(ConcatenateRun, window()), "Could not open .orvik-script");
    }
}

TEST_F(ConcatenateTest, RealShellsReadEveryName) {
    Labels names;
    std::string expected;
    for (const HostileName& row : hostile_names) {
        if (row.name.find('/') == std::string::npos) {
            names.push_back(row.name);
            home.write("all/" + row.name, row.name + "|");
            expected += row.name + "|";
        }
    }
    TreeNode* const all = root(path("all"));
    std::vector<TreeNode*> nodes;
    for (const std::string& name : names) {
        nodes.push_back(child(all, name));
    }
    window().output_file_name.set_text("$(touch pwned)'!");
    fs::create_directory(path("cwd"));
    const struct {
        ShellFamily family;
        const char* command;
    } shells[] = {
        {ShellFamily::bash, "LC_ALL=C.UTF-8 bash -c"}, {ShellFamily::ksh, "LC_ALL=C ksh93 -c"},
        {ShellFamily::zsh, "LC_ALL=C.UTF-8 zsh -fc"},  {ShellFamily::csh, "LC_ALL=C.UTF-8 tcsh -fc"},
        {ShellFamily::csh, "LC_ALL=C tcsh -fc"},       {ShellFamily::other, "LC_ALL=C dash -c"}};
    for (const auto& shell : shells) {
        user_shell.family = shell.family;
        select(nodes);
        ASSERT_EQ(footer_after(ConcatenateRun, window()), "") << shell.command;
        (void)typed();
        const std::string home_of_shell = home.path().string();
        const std::string line = fmt::format("cd {0}/cwd && rm -f -- * && HOME={0} {1} {0}/.orvik-script",
                                             home_of_shell, shell.command);
        EXPECT_EQ(std::system(line.c_str()), 0) << line;
        EXPECT_EQ(read_file(path("cwd/$(touch pwned)'!")), expected) << shell.command;
        EXPECT_FALSE(fs::exists(path("cwd/pwned"))) << shell.command;
    }
}

TEST_F(ConcatenateTest, CopiesANamedFileIntoTheDirectory) {
    CopyToSelectedDirectory& window = copy_to_selected_directory();
    home.write("from/new 'x", "text");
    home.write("from/x.h", "");
    const struct {
        std::string file;
        Labels selection;
        std::string footer;
    } cases[] = {
        {"", {"sub"}, "Source file not specified"},
        {path("none"), {"sub"}, "Illegal file"},
        {path("from"), {"sub"}, "Illegal file"},
        {path("from/x.h"), {}, "Specify one destination directory"},
        {path("from/x.h"), {"sub", "a"}, "Specify one destination directory"},
        {path("from/x.h"), {"sub"}, "File already exists"},
    };
    const auto copy = [&](const std::string& file, const Labels& selection) {
        window.file_name.set_text(file);
        window.set_left_footer("");
        select_below_top(selection);
        window.set_left_footer(CopyToSelectedDir());
    };
    for (const auto& row : cases) {
        copy(row.file, row.selection);
        EXPECT_TRUE(wait([&] { return window.left_footer() == row.footer; }))
            << window.left_footer() << " for " << row.footer;
    }
    copy(path("from/new 'x"), {"sub"});
    EXPECT_TRUE(wait([this] { return children(child(top_, "sub")) == Labels{"new 'x"}; }));
    EXPECT_EQ(window.left_footer(), "");
    EXPECT_EQ(read_file(path("top/sub/new 'x")), "text");
    select_below_top({"a"});
    EXPECT_EQ(footer_after(copy_to_selected), "Specify one destination directory");
    select_below_top({"a", "sub"});
    EXPECT_EQ(footer_after(copy_to_selected), "");
    EXPECT_TRUE(wait([&] { return window.widget()->isVisible(); }));
}

TEST_F(ConcatenateTest, MountsAndShowsAMedium) {
    UsbMemory& window = usb_memory();
    window.name.set_text("");
    for (Message (*procedure)() : {USBmemoryMount, USBmemoryUnmount, USBmemoryDisplay}) {
        EXPECT_EQ(procedure(), "Directory name not specified");
    }
    window.name.set_text(path("top/b c"));
    for (const bool sudo : {true, false}) {
        window.sudo.set_value(sudo);
        EXPECT_EQ(USBmemoryMount(), "");
        EXPECT_EQ(USBmemoryUnmount(), "");
    }
    const std::string name = " '" + path("top/b c") + "'\n";
    EXPECT_EQ(typed(), "sudo mount" + name + "sudo umount" + name + "mount" + name + "umount" + name);
    window.name.set_text(path("top/sub"));
    EXPECT_TRUE(footer_after(USBmemoryDisplay).starts_with("Total number of files"));
    EXPECT_EQ(file_tag(file_tree().roots().back()).path(), path("top/sub"));
}

}  // namespace
