// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/wait_until.h"
#include "toolkit/pane/pane.h"
#include "toolkit/pane/view.h"
#include "toolkit/text_conversion.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QTest>
#include <QVBoxLayout>

#include <string>
#include <string_view>

#include <gtest/gtest.h>

/// A terminal pane in a window of its own, with a program on a real pty. Its text is read as an assistive
/// tool reads it.
class TerminalFixture : public testing::Test {
  protected:
    void SetUp() override {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(pane.widget());
        window.resize(700, 400);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        pane.set_focus();
        ASSERT_TRUE(wait([this] { return view().hasFocus(); }));
    }

    void start(const std::string& script) {
        pane.start({"/bin/sh", {"sh", "-c", script}, {"PATH=/usr/bin:/bin", "TERM=xterm"}, "/"});
    }
    /// A program that shows every byte it reads: control characters as ^X, "ready" when it listens.
    void start_echo() {
        start("stty raw -echo; printf 'ready\\r\\n'; exec cat -vT");
        ASSERT_TRUE(wait_for_text("ready"));
    }
    /// Puts text on the screen and has it painted.
    void show_text(std::string_view text) {
        ttysw_output(pane, text);
        paint();
    }

    void paint() {
        EXPECT_TRUE(wait([this] { return !view().awaits_frame(); }));
        view().repaint();
    }

    [[nodiscard]] TerminalView& view() const { return *view_; }
    [[nodiscard]] QAccessibleTextInterface& accessible() const {
        return *QAccessible::queryAccessibleInterface(&view())->textInterface();
    }
    [[nodiscard]] std::string text() const {
        return from_qstring(accessible().text(0, accessible().characterCount()));
    }
    /// What an echo program has shown since it was ready.
    [[nodiscard]] std::string echoed() const {
        const std::string all = text();
        const std::size_t start = all.find("ready\n");
        return start == std::string::npos ? "(not ready)" : all.substr(start + 6);
    }

    template <typename Condition>
    [[nodiscard]] static bool wait(Condition condition) {
        return wait_until(condition, patience, [] { QTest::qWait(5); });
    }
    [[nodiscard]] bool wait_for_text(const std::string& part) const {
        return wait([&] { return text().find(part) != std::string::npos; });
    }
    [[nodiscard]] bool wait_for_echo(const std::string& whole) const {
        return wait([&] { return echoed() == whole; });
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(&view(), key, modifiers);
    }
    /// The middle of a cell of the visible part.
    [[nodiscard]] QPoint cell(int column, int line) const {
        return view().cell_area({view().position_at({0, 0}).row + line, column}).center();
    }
    [[nodiscard]] static std::string primary() {
        return from_qstring(QGuiApplication::clipboard()->text(QClipboard::Selection));
    }
    static void set_clipboard(std::string_view text) {
        QGuiApplication::clipboard()->setText(to_qstring(text), QClipboard::Clipboard);
    }

    QWidget window;
    TerminalPane pane{&window, "terminal"};

  private:
    TerminalView* view_ = dynamic_cast<TerminalView*>(pane.widget()->focusProxy());
};
