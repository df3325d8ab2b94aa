// SPDX-License-Identifier: MIT
#include "settings/setup_file.h"

#include "settings/notify.h"
#include "settings/setup_table.h"
#include "settings/unsaved.h"
#include "shell/process.h"
#include "tests/support/scratch_directory.h"
#include "toolkit/text_conversion.h"
#include "ui/environment_setup.h"
#include "ui/file_list_browser.h"
#include "ui/message_board.h"
#include "ui/user_buttons.h"
#include "ui/windows.h"

#include <QAccessible>
#include <QWidget>

#include <algorithm>
#include <optional>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using namespace std::string_literals;
namespace fs = std::filesystem;

const std::string header = "$ORVIK_SETUP\n";

/// A control of a line of the file, and another value than the built-in one.
struct Control {
    Control(const char* its_name) : name(its_name) {}  // NOLINT: a name says it all
    Control(const char* its_name, std::string its_value, std::string its_choice = "")
        : name(its_name), value(std::move(its_value)), choice(std::move(its_choice)) {}

    const char* name;                  ///< its accessible name
    std::optional<std::string> value;  ///< in the file; without one, made of the line's number
    std::string choice;                ///< the items that are then checked
};

/// Controls of a window that have lines one after the other.
struct Block {
    std::size_t first_line;
    const char* window;
    std::vector<Control> controls;
};

const Block blocks[] = {
    {2,
     "Environment Setup Window",
     {"Working Directory 1:",
      {"Working Directory 2:", "  two  blanks "},
      "Working Directory 3:",
      {"Working Directory 4:", "/\xC3\xBC\xE2\x80\xA6/\xF0\x9F\x98\x80"},
      {"Environment Setup File:", "\t$HOME/a\xFF\x80.sh"}}},
    {7, "File Tree Browser", {"Root Directory:"}},
    {8, "Default Settings", {{"Print Command:", "100"}, {"List Directory Command:", ""}}},
    {10,
     "Text Editor Setup",
     {{"X coordinate:", "-2147483648"},
      "Y coordinate:",
      "Width: (pixels)",
      "Height: (pixels)",
      {"Font Size:", "3", "Extra large"}}},
    {15, "Default Settings", {{"Command Line Editing", "1", "Enabled"}}},
    {16, "Define Label", {"Label:"}},
    {18, "Edit Menu Setup", {{"Hide", "2", "Directories"}}},
    {19, "User Buttons", {"Label1:", "Label2:", "Label3:", "Label4:", "Label5:", "Label6:"}},
    {25, "User Buttons", {"Command1:", "Command2:", "Command3:", "Command4:", "Command5:", "Command6:"}},
    {31, "User Buttons", {{"Button Window", "0", "Hide"}}},
    {32, "Command List Setup", {"Commands Directory:", {"Follow Window Size", "0", "No"}, "Window Width:"}},
    {35, "Command History Setup", {"Store commands longer than", {"Insert Duplicates", "1", "Yes"}}},
    {37, "Command History Setup", {"Number of entries", {"Menu Action", "2", "Both"}}},
    {39, "Command History Setup", {{"Save To History File", "1", "When Quitting Orvik"}}},
    {40, "Command History Setup", {{"History File Stored", "1", "Start-up Directory"}}},
    {41, "Text Editor Setup", {"Width: (chars)", "Height: (chars)"}},
    {43, "Function Keys", {"Function Key 7 Command:", "Function Key 8 Command:", "Function Key 9 Command:"}},
    {46, "ClearCase Setup", {"ClearTool Alias:", "Config Spec Directory:"}},
    {48, "Command History Setup", {{"History List", "1", "Off"}}},
    {49, "Status Display", {{"Display", "1", "Off"}, {"Enable", "3", "Clear Case View, Host Name"}}},
    {51, "Edit Menu Setup", {{"Update Directory", "1", "Current"}}},
    {52, "Bookmarks", {"Bookmark File:"}},
    {54, "File Tree Browser", {{"Font Size", "2", "Large"}}},
    {55, "Default Settings", {{"Look For Ending Delimiter", "0"}, "Prompt Ending Delimiter:"}},
    {57, "Environment Setup Window", {"Notebook Directory:"}},
    {58, "Notebook", {"File Name:"}},
    {59, "Environment Setup Window", {"Messageboard Directory:"}},
    {60, "Message Board", {"File Name:"}},
    {61, "File Tree Browser", {{"Show Dot Files", "1"}}},
    {62, "Text Editor Setup", {{"Text Editor", "3", "nedit"}, "User Editor:"}},
    {64, "File Tree Browser", {{"Max Files", "2147483647"}}},
    {65, "Remote Hosts", {"Host 1:", "Host 2:", "Host 3:"}},
    {68, "Remote File Transfer", {"Destination Directory:", "Source File(s):", "User Name:"}},
    {71, "Remote Hosts", {"Host 4:", "Host 5:", "User ID: (host 1)", "User ID: (host 2)"}},
    {75, "Remote Hosts", {"User ID: (host 3)", "User ID: (host 4)", "User ID: (host 5)"}},
    {78, "Generate File List", {"File Name:"}},
    {79, "Default Settings", {{"Open Long Command Window", "1"}}},
    {80, "Plot Setup Window", {"Plot Command:"}},
    {81, "USB Memory", {"Name:"}},
    {82, "Copy Files to Clearcase Vob", {"Script File:"}},
    {83, "Default Settings", {{"Clear Command Line", "1"}}},
    {84, "ClearCase Setup", {{"Enable Clearcase Usage", "1"}}},
    {85, "Checkout from Repository", {"Repository 1 URL:"}},
    {86, "Remote copy", {"Remote Destination:", "Remote User:", "Remote Host:"}},
    {89, "Checkout from Repository", {"Repository 2 URL:", "Repository 3 URL:"}},
};

