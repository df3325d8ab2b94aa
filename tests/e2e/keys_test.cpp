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
    /// Starts a shell with settings of the setup file beside those that filing commands needs.
    void start_bash(const std::map<int, std::string>& settings = {}) {
        start_with_settings("/bin/bash", settings);
    }
    void start_with_settings(const std::string& shell, std::map<int, std::string> settings) {
        settings.merge(std::map<int, std::string>{{editing_line, "1"},
                                                  {35, "3"},
                                                  {37, "20"},
                                                  {38, "1"},
                                                  {43, "echo seven"},
                                                  {50, "14"},
                                                  {55, "1"},
                                                  {56, ">"}});
        home_.write("Orvik.setup", setup_text(settings));
        start_and_settle(shell);
        expect_prompt("ready> ");
    }
    /// Waits until the terminal's text ends so. What is typed ahead of a prompt is drawn in its place.
    void expect_prompt(const std::string& end) {
        constexpr int screenful = 8000;
        ASSERT_TRUE(wait_until([&] { return terminal_.last_text(screenful).ends_with(end); }))
            << terminal_.text();
    }
    void press(std::string_view key, int times = 1) const {
        for (int i = 0; i < times; ++i) {
            display().press_key(key);
        }
    }
    void press_control(std::string_view letter) const { display().press_key(letter, "Control_L"); }
    [[nodiscard]] std::string history() const { return read_file(home_ / ".orvik-history"); }
    void expect_history(const std::string& rows) const {
        expect_awaited([this] { return history(); }, "$ORVIK_HISTORY\n" + rows);
    }
    void expect_command_field(const std::string& expected) const {
        expect_awaited([this] { return field(main_, "Command:"); }, expected);
    }
    void expect_last_command(const std::string& expected) const {
        const Accessible settings = open_window("Default Settings");
        expect_awaited([&] { return field(settings, "Last Command:"); }, expected);
    }
};

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
    press("Left");
    type("b\n");
    expect_prompt("\nabc\n" + prompt);
    press("Up");
    type("de\n");
    expect_prompt("\nabcde\n" + prompt);
    type("pwd\n");  // not longer than three characters
    expect_prompt("\n" + home_.path().string() + "\n" + prompt);
    type("echo abc\n");  // a duplicate
    expect_prompt("\nabc\n" + prompt);
    type("echo 'caf\n");
    expect_prompt("\n> ");
    type("'\n");  // the shell asks for more: no prompt's line
    expect_prompt("\ncaf\n\n" + prompt);
    type(wraps);
    press("Left", 8);
    type("\n");
    expect_prompt("\n" + home_.path().string() + "\n" + prompt);
    expect_history(". ./prompt\necho abc\necho abcde\necho 'caf\n");
    expect_last_command(wraps);
}

TEST_F(Keys, CommandsTypedFasterThanTheirEchoAreFiled) {
    for (const char* shell : {"/bin/bash", "/bin/tcsh"}) {
        SCOPED_TRACE(shell);
        std::filesystem::remove(home_ / ".orvik-history");
        start_with_settings(shell, {{37, "1000"}});
        std::string rows;
        for (int i = 100; i < 200; ++i) {
            rows += "echo " + std::to_string(i) + '\n';
        }
        constexpr unsigned long milliseconds_a_key = 3;
        display().type(rows, milliseconds_a_key);
        expect_history(rows);
        TearDown();
        program_.reset();
    }
}

/// What a program reads is no command, and what it writes is none either.
TEST_F(Keys, OnlyWhatTheShellShowsIsFiledOfWhatWasTypedAhead) {
    start_bash();
    type("echo asks; read answer; echo 'ready> fake'; read more\n");
    expect_in_terminal("\nasks\n");
    type("input\nother\necho after\n");
    expect_prompt("\nafter\nready> ");
    type("echo more; read it\n");
    expect_in_terminal("\nmore\n");
    type("its input\n");
    expect_prompt("\nits input\nready> ");
    type("cho kept");  // the keys alone do not tell what this becomes
    press("Home");
    type("e");
    expect_prompt("\nready> echo kept");
    type("\n");
    expect_history(
        "echo asks; read answer; echo 'ready> fake'; read more\necho after\necho more; read it\necho kept\n");
}

