// SPDX-License-Identifier: MIT
#include "tests/e2e/orvik_test.h"

#include <cstdlib>
#include <map>
#include <vector>

#include <unistd.h>

namespace {

class Windows : public OrvikTest {};

TEST_F(Windows, MenusHaveTheirItemsAndOpenTheirWindows) {
    start();
    std::map<std::string_view, std::vector<std::string>> items;
    for (const MenuEntry& entry : menu_entries()) {
        items[entry.menu].emplace_back(entry.item);
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
    for (const auto& [menu, expected] : items) {
        std::vector<std::string> found;
        for (const Accessible& item : main_.find({"push button", menu}).children().front().children()) {
            if (item.role() == "menu item") {
                found.push_back(item.name());
            }
        }
        EXPECT_EQ(found, expected) << menu;
    }
}

TEST_F(Windows, StartingValues) {
    setup_.shell = "/bin/tcsh";
    setup_.environment = {{"VISUAL", "vi"}, {"EDITOR", "gedit -s"}};
    start();
    EXPECT_EQ(field(open_window("Text Editor Setup"), "User Editor:"), "gedit -s");
    EXPECT_EQ(field(open_window("Default Settings"), "Prompt Ending Delimiter:"), geteuid() == 0 ? "#" : ">");
    EXPECT_EQ(field(open_window("Process Information"), "Process ID:"), own_pid());
    const Accessible status = open_window("Status Display");
    EXPECT_TRUE(status.find({"panel", "Display"}).find({"radio button", "On"}).checked());
    for (const auto& [item, checked] : std::map<std::string, bool>{
             {"Clear Case View", false}, {"Host Name", true}, {"Process ID", true}, {"User Name", true}}) {
        EXPECT_EQ(status.find({"panel", "Enable"}).find({"check box", item}).checked(), checked) << item;
    }
    EXPECT_EQ(field(open_window("Message Board"), "Message Board text"),
              "Setup file not found\nHistory file not found\n.orvik-menu not found\n"
              "Illegal commands directory\nCouldn't generate history menu\nBookmark file not found\n"
              "Environment setup file not found\nOrvik Command Tool starting\n");
}

TEST_F(Windows, LabelIsTheTitleOfTheMainWindow) {
    start();
    const WindowId window = x_window();
    const Accessible label = open_window("Define Label").find({"text", "Label:"});
    ASSERT_TRUE(label.set_text("Renamed") && label.take_focus());
    ASSERT_TRUE(wait_until([&] { return label.focused(); }));
    display().press_key("Return");
    expect_awaited([&] { return display().title(window); }, std::string("Renamed"));
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
    expect_awaited([&] { return footer(about, "left footer"); }, std::string("Copied to the clipboard"));
    const std::string file = home_ / "copied";
    EXPECT_EQ(std::system(("timeout 20 xclip -o -selection clipboard >'" + file + "'").c_str()), 0);
    EXPECT_EQ(read_file(file), text);
}

TEST_F(Windows, HelpIsWalkedByItsLinksAndBack) {
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

    ASSERT_TRUE(help.find({"push button", "Back"}).press());
    EXPECT_TRUE(wait_until([&] { return page.text().starts_with("To Get Started\n"); }));
}

}  // namespace
