// SPDX-License-Identifier: MIT
// How the program ends: what it asks, what it saves and what it removes.
#include "terminal/descriptor.h"
#include "tests/e2e/orvik_test.h"

#include <csignal>

#include <fcntl.h>
#include <sys/file.h>

namespace {

namespace fs = std::filesystem;

const std::string history_text = "$ORVIK_HISTORY\necho kept\n";

class End : public OrvikTest {
  protected:
    void SetUp() override {
        home_.write("Orvik.setup", setup_text({{39, "1"}}));  // the history is saved when quitting
        home_.write(".orvik-history", history_text);
    }
    /// Starts the program; the history is in its memory only then.
    void start_with_history() {
        start_and_settle("/bin/bash");
        fs::remove(home_ / ".orvik-history");
    }
    [[nodiscard]] std::string history() const { return read_file(home_ / ".orvik-history"); }
    [[nodiscard]] Accessible button(std::string_view label) const {
        return program_->application().find({"push button", label});
    }
    /// Waits for a question that holds a text.
    void expect_question(std::string_view text) const {
        EXPECT_TRUE(wait_until([&] {
            return program_->application().tree().find(text) != std::string::npos &&
                   button("Cancel").focused();
        })) << program_->application().tree();
    }
    void expect_no_question() const {
        EXPECT_TRUE(wait_until([this] { return !button("Cancel").showing() && terminal_.focused(); }));
    }
    void ask_to_quit() const {
        display().close(x_window());
        expect_question("Do you really want to quit ?");
    }
    void expect_end(int status) {
        EXPECT_EQ(program_->process().wait_for_end(patience), status);
        EXPECT_EQ(sanitizer_report(program_->output()), "");
    }
    void expect_end_without_display() {
        expect_end(1);
        EXPECT_EQ(program_->output(), "Lost the connection to the display\n");
        EXPECT_EQ(history(), history_text);
        EXPECT_FALSE(fs::exists(status_path()));
        program_.reset();
    }
};

TEST_F(End, QuitAsksSavesAndCleansUp) {
    for (const char* name :
         {".orvik-status19", ".orvik-status20", ".orvik-status21", ".orvik-message", "other"}) {
        home_.write(name, "x");
    }
    const terminal::Descriptor other_copys(open((home_ / ".orvik-status19").c_str(), O_RDWR | O_CLOEXEC));
    ASSERT_EQ(flock(other_copys.get(), LOCK_EX), 0);
    start_with_history();
    ask_to_quit();
    display().press_key("Return");  // loses nothing
    expect_no_question();
    // What cannot be saved keeps the window as long as its user wants.
    fs::create_directory(home_ / ".orvik-history");
    ask_to_quit();
    EXPECT_TRUE(button("Yes").press());
    expect_question(".orvik-history not written: Is a directory. Quit without it ?");
    display().press_key("Return");
    expect_no_question();
    fs::remove(home_ / ".orvik-history");
    const Accessible settings = open_window("Environment Setup Window");
    EXPECT_TRUE(settings.find({"text", "Working Directory 1:"}).set_text("/changed"));
    ask_to_quit();
    expect_question("Settings are not saved yet");
    EXPECT_TRUE(button("Yes").press());
    expect_end(0);
    program_.reset();
    EXPECT_EQ(history(), history_text);
    for (const auto& [name, kept] : std::map<std::string, bool>{{".orvik-status0", false},
                                                                {".orvik-status19", true},
                                                                {".orvik-status20", false},
                                                                {".orvik-status21", true},
                                                                {".orvik-message", false},
                                                                {"other", true},
                                                                {"Orvik.setup", true}}) {
        EXPECT_EQ(fs::exists(home_ / name), kept) << name;
    }
}

TEST_F(End, TheQuestionNamesWhatStillRuns) {
    start_and_settle("/bin/bash");
    ask_to_quit();
    EXPECT_EQ(program_->application().tree().find("Still running"), std::string::npos);
    display().press_key("Return");
    expect_no_question();
    type("sleep 300 & sh -c 'echo be''gun; read line'\n");
    expect_in_terminal("begun");
    ask_to_quit();
    expect_question("Still running in the terminal: sleep, sh");
    display().press_key("Return");
    expect_no_question();
}

TEST_F(End, SignalsSaveTheHistory) {
    start_with_history();
    program_->process().signal(SIGHUP);
    expect_end(0);
    EXPECT_EQ(history(), history_text);
    EXPECT_FALSE(fs::exists(status_path()));
    program_.reset();
}

TEST_F(End, ALostConnectionSavesTheHistory) {
    start_with_history();
    display().kill_client(x_window());
    expect_end_without_display();
}

TEST_F(End, ADisplayThatDiesSavesTheHistory) {
    const Process server(
        {.arguments = {"/bin/sh", "-c", "exec Xvfb -displayfd 3 -screen 0 1600x1200x24 3>number"},
         .environment = environment_of(setup_),
         .directory = home_.path(),
         .output = home_ / "server"});
    const auto number = [this] { return read_file(home_ / "number"); };
    ASSERT_TRUE(wait_until([&] { return number().ends_with('\n'); }));
    setup_.options = {"-display", ":" + number().substr(0, number().find('\n'))};
    setup_.without = {"DISPLAY"};
    start();
    ASSERT_TRUE(wait_until([this] { return fs::exists(status_path()) && terminal_.showing(); }));
    fs::remove(home_ / ".orvik-history");
    server.signal(SIGKILL);
    expect_end_without_display();
}

}  // namespace
