// SPDX-License-Identifier: MIT
#pragma once

#include "shell/doubleclick.h"
#include "tests/settings/menu_windows.h"
#include "tests/support/notice_answerer.h"
#include "ui/file_list_browser.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QListView>

/// The "File List Browser" on a directory of its own, "/list" of the home.
class FileListWindows : public MenuWindows, protected NoticeAnswerer {
  protected:
    void SetUp() override {
        MenuWindows::SetUp();
        multiclick_timeout = 400'000;
        drag_threshold = 5;
        (void)doubleclick({.row = -1});  // what another test has pressed is no click before
        for (const char* name : {"list/Beta.c", "list/alpha", "list/notes.txt", "list/sub/inner"}) {
            home.write(name, std::string(name) + "\n");
        }
    }

    static FileListBrowser& browser() { return file_list_browser(); }
    [[nodiscard]] std::string directory() const { return home / "list"; }
    static Rows rows() { return browser().list.all_rows(); }
    static QListView& view() { return control<QListView>(browser(), "File List Browser list"); }

    /// Does something in the browser and waits for what it has begun; the left footer then.
    template <typename Step>
    static std::string after(Step step) {
        browser().set_left_footer("old");
        step();
        EXPECT_TRUE(wait([] { return browser().widget()->findChild<QObject*>("long work") == nullptr; }));
        return browser().left_footer();
    }
    static std::string press(const char* button) {
        return after([=] { control<QAbstractButton>(browser(), button).click(); });
    }
    static std::string choose_file(const char* item) {
        return after([=] { choose(browser().file_menu.menu(), item); });
    }
    static std::string press_key(Qt::Key key) {
        return after([=] { QTest::keyClick(&view(), key); });
    }
    /// Lists a directory as its user would.
    static std::string list(const std::string& directory) {
        browser().directory.set_text(directory);
        return after([] { QTest::keyClick(&control<QLineEdit>(browser(), "Directory:"), Qt::Key_Return); });
    }
    static void name(const std::string& name) { browser().file_name.set_text(name); }
    static QPoint place_of(int row) { return view().visualRect(view().model()->index(row, 0)).center(); }
    static std::string double_click(int row) {
        return after([=] {
            QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, place_of(row));
            QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, place_of(row));
        });
    }
};
