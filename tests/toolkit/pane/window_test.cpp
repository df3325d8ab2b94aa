// SPDX-License-Identifier: MIT
#include "tests/toolkit/pane/fixture.h"
#include "toolkit/pane/colours.h"

#include <fmt/format.h>

namespace {

class TerminalWindow : public TerminalFixture {
  protected:
    /// A program that writes this and then shows what it reads.
    void start_asking(const std::string& written) {
        start(fmt::format("stty raw -echo; printf 'ready\\r\\n{}'; exec cat -vT", written));
    }
    [[nodiscard]] QSize cell_size() const { return view().cell_area({0, 0}).size(); }
};

TEST_F(TerminalWindow, KeepsItsSizeUnlessTheUserPermits) {
    const QSize before = window.size();
    start_asking("\\033[8;20;60t\\033[3;5;5t\\033[11t");
    EXPECT_TRUE(wait_for_echo("^[[1t")) << echoed();
    EXPECT_EQ(window.size(), before);
}

TEST_F(TerminalWindow, FollowsTheTerminalsSize) {
    pane.permit({.window_operations = true});
    const QSize cell = cell_size();
    start_asking("\\033[8;20;60t\\033[18t\\033[14t");
    EXPECT_TRUE(wait_for_echo(fmt::format("^[[8;20;60t^[[4;{};{}t", 20 * cell.height(), 60 * cell.width())))
        << echoed();
    const int margin = view().cell_area(view().position_at({0, 0})).x();
    const QSize fitting(60 * cell.width() + 2 * margin, 20 * cell.height() + 2 * margin);
    EXPECT_TRUE(wait([&] { return view().size() == fitting; })) << view().width();
    EXPECT_EQ(view().terminal().size(), (terminal::Size{60, 20}));
    window.resize(window.size() + QSize(2 * cell.width(), 0));  // by its user
    EXPECT_TRUE(wait([&] { return view().terminal().size() == terminal::Size{62, 20}; }));
}

TEST_F(TerminalWindow, IsMaximisedOneWayAndRestored) {
    pane.permit({.window_operations = true});
    const QRect before(window.pos(), window.size());
    const QSize screen = window.screen()->availableSize();
    start_asking("\\033[9;2t");
    EXPECT_TRUE(wait([&] { return window.height() > screen.height() - 60; })) << window.height();
    EXPECT_EQ(window.width(), before.width());
    ttysw_output(pane, "\033[9;3t");
    EXPECT_TRUE(wait([&] { return window.width() > screen.width() - 60; })) << window.width();
    ttysw_output(pane, "\033[9;0t");
    EXPECT_TRUE(wait([&] { return QRect(window.pos(), window.size()) == before; })) << window.height();
}

TEST_F(TerminalWindow, ThatCannotGrowHasTheTerminalResizedAgain) {
    pane.permit({.window_operations = true});
    window.setMaximumSize(window.size());
    const terminal::Size before = view().terminal().size();
    const std::string wish = fmt::format("[8;{};{}t", before.rows + 2, before.columns + 3);
    start_asking("\\033" + wish + "\\033[18t");
    EXPECT_TRUE(wait_for_echo("^[" + wish)) << echoed();
    EXPECT_TRUE(wait([&] { return view().terminal().size() == before; }));
}

TEST_F(TerminalWindow, WritesTheClipboardWherePermitted) {
    set_clipboard("old");
    start_asking("\\033]52;c;bmV3\\007\\033]52;c;?\\007\\033[11t");
    EXPECT_TRUE(wait_for_echo("^[[1t")) << echoed();
    EXPECT_EQ(from_qstring(QGuiApplication::clipboard()->text()), "old");
    pane.permit({.clipboard = true});
    ttysw_output(pane, "\033]52;c;bmV3\a");
    EXPECT_TRUE(wait([] { return QGuiApplication::clipboard()->text() == QStringLiteral("new"); }));
}

TEST(ColourName, IsAskedOfX) {
    EXPECT_EQ(x_colour("rebecca purple"), (terminal::Rgb{0x66, 0x33, 0x99}));
    EXPECT_EQ(x_colour("rgbi:1/0/0"), (terminal::Rgb{0xFF, 0, 0}));
    EXPECT_EQ(x_colour("no such colour"), std::nullopt);
}

}  // namespace
