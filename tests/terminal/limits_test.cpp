// SPDX-License-Identifier: MIT
#include "terminal/limits.h"

#include "terminal/utf8.h"
#include "tests/terminal/screen_fixture.h"

#include <gtest/gtest.h>

// What a program writes must not cost more memory or time than the limits allow, and must do no harm at them.

namespace terminal {
namespace {

using namespace std::string_literals;

/// A colour of its own for each number.
Colour colour(std::size_t number) {
    const auto byte = [number](unsigned shift) { return static_cast<std::uint8_t>(number >> shift & 0xFF); };
    return Colour::direct(byte(16), byte(8), byte(0));
}

std::string coloured_x(std::size_t number) {
    const Colour value = colour(number);
    return "\033[38;2;" + std::to_string(value.red) + ';' + std::to_string(value.green) + ';' +
           std::to_string(value.blue) + "mx";
}

TEST(Limits, HugeCountsAreHarmless) {
    for (const char* const end : {"@", "A",  "B",  "C",  "D",  "E",  "F",  "G",  "H",  "I",  "J", "K", "L",
                                  "M", "P",  "S",  "T",  "X",  "Z",  "`",  "a",  "b",  "d",  "e", "g", "r",
                                  "t", "'}", "'~", " @", " A", "$x", "$z", "$v", "$r", "$t", "${"}) {
        Screened at;
        at.terminal.write("x");
        const std::string count = "\033[2147483648";
        at.terminal.write(
            repeated(count + end + "\033[4294967295;99999999999999999999;2147483647;7" + end, 50));
        EXPECT_LE(at.terminal.end_row(), 100 * 4 + 4 + 800) << end;
        at.terminal.write("\033[!p\033[2J\033[Hok");
        EXPECT_EQ(at.screen(), "ok|||") << end;
    }
}

/// A slice of work ends soon after it is used up, and what is left over makes the same picture.
TEST(Limits, WorkCanBeBounded) {
    constexpr std::size_t count = 400;
    for (const std::string& sequence :
         {"x\033[65535b"s, "\033[88;1;1;99;999$x"s, "\033[1;1;99;999;7$t"s, "\033[1;1;99;999;1;2;2$v"s,
          "\033[44m\033[2J"s, "\033[99S"s, "\033[99T"s, "\033[99L"s, "\033[99M"s, "\033[9'}"s, "\033[9'~"s,
          "\033#8"s, "\033c\033[9 A"s, "\033[?45h\033[65535D"s}) {
        SCOPED_TRACE(sequence.substr(1));
        Screened at({200, 50});
        const std::string flood = repeated(sequence, count);
        std::string_view rest = flood;
        int slices = 0;
        for (; !rest.empty(); ++slices) {
            const std::size_t taken = at.terminal.write_within(rest, 50'000);
            ASSERT_GT(taken, 0U);
            rest.remove_prefix(taken);
        }
        EXPECT_GE(slices, 60);
        Screened whole({200, 50});
        whole.terminal.write(flood);
        EXPECT_EQ(at.screen(), whole.screen());
    }
    Screened at({80, 24});
    const std::string text = repeated("plain text, a line of it\r\n", 600);
    EXPECT_EQ(at.terminal.write_within(text, 50'000), text.size());
}

TEST(Limits, RepliesGoTogetherAndWhole) {
    Screened at;
    at.terminal.write(repeated("\033[6n", 1'000));  // 86 of the answers are more than 512 bytes
    EXPECT_EQ(at.recorder.replies, repeated("\033[1;1R", 1'000));
    EXPECT_EQ(at.recorder.reply_calls, 12);
}

TEST(Limits, ParametersAreFewAndSmall) {
    Screened at;
    at.terminal.write("\033[" + repeated("0;", max_parameters - 1) + "1;3;4mx");
    EXPECT_EQ(at.style(0, 0), (Style{.bold = true}));
    at.terminal.write("\033[?99999999999$p");
    EXPECT_EQ(at.recorder.replies, "\033[?" + std::to_string(max_parameter_value) + ";0$y");
}

TEST(Limits, TitlesAreCutBetweenCharactersAndTooLongStringsIgnored) {
    Screened at;
    const std::string longest(max_string - 2, 'a');
    for (const std::string& title : {longest, longest + "b", repeated("漢", max_string),
                                     repeated("漢", max_title), "a" + repeated("漢", 500)}) {
        at.terminal.write("\033]2;" + title + "\a");
    }
    EXPECT_EQ(at.recorder.titles, (std::vector{longest.substr(0, max_title), repeated("漢", max_title / 3),
                                               'a' + repeated("漢", (max_title - 1) / 3)}));
    EXPECT_EQ(at.screen(), "|||");
}

TEST(Limits, StylesOutOfUseMakeRoom) {
    Screened at({10, 4}, 10);
    const std::size_t count = max_styles + 104;
    for (std::size_t i = 0; i < count; ++i) {
        at.terminal.write("\r" + coloured_x(i + 1) + "y");
    }
    EXPECT_EQ(at.style(0, 0).foreground, colour(count));
    EXPECT_EQ(at.style(0, 1).foreground, colour(count));
}

TEST(Limits, TooManyStylesInUseFallBackToThePlainOne) {
    Screened at({100, 4}, 2'000);
    const std::size_t count = max_styles + 2'000;
    for (std::size_t i = 0; i < count; ++i) {
        at.terminal.write(coloured_x(i + 1));
    }
    const auto first = at.terminal.row(at.terminal.first_row()).cells;
    EXPECT_EQ(at.terminal.style(first[0].style).foreground, colour(1));
    const auto last = at.terminal.row(at.terminal.cursor().position.row).cells;
    EXPECT_EQ(at.terminal.style(last[0].style), Style{});
    EXPECT_EQ(at.all_text().size(), count);
}

TEST(Limits, ClustersAreCutAndTheirNumberBounded) {
    Screened at;
    at.terminal.write("a" + repeated("\u0301", 10'000));
    EXPECT_EQ(at.screen(), "a" + repeated("\u0301", max_cluster_characters - 1) + "|||");
    at.terminal.write("\r\n");
    for (char32_t base = 0x4E00; base < 0x4E00 + 300; ++base) {  // more clusters than there are numbers
        for (int mark = 0; mark < 300; ++mark) {
            std::string text;
            append_utf8(base, text);
            append_utf8(0x1AB0 + static_cast<char32_t>(mark % 15), text);
            append_utf8(0x1AB0 + static_cast<char32_t>(mark / 15), text);
            at.terminal.write(text + '\r');
        }
    }
    at.terminal.write("\033[2J\033[He\u0301");
    EXPECT_EQ(at.screen(), "e\u0301|||");
}

TEST(Limits, LinksAreBounded) {
    Screened at;
    const auto link = [](const std::string& address) { return "\033]8;;" + address + "\ax\033]8;;\a\r"; };
    for (std::size_t i = 0; i < max_links + 10; ++i) {
        at.terminal.write(link("http://" + std::to_string(i)));
    }
    const auto first_link = [&at] {
        return at.terminal.link(at.terminal.row(at.terminal.screen_top()).cells[0].link);
    };
    EXPECT_EQ(first_link(), "http://" + std::to_string(max_links + 9));
    at.terminal.write(link(std::string(max_link + 1, 'a')));
    EXPECT_EQ(first_link(), "");
    at.terminal.write(link("http://a b") + link("http://\xc3\xa4"));
    EXPECT_EQ(first_link(), "");
}

TEST(Limits, SizeIsBounded) {
    Screened at({0, -5});
    EXPECT_EQ(at.terminal.size(), (Size{min_columns, min_rows}));
    at.terminal.write("漢字ab");
    EXPECT_EQ(at.all_text(), "漢字ab");
    at.terminal.resize({1 << 30, 1 << 30});
    EXPECT_EQ(at.terminal.size(), (Size{max_columns, max_rows}));
    EXPECT_EQ(at.all_text(), "漢字ab");
}

}  // namespace
}  // namespace terminal