/// The control of a window as assistive programs see it; null when there is not exactly one of that name.
QAccessibleInterface* find_control(const char* window, const char* name) {
    std::vector<QAccessibleInterface*> found;
    for (const Frame* frame : all_windows()) {
        for (QWidget* widget : frame->widget()->findChildren<QWidget*>()) {
            if (frame->label() == window && widget->accessibleName() == name) {
                found.push_back(QAccessible::queryAccessibleInterface(widget));
            }
        }
    }
    return found.size() == 1 ? found.front() : nullptr;
}

/// What such programs tell their user of a control: its text or number, "1" or "0" of a check box, the names
/// of a group's checked items.
std::string shown(QAccessibleInterface* control) {
    if (control->role() == QAccessible::SpinBox) {
        return std::to_string(control->valueInterface()->currentValue().toInt());
    }
    if (control->role() == QAccessible::CheckBox) {
        return control->state().checked ? "1" : "0";
    }
    if (control->role() != QAccessible::Grouping) {
        return from_qstring(control->text(QAccessible::Value));
    }
    std::string checked;
    for (int i = 0; i < control->childCount(); ++i) {
        if (control->child(i)->state().checked) {
            checked +=
                (checked.empty() ? "" : ", ") + control->child(i)->text(QAccessible::Name).toStdString();
        }
    }
    return checked;
}

class SetupFile : public testing::Test {
  protected:
    void SetUp() override {
        create_windows();
        home_dir = home_ / "home";
        startup_dir = home_ / "start";
        fs::create_directory(home_dir);
        fs::create_directory(startup_dir);
    }
    void TearDown() override { destroy_windows(); }

    [[nodiscard]] std::string path() const { return home_ / "start/Orvik.setup"; }
    [[nodiscard]] int load(const std::string& contents) const {
        return load_setup(home_.write("start/Orvik.setup", contents));
    }
    /// What a file holds with the values that the controls have now, but for one line.
    [[nodiscard]] static std::string file_with(std::size_t line, const std::string& value) {
        std::array values = setup_values();
        values.at(line - 2) = value;
        return format_setup(values);
    }

    ScratchDirectory home_;
};

/// A line that a control has, with another value than the built-in one.
struct Row {
    std::size_t line;
    QAccessibleInterface* control;
    std::string written;  ///< in the file
    std::string shown;    ///< by the control
};

