// SPDX-License-Identifier: MIT
#include "toolkit/pane/pty_stream.h"

#include "tests/support/wait_until.h"

#include <QTest>
#include <QThread>

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

namespace {

/// A stream from a program, and what has come of it.
struct Listener {
    explicit Listener(const char* script, int milliseconds_a_piece = 0)
        : stream(pty(script),
                 {.output =
                      [=, this](std::string_view bytes) {
                          const std::size_t taken = (bytes.size() + 1) / 2;  // the rest comes again
                          text += bytes.substr(0, taken);
                          slice += taken;
                          QThread::msleep(static_cast<unsigned long>(milliseconds_a_piece));
                          return taken;
                      },
                  .slice_read = [this] { longest_slice = std::max(longest_slice, std::exchange(slice, 0)); },
                  .hung_up = [this] { ++hang_ups; },
                  .last_words_read = [this] { ended = true; }}) {}

    static std::unique_ptr<terminal::Pty> pty(const char* script) {
        std::string error;
        return terminal::Pty::start({"/bin/sh", {"sh", "-c", script}, {"PATH=/usr/bin:/bin"}, "/"}, {},
                                    error);
    }
    template <typename Condition>
    [[nodiscard]] static bool wait(Condition condition) {
        return wait_until(condition, patience, [] { QTest::qWait(1); });
    }
    [[nodiscard]] bool wait_for_end() {
        const bool over = wait([this] { return stream.pty().exit_status().has_value(); });
        stream.read_last_words();
        return over && wait([this] { return ended; });
    }

    std::string text;
    std::size_t slice = 0;
    std::size_t longest_slice = 0;
    int hang_ups = 0;
    bool ended = false;
    PtyStream stream;
};

TEST(PtyStream, SliceThatTakesLongEndsSoonAlsoOfLastWords) {
    constexpr int longer_than_a_slice = 4;
    Listener listener("stty raw; printf %20000s .; printf %20000s .", longer_than_a_slice);
    ASSERT_TRUE(listener.wait([&] { return listener.text.size() > 5000; }));
    EXPECT_LE(listener.longest_slice, 1024U);
    ASSERT_TRUE(listener.wait_for_end());
    EXPECT_EQ(listener.text.size(), 40'000U);
    EXPECT_LE(listener.longest_slice, 1024U);
}

TEST(PtyStream, NothingIsLostOrReorderedRoundTheRing) {
    Listener listener("stty raw; seq 1 200000");
    ASSERT_TRUE(listener.wait_for_end());
    std::string expected;
    for (int number = 1; number <= 200'000; ++number) {
        expected += std::to_string(number) + '\n';
    }
    EXPECT_TRUE(listener.text == expected) << listener.text.size();
}

TEST(PtyStream, KeysOvertakeAnswersThatNobodyReads) {
    Listener listener("stty raw -echo; echo asks; head -c 100000 | tr -dc x; echo read");
    ASSERT_TRUE(listener.wait([&] { return listener.text == "asks\n"; })) << listener.text;
    for (int answer = 0; answer < 1000; ++answer) {
        listener.stream.reply(std::string(1000, '.'));
    }
    listener.stream.type("x");
    listener.stream.write(std::string(100'000, '.'));
    ASSERT_TRUE(listener.wait([&] { return listener.text.ends_with("read\n"); })) << listener.text;
    EXPECT_EQ(listener.text, "asks\nxread\n");
}

TEST(PtyStream, KeysStandBehindFewAnswersThatAreRead) {
    Listener listener(
        "stty raw -echo; echo asks; head -c 40001 | cut -dx -f1,2 --output-delimiter='\n' | "
        "while read -r part; do echo ${#part}; done");
    ASSERT_TRUE(listener.wait([&] { return listener.text == "asks\n"; })) << listener.text;
    for (int answer = 0; answer < 40; ++answer) {
        listener.stream.reply(std::string(1000, '.'));
    }
    listener.stream.type("x");
    ASSERT_TRUE(listener.wait([&] { return std::ranges::count(listener.text, '\n') == 3; })) << listener.text;
    EXPECT_EQ(listener.text, "asks\n5000\n35000\n");
}

TEST(PtyStream, TerminalThatNobodyHoldsIsTakenUpAgain) {
    Listener listener("tty=$(tty); exec </dev/null >/dev/null 2>&1; sleep 0.3; echo back >$tty; sleep 0.3");
    ASSERT_TRUE(listener.wait([&] { return listener.text == "back\r\n"; })) << listener.text;
    EXPECT_GT(listener.hang_ups, 0);
    ASSERT_TRUE(listener.wait_for_end());
}

}  // namespace
