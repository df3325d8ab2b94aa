// SPDX-License-Identifier: MIT
#include "tests/drive/program.h"

#include "tests/support/scratch_directory.h"
#include "tests/support/wait_until.h"

#include <array>
#include <csignal>
#include <cstdlib>

namespace {

/// What leads to the display, the accessibility bus and the sanitizers' settings.
constexpr std::array passed_on{"PATH",
                               "DISPLAY",
                               "DBUS_SESSION_BUS_ADDRESS",
                               "XDG_RUNTIME_DIR",
                               "QT_LINUX_ACCESSIBILITY_ALWAYS_ON",
                               "ASAN_OPTIONS",
                               "UBSAN_OPTIONS",
                               "LSAN_OPTIONS",
                               "ORVIK_HOME"};

Command command_of(const ProgramSetup& setup, const std::filesystem::path& output) {
    Command command{{setup.program},
                    environment_of(setup),
                    setup.directory.empty() ? setup.home : setup.directory,
                    output};
    command.arguments.insert(command.arguments.end(), setup.options.begin(), setup.options.end());
    return command;
}

/// Where a program's output goes: beside its home, so that it finds the home as it was laid out.
std::filesystem::path output_of(const ProgramSetup& setup) { return setup.home.string() + ".output"; }

}  // namespace

std::map<std::string, std::string> environment_of(const ProgramSetup& setup) {
    std::map<std::string, std::string> environment;
    for (const char* name : passed_on) {
        if (const char* value = std::getenv(name)) {
            environment[name] = value;
        }
    }
    environment["HOME"] = setup.home;
    environment["LOGNAME"] = environment["USER"] = "tester";
    environment["SHELL"] = setup.shell;
    environment["ORVIK_HOME"] = setup.data;
    environment["LANG"] = "C.UTF-8";
    for (const auto& [name, value] : setup.environment) {
        environment[name] = value;
    }
    for (const std::string& name : setup.without) {
        environment.erase(name);
    }
    return environment;
}

Program::Program(const ProgramSetup& setup)
    : output_(output_of(setup)), process_(command_of(setup, output_)) {}

Program::~Program() {
    std::error_code ignored;
    std::filesystem::remove(output_, ignored);
}

std::string Program::output() const { return read_file(output_); }

Accessible Program::application() const { return Accessible::application(process_.pid()); }

namespace {

/// Asks until the answer is not empty, or nobody is there to answer.
template <typename Question>
Accessible awaited(const Process& process, Question question) {
    Accessible answer;
    (void)wait_until([&] {
        answer = question();
        return static_cast<bool>(answer) || process.status();
    });
    return answer;
}

Accessible showing_window(const Accessible& application, std::string_view title) {
    for (const Accessible& window : application.children()) {
        if (window.name() == title && window.showing()) {
            return window;
        }
    }
    return {};
}

}  // namespace

Accessible Program::window(std::string_view title) const {
    return awaited(process_, [&] { return showing_window(application(), title); });
}

bool Program::shows(std::string_view title) const {
    return static_cast<bool>(showing_window(application(), title));
}

Accessible Program::main_window() const {
    return awaited(process_, [&] {
        for (const Accessible& window : application().children()) {
            if (window.find({"terminal", "terminal"})) {
                return window;
            }
        }
        return Accessible();
    });
}

Accessible Program::terminal() const { return main_window().find({"terminal", "terminal"}); }

bool Program::choose(XDisplay& display, std::string_view menu, std::string_view item) const {
    return choose(display, menu, {item});
}

bool Program::choose(XDisplay& display, std::string_view menu,
                     std::initializer_list<std::string_view> items) const {
    Accessible above = main_window().find({"push button", menu});
    display.click(above.place());
    for (const std::string_view item : items) {
        const Accessible entry = awaited(process_, [&] {
            Accessible found = above.find({"menu item", item});
            return found.showing() ? found : Accessible();
        });
        if (!entry) {
            return false;
        }
        display.click(entry.place());
        above = entry;
    }
    return true;
}

Accessible Program::open(XDisplay& display, std::string_view menu, std::string_view item,
                         std::string_view title) const {
    if (!choose(display, menu, item)) {
        return {};
    }
    Accessible opened = window(title);
    (void)wait_until([&] { return opened.active() || !opened.showing(); });  // keys go to it from now on
    return opened;
}

bool Program::focus_terminal(XDisplay& display) const {
    const Accessible pane = terminal();
    if (!pane.focused()) {
        display.click(pane.place());
    }
    return wait_until([&] { return pane.focused(); });
}

std::optional<int> Program::stop() {
    process_.signal(SIGTERM);
    return process_.wait_for_end(patience);
}