class SetupControls : public SetupFile {
  protected:
    void SetUp() override {
        SetupFile::SetUp();
        for (const Block& block : blocks) {
            std::size_t line = block.first_line;
            for (const Control& control : block.controls) {
                QAccessibleInterface* found = find_control(block.window, control.name);
                ASSERT_NE(found, nullptr) << block.window << ' ' << control.name;
                const bool number = found->role() == QAccessible::SpinBox;
                const std::string own = (number ? "7" : "text of line ") + std::to_string(line);
                const std::string written = control.value.value_or(own);
                rows_.push_back({line++, found, written, control.choice.empty() ? written : control.choice});
            }
        }
    }

    [[nodiscard]] std::vector<std::string> all_shown() const {
        std::vector<std::string> texts;
        std::ranges::transform(rows_, std::back_inserter(texts), shown, &Row::control);
        return texts;
    }

    std::vector<Row> rows_;
};

TEST_F(SetupControls, EachGetsTheValueOfItsOwnLine) {
    const std::string built_in = file_with(17, "");
    const std::vector<std::string> before = all_shown();
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        ASSERT_NE(rows_[i].shown, before[i]) << "line " << rows_[i].line;
        ASSERT_EQ(load(built_in), 1);
        ASSERT_EQ(load(file_with(rows_[i].line, rows_[i].written)), 1);
        std::vector<std::string> expected = before;
        expected[i] = rows_[i].shown;
        EXPECT_EQ(all_shown(), expected) << "line " << rows_[i].line;
    }
}

TEST_F(SetupControls, AllComeBackFromTheFileByteForByte) {
    std::array<std::string, setup_lines - 1> values;
    values[53 - 2] = "0";
    std::vector<std::string> expected;
    for (const Row& row : rows_) {
        values.at(row.line - 2) = row.written;
        expected.push_back(row.shown);
    }
    EXPECT_EQ(rows_.size(), 87U);
    ASSERT_EQ(load(format_setup(values)), 1);
    EXPECT_EQ(all_shown(), expected);
    EXPECT_EQ(loaded_setup_file(), path());
    ASSERT_EQ(save_setup(home_ / "copy"), 1);
    EXPECT_EQ(read_file(home_ / "copy"), format_setup(values));
}

TEST_F(SetupFile, SetsWhatItDoesNotSayToNothing) {
    ASSERT_EQ(load(header + "only this"), 1);
    std::size_t line = 2;
    for (const SetupEntry& entry : setup_table()) {
        EXPECT_EQ(entry.line, line++);
        const bool is_text = std::holds_alternative<TextField*>(entry.control) || entry.line == 17;
        const std::string expected = is_text ? "" : "0";
        EXPECT_EQ(setup_values().at(entry.line - 2), entry.line == 2 ? "only this" : expected) << entry.line;
    }
}

TEST_F(SetupFile, TakesTheNearestValueThatAControlCanHave) {
    const std::tuple<std::size_t, std::string, std::string> cases[] = {
        {10, "none", "0"}, {10, " -7 8", "-7"}, {62, "7", "0"}, {62, "-1", "0"}, {62, "6x", "6"},
        {50, "255", "15"}, {55, "2", "1"},      {17, "x", ""},  {53, "7", "0"},  {2, "a\r", "a\r"}};
    for (const auto& [line, written, kept] : cases) {
        ASSERT_EQ(load(file_with(line, written)), 1);
        EXPECT_EQ(setup_values().at(line - 2), kept) << line << ' ' << written;
    }
}

