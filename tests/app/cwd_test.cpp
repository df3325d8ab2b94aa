// SPDX-License-Identifier: MIT
#include "app/notify.h"
#include "shell/status.h"
#include "tests/support/recorded_windows.h"
#include "ui/status_display.h"

#include <QLineEdit>

#include <fstream>
#include <tuple>

namespace {

class CwdTest : public RecordedWindows {
  protected:
    void SetUp() override {
        RecordedWindows::SetUp();
        main_window().show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(main_window().widget()));
        begin_status_display();
        report("/usr");
    }
    static std::string shown() { return main_window().cwd.text(); }
    static QLineEdit& field() { return control<QLineEdit>(main_window(), "Cwd:"); }
    /// What the shell does before a prompt; nobody arms a timer.
    static void write_status(const std::string& directory) {
        std::ofstream(status_display().status_file.text()) << "C:" << directory << "\n";
    }
    static void report(const std::string& directory) {
        write_status(directory);
        ASSERT_TRUE(wait([&] { return shown() == directory; })) << shown();
    }
    static void write(const char* text) {
        field().setFocus();
        field().selectAll();
        QTest::keyClicks(&field(), QString::fromUtf8(text));
    }
};

TEST_F(CwdTest, ReturnChangesTheDirectoryAndEscapeRestoresIt) {
    setenv("HOME", home.path().c_str(), 1);
    for (const auto& [written, typed_line, footer] : {std::tuple("/a b", std::string("cd '/a b'\n"), ""),
                                                      {"~/x", "cd " + home.path().string() + "/x\n", ""},
                                                      {"", "", "Directory name not specified"}}) {
        write(written);
        QTest::keyClick(&field(), *written == '\0' ? Qt::Key_Delete : Qt::Key_End);
        QTest::keyClick(&field(), Qt::Key_Return);
        EXPECT_EQ(typed(), typed_line);
        EXPECT_EQ(main_window().left_footer(), footer);
    }
    write("/half");
    write_status("/tmp");
    QTest::keyClick(&field(), Qt::Key_Escape);
    EXPECT_EQ(shown(), "/tmp") << "as it is now";
    EXPECT_FALSE(field().hasFocus());
    report("/usr/lib");
}

TEST_F(CwdTest, WhatIsBeingWrittenStaysAndDisplayOffFollowsNothing) {
    write("/half");
    write_status("/tmp");
    DisplayStatusTimer();
    EXPECT_EQ(shown(), "/half");
    main_window().termpane.set_focus();
    report("/tmp");
    constexpr int off = 1;
    status_display().display.set_value(off);
    write_status("/usr");
    status_display().display.set_value(0);
    write_status("/var");
    EXPECT_TRUE(wait([] { return shown() == "/var"; }));
}

}  // namespace
