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

using namespace std::string_literals;
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

    /// Calls a notify procedure and gives the question that it asks; empty when it asks none.
    std::string asked(Message (*procedure)(), const QString& choice = QStringLiteral("Yes")) {
        std::string question;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            for (QAbstractButton* button : box != nullptr ? box->buttons() : QList<QAbstractButton*>()) {
                if (button->text() == choice) {
                    question += box->text().toStdString();
                    button->click();
                    return;
                }
            }
        });
        timer.start();
        answer_ = procedure();
        return question;
    }

    ScratchDirectory home_;
    Message answer_;  ///< of the procedure called last

  private:
    std::string old_home_ = std::getenv("HOME");
};

TEST_F(NotebookTest, SavesWithoutAQuestionWhatIsItsOwn) {
    for (const std::string text : {"one\n", "one\ntwo"}) {
        notebook().text.set_text("");
        type(text);
        EXPECT_EQ(asked(NotebookSave), "");
        EXPECT_EQ(contents("notebook.txt"), text);
        EXPECT_EQ(answer_, "Saved to " + path("notebook.txt"));
        EXPECT_FALSE(notebook().text.modified());
    }
    home_.write("loaded", "");
    notebook().file_name.set_text("loaded");
    NotebookLoad();
    type("text");
    EXPECT_EQ(asked(NotebookSave), "");
    EXPECT_EQ(contents("loaded"), "text");
}

TEST_F(NotebookTest, AsksBeforeItReplacesAnotherFileAndTellsWhyItCouldNot) {
    home_.write("theirs", "theirs");
    notebook().file_name.set_text("theirs");
    type("ours");
    const std::string question = path("theirs") + " exists. Replace it ?";
    EXPECT_EQ(asked(NotebookSave, "Cancel"), question);
    EXPECT_EQ(contents("theirs"), "theirs");
    EXPECT_EQ(answer_, "");
    fs::create_directory(home_ / "directory");
    notebook().file_name.set_text("directory");
    EXPECT_EQ(asked(NotebookSave), path("directory") + " exists. Replace it ?");
    EXPECT_EQ(answer_, "Could not save " + path("directory") + ": Is a directory");
    EXPECT_TRUE(notebook().text.modified());
    notebook().file_name.set_text("theirs");
    EXPECT_EQ(asked(NotebookSave), question);
    EXPECT_EQ(contents("theirs"), "ours");
}

TEST_F(NotebookTest, AsksBeforeUnsavedTextIsLost) {
    home_.write("notebook.txt", "file");
    for (const auto& [procedure, text] : {std::pair{&NotebookLoad, "file"}, {&NotebookClear, ""}}) {
        notebook().text.set_text("");
        type("typed");
        EXPECT_EQ(asked(procedure, "Cancel"), discard);
        EXPECT_EQ(notebook().text.text(), "typed");
        EXPECT_EQ(asked(procedure), discard);
        EXPECT_EQ(notebook().text.text(), text);
        EXPECT_EQ(asked(procedure), "");
    }
    type("kept");
    notebook().file_name.set_text("missing");
    EXPECT_EQ(asked(NotebookLoad), discard);
    EXPECT_EQ(answer_, "Could not load " + path("missing") + ": No such file or directory");
    EXPECT_EQ(notebook().text.text(), "kept");
}

TEST_F(NotebookTest, GivesEveryTextBackByteForByte) {
    const std::string texts[] = {
        "",
        "\n",
        "\n\nempty lines\n\n\n no line feed",
        "caf\xC3\xA9 \xE4\xBD\xA0 \xF0\x9F\x98\x80 no\xC2\xA0 break",
        "\xFF\x80 cut \xE4\xBD",
        "dos\r\nand\rmac\r",
        "\xEF\xBB\xBF byte order mark",
        "line\xE2\x80\xA8paragraph\xE2\x80\xA9 end",
        "\xEF\xB7\x90\xEF\xB7\x91\xEF\xBF\xBC\xEF\xBF\xBE",
        "\xF0\x90\x80\x8D pair",
        "\0\x01\t\v\f\x1B\x7F\xC2\x85"s,
    };
    for (const std::string& text : texts) {
        home_.write("notebook.txt", text);
        NotebookLoad();
        EXPECT_EQ(notebook().text.text(), text);
        fs::remove(home_ / "notebook.txt");
        NotebookSave();
        EXPECT_EQ(contents("notebook.txt"), text);
        textsw_reset(notebook().text);
        type(text);
        EXPECT_EQ(notebook().text.text(), text);
        notebook().text.set_unmodified();
    }
}

TEST_F(NotebookTest, PrintsWithTheUsersCommand) {
    EXPECT_EQ(notebook_print_file, "/tmp/notebook.txt");
    notebook_print_file = path("notebook.txt");  // the real one may be somebody's
    const std::string command = "cp " + path("notebook.txt") + " " + path("printed");
    default_settings().print_command.set_text("cp $PATH_NAME " + path("printed"));
    EXPECT_EQ(NotebookPrint(), "Nothing to print");
    EXPECT_EQ(message_board().text.text(), "");
    type("caf\xC3\xA9\n");
    EXPECT_EQ(NotebookPrint(), "Printing: " + command);
    EXPECT_EQ(message_board().text.text(), command + " &\n");
    EXPECT_TRUE(QTest::qWaitFor([&] { return contents("printed") == "caf\xC3\xA9\n"; }, 20'000));
    EXPECT_EQ(fs::status(notebook_print_file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_TRUE(notebook().text.modified());
}

TEST_F(NotebookTest, HasAMessageBoardThatIsSavedAndCleared) {
    textsw_insert(message_board().text, "message\n");
    environment_setup().messageboard_directory.set_text("~/");
    EXPECT_EQ(asked(MessageBoardSave), "");
    EXPECT_EQ(contents("messageboard.txt"), "message\n");
    EXPECT_EQ(answer_, "Saved to " + path("messageboard.txt"));
    textsw_insert(message_board().text, "more\n");
    EXPECT_EQ(asked(MessageBoardClear), "");
    EXPECT_EQ(message_board().text.text(), "");
    EXPECT_EQ(answer_, "");
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