TEST_F(SetupFile, IsTakenFromTheStartupDirectoryOrElseFromHome) {
    using File = std::optional<std::string>;
    const File none;
    const File bad = "ORVIK SETUP\nchanged\n";
    const std::string missing = "Setup file not found\n";
    const std::string others = " can be written by other users\n";
    const struct {
        File start;
        File home;
        int result;
        std::string value;
        std::string message;
        mode_t mode = 0644;
    } cases[] = {
        {header + "start\n", header + "home\n", 1, "start", ""},
        {none, header + "home\n", 1, "home", ""},
        {bad, header + "home\n", 1, "home", ""},
        {none, none, 0, "built-in", missing},
        {bad, none, 0, "built-in", missing},
        {none, bad, -1, "built-in", "Not a valid setup file\n"},
        {header + "start\n", none, 0, "built-in", path() + " not loaded: it" + others + missing, 0646},
        {header + "start\n", header + "home\n", 1, "home",
         path() + " not loaded: it" + others + "Warning: " + (home_ / "home/Orvik.setup").string() + others,
         0666},
    };
    for (const auto& [start, home, result, value, message, mode] : cases) {
        for (const auto& [name, contents] :
             {std::pair("start/Orvik.setup", start), {"home/Orvik.setup", home}}) {
            fs::remove(home_ / name);
            if (contents) {
                ASSERT_EQ(chmod(home_.write(name, *contents).c_str(), mode), 0);
            }
        }
        environment_setup().working_directory_1.set_text("built-in");
        message_board().text.set_text("");
        const std::array before = setup_values();
        EXPECT_EQ(load_setup_at_startup(), result);
        EXPECT_EQ(environment_setup().working_directory_1.text(), value);
        EXPECT_EQ(message_board().text.text(), message);
        EXPECT_EQ(setup_values() == before, result != 1);
    }
    home_dir = startup_dir;
    EXPECT_EQ(load_setup_at_startup(), 1) << "only warned of in the home directory";
    fs::create_directory(home_ / "directory");
    ASSERT_EQ(mkfifo((home_ / "fifo").c_str(), 0600), 0);
    EXPECT_EQ(load_setup(home_ / "directory"), 0);
    EXPECT_EQ(load_setup(home_ / "fifo"), 0);
}

TEST_F(SetupFile, IsSavedInTheStartupDirectoryOrStaysAsItWas) {
    const std::string failure = "Could not save Orvik.setup";
    const auto save = [&] {
        message_board().text.set_text("");
        const std::string answer = Save_current_setup();
        return std::pair(answer, message_board().text.text());
    };
    EXPECT_EQ(save(), std::pair("Setup saved to " + path(), std::string()));
    const std::string saved = read_file(fs::path(path()));
    EXPECT_EQ(saved, format_setup(setup_values()));
    environment_setup().working_directory_2.set_text(std::string(1023, 'x'));
    EXPECT_EQ(save(),
              std::pair(failure, path() + " not written: line 3 would be too long or hold a line end\n"));
    EXPECT_EQ(read_file(fs::path(path())), saved);
    environment_setup().working_directory_2.set_text("");
    fs::remove(path());
    fs::create_directory(path());
    EXPECT_EQ(save(), std::pair(failure, path() + " not written: Is a directory\n"));
}

TEST_F(SetupFile, TheWindowsTellWhatIsNotSaved) {
    const auto marked = [] {
        std::string titles;
        for (const Frame* window : all_windows()) {
            titles += window->right_footer() == "Not saved yet" ? window->label() + ";" : "";
        }
        EXPECT_EQ(has_unsaved_settings(), !titles.empty());
        return titles;
    };
    watch_setup_windows();
    EXPECT_EQ(marked(), "");
    file_list_browser().set_right_footer("its own");
    environment_setup().working_directory_1.set_text("changed");
    EXPECT_EQ(marked(), "Environment Setup Window;");
    environment_setup().working_directory_1.set_text("");
    EXPECT_EQ(marked(), "");
    environment_setup().working_directory_1.set_text("changed");
    user_buttons().label_1.set_text("changed");
    EXPECT_EQ(marked(), "Environment Setup Window;User Buttons;");
    ASSERT_EQ(save_setup(path()), 1);
    EXPECT_EQ(marked(), "");
    user_buttons().label_1.set_text("again");
    ASSERT_EQ(load_setup(path()), 1);
    EXPECT_EQ(marked(), "");
}

TEST_F(SetupFile, IsLoadedFromTheFileListBrowser) {
    home_.write("good", header + "value\n");
    home_.write("bad", "no setup\n");
    const std::string directory = home_.path();
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {directory, "", "File name not specified"},
        {"", "good", "Directory name not specified"},
        {directory, "missing", "Setup file not found"},
        {directory, "bad", "Not a valid setup file"},
        {directory, "good", "Setup loaded from " + directory + "/good"},
    };
    for (const auto& [folder, name, footer] : cases) {
        EXPECT_EQ(environment_setup().working_directory_1.text(), "");
        file_list_browser().directory.set_text(folder);
        file_list_browser().file_name.set_text(name);
        EXPECT_EQ(FileListLoadSetup(), footer);
    }
    EXPECT_EQ(environment_setup().working_directory_1.text(), "value");
}

}  // namespace
