// SPDX-License-Identifier: MIT
#include "commands/notify.h"
#include "tests/browsers/tree/tree_windows.h"
#include "ui/default_settings.h"
#include "ui/execute_unix_command.h"
#include "ui/message_board.h"
#include "ui/text_editor_setup.h"

namespace fs = std::filesystem;

namespace {

/// The windows, with the programs that are started replaced by nothing: what is shown of them is looked at.
class OpenTest : public TreeWindows {
  protected:
    void SetUp() override {
        TreeWindows::SetUp();
        home.write("top/a", "1\n2\n");
        home.write("top/o'x", "");
        home.write("top/$(touch pwned)", "");
        for (const char* program : {"open", "shelltool", "zebra", "nedit", "xemacs", "mp", "lp", "xterm"}) {
            home.write_script(std::string("bin/") + program, "#!/bin/sh\ncat\n");
        }
        orvik_home = home.path();
        default_settings().print_command.set_text("");
        setenv("OPENFRAME", "true", 1);
        setenv("DIFF", "sdiff", 1);
        text_editor_setup().text_editor.set_value(5);
        top_ = root(path("top"));
    }
    void TearDown() override {
        orvik_home.clear();
        TreeWindows::TearDown();
    }
    void select_below_top(const Labels& labels) const {
        std::vector<TreeNode*> nodes;
        for (const std::string& label : labels) {
            nodes.push_back(label == "top" ? top_ : child(top_, label));
        }
        select(nodes);
    }
    static std::string board() {
        const std::string text = message_board().text.text();
        textsw_reset(message_board().text);
        return text;
    }

