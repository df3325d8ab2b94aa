// SPDX-License-Identifier: MIT
#include "toolkit/long_work.h"

#include "tests/support/wait_until.h"
#include "toolkit/frame.h"

#include <QTest>

#include <future>

#include <gtest/gtest.h>

namespace {

/// Work that does one item for every `go_on` and ends when it is to stop, or after as many as it is given.
struct Steps {
    std::promise<void> begun;
    std::atomic<int> allowed = 0;

    int operator()(Progress& progress, int items) {
        begun.set_value();
        for (int done = 0; done < items; ++done) {
            while (allowed <= done && !progress.stopping()) {
                std::this_thread::yield();
            }
            if (!progress.next()) {
                return done;
            }
        }
        return items;
    }
};

class LongWorkTest : public testing::Test {
  protected:
    ~LongWorkTest() override {
        frame.reset();
        await_stopped_work(patience);
    }
    void start(int items) {
        start_work(
            *frame, "Items", [steps = steps, items](Progress& progress) { return (*steps)(progress, items); },
            [this](int result) { results.push_back(result); });
    }
    template <typename Condition>
    [[nodiscard]] static bool wait(Condition condition) {
        return wait_until(condition, patience, [] { QTest::qWait(5); });
    }
    void escape() const { QTest::keyClick(frame->widget(), Qt::Key_Escape); }
    [[nodiscard]] bool busy() const { return frame->widget()->cursor().shape() == Qt::WaitCursor; }

    std::unique_ptr<CommandFrame> frame = std::make_unique<CommandFrame>("Frame");
    std::shared_ptr<Steps> steps = std::make_shared<Steps>();
    std::vector<int> results;
};

TEST_F(LongWorkTest, KeepsTheFrameBusyCountsAndGivesItsResult) {
    frame->set_right_footer("before");
    start(4);
    steps->allowed = 3;
    EXPECT_TRUE(wait([&] { return frame->right_footer() == "Items: 3"; }));
    EXPECT_TRUE(busy());
    steps->allowed = 4;
    EXPECT_TRUE(wait([&] { return !results.empty(); }));
    EXPECT_EQ(results, std::vector{4});
    EXPECT_FALSE(busy());
    EXPECT_EQ(frame->right_footer(), "before");
}

TEST_F(LongWorkTest, IsDoneAtOnceWhereItIsOverInTime) {
    steps->allowed = 2;
    start(2);
    await_work(*frame, patience);
    EXPECT_EQ(results, std::vector{2});
    EXPECT_FALSE(busy());
    steps = std::make_shared<Steps>();
    start(1);
    await_work(*frame, std::chrono::milliseconds{1});
    EXPECT_TRUE(busy());
    EXPECT_TRUE(waits_for_work(*frame, "Items"));
    EXPECT_FALSE(waits_for_work(*frame, "Others"));
    steps->allowed = 1;
    EXPECT_TRUE(wait([&] { return results == std::vector{2, 1}; }));  // not twice
}

TEST_F(LongWorkTest, EscapeStopsItAfterTheCurrentItem) {
    start(4);
    steps->allowed = 1;
    EXPECT_TRUE(wait([&] { return frame->right_footer() == "Items: 1"; }));
    escape();
    EXPECT_TRUE(wait([&] { return !results.empty(); }));
    EXPECT_EQ(results, std::vector{1});
    EXPECT_FALSE(busy());
}

/// Work whose current item does not end.
TEST_F(LongWorkTest, NobodyWaitsForItAfterASecondEscapeOrForOtherWork) {
    std::promise<void> server;
    const std::shared_future<void> answer = server.get_future().share();
    const auto start_stuck = [&] {
        start_work(
            *frame, "Items",
            [=](Progress& /*progress*/) {
                answer.wait();
                return -1;
            },
            [this](int result) { results.push_back(result); });
    };
    start_stuck();
    escape();
    EXPECT_TRUE(busy());
    escape();
    EXPECT_FALSE(busy());
    EXPECT_EQ(frame->left_footer(), "Not waited for any longer");
    start_stuck();
    steps->allowed = 2;
    start(2);
    EXPECT_TRUE(wait([&] { return !results.empty(); }));
    start_stuck();
    frame.reset();
    await_stopped_work(std::chrono::milliseconds{1});  // and so does the end
    server.set_value();
    await_stopped_work(patience);
    QCoreApplication::processEvents();
    EXPECT_EQ(results, std::vector{2});
}

}  // namespace
