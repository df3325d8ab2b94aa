// SPDX-License-Identifier: MIT
#include "app/notebook.h"

#include "app/notify.h"
#include "app/pane_file.h"
#include "tests/support/scratch_directory.h"
#include "ui/default_settings.h"
#include "ui/environment_setup.h"
#include "ui/message_board.h"
#include "ui/notebook.h"
#include "ui/windows.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <cstdlib>
#include <tuple>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

const std::string discard = "The text is not saved. Discard it ?";

/// The windows, with the built-in directories and a home of their own.
class NotebookTest : public testing::Test {
  protected:
    void SetUp() override {
        setenv("HOME", home_.path().c_str(), 1);
        create_windows();
    }
    void TearDown() override {
        destroy_windows();
        setenv("HOME", old_home_.c_str(), 1);
    }

    [[nodiscard]] std::string path(std::string_view name) const { return home_ / name; }
    [[nodiscard]] std::string contents(std::string_view name) const { return read_file(home_ / name); }
    static void type(std::string_view text) { textsw_insert(notebook().text, text); }

    /// Presses a button of a window and gives the question that is asked; empty when none is.
    static std::string asked(const Frame& window, const char* button, const QString& answer = "Yes") {
        std::string question;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box != nullptr) {
                question += box->text().toStdString();
                press(*box, answer);
            }
        });
        timer.start();
        press(*window.widget(), button);
        return question;
    }
    static void press(const QWidget& window, const QString& label) {
        for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
            if (button->accessibleName() == label) {
                return button->click();
            }
        }
        ADD_FAILURE() << "no " << label.toStdString();
    }

    ScratchDirectory home_;

  private:
    std::string old_home_ = std::getenv("HOME");
};

TEST_F(NotebookTest, SavesWithoutAQuestionWhatIsItsOwn) {
    for (const std::string text : {"one\n", "one\r\n\xFFtwo"}) {
        notebook().text.set_text("");
        type(text);
        EXPECT_EQ(asked(notebook(), "Save"), "");
        EXPECT_EQ(contents("notebook.txt"), text);
        EXPECT_EQ(notebook().left_footer(), "Saved to " + path("notebook.txt"));
        EXPECT_FALSE(notebook().text.modified());
    }
    home_.write("loaded", "file\r\n");
    notebook().file_name.set_text("loaded");
    EXPECT_EQ(asked(notebook(), "Load"), "");
    type("text");
    EXPECT_EQ(asked(notebook(), "Save"), "");
    EXPECT_EQ(contents("loaded"), "textfile\r\n");
}

TEST_F(NotebookTest, AsksBeforeItReplacesAnotherFileAndTellsWhyItCouldNot) {
    home_.write("theirs", "theirs");
    notebook().file_name.set_text("theirs");
    type("ours");
    const std::string question = path("theirs") + " exists. Replace it ?";
    EXPECT_EQ(asked(notebook(), "Save", "Cancel"), question);
    EXPECT_EQ(contents("theirs"), "theirs");
    EXPECT_EQ(notebook().left_footer(), "");
    fs::create_directory(home_ / "directory");
    notebook().file_name.set_text("directory");
    EXPECT_EQ(asked(notebook(), "Save"), path("directory") + " exists. Replace it ?");
    EXPECT_EQ(notebook().left_footer(), "Could not save " + path("directory") + ": Is a directory");
    EXPECT_TRUE(notebook().text.modified());
    notebook().file_name.set_text("theirs");
    EXPECT_EQ(asked(notebook(), "Save"), question);
    EXPECT_EQ(contents("theirs"), "ours");
}

TEST_F(NotebookTest, AsksBeforeUnsavedTextIsLost) {
    home_.write("notebook.txt", "file");
    for (const auto& [button, text] : {std::pair{"Load", "file"}, {"Clear", ""}}) {
        notebook().text.set_text("");
        type("typed");
        EXPECT_EQ(asked(notebook(), button, "Cancel"), discard);
        EXPECT_EQ(notebook().text.text(), "typed");
        EXPECT_EQ(asked(notebook(), button), discard);
        EXPECT_EQ(notebook().text.text(), text);
        EXPECT_EQ(asked(notebook(), button), "");
    }
    type("kept");
    notebook().file_name.set_text("missing");
    EXPECT_EQ(asked(notebook(), "Load"), discard);
    EXPECT_EQ(notebook().left_footer(), "Could not load " + path("missing") + ": No such file or directory");
    EXPECT_EQ(notebook().text.text(), "kept");
}

TEST_F(NotebookTest, PrintsWithTheUsersCommand) {
    EXPECT_EQ(notebook_print_file, "/tmp/notebook.txt");
    notebook_print_file = path("notebook.txt");  // the real one may be somebody's
    const std::string command = "cp " + path("notebook.txt") + " " + path("printed");
    default_settings().print_command.set_text("cp $PATH_NAME " + path("printed"));
    EXPECT_EQ(asked(notebook(), "Print"), "");
    EXPECT_EQ(notebook().left_footer(), "Nothing to print");
    EXPECT_EQ(message_board().text.text(), "");
    type("caf\xC3\xA9\n");
    EXPECT_EQ(asked(notebook(), "Print"), "");
    EXPECT_EQ(notebook().left_footer(), "Printing: " + command);
    EXPECT_EQ(message_board().text.text(), command + " &\n");
    EXPECT_TRUE(QTest::qWaitFor([&] { return contents("printed") == "caf\xC3\xA9\n"; }, 20'000));
    EXPECT_EQ(fs::status(notebook_print_file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_TRUE(notebook().text.modified());
}

TEST_F(NotebookTest, HasAMessageBoardThatIsSavedAndCleared) {
    textsw_insert(message_board().text, "message\n");
    environment_setup().messageboard_directory.set_text("~/");
    EXPECT_EQ(asked(message_board(), "Save"), "");
    EXPECT_EQ(contents("messageboard.txt"), "message\n");
    EXPECT_EQ(message_board().left_footer(), "Saved to " + path("messageboard.txt"));
    textsw_insert(message_board().text, "more\n");
    EXPECT_EQ(asked(message_board(), "Clear"), "");
    EXPECT_EQ(message_board().text.text(), "");
    EXPECT_EQ(message_board().left_footer(), "");
}

TEST_F(NotebookTest, ExpandsDirectoryAndName) {
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"$HOME/notes", "a b", path("notes/a b")},
        {"~", "${HOME}x", home_.path().string() + "x"},
        {"~", "", path("usual")},
        {" ~ ", "~/name", path("name")},
        {"/dir", "/name", "/name"},
        {"", "name", "/tmp/name"},
    };
    for (const auto& [directory, name, expected] : cases) {
        EXPECT_EQ(PaneFile::path(directory, name, "usual"), expected) << directory << ' ' << name;
    }
}

}  // namespace