    TreeNode* top_ = nullptr;
};

TEST_F(OpenTest, MakesALineForEachFile) {
    const std::string a = path("top/a");
    const std::string blank = path("top/b c");
    const std::string hostile = path("top/$(touch pwned)");
    const std::string sub = path("top/sub");
    const std::string pager = " -Wp 0 0 -Ws 0 0 -Wx medium -WT lucidasans-10 &\n";
    text_editor_setup().x_coordinate.set_value(0);
    text_editor_setup().y_coordinate.set_value(0);
    text_editor_setup().width_pixels.set_value(0);
    text_editor_setup().height_pixels.set_value(0);
    text_editor_setup().font_size.set_value(1);
    const struct {
        Message (*procedure)();
        Labels selection;
        std::string footer;
        std::string typed;
        std::string board;
    } cases[] = {
        {open_pdf, {}, "No files selected"},
        {open_pdf, {"sub", "a"}, "Not a regular file"},
        {open_pdf,
         {"a", "b c"},
         "",
         "",
         "open -a $OPENPDF \"" + a + "\" &\nopen -a $OPENPDF \"" + blank + "\" &\n"},
        {open_word, {"a", "sub", "b c"}, "Not a regular file", "", "open -a $OPENOFFICE \"" + a + "\" &\n"},
        {open_html, {"$(touch pwned)"}, "", "", "open -a $OPENHTML '" + hostile + "' &\n"},
        {open_jpg, {"o'x"}, "", "", "open -a $OPENJPG \"" + path("top/o'x") + "\" &\n"},
        {open_tagtool, {"a"}, "", "", "open -a $OPENSGML " + a + " &\n"},
        {open_framemaker, {"a"}, "", "", "$OPENFRAME " + a + " &\n"},
        {open_in_zebra, {"a"}, "", "", "zebra " + a + " &\n"},
        {archive_files, {"a"}, "", "", "shelltool -c less " + a + pager},
        {list_file, {"b c"}, "", "", "shelltool -c less " + path("top/b\\ c") + pager},
        {edit_file, {}, "No files selected"},
        {edit_file, {"a", "sub"}, "Not a regular file", "", "xemacs " + a + " &\n"},
        {header_file, {}, "No files selected"},
        {header_file, {"a", "b c"}, "", "", " \n\n" + a + " \n\n1\n2\n \n\n" + blank + " \n\n"},
        {print_file, {}, "No files selected"},
        {print_file, {"a"}, "", "", "mp -s a " + a + " | lp -c &\n"},
        {run_bg_file, {}, "No file selected"},
        {run_bg_file, {"sub", "b c"}, "", "\"" + sub + "\" &\n\"" + blank + "\" &\n"},
        {run_fg_file, {"a"}, "No program specified"},
        {run_fg_file, {}, "No program specified"},
        {run_fg_file, {"sub"}, "", "open \"" + sub + "\"\n"},
        {run_fg_file, {"a", "zip", "b c", "sub"}, "", "open -a \"" + sub + "\" \"" + blank + "\"\n"},
        {vcompare_file, {"a"}, "Select two files for comparison"},
        {vcompare_file, {"sub", "a"}, "", "$DIFF " + sub + " " + a + "\n", "$DIFF " + sub + " " + a + "\n"},
        {compare_file, {"a", "b c", "sub", "zip"}, "Select two or three files for comparison"},
        {compare_file, {"b c", "a"}, "", path(".orvik-script\n")},
        {start_xterm, {}, "No file selected"},
        {start_xterm, {"a"}, "Not a directory"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.board + row.typed + row.footer);
        select_below_top(row.selection);
        EXPECT_EQ(footer_after(row.procedure), row.footer);
        EXPECT_TRUE(wait([&] { return message_board().text.text().size() >= row.board.size(); }));
        EXPECT_EQ(board(), row.board);
        EXPECT_EQ(typed(), row.typed);
    }
    EXPECT_EQ(default_settings().last_command.text(), path(".orvik-script"));
    EXPECT_EQ(read_file(home / ".orvik-script"),
              "# Orvik compare files\n\ndiff -c " + path("top/b\\ c") + " \\\n" + a + "\n");
    select_below_top({"sub"});
    file_tree_browser().set_left_footer(header_file());
    EXPECT_TRUE(wait([] { return file_tree_browser().left_footer() == "Not a regular file"; }));
    fs::remove(path("top/a"));
    select_below_top({"b c", "a"});
    EXPECT_EQ(footer_after(open_pdf), "Illegal file");
    EXPECT_EQ(footer_after(vcompare_file), "Illegal file name");
    text_editor_setup().text_editor.set_value(TextEditorSetup::user_defined);
    text_editor_setup().user_editor.set_text("");
    file_tree().clear_selection();
    EXPECT_EQ(edit_file(), "User editor not specified");
}

TEST_F(OpenTest, NamesWhatIsMissingAndStartsNothing) {
    unsetenv("DIFF");
    unsetenv("OPENFRAME");
    select_below_top({"a", "b c"});
    EXPECT_EQ(footer_after(vcompare_file), "Environment variable DIFF is not set");
    EXPECT_EQ(footer_after(open_framemaker), "Environment variable OPENFRAME is not set");
    fs::create_directory(home / ".orvik-script");
    EXPECT_EQ(footer_after(compare_file), "Could not open .orvik-script");
    EXPECT_EQ(typed() + board(), "");
}

TEST_F(OpenTest, PrintsTheFirstFileAgainWithPlaceholders) {
    default_settings().print_command.set_text("true $FILE_NAME ");
    select_below_top({"b c", "a"});
    EXPECT_EQ(footer_after(print_file), "");
    EXPECT_EQ(board(), "true 'b c' &\ntrue 'b c' &\n");
}

TEST_F(OpenTest, ExecutesACommandForEachNode) {
    ExecuteUnixCommand& window = execute_unix_command();
    const std::string a = path("top/a");
    const struct {
        std::string command;
        std::string prefix;
        Labels selection;
        std::string footer;
        std::string foreground;
        std::string background;
    } cases[] = {
        {"", "", {"a"}, "Command not specified"},
        {"ls", "", {}, "No files selected"},
        {"ls -l", "", {"a"}, "", "ls -l \"" + a + "\"\n", "ls -l " + a + " &\n"},
        {"wc",
         "| tee x",
         {"a", "sub"},
         "",
         "wc \"" + a + "\" | tee x\nwc \"" + path("top/sub") + "\" | tee x\n",
         "wc " + a + " &\nwc " + path("top/sub") + " &\n"},
        {"ls",
         "",
         {"$(touch pwned)"},
         "",
         "ls '" + path("top/$(touch pwned)") + "'\n",
         "ls '" + path("top/$(touch pwned)") + "' &\n"},
        {"echo '", "", {"a"}, "Name can't be typed into the shell: " + a},
        {"ssh host rm",
         "",
         {"$(touch pwned)"},
         "Name can't be typed into the shell: " + path("top/$(touch pwned)")},
    };
    for (const auto& row : cases) {
        window.command.set_text(row.command);
        window.prefix.set_text(row.prefix);
        select_below_top(row.selection);
        EXPECT_EQ(footer_after(Execute_unix_command, window), row.footer);
        EXPECT_EQ(typed(), row.foreground);
        EXPECT_EQ(footer_after(UnixCommandExecuteBG, window), row.footer);
        EXPECT_EQ(typed(), row.background);
    }
    EXPECT_EQ(default_settings().last_command.text(), "ls '" + path("top/$(touch pwned)") + "' &");
}

}  // namespace
