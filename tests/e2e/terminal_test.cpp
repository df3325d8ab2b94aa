// SPDX-License-Identifier: MIT
// The terminal pane under load and under hostile pastes.
#include "tests/e2e/orvik_test.h"

#include <chrono>
#include <fstream>

namespace {

using std::chrono::steady_clock;

class Terminal : public OrvikTest {
  protected:
    /// Whether the last line is the shell's prompt.
    [[nodiscard]] bool prompts() const {
        const std::string end = terminal_.last_text(20);
        return end.find("\nready> ") != std::string::npos && end.find_last_not_of(" \n") == end.rfind('>');
    }
};

TEST_F(Terminal, FloodIsInterrupted) {
    start_with_shell("/bin/bash");
    type("yes\n");
    ASSERT_TRUE(wait_until([this] { return terminal_.last_text(8).find("y\ny\n") != std::string::npos; }));
    EXPECT_TRUE(terminal_.find({"menu item", "Paste"})) << terminal_.tree();
    // Everything else stays alive meanwhile: a menu opens, and a window answers.
    EXPECT_EQ(field(open_window("Status Display"), "Status File:"), status_path());
    display().press_key("Escape");
    ASSERT_TRUE(wait_until([this] { return !program_->shows("Status Display"); }));
    EXPECT_FALSE(prompts());
    ASSERT_TRUE(program_->focus_terminal(display()));
    display().press_key("c", "Control_L");
    EXPECT_TRUE(wait_until([this] { return prompts(); })) << terminal_.last_text(200);
}

TEST_F(Terminal, LongFileRunsThrough) {
    {
        std::ofstream file(home_ / "long");
        const std::string line = std::string(99, 'x') + '\n';
        for (int i = 0; i < 500'000; ++i) {
            file << line;
        }
        file << "the last line\n";
    }
    start_with_shell("/bin/bash");
    type("cat long\n");
    auto slowest = steady_clock::duration::zero();
    EXPECT_TRUE(wait_until(
        [&] {
            const auto asked = steady_clock::now();
            const bool ended = terminal_shows("the last line") && prompts();
            slowest = std::max(slowest, steady_clock::now() - asked);
            return ended;
        },
        3 * patience));
    EXPECT_LT(slowest, std::chrono::seconds{3});
}

class Paste : public OrvikTest {
  protected:
    void start_and_paste(const std::string& selection) {
        start_with_recording_shell("zsh");
        select(selection);
        display().click(terminal_.place(), 2);
    }
    /// Presses a button of the dialog that shows the text before it is pasted.
    void answer(std::string_view button) {
        const Accessible dialog = program_->window("Paste");
        ASSERT_TRUE(dialog) << program_->application().tree();
        EXPECT_EQ(typed(), "");
        EXPECT_TRUE(dialog.find({"push button", button}).press());
        EXPECT_TRUE(wait_until([this] { return !program_->shows("Paste"); }));
    }
};

TEST_F(Paste, LinesAreShownFirst) {
    start_and_paste("echo one\necho two\n");
    answer("Paste");
    expect_typed("echo one\recho two\r");
}

TEST_F(Paste, RefusedTextIsNotTypedAndPlainTextGoesInAtOnce) {
    start_and_paste("evil\x15\x03\n");
    answer("Cancel");
    select("ls -l");
    display().click(terminal_.place(), 2);
    expect_typed("ls -l");
}

}  // namespace
