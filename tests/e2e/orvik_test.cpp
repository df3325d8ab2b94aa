// SPDX-License-Identifier: MIT
#include "tests/e2e/orvik_test.h"

#include <array>
#include <cstdlib>

namespace {

constexpr std::array entries{
    MenuEntry{"Help", "To Get Started", "Help"},
    MenuEntry{"Help", "About", "About"},
    MenuEntry{"Help", "User Guide", "Help"},
    MenuEntry{"Help", "Buttons", "Help"},
    MenuEntry{"Setup", "Save Setup", ""},
    MenuEntry{"Setup", "Bookmarks", "Bookmarks"},
    MenuEntry{"Setup", "ClearCase", "ClearCase Setup"},
    MenuEntry{"Setup", "Command List", "Command List Setup"},
    MenuEntry{"Setup", "Command History", "Command History Setup"},
    MenuEntry{"Setup", "Default Settings", "Default Settings"},
    MenuEntry{"Setup", "Environment", "Environment Setup Window"},
    MenuEntry{"Setup", "Label", "Define Label"},
    MenuEntry{"Setup", "Process", "Process Information"},
    MenuEntry{"Setup", "Remote Hosts", "Remote Hosts"},
    MenuEntry{"Setup", "Status Display", "Status Display"},
    MenuEntry{"Setup", "Text Editor", "Text Editor Setup"},
    MenuEntry{"Setup", "User Buttons", "User Buttons"},
    MenuEntry{"Browse", "File Tree", "File Tree Browser"},
    MenuEntry{"Browse", "File Tree Full Size", "File Tree Browser"},
    MenuEntry{"Browse", "File List", "File List Browser"},
    MenuEntry{"Browse", "Command History", "Command History Manager"},
    MenuEntry{"Browse", "Message Board", "Message Board"},
    MenuEntry{"Browse", "Notebook", "Notebook"},
    MenuEntry{"Edit", "Setup", "Edit Menu Setup"},
    MenuEntry{"Edit", "Current", ""},
    MenuEntry{"Edit", "Home", ""},
    MenuEntry{"Edit", "Startup", ""},
    MenuEntry{"User", "Edit", ""},
    MenuEntry{"User", "Update", ""},
};

}  // namespace

std::span<const MenuEntry> menu_entries() { return entries; }

std::string sanitizer_report(const std::string& output) {
    for (const char* const sign : {"ERROR: AddressSanitizer", "ERROR: LeakSanitizer", "runtime error:"}) {
        if (output.find(sign) != std::string::npos) {
            return output;
        }
    }
    return {};
}

XDisplay& OrvikTest::display() {
    static XDisplay the_display;
    return the_display;
}

OrvikTest::OrvikTest() : setup_{.program = ORVIK_PROGRAM, .data = ORVIK_DATA, .home = home_.path()} {}

void OrvikTest::TearDown() {
    if (program_) {
        EXPECT_EQ(program_->stop(), 0);
        EXPECT_EQ(sanitizer_report(program_->output()), "");
    }
}

void OrvikTest::start() {
    program_.emplace(setup_);
    main_ = program_->main_window();
    ASSERT_TRUE(main_) << program_->application().tree() << program_->output();
    terminal_ = main_.find({"terminal", "terminal"});
}

void OrvikTest::start_with_shell(const std::string& path) {
    setup_.shell = path;
    home_.write(".bash_profile", "PS1='ready> '\n");
    home_.write(".profile", "PS1='ready> '\n");
    home_.write(".tcshrc", "set prompt='ready> '\n");
    home_.write(".zshrc", "PS1='ready> '\n");
    start();
    ASSERT_TRUE(wait_until([this] { return terminal_shows("ready>") && terminal_.focused(); }))
        << terminal_.text();
}

void OrvikTest::start_and_settle(const std::string& path) {
    start_with_shell(path);
    expect_cwd(home_.path());
}

void OrvikTest::start_with_recording_shell(const std::string& name) {
    std::filesystem::create_symlink(RECORDING_SHELL, home_ / name);
    setup_.shell = home_ / name;
    start();
    ASSERT_TRUE(
        wait_until([this] { return std::filesystem::exists(home_ / "typed") && terminal_.focused(); }));
}

void OrvikTest::type(std::string_view text) {
    ASSERT_TRUE(program_->focus_terminal(display()));
    display().type(text);
}

void OrvikTest::send(const std::string& command) const {
    const Accessible field = main_.find({"text", "Command:"});
    ASSERT_TRUE(field.take_focus());
    ASSERT_TRUE(wait_until([&] { return field.focused(); }));
    ASSERT_TRUE(field.set_text(command));
    display().press_key("Return");
}

bool OrvikTest::terminal_shows(std::string_view text) const {
    constexpr int screenful = 8000;
    return terminal_.last_text(screenful).find(text) != std::string::npos;
}

void OrvikTest::expect_in_terminal(std::string_view text) const {
    EXPECT_TRUE(wait_until([&] { return terminal_shows(text); })) << text << " in\n" << terminal_.text();
}

void OrvikTest::select(const std::string& text) const {
    const std::string file = home_.write("selection", text);
    const std::string answer = home_ / "selected";
    ASSERT_EQ(std::system(("xclip -selection primary -i '" + file + "' >/dev/null 2>&1").c_str()), 0);
    // It goes into the background before the display knows of it.
    EXPECT_TRUE(wait_until([&] {
        (void)!std::system(("timeout 5 xclip -selection primary -o >'" + answer + "' 2>/dev/null").c_str());
        return read_file(answer) == text;
    }));
}

Accessible OrvikTest::open_window(std::string_view title) const {
    for (const MenuEntry& entry : entries) {
        if (entry.title == title) {
            return program_->open(display(), entry.menu, entry.item, title);
        }
    }
    ADD_FAILURE() << "no menu has an item for " << title;
    return {};
}

std::string OrvikTest::field(const Accessible& window, std::string_view label) {
    const Accessible text = window.find({"text", label});
    return (text ? text : window.find({"spin button", label})).text();
}

std::string OrvikTest::footer(const Accessible& window, std::string_view description) {
    return window.find({"label", "", description}).name();
}

bool OrvikTest::focus(const Accessible& window, std::string_view label) {
    const Accessible field = window.find({"text", label});
    display().click(field.place());
    return wait_until([&] { return field.focused(); });
}

std::string OrvikTest::status_path(int number) const {
    return home_ / (".orvik-status" + std::to_string(number));
}

WindowId OrvikTest::x_window() const {
    std::optional<WindowId> window;
    (void)wait_until([&] {
        window = display().window(program_->process().pid(), main_.name());
        return window.has_value();
    });
    return window.value_or(0);
}
