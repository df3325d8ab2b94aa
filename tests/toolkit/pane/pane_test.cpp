// SPDX-License-Identifier: MIT
#include "toolkit/pane/pane.h"

#include "tests/toolkit/pane/fixture.h"
#include "toolkit/resource_database.h"

#include <QAction>
#include <QInputMethod>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>

#include <algorithm>
#include <csignal>
#include <utility>

namespace {

using terminal::Key;

class TerminalPaneTest : public TerminalFixture {};

TEST_F(TerminalPaneTest, KeysReachTheProgramAndNotTheWindowsShortcuts) {
    int triggered = 0;
    for (const char* keys : {"Ctrl+C", "Alt+X", "F1", "Ctrl+Q"}) {
        auto* action = new QAction(&window);
        action->setShortcut(QKeySequence(QString::fromLatin1(keys)));
        QObject::connect(action, &QAction::triggered, [&triggered] { ++triggered; });
        window.addAction(action);
    }
    start_echo();
    press(Qt::Key_A);
    press(Qt::Key_Up);
    press(Qt::Key_C, Qt::ControlModifier);
    press(Qt::Key_Tab);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    press(Qt::Key_F1);
    press(Qt::Key_X, Qt::AltModifier);
    press(Qt::Key_Right, Qt::ControlModifier);
    press(Qt::Key_Backspace);
    press(Qt::Key_Space, Qt::ControlModifier);
    press(Qt::Key_Escape);
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("\u00e9"));
    QCoreApplication::sendEvent(&view(), &event);
    EXPECT_TRUE(wait_for_echo("a^[[A^C^I^[[Z^[OP^[x^[[1;5C^?^@^[M-CM-)")) << echoed();
    EXPECT_EQ(triggered, 0);
    EXPECT_TRUE(view().hasFocus());
    (new QLineEdit(&window))->show();
    press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_FALSE(view().hasFocus());
}

TEST_F(TerminalPaneTest, FontIsZoomedByKeysAndItsUsualSizeComesBack) {
    const auto height = [this] { return view().cell_area({0, 0}).height(); };
    const int usual = height();
    for (const auto& [key, modifiers] : {std::pair(Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier),
                                         std::pair(Qt::Key_Equal, Qt::KeyboardModifiers(Qt::ControlModifier)),
                                         std::pair(Qt::Key_Plus, Qt::ControlModifier | Qt::KeypadModifier)}) {
        const double before = view().terminal_font().pointSizeF();
        press(key, modifiers);
        EXPECT_EQ(view().terminal_font().pointSizeF(), before + 1) << key;
    }
    const int larger = height();
    EXPECT_GT(larger, usual);
    press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_LT(height(), larger);
    for (int i = 0; i < 200; ++i) {
        press(Qt::Key_Minus, Qt::ControlModifier);
    }
    EXPECT_GT(height(), 0);
    press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(height(), usual);
}

TEST_F(TerminalPaneTest, MenuOffersSizesAndFontsOfFixedWidth) {
    press(Qt::Key_Menu);
    QMenu* fonts = nullptr;
    for (const QAction* item : view().menu().actions()) {
        fonts = item->text() == "Font" ? item->menu() : fonts;
    }
    ASSERT_NE(fonts, nullptr);
    fonts->aboutToShow();
    const QList<QAction*> items = fonts->actions();
    ASSERT_GT(items.size(), 4);
    EXPECT_EQ(std::ranges::count_if(items, &QAction::isChecked), 1);
    const int usual = view().cell_area({0, 0}).height();
    items[0]->trigger();
    items[0]->trigger();
    EXPECT_GT(view().cell_area({0, 0}).height(), usual);
    items.back()->trigger();
    EXPECT_EQ(view().terminal_font().family(), items.back()->text());
    items[2]->trigger();
    view().menu().close();
}

TEST_F(TerminalPaneTest, ProgramThatWasStartedAlreadyIsTakenOver) {
    const terminal::Program program{
        "/bin/sh", {"sh", "-c", "echo early; read a; stty size"}, {"PATH=/usr/bin:/bin"}, "/"};
    std::string error;
    pane.start(program, terminal::Pty::start(program, {}, error));
    ASSERT_TRUE(wait_for_text("early"));
    press(Qt::Key_Return);
    EXPECT_TRUE(wait_for_text(std::to_string(pane.rows()) + " " + std::to_string(pane.columns()))) << text();
}

TEST_F(TerminalPaneTest, InputMethodIsToldWhereTheCursorMoves) {
    int told = 0;
    QObject::connect(QGuiApplication::inputMethod(), &QInputMethod::cursorRectangleChanged, &window,
                     [&told] { ++told; });
    ASSERT_TRUE(wait([&] { return QGuiApplication::focusObject() == &view(); }));
    paint();
    told = 0;
    ttysw_output(pane, "moved");
    EXPECT_TRUE(wait([&] { return told > 0; }));
}

