// SPDX-License-Identifier: MIT
#pragma once

#include "tests/drive/accessible.h"
#include "tests/drive/process.h"
#include "tests/drive/x_display.h"

#include <filesystem>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// How Orvik is started.
struct ProgramSetup {
    std::string program;
    std::filesystem::path data;  ///< the installation directory
    std::filesystem::path home;
    std::string shell = "/bin/bash";
    std::vector<std::string> options;
    std::filesystem::path directory = {};  ///< the start-up directory; empty: the home
    std::map<std::string, std::string> environment =
        {};                                 ///< set beside, or in place of, what `HOME` and the like are
    std::vector<std::string> without = {};  ///< names of variables that are left out
};

/// The environment a program is started with: nothing of this process's own but what leads to the display and
/// the accessibility bus.
[[nodiscard]] std::map<std::string, std::string> environment_of(const ProgramSetup& setup);

/// A running Orvik. What is asked for by name is waited for; it is empty when it does not come.
class Program {
  public:
    explicit Program(const ProgramSetup& setup);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    [[nodiscard]] const Process& process() const { return process_; }
    /// What it wrote to its standard output and error.
    [[nodiscard]] std::string output() const;

    [[nodiscard]] Accessible application() const;
    /// A window that shows, by its title.
    [[nodiscard]] Accessible window(std::string_view title) const;
    [[nodiscard]] bool shows(std::string_view title) const;
    /// The main window: the one with the terminal pane.
    [[nodiscard]] Accessible main_window() const;
    [[nodiscard]] Accessible terminal() const;

    /// Chooses an item of a menu of the main window, as the pointer does; whether the menu has it.
    [[nodiscard]] bool choose(XDisplay& display, std::string_view menu, std::string_view item) const;
    /// The same through items that open menus.
    [[nodiscard]] bool choose(XDisplay& display, std::string_view menu,
                              std::initializer_list<std::string_view> items) const;
    /// Opens a window from a menu.
    [[nodiscard]] Accessible open(XDisplay& display, std::string_view menu, std::string_view item,
                                  std::string_view title) const;
    /// Gives the terminal pane the keyboard, with a click where it has not got it.
    [[nodiscard]] bool focus_terminal(XDisplay& display) const;

    /// Ends it with SIGTERM; the status as `Process` tells it, nothing when it had to be killed.
    [[nodiscard]] std::optional<int> stop();

  private:
    std::filesystem::path output_;
    Process process_;
};
