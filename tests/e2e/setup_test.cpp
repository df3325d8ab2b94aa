// SPDX-License-Identifier: MIT
// The setup file, read at start-up and written by "Save Setup".
#include "tests/e2e/orvik_test.h"

#include <algorithm>
#include <random>

namespace {

namespace fs = std::filesystem;

class Setup : public OrvikTest {};

TEST_F(Setup, KeepsWhatItsUserChanged) {
    const std::string file = home_.write("work/Orvik.setup", "no setup\n");
    setup_.directory = home_ / "work";
    home_.write("Orvik.setup", setup_text({{15, "1"}, {16, "home"}}));
    start();
    EXPECT_EQ(display().title(x_window()), "home");
    const Accessible settings = open_window("Default Settings");
    ASSERT_TRUE(focus(settings, "Print Command:"));
    display().press_key("a", "Control_L");
    display().type("lpr -P two");
    ASSERT_TRUE(wait_until([&] { return field(settings, "Print Command:") == "lpr -P two"; }));
    const Accessible choice = settings.find({"panel", "Command Line Editing"});
    ASSERT_TRUE(choice.find({"radio button", "Disabled"}).press());
    ASSERT_TRUE(wait_until([&] { return choice.find({"radio button", "Disabled"}).checked(); }));
    ASSERT_TRUE(program_->choose(display(), "Setup", "Save Setup"));
    expect_left_footer("Setup saved to " + file);
    ASSERT_EQ(program_->stop(), 0);
    start();
    const Accessible again = open_window("Default Settings");
    EXPECT_EQ(field(again, "Print Command:"), "lpr -P two");
    // The start-up sets it before the setup file is read.
    EXPECT_TRUE(again.find({"panel", "Command Line Editing"}).find({"radio button", "Disabled"}).checked());
}

std::string random_bytes(std::size_t count) {
    std::mt19937 random(1);  // NOLINT: the same bytes on every run
    std::string bytes(count, '\0');
    std::ranges::generate(bytes, [&] { return static_cast<char>(random()); });
    return bytes;
}

constexpr std::size_t megabyte = std::size_t{1} << 20U;

struct HostileCase {
    const char* name;
    std::string contents;  ///< empty: the file is a directory
    std::string message;   ///< at the beginning of the Message Board, behind the file's path
};

std::ostream& operator<<(std::ostream& out, const HostileCase& row) { return out << row.name; }

const std::vector<HostileCase> hostile_cases{
    {"NoLineFeed", std::string(megabyte, 'x'),
     " is too large: only its beginning is loaded\nNot a valid setup file\n"},
    {"RandomBytesAfterTheHeader", "$ORVIK_SETUP\n" + random_bytes(megabyte),
     " is too large: only its beginning is loaded\n"},
    {"Directory", "", " not read: Is a directory\nSetup file not found\n"},
};

class HostileSetup : public OrvikTest, public testing::WithParamInterface<HostileCase> {};

TEST_P(HostileSetup, DoesNoHarm) {
    if (GetParam().contents.empty()) {
        fs::create_directory(home_ / "Orvik.setup");
    } else {
        home_.write("Orvik.setup", GetParam().contents);
    }
    start_with_shell("/bin/bash");
    type("echo $((6*7))-works\n");
    expect_in_terminal("42-works");
    const std::string messages = field(open_window("Message Board"), "Message Board text");
    const std::size_t setup_messages = messages.find("History file not found\n");
    EXPECT_EQ(messages.substr(0, setup_messages), (home_ / "Orvik.setup").string() + GetParam().message);
    EXPECT_TRUE(messages.ends_with("Orvik Command Tool starting\n")) << messages;
}

INSTANTIATE_TEST_SUITE_P(All, HostileSetup, testing::ValuesIn(hostile_cases),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
