// SPDX-License-Identifier: MIT
#include "tests/e2e/orvik_test.h"

#include <algorithm>
#include <vector>

#include <unistd.h>

namespace {

class Windows : public OrvikTest {};

TEST_F(Windows, MenusHaveTheirItems) {
    start();
    for (const char* const menu : {"Help", "Setup", "Browse", "Edit"}) {
        std::vector<std::string> expected;
        for (const MenuEntry& entry : menu_entries()) {
            if (entry.menu == menu) {
                expected.emplace_back(entry.item);
            }
        }
        std::vector<std::string> items;
        for (const Accessible& item : main_.find({"push button", menu}).children().front().children()) {
            if (item.role() == "menu item") {
                items.push_back(item.name());
            }
        }
        EXPECT_EQ(items, expected) << menu;
    }
}

TEST_F(Windows, OpenFromTheirMenusAndCloseWithEscape) {
    start();
    for (const MenuEntry& entry : menu_entries()) {
        if (entry.title.empty()) {
            continue;
        }
        EXPECT_FALSE(program_->shows(entry.title)) << entry.title;
        EXPECT_TRUE(program_->open(display(), entry.menu, entry.item, entry.title))
            << entry.item << '\n'
            << program_->application().tree();
        display().press_key("Escape");
        EXPECT_TRUE(wait_until([&] { return !program_->shows(entry.title); })) << entry.title;
    }
}

TEST_F(Windows, StartingValues) {
    start();
    EXPECT_EQ(field(open_window("Process Information"), "Process ID:"), own_pid());
    const Accessible status = open_window("Status Display");
    EXPECT_TRUE(status.find({"panel", "Display"}).find({"radio button", "On"}).checked());
    for (const auto& [item, checked] : std::map<std::string, bool>{
             {"Clear Case View", false}, {"Host Name", true}, {"Process ID", true}, {"User Name", true}}) {
        EXPECT_EQ(status.find({"panel", "Enable"}).find({"check box", item}).checked(), checked) << item;
    }
    EXPECT_EQ(field(open_window("Message Board"), "Message Board text"),
              "Setup file not found\nHistory file not found\nCouldn't generate history menu\n"
              "Environment setup file not found\nOrvik Command Tool starting\n");
}

struct UserCase {
    const char* name;
    std::string shell;
    std::map<std::string, std::string> environment;
    std::string editor;
    std::string delimiter;  ///< of a user who is not root
};

std::ostream& operator<<(std::ostream& out, const UserCase& row) { return out << row.name; }

const std::vector<UserCase> user_cases{
    {"Bash", "/bin/bash", {{"VISUAL", "gvim"}}, "gvim", "$"},
    {"Csh", "/bin/tcsh", {{"VISUAL", "vi"}}, "xdg-open", ">"},
    {"Zsh", "/bin/zsh", {{"EDITOR", "gedit -s"}}, "gedit -s", "%"},
};

class StartingValuesOf : public OrvikTest, public testing::WithParamInterface<UserCase> {};

TEST_P(StartingValuesOf, AUser) {
    setup_.shell = GetParam().shell;
    setup_.environment = GetParam().environment;
    start();
    EXPECT_EQ(field(open_window("Text Editor Setup"), "User Editor:"), GetParam().editor);
    EXPECT_EQ(field(open_window("Default Settings"), "Prompt Ending Delimiter:"),
              geteuid() == 0 ? "#" : GetParam().delimiter);
}

INSTANTIATE_TEST_SUITE_P(All, StartingValuesOf, testing::ValuesIn(user_cases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(Windows, LabelIsTheTitleOfTheMainWindow) {
    start();
    const WindowId window = x_window();
    const Accessible label = open_window("Define Label").find({"text", "Label:"});
    ASSERT_TRUE(label.set_text("Renamed") && label.take_focus());
    ASSERT_TRUE(wait_until([&] { return label.focused(); }));
    display().press_key("Return");
    EXPECT_EQ(awaited([&] { return display().title(window); }, "Renamed"), "Renamed");
}

/// What a command writes to its standard output.
std::string output_of(const std::string& command, const std::filesystem::path& file) {
    EXPECT_EQ(std::system((command + " >'" + file.string() + "'").c_str()), 0) << command;
    return read_file(file);
}

TEST_F(Windows, AboutTellsAndCopies) {
    start_with_shell("/bin/bash");
    type("stty size >size\n");
    ASSERT_TRUE(wait_until([this] { return read_file(home_ / "size").ends_with('\n'); }));
    int rows = 0;
    int columns = 0;
    ASSERT_EQ(std::sscanf(read_file(home_ / "size").c_str(), "%d %d", &rows, &columns), 2);
    const Accessible about = open_window("About");
    const std::string text = field(about, "About text");
    for (const std::string& part :
         {std::string("Orvik Command Tool 9.90\n"), std::string(" /bin/bash\n"), " " + own_pid() + "\n",
          " " + std::to_string(columns) + " columns, " + std::to_string(rows) + " rows\n"}) {
        EXPECT_NE(text.find(part), std::string::npos) << part << "in\n" << text;
    }
    ASSERT_TRUE(about.find({"push button", "Copy"}).press());
    EXPECT_EQ(awaited([&] { return footer(about, "left footer"); }, "Copied to the clipboard"),
              "Copied to the clipboard");
    EXPECT_EQ(output_of("timeout 20 xclip -o -selection clipboard", home_ / "copied"), text);
}

TEST_F(Windows, HelpIsSearchedAndItsLinksAreFollowed) {
    start();
    ASSERT_TRUE(program_->open(display(), "Help", "User Guide", "Help"));
    const Accessible help = program_->open(display(), "Help", "To Get Started", "Help");
    const Accessible page = help.find({"", "Help text"});
    ASSERT_TRUE(wait_until([&] { return page.focused() && page.text().starts_with("To Get Started\n"); }));
    // The first links lead down the page, the next one to the User Guide.
    const std::string source = read_file(setup_.data / "help/get_started.html");
    for (std::size_t at = source.find("href=");
         at != std::string::npos && at <= source.find("href=\"user_guide");
         at = source.find("href=", at + 1)) {
        display().press_key("Tab");
    }
    display().press_key("Return");
    ASSERT_TRUE(wait_until([&] { return page.text().starts_with("User Guide\n"); })) << page.text();

    display().press_key("f", "Control_L");
    const Accessible sought = help.find({"text", "Find:"});
    ASSERT_TRUE(wait_until([&] { return sought.focused(); }));
    display().type("shell");
    std::string text = page.text();
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::tolower(c); });
    int matches = 0;
    for (std::size_t at = text.find("shell"); at != std::string::npos; at = text.find("shell", at + 1)) {
        ++matches;
    }
    EXPECT_GT(matches, 1);
    EXPECT_TRUE(wait_until([&] {
        return help.find({"label", std::to_string(matches) + " matches"});
    })) << help.tree();
    ASSERT_TRUE(help.find({"push button", "Back"}).press());
    EXPECT_TRUE(wait_until([&] { return page.text().starts_with("To Get Started\n"); }));
}

TEST_F(Windows, NotebookKeepsWhatIsNotSaved) {
    start();
    const Accessible notebook = open_window("Notebook");
    const auto text = [&] { return field(notebook, "Notebook text"); };
    const auto press = [&](std::string_view button) {
        EXPECT_TRUE(notebook.find({"push button", button}).press());
    };
    const auto type_text = [&](std::string_view typed) {
        ASSERT_TRUE(focus(notebook, "Notebook text"));
        display().type(typed);
        ASSERT_TRUE(wait_until([&] { return text() == typed; })) << text();
    };
    const auto question = [this] {
        return program_->application().find({"label", "The text is not saved. Discard it ?"});
    };
    type_text("first note\n");
    press("Save");
    const std::string file = home_ / "notebook.txt";
    EXPECT_EQ(awaited([&] { return footer(notebook, "left footer"); }, "Saved to " + file),
              "Saved to " + file);
    EXPECT_EQ(read_file(file), "first note\n");
    press("Clear");
    EXPECT_EQ(awaited(text, ""), "");
    EXPECT_FALSE(question());

    type_text("second note");
    press("Clear");
    ASSERT_TRUE(wait_until([&] { return question().parent().active(); })) << program_->application().tree();
    display().press_key("Escape");
    EXPECT_TRUE(wait_until([&] { return !question(); }));
    EXPECT_EQ(text(), "second note");
    EXPECT_EQ(read_file(file), "first note\n");
}

}  // namespace
