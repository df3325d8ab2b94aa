// SPDX-License-Identifier: MIT
#include "toolkit/frame.h"

#include "tests/toolkit/find_widget.h"
#include "toolkit/buttons.h"
#include "toolkit/fields.h"
#include "toolkit/notice.h"
#include "toolkit/timer.h"

#include <QAccessible>
#include <QApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <array>
#include <memory>
#include <vector>

#include <gtest/gtest.h>
#include <xcb/xcb.h>

namespace {

int calls = 0;
int other_calls = 0;

class FrameTest : public testing::Test {
  protected:
    void SetUp() override {
        calls = 0;
        other_calls = 0;
        base.resize(400, 200);
        base.widget()->move(50, 60);
        base.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(base.widget()));
    }

    /// The label that assistive programs find under a description.
    static QString named(const Frame& frame, const QString& description) {
        for (const QLabel* label : frame.widget()->findChildren<QLabel*>()) {
            if (label->accessibleDescription() == description) {
                return QAccessible::queryAccessibleInterface(const_cast<QLabel*>(label))
                    ->text(QAccessible::Name);
            }
        }
        return QStringLiteral("no such label");
    }

    static bool wait(const std::function<bool()>& condition) { return QTest::qWaitFor(condition, 5000); }

    Frame base{"Base"};
};

TEST_F(FrameTest, FootersAreLabelsWithTheirTextAsName) {
    const int width = base.widget()->width();
    const std::string status = "Host: h   User: u   ";
    base.set_right_footer(status);
    EXPECT_EQ(named(base, "right footer").toStdString(), status);
    EXPECT_EQ(base.right_footer(), status);
    for (const std::string& text :
         {std::string("Directory not empty"), std::string(2000, 'x'), std::string()}) {
        base.set_left_footer(text);
        EXPECT_EQ(named(base, "left footer").toStdString(), text);
        QCoreApplication::processEvents();
        EXPECT_EQ(base.widget()->width(), width) << "a long text does not widen the window";
    }
}

/// Moves a window as its user does: past the toolkit, by a request to the window manager.
void move_by_window_manager(const Frame& frame, QPoint to) {
    xcb_connection_t* server = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    const std::array place{static_cast<std::uint32_t>(to.x()), static_cast<std::uint32_t>(to.y())};
    xcb_configure_window(server, static_cast<xcb_window_t>(frame.widget()->winId()),
                         XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, place.data());
    xcb_flush(server);
}

TEST_F(FrameTest, PopupComesBackWhereItsUserPutIt) {
    CommandFrame popup("Popup");
    const auto is_at = [&](QPoint place) {
        return wait([&] { return popup.shown() && popup.widget()->pos() == place; });
    };
    const auto close = [&] { QTest::keyClick(popup.widget(), Qt::Key_Escape); };
    const QPoint offset(740, 100);
    // One that stands where it was put follows the main window.
    for (const QPoint base_place : {QPoint(50, 60), QPoint(120, 90)}) {
        base.widget()->move(base_place);
        ASSERT_TRUE(wait([&] { return base.widget()->pos() == base_place; }));
        popup.open();
        ASSERT_TRUE(is_at(base_place + offset));
        ASSERT_TRUE(wait([&] { return popup.widget()->frameGeometry() != popup.widget()->geometry(); }));
        close();
    }
    popup.open();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(popup.widget()));
    const QPoint inner_place(333, 444);  // the window without the window manager's frame
    move_by_window_manager(popup, inner_place);
    ASSERT_TRUE(wait([&] { return popup.widget()->geometry().topLeft() == inner_place; }));
    const QPoint users_place = popup.widget()->pos();
    for (int round = 0; round < 3; ++round) {
        close();
        ASSERT_FALSE(popup.shown());
        base.widget()->move(10 + 20 * round, 30);
        popup.open();
        EXPECT_TRUE(is_at(users_place)) << round << ": " << popup.widget()->x() << " " << popup.widget()->y();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(popup.widget()));
    }
}

