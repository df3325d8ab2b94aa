// SPDX-License-Identifier: MIT
// Command lines of the tool wait while another program than a shell reads the terminal.
#include "tests/e2e/loopback_sshd.h"
#include "tests/e2e/orvik_test.h"

#include <csignal>

#include <gtest/gtest.h>

namespace {

class Waiting : public OrvikTest {
  protected:
    void start_shell(const std::string& shell) {
        home_.write("Orvik.setup", setup_text({{15, "1"}, {55, "1"}, {56, ">"}}));
        start_with_shell(shell);
    }
    [[nodiscard]] Accessible strip() const { return main_.find({.role = "panel", .name = "waiting lines"}); }
    /// What the strip says; empty while it does not show.
    [[nodiscard]] std::string strip_text() const {
        return strip().showing() ? strip().find({.role = "label", .name = ""}).name() : "";
    }
    void expect_strip(const std::string& expected) const {
        expect_awaited([this] { return strip_text(); }, expected);
    }
    [[nodiscard]] Accessible button(std::string_view name) const {
        return strip().find({.role = "push button", .name = name});
    }
    void expect_end(const std::string& end) const {
        expect_awaited([&] { return terminal_.text().ends_with(end) ? end : terminal_.text(); }, end);
    }
};

TEST_F(Waiting, LinesComeInTheirOrderWhenTheProgramHasEnded) {
    for (const char* shell : {"/bin/bash", "/bin/tcsh", "/bin/ksh93", "/bin/zsh", "/bin/dash"}) {
        SCOPED_TRACE(shell);
        start_shell(shell);
        type("/bin/cat\n");
        type("its input\n");
        expect_in_terminal("\nits input\nits input\n");
        for (const char* word : {"one", "two", "three"}) {
            send(std::string("echo ") + word);
        }
        expect_strip("3 lines wait for cat: echo one");
        ASSERT_TRUE(program_->focus_terminal(display()));
        display().press_key("d", "Control_L");
        expect_in_terminal("\nthree\n");
        const std::string text = terminal_.text();
        EXPECT_LT(text.find("\none\n"), text.find("\ntwo\n"));
        EXPECT_LT(text.find("\ntwo\n"), text.find("\nthree\n"));
        EXPECT_EQ(text.find("\necho one\n"), std::string::npos) << text;
        expect_strip("");
        TearDown();
        program_.reset();
    }
}

struct BusyCase {
    const char* name;
    std::string command;  ///< what the user runs
    std::string shown;    ///< when it runs
    std::string waits_for;
    std::vector<std::pair<std::string, std::string>> keys;  ///< what ends it, with what is held
};

TEST_F(Waiting, NothingIsTypedIntoAnotherProgram) {
    start_shell("/bin/bash");
    home_.write("file", "text of the file\n");
    const BusyCase cases[] = {
        {"sleep", "sleep 1000", "sleep 1000\n", "sleep", {{"c", "Control_L"}}},
        {"question", "rm -i file", "'file'? ", "rm", {{"n", ""}, {"Return", ""}}},
        {"password", "read -s word", "word\n", "bash", {{"x", ""}, {"Return", ""}}},
        {"one key", "read -n 1 key", "key\n", "bash", {{"x", ""}}},
        {"pager", "less file", "(END)", "less", {{"q", ""}}},
        {"pager on the main screen", "less -X file", "(END)", "less", {{"q", ""}}},
        {"editor", "vi -u NONE file", "~", "vi", {{"colon", ""}, {"q", ""}, {"Return", ""}}},
        {"stopped", "cat", "> cat\n", "cat", {{"z", "Control_L"}}},
        {"brought back", "fg", "> fg\ncat\n", "cat", {{"c", "Control_L"}}},
    };
    for (const BusyCase& each : cases) {
        SCOPED_TRACE(each.name);
        type("clear\n");
        expect_awaited([this] { return terminal_.text(); }, std::string("ready> "));
        type(each.command + '\n');
        expect_in_terminal(each.shown);
        send("echo giv''en");
        ASSERT_TRUE(wait_until([this] { return strip_text().starts_with("1 line waits for "); }))
            << main_.tree();
        EXPECT_NE(strip_text().find(each.waits_for), std::string::npos) << strip_text();
        EXPECT_EQ(terminal_.text().find("giv"), std::string::npos) << terminal_.text();
        ASSERT_TRUE(program_->focus_terminal(display()));
        for (const auto& [key, held] : each.keys) {
            display().press_key(key, held);
        }
        expect_end("\ngiven\nready> ");
        expect_strip("");
    }
    EXPECT_EQ(read_file(home_ / "file"), "text of the file\n");
}

TEST_F(Waiting, StripSendsAndDropsLines) {
    start_shell("/bin/bash");
    type("cat\n");
    for (const char* word : {"one", "two", "three", "four"}) {
        send(std::string("echo ") + word);
    }
    expect_strip("4 lines wait for cat: echo one");
    ASSERT_TRUE(button("Send Now").press());
    expect_in_terminal("\necho one\necho one\n");
    expect_strip("3 lines wait for cat: echo two");
    ASSERT_TRUE(button("Show").press());
    const Accessible list = strip().find({.role = "list", .name = "waiting lines list"});
    ASSERT_TRUE(wait_until([&] { return list.showing(); }));
    const Accessible third = list.find({.role = "list item", .name = "echo three"});
    display().click(third.place());
    ASSERT_TRUE(wait_until([&] { return third.focused(); }));
    ASSERT_TRUE(button("Drop Line").press());
    ASSERT_TRUE(wait_until([&] { return list.children().size() == 2; }));
    display().press_key("Escape");
    EXPECT_TRUE(wait_until([this] { return terminal_.focused(); }));
    expect_strip("2 lines wait for cat: echo two");
    display().press_key("d", "Control_L");
    expect_end("\nfour\nready> ");
    EXPECT_EQ(terminal_.text().find("three"), std::string::npos);
    type("cat\n");
    send("echo five");
    expect_strip("1 line waits for cat: echo five");
    ASSERT_TRUE(button("Drop").press());
    expect_strip("");
}

TEST_F(Waiting, LinesWaitForTheCommandThatIsBeingTyped) {
    start_shell("/bin/bash");
    type("echo users");
    send("echo tools");
    expect_strip("1 line waits for the command you are typing: echo tools");
    ASSERT_TRUE(program_->focus_terminal(display()));
    type("\n");
    expect_end("\nready> echo tools\ntools\nready> ");
    EXPECT_NE(terminal_.text().find("\nusers\n"), std::string::npos) << terminal_.text();
    type("rm ");
    send("echo again");
    expect_strip("1 line waits for the command you are typing: echo again");
    ASSERT_TRUE(program_->focus_terminal(display()));
    display().press_key("u", "Control_L");
    expect_end("\nready> echo again\nagain\nready> ");
}

TEST_F(Waiting, NestedLineEditorsAreTyped) {
    std::filesystem::create_directory(home_ / "sub");
    start_shell("/bin/bash");
    type("cd sub\n");
    type("PS1='inner> ' bash --norc\n");
    expect_in_terminal("inner> ");
    send("echo one");
    send("echo two");
    expect_end("\none\ninner> echo two\ntwo\ninner> ");
    ASSERT_TRUE(program_->focus_terminal(display()));
    display().press_key("F4");
    expect_in_terminal("inner> cd ..\n");
    expect_in_terminal("inner> ls -aF\n");
    type("exec python3 -q\n");
    expect_in_terminal(">>> ");
    send("print(6 * 7)");
    expect_in_terminal("\n42\n");
    ASSERT_TRUE(program_->focus_terminal(display()));
    display().press_key("d", "Control_L");
    expect_end("ready> ");
    type("exec tcsh -f\n");
    expect_end("# ");
    send("echo three");
    send("echo four");
    expect_in_terminal("\nthree\n");
    expect_in_terminal("\nfour\n");
}

TEST_F(Waiting, AShellBehindSshIsTypedAndAnEditorThereIsNot) {
    if (!std::filesystem::exists("/usr/sbin/sshd")) {
        GTEST_SKIP() << "no sshd is installed";
    }
    const LoopbackSshd server(home_.path(), environment_of(setup_));
    start_shell("/bin/bash");
    type(server.log_in() + " -t \"PS1='far> ' bash --norc\"\n");
    expect_end("far> ");
    send("echo one");
    send("echo two");
    expect_end("\none\nfar> echo two\ntwo\nfar> ");
    ASSERT_TRUE(program_->focus_terminal(display()));
    type("vi -u NONE\n");
    expect_in_terminal("~");
    send("echo three");
    expect_strip("1 line waits for ssh: echo three");
    ASSERT_TRUE(program_->focus_terminal(display()));
    type(":q\n");
    expect_end("\nfar> echo three\nthree\nfar> ");
}

TEST_F(Waiting, KilledProgramsAndTakenAwayHooksStopNothing) {
    start_shell("/bin/bash");
    type("sh -c 'echo $$ >pid; exec vi -u NONE'\n");
    expect_in_terminal("~");
    send("echo one");
    send("unset PROMPT_COMMAND; echo two");
    send("echo three");
    expect_awaited([this] { return strip_text().starts_with("3 lines wait for vi"); }, true);
    kill(std::stoi(read_file(home_ / "pid")), SIGKILL);
    expect_in_terminal("\nthree\nready> ");
    EXPECT_LT(terminal_.text().find("\none\n"), terminal_.text().find("\ntwo\n")) << terminal_.text();
}

TEST_F(Waiting, QuitAsksAndTheEndOfTheShellDrops) {
    start_shell("/bin/bash");
    type("echo $$ >pid; cat\n");
    expect_in_terminal("cat\n");
    send("echo one");
    send("echo two");
    expect_strip("2 lines wait for cat: echo one");
    display().close(x_window());
    const auto question = [this] {
        return program_->application().tree().find(
                   "Command lines are waiting for the shell. Quit and drop them ?") != std::string::npos;
    };
    EXPECT_TRUE(wait_until(question));
    display().press_key("Escape");
    EXPECT_TRUE(wait_until([&] { return !question(); }));
    kill(std::stoi(read_file(home_ / "pid")), SIGKILL);
    expect_in_terminal("\n[2 command lines dropped that waited for the shell]\n");
    expect_strip("");
    send("echo kept");
    expect_left_footer("The shell has ended. Return in the terminal starts a new one.");
    EXPECT_EQ(field(main_, "Command:"), "echo kept");
    type("\n");
    expect_end("ready> ");
    send("echo new");
    expect_end("\nready> echo new\nnew\nready> ");
    EXPECT_EQ(terminal_.text().find("\none\n"), std::string::npos);
}

TEST_F(Waiting, CanBeSwitchedOff) {
    setup_.options = {"-xrm", "Orvik.HoldLines: off"};
    start_shell("/bin/bash");
    type("cat\n");
    expect_in_terminal("cat\n");
    send("echo one");
    expect_end("\necho one\necho one\n");
}

}  // namespace