TEST_F(Keys, ArrowsWalkTheHistoryWithoutCommandLineEditing) {
    start_bash({{editing_line, "0"}});
    press("Up");
    expect_left_footer("History list is empty");
    type("echo one\n");
    expect_prompt("\none\nready> ");
    type("echo two\n");
    expect_history("echo one\necho two\n");
    press("Up");
    expect_command_field("echo two");
    press_control("p");
    expect_command_field("echo one");
    press("Up");
    expect_left_footer("At the top of history list");
    press("Down");
    expect_command_field("echo two");
    press_control("n");
    expect_left_footer("At the bottom of history list");
}

TEST_F(Keys, ControlXMovesTheHalfTypedLine) {
    start_bash();
    type("echo abc def");
    press("Left", 3);
    press_control("x");
    expect_command_field("echo abc def");
    type("echo rest\n");
    expect_prompt("ready> echo rest\nrest\nready> ");
    expect_history("echo rest\n");
    press_control("x");
    expect_left_footer("No command found");
}

TEST_F(Keys, ControlXGoesToTheCommandWindowWhenThatIsWanted) {
    start_bash({{long_command_window_line, "1"}});
    type("echo long");
    press_control("x");
    const Accessible window = program_->window("Command Window");
    ASSERT_TRUE(window);
    expect_awaited([&] { return field(window, "C:"); }, std::string("echo long"));
}

TEST_F(Keys, ControlKeysOfTheTool) {
    start_bash();
    press_control("l");
    expect_left_footer("No command saved");
    type("echo once\n");
    expect_prompt("\nonce\nready> ");
    press_control("l");
    expect_command_field("echo once");
    const std::string locked = "Screen is locked. Use ^Q to unlock.";
    expect_awaited([this] { return right_footer().starts_with("Host: "); },
                   true);  // the last refresh is over
    press_control("s");
    expect_awaited([this] { return right_footer(); }, locked);
    press_control("q");
    expect_awaited([&] { return right_footer() == locked; }, false);
    press("F7");
    expect_in_terminal("\nseven");
    press("F8");
    expect_left_footer("Function key command not defined");
}

TEST_F(Keys, FunctionKeysActOnTheSelection) {
    std::filesystem::create_directory(home_ / "sub dir");
    start_bash();
    select("");
    press("F1");
    expect_left_footer("No selection made");
    select("echo selected\nsecond line\n");
    press("F1");
    expect_in_terminal("\nselected");
    select("sub dir");
    press("F5");
    type("pwd\n");
    expect_in_terminal("\n" + (home_ / "sub dir").string() + "\n");
    press("F4");
    type("pwd\n");
    expect_in_terminal("\n" + home_.path().string() + "\n");
    select("echo 'typed'\t1");
    press("F6");
    press("Return");
    expect_in_terminal("\ntyped 1");
    select("echo sele");
    press_control("o");
    expect_in_terminal("!echo sele");
}

TEST_F(Keys, BelongToTheProgramThatReadsThem) {
    start_bash({{editing_line, "0"}});
    const std::string programs[] = {
        R"(printf '\033[?1049h\033[Hgo\n'; cat -v; printf '\033[?1049l')",  // takes the whole screen
        R"(clear; echo go; cat -v)",                                        // reads lines
        R"(clear; stty raw -echo isig; printf 'go\r\n'; cat -v)",           // reads keys
    };
    for (const std::string& program : programs) {
        SCOPED_TRACE(program);
        type(program + '\n');
        ASSERT_TRUE(wait_until([this] { return terminal_.text().starts_with("go"); })) << terminal_.text();
        const std::string before = left_footer();
        for (const char* key : {"Up", "F1", "F7", "Insert"}) {
            press(key);
        }
        press_control("x");
        type("> echo input\n");
        expect_in_terminal("^[[A^[OP^[[18~^[[2~^X> echo input");
        EXPECT_EQ(left_footer(), before);
        press_control("c");
        expect_prompt("ready> ");
        type("stty sane; clear\n");
        ASSERT_TRUE(wait_until([this] { return terminal_.text() == "ready> "; })) << terminal_.text();
    }
    EXPECT_EQ(history().find("input"), std::string::npos) << history();
}

}  // namespace
