// SPDX-License-Identifier: MIT
#pragma once

#include "tests/drive/program.h"
#include "tests/support/scratch_directory.h"
#include "tests/support/setup_text.h"
#include "tests/support/wait_until.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

/// Asks until the answer is the expected one; a failure shows what it was instead.
template <typename Question, typename Answer>
void expect_awaited(Question question, const Answer& expected) {
    auto answer = question();
    (void)wait_until([&] {
        answer = question();
        return answer == expected;
    });
    EXPECT_EQ(answer, expected);
}

/// An item of the main window's menus.
struct MenuEntry {
    std::string_view menu;
    std::string_view item;
    std::string_view title;  ///< of the window that it opens; empty where it opens none
};

/// All of them, in the order of the menus.
[[nodiscard]] std::span<const MenuEntry> menu_entries();

/// The program in a scratch home, and hands on it. At the end it is asked to stop: it must do so with status
/// 0 and without a sanitizer's report.
class OrvikTest : public testing::Test {
  protected:
    static XDisplay& display();

    OrvikTest();
    void TearDown() override;

    /// Starts the program as `setup_` says and waits for its main window.
    void start();
    /// Starts it with a shell that greets with the prompt "ready> ", and waits for that.
    void start_with_shell(const std::string& path);
    /// The same with a shell that reports, waiting until it has run all that is typed at the start.
    void start_and_settle(const std::string& path);
    /// Starts it with a stand-in of this name that records what it is given; `typed()` is what that has read.
    void start_with_recording_shell(const std::string& name);
    [[nodiscard]] std::string typed() const { return read_file(home_ / "typed"); }

    /// Types with the keyboard into the terminal pane.
    void type(std::string_view text);
    /// Gives the tool a command to send, in "Command:".
    void send(const std::string& command) const;
    [[nodiscard]] bool terminal_shows(std::string_view text) const;
    void expect_in_terminal(std::string_view text) const;
    void expect_typed(const std::string& expected) const {
        expect_awaited([this] { return typed(); }, expected);
    }
    /// Makes a text the primary selection.
    void select(const std::string& text) const;

    /// Opens the window of that title from the first menu item that does.
    [[nodiscard]] Accessible open_window(std::string_view title) const;
    /// The text of a field of an open window.
    [[nodiscard]] static std::string field(const Accessible& window, std::string_view label);
    [[nodiscard]] std::string cwd() const { return field(main_, "Cwd:"); }
    [[nodiscard]] std::string left_footer() const { return footer(main_, "left footer"); }
    [[nodiscard]] std::string right_footer() const { return footer(main_, "right footer"); }
    void expect_left_footer(const std::string& expected) const {
        expect_awaited([this] { return left_footer(); }, expected);
    }
    void expect_cwd(const std::string& expected) const {
        expect_awaited([this] { return cwd(); }, expected);
    }
    /// The text of one of a window's footers.
    [[nodiscard]] static std::string footer(const Accessible& window, std::string_view description);
    /// Clicks on a field or a text pane of an open window and waits until it has the keyboard.
    [[nodiscard]] static bool focus(const Accessible& window, std::string_view label);
    [[nodiscard]] std::string own_pid() const { return std::to_string(program_->process().pid()); }
    [[nodiscard]] std::string status_path(int number = 0) const;
    /// The main window as the window manager knows it.
    [[nodiscard]] WindowId x_window() const;

    ScratchDirectory home_;
    ProgramSetup setup_;
    std::optional<Program> program_;
    Accessible main_;
    Accessible terminal_;
};

/// What a sanitizer has reported in a program's output; empty when nothing.
[[nodiscard]] std::string sanitizer_report(const std::string& output);
