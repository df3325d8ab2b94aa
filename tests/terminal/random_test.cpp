// SPDX-License-Identifier: MIT
#include "tests/terminal/screen_fixture.h"

#include <array>
#include <map>
#include <random>

#include <gtest/gtest.h>

// Random mixes of text, sequences and bytes, from fixed seeds. The engine's own assertions watch too.

namespace terminal {
namespace {

class Mixer {
  public:
    explicit Mixer(unsigned seed) : random_(seed) {}

    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

    std::string next() {
        switch (below(8)) {
            case 0:
                return text();
            case 1:
                return noise();
            case 2:
                return "\r\n";
            case 3:
                return string();
            case 4:
                return std::string("\033") + pick("78=>DEHMNOZcno69");
            default:
                return sequence();
        }
    }

  private:
    char pick(std::string_view from) { return from[random_() % from.size()]; }

    std::string text() {
        constexpr std::array<std::string_view, 8> words = {
            "plain ", "漢字", "e\u0301\u0302", "👩\u200d💻", "ünï", "\u200d", "x", "0123456789"};
        std::string out;
        for (int i = below(12); i >= 0; --i) {
            out += words[random_() % words.size()];
        }
        return out;
    }
    std::string noise() {
        std::string out;
        for (int i = below(20); i >= 0; --i) {
            out += static_cast<char>(random_());
        }
        return out;
    }
    std::string number() {
        constexpr std::array<std::string_view, 4> odd = {"", "0", "65535", "4294967296"};
        return below(4) == 0 ? std::string(odd[random_() % odd.size()]) : std::to_string(below(12));
    }
    std::string sequence() {
        constexpr std::array<int, 12> modes = {1, 4, 5, 6, 7, 20, 45, 47, 69, 1047, 1049, 2026};
        std::string out = "\033[";
        if (below(4) == 0) {
            return out + (below(4) == 0 ? "" : "?") + std::to_string(modes[random_() % modes.size()]) +
                   pick("hlp");
        }
        out += below(8) == 0 ? std::string(1, pick("?>=!")) : "";
        for (int i = below(5); i > 0; --i) {
            out += number() + pick(";;;:");
        }
        out += number();
        out += below(5) == 0 ? std::string(1, pick(" $'\"*!")) : "";
        return out + pick("@ABCDEFGHIJKLMPSTXZ`abcdefghlmnpqrstuvwxyz{|}~");
    }
    std::string string() {
        constexpr std::array<std::string_view, 8> heads = {"]0;", "]8;;http://", "]4;1;?", "]10;?",
                                                           "P$q", "]104",        "_",      "P+q"};
        return std::string("\033").append(heads[random_() % heads.size()]) + text() +
               (below(2) == 0 ? "\a" : "\033\\");
    }

    std::mt19937 random_;
};

/// Everything that can be seen.
std::string picture(const Screened& at) {
    std::string out = at.scrollback() + "\n" + at.screen() + "\n" + at.cursor();
    for (RowId id = at.terminal.first_row(); id < at.terminal.end_row(); ++id) {
        for (const Cell& cell : at.terminal.row(id).cells) {
            const Style& style = at.terminal.style(cell.style);
            out += static_cast<char>('a' + style.foreground.red % 16 + (style.reverse ? 1 : 0));
            out += at.terminal.link(cell.link);
        }
    }
    return out;
}

class Random : public testing::TestWithParam<unsigned> {};

TEST_P(Random, RepliesHoldNothingOfTheInput) {
    Mixer mixer(GetParam());
    Screened at({20, 6}, 50);
    for (int i = 0; i < 2'000; ++i) {
        at.terminal.write(mixer.next());
        if (mixer.below(40) == 0) {
            at.terminal.resize({1 + mixer.below(40), 1 + mixer.below(12)});
        }
    }
    for (const char byte : at.recorder.replies) {
        ASSERT_TRUE(byte == 0x1b || (byte >= 0x20 && byte < 0x7f)) << static_cast<int>(byte);
    }
    EXPECT_EQ(at.recorder.replies.find("plain"), std::string::npos);
    EXPECT_EQ(at.recorder.replies.find("0123456789"), std::string::npos);
    EXPECT_LE(at.terminal.screen_top() - at.terminal.first_row(), 20 * 50);
}

TEST_P(Random, PiecesMakeTheSamePictureAsTheWhole) {
    Mixer mixer(GetParam() + 1'000);
    std::string input;
    for (int i = 0; i < 500; ++i) {
        input += mixer.next();
    }
    Screened whole({20, 6}, 50);
    whole.terminal.write(input);
    Screened pieces({20, 6}, 50);
    for (std::string_view rest = input; !rest.empty();) {
        const auto length = std::min<std::size_t>(rest.size(), static_cast<std::size_t>(1 + mixer.below(9)));
        pieces.terminal.write(rest.substr(0, length));
        rest.remove_prefix(length);
    }
    EXPECT_EQ(picture(pieces), picture(whole));
    EXPECT_EQ(pieces.recorder.replies, whole.recorder.replies);
    EXPECT_EQ(pieces.recorder.titles, whole.recorder.titles);
}

// A row with the same number and stamp shows the same.
TEST_P(Random, StampsTellEveryChange) {
    Mixer mixer(GetParam() + 2'000);
    Screened at({20, 6}, 50);
    struct Seen {
        std::uint64_t stamp = 0;
        std::vector<Cell> cells;
    };
    std::map<RowId, Seen> seen;
    for (int i = 0; i < 500; ++i) {
        at.terminal.write(mixer.next());
        for (RowId id = at.terminal.first_row(); id < at.terminal.end_row(); ++id) {
            const Row row = at.terminal.row(id);
            std::vector<Cell> cells(row.cells.begin(), row.cells.end());
            cells.resize(20);  // cells not written look as blanks do
            Seen& before = seen[id];
            ASSERT_GE(row.stamp, before.stamp) << "row " << id << " after " << i;
            if (row.stamp == before.stamp) {
                ASSERT_EQ(cells, before.cells) << "row " << id << " after " << i;
            }
            before = {row.stamp, std::move(cells)};
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, Random, testing::Range(0U, 12U));

}  // namespace
}  // namespace terminal
