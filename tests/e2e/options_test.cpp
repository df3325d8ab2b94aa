// SPDX-License-Identifier: MIT
#include "tests/e2e/orvik_test.h"

#include <cstdlib>
#include <sstream>
#include <tuple>

namespace {

const std::string own_title = "Orvik Command Tool (Mac OS X) 9.90";

class Options : public OrvikTest {
  protected:
    /// What the windows tell of the options: title, first working directory, messages.
    using Outcome = std::tuple<std::string, std::string, std::string>;
    [[nodiscard]] Outcome outcome() {
        start();
        const std::string messages = field(open_window("Message Board"), "Message Board text");
        return {display().title(x_window()),
                field(open_window("Environment Setup Window"), "Working Directory 1:"),
                messages.substr(0, messages.find('\n'))};
    }
};

TEST_F(Options, ShowInTheWindows) {
    setup_.options = {"-frobnicate", "-l", "Two words", "-work", "/tmp", "stray"};
    EXPECT_EQ(outcome(), Outcome("Two words", "/tmp", "Setup file not found"));
}

TEST_F(Options, ALastLabelWithoutItsTextLeavesTheSetups) {
    home_.write("Orvik.setup", setup_text({{16, "from the setup"}}));
    setup_.options = {"-l"};
    start();
    EXPECT_EQ(display().title(x_window()), "from the setup");
}

TEST_F(Options, AMissingValueDropsAll) {
    setup_.options = {"-l", "label", "-work", "-opened"};
    EXPECT_EQ(outcome(), Outcome(own_title, "", "Error in command string"));
}

TEST_F(Options, ClosedStartsIconified) {
    setup_.options = {"-closed"};
    start();
    EXPECT_TRUE(wait_until([this] { return display().iconified(x_window()); }));
}

TEST_F(Options, OpenedStartsAsWindowAndGeometryPlacesItsFrame) {
    setup_.options = {"-closed", "-opened", "-geometry", "900x600+20+30"};
    start();
    EXPECT_TRUE(wait_until([this] { return main_.showing() && main_.active(); }));
    EXPECT_FALSE(display().iconified(x_window()));
    const WindowId window = x_window();
    expect_awaited([&] { return display().place_with_frame(window).y; }, 30);
    EXPECT_EQ(display().place_with_frame(window).x, 20);
    EXPECT_EQ(display().place(window).width, 900);
    EXPECT_EQ(display().place(window).height, 600);
}

TEST_F(Options, HelpAndVersionAnswerWithoutADisplay) {
    setup_.without = {"DISPLAY", "HOME", "LOGNAME", "SHELL", "ORVIK_HOME"};
    for (const auto& [option, begin] :
         {std::pair("--version", "orvik 9.90\n"), {"--help", "Usage: orvik [OPTION]..."}}) {
        setup_.options = {"-work", option};
        const Program asked(setup_);
        EXPECT_EQ(asked.process().wait_for_end(patience), 0);
        EXPECT_TRUE(asked.output().starts_with(begin)) << asked.output();
    }
}

/// A size smaller than the controls need is made larger; the corner stays where it is said to be.
TEST_F(Options, GeometryCountsFromTheLowerRightWithTheFrame) {
    setup_.options = {"-geometry", "300x200-10-20"};
    start();
    const WindowId window = x_window();
    const Rectangle screen = display().screen();
    const auto right_and_bottom = [&] {
        const Rectangle place = display().place_with_frame(window);
        return std::pair(screen.width - place.x - place.width, screen.height - place.y - place.height);
    };
    expect_awaited(right_and_bottom, std::pair(10, 20));
}

TEST_F(Options, FontNameIsAResource) {
    setup_.options = {"-xrm", "Orvik.FontName: DejaVu Sans Mono-14"};
    start_with_recording_shell("shell");
    const Rectangle pane = terminal_.place();
    int rows = 0;
    int columns = 0;
    // At 96 dots an inch a character of this font is 11 pixels wide and 22 high.
    EXPECT_TRUE(wait_until([&] {
        std::istringstream(read_file(home_ / "size")) >> rows >> columns;
        return std::abs(columns - pane.width / 11) <= 3;
    })) << columns;
    EXPECT_LE(std::abs(rows - pane.height / 22), 2);
}

}  // namespace
