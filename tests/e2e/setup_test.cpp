// SPDX-License-Identifier: MIT
// The setup file, read at start-up and written by "Save Setup".
#include "tests/e2e/orvik_test.h"

#include <algorithm>
#include <array>
#include <random>

namespace {

namespace fs = std::filesystem;

/// One in which each line has a value of its own, as the program writes it.
std::string full_setup_text() {
    constexpr std::array numbers{10, 11, 12, 13, 34, 35, 37, 41, 42, 64};
    constexpr std::array choices{14, 15, 18, 31, 33, 36, 38, 39, 40, 48,
                                 49, 50, 51, 54, 55, 61, 62, 79, 83, 84};
    std::map<int, std::string> values;
    for (int line = 2; line <= last_setup_line; ++line) {
        values[line] = "value " + std::to_string(line);
    }
    for (const int line : numbers) {
        values[line] = std::to_string(11 * line);
    }
    for (const int line : choices) {
        values[line] = "1";
    }
    values[6] = values[17] = "";  // no environment file; a line without a control
    values[8] = " caf\xC3\xA9 \xFF ";
    values[53] = "0";
    return setup_text(values);
}

class Setup : public OrvikTest {
  protected:
    [[nodiscard]] fs::path file() const { return home_ / "Orvik.setup"; }
    void save() {
        fs::remove(file());
        ASSERT_TRUE(program_->choose(display(), "Setup", "Save Setup"));
        const std::string expected = "Setup saved to " + file().string();
        EXPECT_EQ(awaited([this] { return footer(main_, "left footer"); }, expected), expected);
    }
};

TEST_F(Setup, ShowsInTheWindowsAndIsSavedByteForByte) {
    home_.write("Orvik.setup", full_setup_text());
    start();
    EXPECT_EQ(display().title(x_window()), "value 16");
    const std::array shown{
        std::array{"Define Label", "Label:", "value 16"},
        std::array{"Environment Setup Window", "Working Directory 4:", "value 5"},
        std::array{"Text Editor Setup", "Width: (chars)", "451"},
        std::array{"Remote Hosts", "User ID: (host 3)", "value 75"},
        std::array{"File Tree Browser", "Max Files", "704"},
        std::array{"Notebook", "File Name:", "value 58"},
    };
    for (const auto& [window, label, value] : shown) {
        EXPECT_EQ(field(open_window(window), label), value) << window << " " << label;
    }
    const Accessible status = open_window("Status Display");
    EXPECT_TRUE(status.find({"panel", "Display"}).find({"radio button", "Off"}).checked());
    EXPECT_TRUE(status.find({"panel", "Enable"}).find({"check box", "Clear Case View"}).checked());
    EXPECT_FALSE(status.find({"panel", "Enable"}).find({"check box", "Host Name"}).checked());
    save();
    EXPECT_EQ(read_file(file()), full_setup_text());
}

TEST_F(Setup, KeepsWhatItsUserChanged) {
    start();
    const Accessible settings = open_window("Default Settings");
    ASSERT_TRUE(focus(settings, "Print Command:"));
    display().press_key("a", "Control_L");
    display().type("lpr -P two");
    ASSERT_TRUE(wait_until([&] { return field(settings, "Print Command:") == "lpr -P two"; }));
    const Accessible choice = settings.find({"panel", "Command Line Editing"});
    ASSERT_TRUE(choice.find({"radio button", "Disabled"}).press());
    ASSERT_TRUE(wait_until([&] { return choice.find({"radio button", "Disabled"}).checked(); }));
    save();
    ASSERT_EQ(program_->stop(), 0);
    start();
    const Accessible again = open_window("Default Settings");
    EXPECT_EQ(field(again, "Print Command:"), "lpr -P two");
    // The start-up sets it before the setup file is read.
    EXPECT_TRUE(again.find({"panel", "Command Line Editing"}).find({"radio button", "Disabled"}).checked());
}

TEST_F(Setup, EnablesTheHookForClearCase) {
    home_.write("Orvik.setup", setup_text({{84, "1"}}));
    start_with_recording_shell("bash");
    const std::string expected =
        R"(PROMPT_COMMAND='printf "P:%s\nC:%s\nH:%s\nU:%s\nV:%s\n" "$PS1" "$PWD" "$HOSTNAME" "$USER" )"
        R"("$CLEARCASE_ROOT" > )" +
        status_path() + "'\nend\r";
    type("end\n");
    EXPECT_EQ(awaited([this] { return typed(); }, expected), expected);
}

struct PlaceCase {
    const char* name;
    std::string of_startup;  ///< what the start-up directory's file holds; empty: there is none
    std::string of_home;
    std::string title;
};

std::ostream& operator<<(std::ostream& out, const PlaceCase& row) { return out << row.name; }

const std::vector<PlaceCase> place_cases{
    {"StartupDirectory", setup_text({{16, "start-up"}}), "", "start-up"},
    {"HomeDirectory", "", setup_text({{16, "home"}}), "home"},
    {"StartupDirectoryFirst", setup_text({{16, "start-up"}}), setup_text({{16, "home"}}), "start-up"},
    {"HomeDirectoryForABadFile", "no setup\n", setup_text({{16, "home"}}), "home"},
};

class SetupPlace : public OrvikTest, public testing::WithParamInterface<PlaceCase> {};

TEST_P(SetupPlace, IsFound) {
    setup_.directory = home_ / "work";
    fs::create_directory(setup_.directory);
    if (!GetParam().of_startup.empty()) {
        home_.write("work/Orvik.setup", GetParam().of_startup);
    }
    if (!GetParam().of_home.empty()) {
        home_.write("Orvik.setup", GetParam().of_home);
    }
    start();
    EXPECT_EQ(display().title(x_window()), GetParam().title);
}

INSTANTIATE_TEST_SUITE_P(All, SetupPlace, testing::ValuesIn(place_cases),
                         [](const auto& row) { return std::string(row.param.name); });

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
    std::string message;   ///< at the beginning of the Message Board; empty: the file is taken
};

std::ostream& operator<<(std::ostream& out, const HostileCase& row) { return out << row.name; }

const std::vector<HostileCase> hostile_cases{
    {"RandomBytes", random_bytes(megabyte), "Not a valid setup file\n"},
    {"RandomBytesAfterTheHeader", "$ORVIK_SETUP\n" + random_bytes(megabyte), ""},
    {"NoLineFeed", std::string(megabyte, 'x'), "Not a valid setup file\n"},
    {"NoLineFeedAfterTheHeader", "$ORVIK_SETUP\n" + std::string(megabyte, 'x'), ""},
    {"Directory", "", "Setup file not found\n"},
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
    EXPECT_TRUE(wait_until([this] { return terminal_shows("42-works"); })) << terminal_.text();
    const std::string messages = field(open_window("Message Board"), "Message Board text");
    EXPECT_TRUE(messages.starts_with(GetParam().message)) << messages;
    const bool refused =
        messages.starts_with("Not a valid setup file\n") || messages.starts_with("Setup file not found\n");
    EXPECT_EQ(refused, !GetParam().message.empty()) << messages;
    EXPECT_TRUE(messages.ends_with("Orvik Command Tool starting\n")) << messages;
}

INSTANTIATE_TEST_SUITE_P(All, HostileSetup, testing::ValuesIn(hostile_cases),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