TEST_F(TerminalPaneTest, InterposerSeesConsumesAndRecodesKeys) {
    std::vector<KeyEvent> seen;
    notify_interpose_event_func(pane, [&](KeyEvent& event) {
        seen.push_back(event);
        if (event.key == Key::up) {
            event = {.key = Key::none, .modifiers = {.control = true}, .text = "p"};
        }
        return event.is_control('r');
    });
    start_echo();
    press(Qt::Key_R, Qt::ControlModifier);
    press(Qt::Key_Up);
    QTest::keyClick(&view(), 'X', Qt::ShiftModifier);
    EXPECT_TRUE(wait_for_echo("^PX")) << echoed();
    ASSERT_EQ(seen.size(), 6U);
    EXPECT_EQ(seen[0], (KeyEvent{.modifiers = {.control = true}, .text = "r"}));
    EXPECT_EQ(seen[1].kind, KeyEvent::Kind::release);
    EXPECT_EQ(seen[2], (KeyEvent{.key = Key::up}));
    EXPECT_EQ(seen[4], (KeyEvent{.modifiers = {.shift = true}, .text = "X"}));
}

TEST_F(TerminalPaneTest, EndOfTheShellIsAnnouncedAndReturnStartsANewOne) {
    int ended = 0;
    int restarted = 0;
    pane.set_events({.ended = [&ended] { ++ended; }, .restarted = [&restarted] { ++restarted; }});
    start("echo up; read a; printf 'got %s' \"$a\"; exit 3");
    ASSERT_TRUE(wait_for_text("up"));
    const pid_t first = pane.child();
    ttysw_input(pane, "x\n");
    ASSERT_TRUE(wait_for_text("got x\n[shell ended with status 3; press Return to start a new one]\n"))
        << text();
    EXPECT_EQ(ended, 1);
    EXPECT_EQ(pane.child(), -1);

    ttysw_input(pane, "not for the next shell\n");
    press(Qt::Key_A);
    EXPECT_EQ(pane.child(), -1);
    press(Qt::Key_Return);
    EXPECT_EQ(restarted, 1);
    EXPECT_NE(pane.child(), -1);
    EXPECT_NE(pane.child(), first);
    ttysw_input(pane, "y\n");
    EXPECT_TRUE(wait_for_text("got y")) << text();
}

TEST_F(TerminalPaneTest, QuestionAtTheStartIsLeftToTheUser) {
    int ready = 0;
    pane.set_events({.ready = [this, &ready] {
        ++ready;
        ttysw_input(pane, "command\n");
    }});
    start("stty -echo; printf 'password: '; read a; stty echo; echo; read b; echo \"got $a, $b\"");
    ttysw_output(pane, "shown at once\n");
    ASSERT_TRUE(wait_for_text("password: "));
    EXPECT_FALSE(QTest::qWaitFor([&ready] { return ready > 0; }, 300)) << "however long it takes";
    EXPECT_FALSE(pane.use().started);
    press(Qt::Key_X);
    press(Qt::Key_Return);
    EXPECT_TRUE(wait_for_text("got x, command")) << text();
    EXPECT_TRUE(text().starts_with("shown at once\n")) << text();
    EXPECT_EQ(ready, 1);
}

TEST_F(TerminalPaneTest, KilledFullScreenProgramLeavesATidyTerminal) {
    start("printf 'before\\n\\033[?1049h\\033[?1003h\\033[?2004h\\033[H\\033[31mfull'; exec sleep 60");
    ASSERT_TRUE(wait([this] { return pane.use().full_screen && text() == "full"; }));
    ASSERT_EQ(kill(pane.child(), SIGKILL), 0);
    EXPECT_TRUE(wait_for_text("before\n[shell ended by signal SIGKILL; press Return to start a new one]"))
        << text();
    EXPECT_FALSE(pane.use().full_screen);
    EXPECT_EQ(view().terminal().modes().mouse_tracking, terminal::MouseTracking::off);
    EXPECT_FALSE(view().terminal().modes().bracketed_paste);
}

TEST_F(TerminalPaneTest, JobLeftBehindDoesNotHideTheEnd) {
    start("sleep 60 & exit 0");
    EXPECT_TRUE(wait_for_text("[shell ended with status 0;")) << text();
}

/// Counts what is painted.
class PaintCounter : public QObject {
  public:
    int count = 0;
    bool eventFilter(QObject* object, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(object, event);
    }
};

TEST_F(TerminalPaneTest, FloodLeavesKeysAndPaintingAlive) {
    PaintCounter painted;
    view().installEventFilter(&painted);
    start("yes flood & read a; kill $!; wait; echo answered $a");
    ASSERT_TRUE(wait([this] { return view().terminal().first_row() > 1000; })) << "output floods in";
    const int before = painted.count;
    ASSERT_TRUE(wait([&] { return painted.count > before + 5; }));
    press(Qt::Key_K);
    press(Qt::Key_Return);
    EXPECT_TRUE(wait_for_text("answered k"));
}

