// SPDX-License-Identifier: MIT
#include "toolkit/frame.h"

#include "toolkit/notice.h"
#include "toolkit/timer.h"

#include <QAccessible>
#include <QApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

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
    const std::string status = "Host: h   User: u   ";
    base.set_left_footer("Directory not empty");
    base.set_right_footer(status);
    EXPECT_EQ(named(base, "left footer"), "Directory not empty");
    EXPECT_EQ(named(base, "right footer").toStdString(), status);
    EXPECT_EQ(base.right_footer(), status);
    base.set_left_footer("");
    EXPECT_EQ(named(base, "left footer"), "");
}

TEST_F(FrameTest, LongFooterDoesNotWidenTheWindow) {
    const int width = base.widget()->width();
    base.set_left_footer(std::string(2000, 'x'));
    QCoreApplication::processEvents();
    EXPECT_EQ(base.widget()->width(), width);
    EXPECT_EQ(named(base, "left footer").size(), 2000);
}

TEST_F(FrameTest, PopupOpensBesideTheMainWindow) {
    CommandFrame popup("Popup");
    popup.open();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(popup.widget()));
    EXPECT_TRUE(wait([&] { return popup.widget()->pos() == base.widget()->pos() + QPoint(740, 100); }))
        << popup.widget()->pos().x() << " " << popup.widget()->pos().y();
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

TEST_F(FrameTest, EscapeClosesAPopupButNotTheMainWindow) {
    CommandFrame popup("Popup");
    popup.open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(popup.widget()));
    QTest::keyClick(popup.widget(), Qt::Key_Escape);
    EXPECT_FALSE(popup.shown());
    QTest::keyClick(base.widget(), Qt::Key_Escape);
    EXPECT_TRUE(base.shown());
}

TEST_F(FrameTest, ClosingNotifies) {
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

TEST_F(FrameTest, ATimerFiresOnceAndANewOneReplacesIt) {
    notify_set_itimer_func(base, [] { ++calls; }, {.it_interval = {}, .it_value = {0, 1000}});
    notify_set_itimer_func(base, [] { ++other_calls; }, {.it_interval = {0, 1000}, .it_value = {0, 20'000}});
    EXPECT_TRUE(wait([] { return other_calls == 1; }));
    bool later = false;
    QTimer::singleShot(100, [&] { later = true; });
    EXPECT_TRUE(wait([&] { return later; }));
    EXPECT_EQ(other_calls, 1);
    EXPECT_EQ(calls, 0);
}

TEST_F(FrameTest, ACancelledTimerDoesNotFire) {
    notify_set_itimer_func(base, [] { ++calls; }, {.it_interval = {}, .it_value = {0, 1000}});
    notify_set_itimer_func(base, nullptr, {});
    bool later = false;
    QTimer::singleShot(100, [&] { later = true; });
    EXPECT_TRUE(wait([&] { return later; }));
    EXPECT_EQ(calls, 0);
}

TEST_F(FrameTest, NoticeGivesTheIndexOfItsAnswer) {
    const auto answer_with = [](Qt::Key key) {
        QTimer::singleShot(0, [key] {
            ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; }));
            QTest::keyClick(QApplication::activeModalWidget(), key);
        });
        return notice_prompt(Frame::base(), "<b>Really</b> ?", {"Yes", "No", "Cancel"});
    };
    EXPECT_EQ(answer_with(Qt::Key_Return), 0);
    EXPECT_EQ(answer_with(Qt::Key_Escape), 2);
}

}  // namespace
