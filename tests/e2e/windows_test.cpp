// SPDX-License-Identifier: MIT
#include "tests/e2e/orvik_test.h"

namespace {

class Windows : public OrvikTest {};

TEST_F(Windows, OpenFromTheirMenusAndCloseWithEscape) {
    start();
    for (const char* const title : {"Default Settings", "Environment Setup Window", "Define Label",
                                    "Process Information", "Status Display", "Message Board"}) {
        EXPECT_FALSE(program_->shows(title));
        EXPECT_TRUE(open_window(title)) << title << '\n' << program_->application().tree();
        display().press_key("Escape");
        EXPECT_TRUE(wait_until([&] { return !program_->shows(title); })) << title;
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
              "History file not found\nCouldn't generate history menu\n"
              "Environment setup file not found\nOrvik Command Tool starting\n");
}

TEST_F(Windows, LabelIsTheTitleOfTheMainWindow) {
    start();
    const WindowId window = x_window();
    const Accessible label = open_window("Define Label").find({"text", "Label:"});
    ASSERT_TRUE(label.set_text("Renamed") && label.take_focus());
    display().press_key("Return");
    EXPECT_EQ(awaited([&] { return display().title(window); }, "Renamed"), "Renamed");
}

}  // namespace
