// SPDX-License-Identifier: MIT
#include "tests/e2e/orvik_test.h"

#include <cstdlib>
#include <sstream>

namespace {

const std::string error_message = "Error in command string\n";

struct Case {
    const char* name;
    std::vector<std::string> options;
    std::string title;
    std::string working_directory_1;
    bool error = false;
};

std::ostream& operator<<(std::ostream& out, const Case& row) { return out << row.name; }

const std::string own_title = "Orvik Command Tool (Mac OS X) 9.90";

const std::vector<Case> cases{
    {"None", {}, own_title, ""},
    {"Label", {"-ilabel", "Two words"}, "Two words", ""},
    {"ShortLabel", {"-l", "short"}, "short", ""},
    {"Work", {"-work", "/tmp"}, own_title, "/tmp"},
    {"UnknownOnesAreIgnored", {"-frobnicate", "-l", "label", "stray"}, "label", ""},
    {"MissingValueDropsAll", {"-l", "label", "-work", "-opened"}, own_title, "", true},
};

class Options : public OrvikTest, public testing::WithParamInterface<Case> {};

TEST_P(Options, ShowInTheWindows) {
    setup_.options = GetParam().options;
    start();
    EXPECT_EQ(display().title(x_window()), GetParam().title);
    EXPECT_EQ(field(open_window("Environment Setup Window"), "Working Directory 1:"),
              GetParam().working_directory_1);
    const std::string messages = field(open_window("Message Board"), "Message Board text");
    EXPECT_EQ(messages.find(error_message) != std::string::npos, GetParam().error) << messages;
}

INSTANTIATE_TEST_SUITE_P(All, Options, testing::ValuesIn(cases),
                         [](const testing::TestParamInfo<Case>& row) { return std::string(row.param.name); });

class ToolkitOptions : public OrvikTest {
  protected:
    struct Size {
        int rows = 0;
        int columns = 0;
    };
    /// The terminal's size in characters.
    [[nodiscard]] Size size() const {
        Size result;
        std::istringstream(read_file(home_ / "size")) >> result.rows >> result.columns;
        return result;
    }
};

TEST_F(ToolkitOptions, ClosedStartsIconified) {
    setup_.options = {"-closed"};
    start();
    EXPECT_TRUE(wait_until([this] { return display().iconified(x_window()); }));
}

TEST_F(ToolkitOptions, OpenedStartsAsWindow) {
    setup_.options = {"-closed", "-opened"};
    start();
    EXPECT_TRUE(wait_until([this] { return main_.showing() && main_.active(); }));
    EXPECT_FALSE(display().iconified(x_window()));
}

TEST_F(ToolkitOptions, GeometryPlacesTheFrame) {
    setup_.options = {"-geometry", "900x600+20+30"};
    start();
    const WindowId window = x_window();
    EXPECT_EQ(awaited([&] { return display().place_with_frame(window).y; }, 30), 30);
    EXPECT_EQ(display().place_with_frame(window).x, 20);
    EXPECT_EQ(display().place(window).width, 900);
    EXPECT_EQ(display().place(window).height, 600);
}

TEST_F(ToolkitOptions, FontNameIsAResource) {
    setup_.options = {"-xrm", "Orvik.FontName: DejaVu Sans Mono-14"};
    start_with_recording_shell("shell");
    const Rectangle pane = terminal_.place();
    // At 96 dots an inch a character of this font is 11 pixels wide and 22 high.
    EXPECT_TRUE(wait_until([&] { return std::abs(size().columns - pane.width / 11) <= 3; }))
        << size().columns;
    EXPECT_NEAR(size().rows, pane.height / 22, 2);
}

TEST_F(ToolkitOptions, DisplayIsNamed) {
    setup_.options = {"-display", std::getenv("DISPLAY")};
    setup_.without = {"DISPLAY"};
    start();
    EXPECT_EQ(display().title(x_window()), own_title);
}

}  // namespace