TEST_F(FrameTest, PopupIsMovedBackOnTheScreen) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    base.widget()->move(screen.right() - 420, screen.bottom() - 250);
    ASSERT_TRUE(wait([&] { return base.widget()->x() > screen.right() - 500; }));
    CommandFrame popup("Popup");
    popup.open();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(popup.widget()));
    EXPECT_TRUE(wait([&] { return screen.contains(popup.widget()->frameGeometry()); }));
}

TEST_F(FrameTest, PopupStandsAsideOfThoseThatAreUp) {
    CommandFrame popups[] = {CommandFrame("First"), CommandFrame("Second"), CommandFrame("Third")};
    for (CommandFrame& popup : popups) {
        popup.open(100, 100);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(popup.widget()));
    }
    const QPoint first = popups[0].widget()->pos();
    EXPECT_TRUE(wait([&] { return popups[1].widget()->pos() == first + QPoint(24, 24); }));
    EXPECT_TRUE(wait([&] { return popups[2].widget()->pos() == first + QPoint(48, 48); }));
    popups[0].hide();
    popups[1].hide();
    popups[1].open(100, 100);
    EXPECT_TRUE(wait([&] { return popups[1].widget()->pos() == first; })) << "its stated place is free";
}

TEST_F(FrameTest, PopupIsNoNarrowerThanItsControlsAndScrollsWhereTheyHaveNoRoom) {
    const QSize room = QGuiApplication::primaryScreen()->availableSize();
    CommandFrame popup("Popup");
    Row row(popup.panel);
    const std::vector<Button> buttons = [&row] {
        std::vector<Button> made;
        for (const char* label :
             {"A button with a label", "Another button with a label", "And a third one"}) {
            made.emplace_back(row, label, nullptr);
        }
        return made;
    }();
    popup.open();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(popup.widget()));
    EXPECT_EQ(popup.widget()->findChild<QScrollArea*>(), nullptr);
    const int content = row.widget()->minimumSizeHint().width();
    popup.resize(100, 100);
    EXPECT_TRUE(wait([&] { return popup.width() >= content && row.widget()->width() >= content; }));

    CommandFrame large("Large");
    std::vector<TextField> fields;
    for (int i = 0; i < 80; ++i) {
        fields.emplace_back(large.panel, "Field:");
    }
    large.open();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(large.widget()));
    EXPECT_TRUE(wait([&] { return large.widget()->frameGeometry().height() <= room.height(); }));
    const auto* area = large.widget()->findChild<QScrollArea*>();
    ASSERT_NE(area, nullptr);
    fields.back().set_focus();
    area->window()->setFocus();
    EXPECT_GT(area->verticalScrollBar()->maximum(), 0);
    QTest::keyClick(fields.front().widget(), Qt::Key_Escape);
    EXPECT_FALSE(large.shown());
}

TEST_F(FrameTest, AShownWindowGetsNoLargerThanTheScreenAndStaysOnIt) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    base.widget()->move(screen.center());
    base.resize(screen.width() + 500, 300);
    EXPECT_TRUE(wait([&] { return base.width() > screen.width() / 2; }));
    EXPECT_TRUE(wait([&] { return screen.contains(base.widget()->frameGeometry()); }))
        << base.widget()->frameGeometry().width();
}

/// A pop-up with three fields; the second one takes note of Return, the third one answers it itself.
struct Fields : CommandFrame {
    Fields() : CommandFrame("Fields") {}
    TextField plain{panel, "Plain:"};
    NumberField noting{panel, "Noting:", 0, +[] { ++other_calls; }};
    TextField acting{panel, "Acting:", +[] {
                         ++other_calls;
                         return Message();
                     }};
};

struct WithDefaultButton : Fields {
    WithDefaultButton() { button.set_default(); }
    Button other{panel, "Other", +[] { ++other_calls; }};
    Button button{panel, "Default", +[] { ++calls; }};
};

