// SPDX-License-Identifier: MIT
// The tool's own keys in the terminal pane, with a real shell: commands that are filed, recalled and taken
// out of the shell's line.
#include "tests/e2e/orvik_test.h"

#include <gtest/gtest.h>

namespace {

constexpr int editing_line = 15;
constexpr int long_command_window_line = 79;

class Keys : public OrvikTest {
  protected:
    /// Starts bash with settings of the setup file beside those that filing commands needs.
    void start_bash(std::map<int, std::string> settings = {}) {
        settings.merge(std::map<int, std::string>{{editing_line, "1"},
                                                  {35, "3"},
                                                  {37, "20"},
                                                  {38, "1"},
                                                  {43, "echo seven"},
                                                  {50, "14"},
                                                  {55, "1"},
                                                  {56, ">"}});
        home_.write("Orvik.setup", setup_text(settings));
        start_with_shell("/bin/bash");
        expect_prompt("ready> ");
    }
    /// Waits until the terminal's text ends so. What is typed ahead of a prompt is drawn in its place.
    void expect_prompt(const std::string& end) {
        constexpr int screenful = 8000;
        ASSERT_TRUE(wait_until([&] { return terminal_.last_text(screenful).ends_with(end); }))
            << terminal_.text();
    }
    [[nodiscard]] std::string history() const { return read_file(home_ / ".orvik-history"); }
    [[nodiscard]] std::string command_field() const { return field(main_, "Command:"); }
    [[nodiscard]] std::string left_footer() const { return main_.find({"label", "", "left footer"}).name(); }
    void expect_history(const std::string& rows) {
        const std::string expected = "$ORVIK_HISTORY\n" + rows;
        EXPECT_EQ(awaited([this] { return history(); }, expected), expected);
    }
    void expect_command_field(const std::string& expected) {
        EXPECT_EQ(awaited([this] { return command_field(); }, expected), expected);
    }
    void expect_footer(const std::string& expected) {
        EXPECT_EQ(awaited([this] { return left_footer(); }, expected), expected);
    }
};

TEST_F(Keys, ReturnFilesWhatTheRuleSays) {
    start_bash();
    const std::string longest = "echo " + std::string(74, 'x');
    type("echo one\n");
    type("pwd\n");          // not longer than three characters
    type("echo one\n");     // a duplicate
    type(longest + "\n");   // 79 characters
    type(longest + "y\n");  // 80
    type("echo 'caf\n");    // the shell asks for more: no prompt's line
    type("'\n");
    type("echo last\n");
    expect_history("echo one\n" + longest + "\necho 'caf\necho last\n");
    EXPECT_EQ(
        awaited([this] { return field(open_window("Default Settings"), "Last Command:"); }, "echo last"),
        "echo last");
}

// The line is what the shell shows, however it came about.
TEST_F(Keys, ReturnFilesTheWholeEditedLine) {
    setup_.environment["LC_ALL"] = "C.UTF-8";
    home_.write("prompt", "PS1='\xE2\x9E\x9C \xE6\xBC\xA2> '; clear\n");
    start_bash();
    const std::string prompt = "\xE2\x9E\x9C \xE6\xBC\xA2> ";
    const std::string wraps = "echo " + std::string(90, 'w') + " >x; pwd";
    type(". ./prompt\n");
    expect_prompt(prompt);
    type("echo ac");
    display().press_key("Left");
    type("b\n");
    expect_prompt("\nabc\n" + prompt);
    display().press_key("Up");
    type("de\n");
    expect_prompt("\nabcde\n" + prompt);
    type(wraps);
    for (int i = 0; i < 8; ++i) {
        display().press_key("Left");
    }
    type("\n");
    expect_prompt("\n" + home_.path().string() + "\n" + prompt);
    expect_history(". ./prompt\necho abc\necho abcde\n");
    EXPECT_EQ(awaited([this] { return field(open_window("Default Settings"), "Last Command:"); }, wraps),
              wraps);
}

TEST_F(Keys, ArrowsWalkTheHistoryWithoutCommandLineEditing) {
    start_bash({{editing_line, "0"}});
    display().press_key("Up");
    expect_footer("History list is empty");
    type("echo one\n");
    type("echo two\n");
    expect_history("echo one\necho two\n");
    display().press_key("Up");
    expect_command_field("echo two");
    display().press_key("p", "Control_L");
    expect_command_field("echo one");
    display().press_key("Up");
    expect_footer("At the top of history list");
    display().press_key("Down");
    expect_command_field("echo two");
    display().press_key("n", "Control_L");
    expect_footer("At the bottom of history list");
    EXPECT_EQ(command_field(), "echo two");
}

TEST_F(Keys, ControlXMovesTheHalfTypedLine) {
    start_bash();
    type("echo abc def");
    for (int i = 0; i < 3; ++i) {
        display().press_key("Left");
    }
    display().press_key("x", "Control_L");
    expect_command_field("echo abc def");
    type("echo rest\n");
    EXPECT_TRUE(wait_until([this] { return terminal_shows("\nrest"); })) << terminal_.text();
    EXPECT_EQ(terminal_.text().find("command not found"), std::string::npos) << terminal_.text();
    expect_history("echo rest\n");
    display().press_key("x", "Control_L");
    expect_footer("No command found");
}

TEST_F(Keys, ControlXGoesToTheCommandWindowWhenThatIsWanted) {
    start_bash({{long_command_window_line, "1"}});
    type("echo long");
    display().press_key("x", "Control_L");
    const Accessible window = program_->window("Command Window");
    ASSERT_TRUE(window);
    EXPECT_EQ(awaited([&] { return field(window, "C:"); }, "echo long"), "echo long");
}

TEST_F(Keys, ControlKeysOfTheTool) {
    start_bash();
    display().press_key("l", "Control_L");
    expect_footer("No command saved");
    type("echo once\n");
    display().press_key("l", "Control_L");
    expect_command_field("echo once");
    display().press_key("s", "Control_L");
    const std::string locked = "Screen is locked. Use ^Q to unlock.";
    EXPECT_EQ(awaited([this] { return right_footer(); }, locked), locked);
    display().press_key("q", "Control_L");
    EXPECT_EQ(awaited([this] { return right_footer(); }, ""), "");
    display().press_key("F7");
    EXPECT_TRUE(wait_until([this] { return terminal_shows("\nseven"); })) << terminal_.text();
    display().press_key("F8");
    expect_footer("Function key command not defined");
}

TEST_F(Keys, FunctionKeysActOnTheSelection) {
    std::filesystem::create_directory(home_ / "sub dir");
    start_bash();
    const auto select = [this](const std::string& text) {
        home_.write("selection", text);
        ASSERT_EQ(
            std::system(("xclip -selection primary -i '" + (home_ / "selection").string() + "'").c_str()), 0);
    };
    select("");
    display().press_key("F1");
    expect_footer("No selection made");
    select("echo selected\nsecond line\n");
    display().press_key("F1");
    EXPECT_TRUE(wait_until([this] { return terminal_shows("\nselected"); })) << terminal_.text();
    select("sub dir");
    display().press_key("F5");
    const std::string directory = home_ / "sub dir";
    EXPECT_EQ(awaited([this] { return cwd(); }, directory), directory);
    display().press_key("F4");
    EXPECT_EQ(awaited([this] { return cwd(); }, home_.path().string()), home_.path());
    select("echo 'typed'\t1");
    display().press_key("F6");
    display().press_key("Return");
    EXPECT_TRUE(wait_until([this] { return terminal_shows("\ntyped 1"); })) << terminal_.text();
    select("echo sele");
    display().press_key("o", "Control_L");
    EXPECT_TRUE(wait_until([this] { return terminal_shows("!echo sele"); })) << terminal_.text();
    select("echo \x1b[31m");
    display().press_key("F1");
    expect_footer("Selection holds control characters");
    select(std::string(1001, 'x'));
    display().press_key("F1");
    expect_footer("Selection too long");
}

TEST_F(Keys, BelongToAFullScreenProgram) {
    start_bash({{editing_line, "0"}});
    type("printf '\\033[?1049hfull screen\\n'; cat -v\n");
    ASSERT_TRUE(wait_until([this] { return terminal_shows("full screen") && !terminal_shows("printf"); }))
        << terminal_.text();
    for (const char* key : {"Up", "F1", "F7", "Insert"}) {
        display().press_key(key);
    }
    display().press_key("x", "Control_L");
    display().press_key("Return");
    EXPECT_TRUE(wait_until([this] { return terminal_shows("^[[A^[OP^[[18~^[[2~^X\n"); })) << terminal_.text();
    EXPECT_EQ(left_footer(), "");
}

TEST_F(Keys, QuitAsksAndCleansUp) {
    start_bash({{39, "1"}});
    for (const char* name : {".orvik-status3", ".orvik-status21", ".orvik-message", "other"}) {
        home_.write(name, "x");
    }
    type("echo kept\n");
    const auto answer = [this](const std::string& button) {
        EXPECT_TRUE(main_.find({"push button", "Quit"}).press());
        const Accessible dialog = program_->application();
        ASSERT_TRUE(wait_until([&] { return static_cast<bool>(dialog.find({"push button", button})); }));
        EXPECT_TRUE(dialog.find({"push button", button}).press());
    };
    answer("Cancel");
    type("echo still here\n");
    ASSERT_TRUE(wait_until([this] { return terminal_shows("\nstill here"); }));
    EXPECT_EQ(history(), "");
    answer("Yes");
    EXPECT_EQ(program_->process().wait_for_end(std::chrono::seconds{20}), 0);
    EXPECT_EQ(sanitizer_report(program_->output()), "");
    program_.reset();
    EXPECT_EQ(history(), "$ORVIK_HISTORY\necho kept\necho still here\n");
    for (const auto& [name, kept] : std::map<std::string, bool>{{".orvik-status0", false},
                                                                {".orvik-status3", false},
                                                                {".orvik-status21", true},
                                                                {".orvik-message", false},
                                                                {"other", true},
                                                                {"Orvik.setup", true}}) {
        EXPECT_EQ(std::filesystem::exists(home_ / name), kept) << name;
    }
}

}  // namespace