TEST_F(TerminalPaneTest, ViewStaysWhereTheUserScrolledItUntilAKeyIsTyped) {
    start("seq 1 200; read a; seq 1000 1100; exec cat");
    ASSERT_TRUE(wait_for_text("200"));
    paint();
    press(Qt::Key_PageUp, Qt::ShiftModifier);
    const terminal::RowId top = view().position_at({0, 0}).row;
    EXPECT_LT(top, view().terminal().screen_top());
    ttysw_input(pane, "\n");
    ASSERT_TRUE(wait_for_text("1100"));
    EXPECT_EQ(view().position_at({0, 0}).row, top) << "output";
    auto* bar = pane.widget()->findChild<QScrollBar*>();
    EXPECT_TRUE(wait([bar] { return bar->value() < bar->maximum(); }));
    press(Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(view().position_at({0, 0}).row, view().terminal().first_row());
    press(Qt::Key_A);
    EXPECT_EQ(view().position_at({0, 0}).row, view().terminal().screen_top()) << "typing";
    ASSERT_TRUE(wait([bar] { return bar->maximum() > 200 && bar->value() == bar->maximum(); }));
    bar->setValue(0);
    EXPECT_EQ(view().position_at({0, 0}).row, view().terminal().first_row());
}

TEST_F(TerminalPaneTest, PaneNotYetShownHasTheStandardSize) {
    QWidget hidden;
    TerminalPane unseen(&hidden, "unseen");
    unseen.set_font(xv_find("fixed"));
    EXPECT_EQ(unseen.columns(), 80);
    EXPECT_EQ(unseen.rows(), 24);
}

TEST_F(TerminalPaneTest, ScrollbackIsAsLongAsTheResourceSays) {
    constexpr int lines = 10'100;
    constexpr int screen = 24;
    const std::pair<const char*, terminal::RowId> cases[] = {
        {"", 10'000},
        {"Orvik.scrollback: 7", 7},
        {"orvik.scrollback: 1000000", lines - screen},
        {"Orvik.scrollback: 0", 0},
        {"Orvik.scrollback: -1", 0},
        {"Orvik.scrollback: many", 10'000},
    };
    for (const auto& [resource, rows] : cases) {
        load_resource_database(resource, {});
        QWidget hidden;
        TerminalPane other(&hidden, "other");
        ttysw_output(other, std::string(lines - 1, '\n'));
        const auto* shown = dynamic_cast<TerminalView*>(other.widget()->focusProxy());
        EXPECT_EQ(shown->terminal().screen_top() - shown->terminal().first_row(), rows) << resource;
    }
    load_resource_database("", {});
}

TEST_F(TerminalPaneTest, ProgramIsToldTheNewSize) {
    start("trap 'stty size' WINCH; echo ready; sleep 60 & while kill -0 $!; do wait; done");
    ASSERT_TRUE(wait_for_text("ready"));
    window.resize(500, 300);
    ASSERT_TRUE(wait([this] { return window.width() == 500 && window.height() == 300; }));
    EXPECT_TRUE(wait_for_text(std::to_string(pane.rows()) + " " + std::to_string(pane.columns()))) << text();
    EXPECT_LT(pane.columns(), 70);
}

TEST_F(TerminalPaneTest, ClearLeavesTheLineThatAShellReads) {
    start("printf 'old\nprompt> '; read a; set -m; sh -c 'printf busy; read b'");
    ASSERT_TRUE(wait_for_text("prompt> "));
    pane.clear();
    EXPECT_EQ(text(), "prompt> ");
    press(Qt::Key_Return);
    ASSERT_TRUE(wait([this] { return !pane.use().in_front; }));
    ASSERT_TRUE(wait_for_text("busy"));
    pane.clear();
    EXPECT_EQ(text(), "");
}

TEST_F(TerminalPaneTest, StateOfTheShellIsKnown) {
    int bells = 0;
    pane.set_events({.bell = [&bells] { ++bells; }});
    start("printf 'one\\a\\nprompt> '; read a; stty -icanon; echo raw; exec cat");
    ASSERT_TRUE(wait_for_text("prompt> "));
    EXPECT_EQ(bells, 1);
    EXPECT_EQ(pane.current_line().before, "prompt> ");
    view().clearFocus();
    view().setFocus();
    EXPECT_TRUE(pane.current_line().settled) << "no key was typed";
    EXPECT_TRUE(pane.use().reads_lines);
    press(Qt::Key_Return);
    ASSERT_TRUE(wait_for_text("raw"));
    EXPECT_FALSE(pane.use().reads_lines);
    pane.clear();
    EXPECT_EQ(text(), "");
}

}  // namespace
