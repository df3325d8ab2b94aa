// SPDX-License-Identifier: MIT
#pragma once

#include "shell/door.h"
#include "shell/process.h"
#include "shell/waiting_strip.h"
#include "tests/support/scratch_directory.h"
#include "tests/support/wait_until.h"
#include "toolkit/text_conversion.h"
#include "ui/main_window.h"
#include "ui/windows.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

/// All windows of the tool, with a program in the terminal pane that writes every byte it is given into a
/// file. What the pane shows is for the test to say.
class RecordedWindows : public testing::Test {
  protected:
    void SetUp() override {
        home_dir = startup_dir = home.path();
        shell_name = "/bin/bash";
        user_shell = {.family = ShellFamily::bash, .utf8 = true};
        create_windows();
        watch_for_shell([] {});
        waiting_lines().set_hold(false);
        const std::string script = "stty raw -echo; : >typed; touch ready; exec cat >>typed";
        main_window().termpane.start({"/bin/sh", {"sh", "-c", script}, {"PATH=/usr/bin:/bin"}, home.path()});
        ASSERT_TRUE(wait([this] { return std::filesystem::exists(home / "ready"); }));
        set_selection("");
    }
    void TearDown() override { destroy_windows(); }

    /// What has been typed since the last question. A line typed behind it tells when that is all.
    [[nodiscard]] std::string typed() {
        constexpr std::string_view mark = "<that is all>\n";
        EXPECT_EQ(type_line(mark.substr(0, mark.size() - 1)), "");
        std::string all;
        EXPECT_TRUE(wait([&] {
            all = read_file(home / "typed").substr(seen_);
            return all.ends_with(mark);
        }));
        seen_ += all.size();
        return all.substr(0, all.size() - std::min(mark.size(), all.size()));
    }

    template <typename Condition>
    [[nodiscard]] static bool wait(Condition condition) {
        return wait_until(condition, patience, [] { QTest::qWait(5); });
    }
    static void set_selection(std::string_view text) {
        QGuiApplication::clipboard()->setText(to_qstring(text), QClipboard::Selection);
    }
    /// A control of a window by its accessible name.
    template <typename Widget>
    [[nodiscard]] static Widget& control(const Frame& window, const char* name) {
        for (Widget* widget : window.widget()->findChildren<Widget*>()) {
            if (widget->accessibleName() == QLatin1String(name)) {
                return *widget;
            }
        }
        ADD_FAILURE() << "no " << name;
        std::abort();
    }

    const ScratchDirectory home;

  private:
    std::size_t seen_ = 0;
};