TEST_F(FrameTest, ReturnPressesTheDefaultButtonElseGoesOn) {
    struct Case {
        const char* name;
        bool default_button;
        int presses;  ///< of Return, beginning in the first field
        int default_calls;
        int field_calls;
        const char* focus;
    };
    constexpr Case cases[] = {
        {"goes to the next control", false, 1, 0, 0, "Noting:"},
        {"goes on where it is only noted", false, 2, 0, 1, "Acting:"},
        {"is the field's own", false, 4, 0, 3, "Acting:"},
        {"presses the default button", true, 2, 2, 0, "Plain:"},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        calls = other_calls = 0;
        const std::unique_ptr<Fields> popup =
            row.default_button ? std::make_unique<WithDefaultButton>() : std::make_unique<Fields>();
        popup->open();
        EXPECT_EQ(popup->widget()->focusWidget()->accessibleName(), "Plain:");
        for (int i = 0; i < row.presses; ++i) {
            QTest::keyClick(popup->widget()->focusWidget(), Qt::Key_Return);
        }
        EXPECT_EQ(calls, row.default_calls);
        EXPECT_EQ(other_calls, row.field_calls);
        EXPECT_EQ(popup->widget()->focusWidget()->accessibleName(), row.focus);
    }
    // Beside a default button too, a field's own procedure is all that is called.
    calls = other_calls = 0;
    WithDefaultButton popup;
    popup.open();
    QTest::keyClick(find_widget<QLineEdit>(popup.widget(), "Acting:"), Qt::Key_Enter);
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(other_calls, 1);
}

TEST_F(FrameTest, EscapeClosesAPopupButNotTheMainWindow) {
    CommandFrame popup("Popup");
    popup.open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(popup.widget()));
    QTest::keyClick(popup.widget(), Qt::Key_Escape);
    EXPECT_FALSE(popup.shown());
    QTest::keyClick(base.widget(), Qt::Key_Escape);
    EXPECT_TRUE(base.shown());
    base.on_close([] { ++calls; });
    base.widget()->close();
    EXPECT_EQ(calls, 1);
}

TEST_F(FrameTest, BusyStatesNest) {
    const auto waiting = [&] { return base.widget()->cursor().shape() == Qt::WaitCursor; };
    {
        const BusyState outer(base);
        { const BusyState inner(base); }
        EXPECT_TRUE(waiting());
    }
    EXPECT_FALSE(waiting());
}

TEST_F(FrameTest, ATimerFiresOnceUnlessReplacedOrCancelled) {
    CommandFrame other("Other");
    notify_set_itimer_func(other, [] { ++calls; }, {.it_interval = {}, .it_value = {0, 1000}});
    notify_set_itimer_func(other, nullptr, {});
    notify_set_itimer_func(base, [] { ++calls; }, {.it_interval = {}, .it_value = {0, 1000}});
    notify_set_itimer_func(base, [] { ++other_calls; }, {.it_interval = {0, 1000}, .it_value = {0, 20'000}});
    EXPECT_TRUE(wait([] { return other_calls == 1; }));
    bool later = false;
    QTimer::singleShot(100, [&] { later = true; });
    EXPECT_TRUE(wait([&] { return later; }));
    EXPECT_EQ(other_calls, 1);
    EXPECT_EQ(calls, 0);
}

TEST_F(FrameTest, NoticeGivesTheIndexOfItsAnswer) {
    const auto answer_with = [](Qt::Key key, DefaultButton button) {
        QTimer::singleShot(0, [key] {
            ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; }));
            QTest::keyClick(QApplication::activeModalWidget(), key);
        });
        return notice_prompt(Frame::base(), "<b>Really</b> ?", {"Yes", "No", "Cancel"}, button);
    };
    EXPECT_EQ(answer_with(Qt::Key_Return, DefaultButton::first), 0);
    EXPECT_EQ(answer_with(Qt::Key_Return, DefaultButton::last), 2);
    EXPECT_EQ(answer_with(Qt::Key_Escape, DefaultButton::first), 2);
}

}  // namespace
