// SPDX-License-Identifier: MIT
#include "toolkit/selection.h"

#include "tests/support/wait_until.h"
#include "toolkit/text_conversion.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QProcess>
#include <QTest>

#include <csignal>

#include <gtest/gtest.h>

namespace {

using Kind = SelectionAnswer::Kind;

TEST(Selection, IsOursOrNobodys) {
    QGuiApplication::clipboard()->setText(QStringLiteral("a\nb \u00e9"), QClipboard::Selection);
    EXPECT_TRUE(selection_inquire());
    EXPECT_EQ(selection_ask(6), (SelectionAnswer{Kind::text, "a\nb \xC3\xA9"}));
    EXPECT_EQ(selection_ask(5), SelectionAnswer{Kind::too_long});
    QGuiApplication::clipboard()->clear(QClipboard::Selection);
    EXPECT_TRUE(wait_until([] { return !selection_inquire(); }, patience, [] { QTest::qWait(5); }));
    EXPECT_EQ(selection_ask(6), SelectionAnswer{});
}

/// xclip as the clipboard's holder.
class OtherHolder : public testing::Test {
  protected:
    void hold(const std::string& text) {
        holder.start("xclip", {"-quiet", "-in", "-selection", "clipboard"});
        holder.write(text.data(), static_cast<qint64>(text.size()));
        holder.closeWriteChannel();
        ASSERT_TRUE(
            wait_until([&] { return ask(text.size()).text == text; }, patience, [] { QTest::qWait(5); }));
    }
    void TearDown() override {
        holder.kill();
        holder.waitForFinished();
    }
    static SelectionAnswer ask(std::size_t longest) {
        return selection_ask(longest, SelectionName::clipboard);
    }

    QProcess holder;
};

TEST_F(OtherHolder, GivesTextUpToTheLimit) {
    hold("a\nb \xC3\xA9 \xE4\xB8\xAD");
    EXPECT_EQ(ask(9), SelectionAnswer{Kind::too_long});
}

TEST_F(OtherHolder, GivesLongTextInPiecesUpToTheLimit) {
    hold(std::string(5'000'000, 'x'));
    EXPECT_EQ(ask(4'999'999), SelectionAnswer{Kind::too_long});
    EXPECT_EQ(ask(5'000'000).text.size(), 5'000'000U) << "and is not put out by what was refused";
}

TEST_F(OtherHolder, IsNotWaitedForLong) {
    hold("text");
    kill(static_cast<pid_t>(holder.processId()), SIGSTOP);
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(ask(100), SelectionAnswer{Kind::silent});
    EXPECT_LT(clock.elapsed(), 3000);
    kill(static_cast<pid_t>(holder.processId()), SIGCONT);
    EXPECT_TRUE(wait_until([] { return ask(100) == SelectionAnswer{Kind::text, "text"}; }));
}

}  // namespace
