// SPDX-License-Identifier: MIT
#include "shell/status.h"

#include "app/notify.h"
#include "shell/process.h"
#include "shell/status_file.h"
#include "tests/support/scratch_directory.h"
#include "ui/default_settings.h"
#include "ui/main_window.h"
#include "ui/message_board.h"
#include "ui/process_information.h"
#include "ui/status_display.h"
#include "ui/windows.h"

#include <QTest>
#include <QTimer>

#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

namespace {

class StatusDisplayTest : public testing::Test {
  protected:
    void SetUp() override {
        create_windows();
        status_display().status_file.set_text(file());
        status_display().enable.set_value(status_host | status_user);
        process_information().process_id.set_value(123);
    }
    void TearDown() override { destroy_windows(); }

    [[nodiscard]] std::string file() const { return home_.path() / "status"; }
    void shell_writes(const std::string& text) const { std::ofstream(file()) << text; }
    static bool cwd_becomes(const std::string& cwd) {
        return QTest::qWaitFor([&] { return main_window().cwd.text() == cwd; }, 5000);
    }

    ScratchDirectory home_;
};

TEST_F(StatusDisplayTest, TheTimerShowsWhatTheShellWrote) {
    shell_writes("P:$   \nC:/tmp\nH:h\nU:u\nV:/view/v\n");
    SetupTimer(100);
    EXPECT_EQ(main_window().cwd.text(), "");
    ASSERT_TRUE(cwd_becomes("/tmp"));
    EXPECT_EQ(default_settings().prompt.text(), "$");
    EXPECT_EQ(main_window().right_footer(), "Host: h   User: u   ");
    status_display().enable.set_value(15);
    StatusDisplayEnable();
    EXPECT_TRUE(QTest::qWaitFor(
        [] { return main_window().right_footer() == "Host: h   User: u   PID: 123   View: v   "; }, 5000));
}

TEST_F(StatusDisplayTest, TheScreensLockIsToldUntilItIsOver) {
    shell_writes("C:/tmp\nH:h\nU:u\n");
    show_screen_lock(true);
    DisplayStatusTimer();
    EXPECT_EQ(main_window().cwd.text(), "/tmp");
    EXPECT_EQ(main_window().right_footer(), "Screen is locked. Use ^Q to unlock.");
    show_screen_lock(false);
    EXPECT_EQ(main_window().right_footer(), "");
    DisplayStatusTimer();
    EXPECT_EQ(main_window().right_footer(), "Host: h   User: u   ");
}

TEST_F(StatusDisplayTest, NoAliasIsSetWithoutAStatusFileAndTheReasonIsTold) {
    home_dir = home_ / "none";
    begin_status_display();
    EXPECT_EQ(message_board().text.text(),
              "No status display: no file can be made in " + home_dir + ": No such file or directory\n");
    EXPECT_EQ(BaseWindowSetAlias(), "Orvik status file not defined");
}

TEST_F(StatusDisplayTest, ALaterTimerReplacesAPendingOneAndDisplayOffArmsNone) {
    constexpr int off = 1;
    shell_writes("C:/first\n");
    status_display().display.set_value(off);
    EXPECT_EQ(StatusDisplayOnOff(), "");
    SetupTimer(1);
    status_display().display.set_value(0);
    const auto stays_empty_for = [](int milliseconds) {
        bool over = false;
        QTimer::singleShot(milliseconds, [&] { over = true; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return over; }, 5000));
        return main_window().cwd.text().empty();
    };
    EXPECT_TRUE(stays_empty_for(100));
    SetupTimer(100);
    SetupTimer(400);
    EXPECT_TRUE(stays_empty_for(250));
    EXPECT_TRUE(cwd_becomes("/first"));
}

TEST_F(StatusDisplayTest, WithoutAFileNothingChangesAndTheEndRemovesIt) {
    shell_writes("C:/tmp\n");
    DisplayStatusTimer();
    std::filesystem::remove(file());
    DisplayStatusTimer();
    EXPECT_EQ(main_window().cwd.text(), "/tmp");
    shell_writes("");
    DisplayStatusTimer();
    EXPECT_EQ(main_window().cwd.text(), "");
    end_status_display();
    EXPECT_FALSE(std::filesystem::exists(file()));
}

}  // namespace
