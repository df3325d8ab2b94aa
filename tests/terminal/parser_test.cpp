// SPDX-License-Identifier: MIT
#include "terminal/parser.h"

#include "terminal/utf8.h"
#include "terminal/width.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <utf8proc.h>

namespace terminal {
namespace {

using namespace std::string_literals;

/// Writes down what the parser reads; text of neighbouring calls as one.
class Notes : public ParserHandler {
  public:
    void print_ascii(std::string_view text) override { note_text(text); }
    void print(std::span<const char32_t> text) override {
        std::string utf8;
        for (const char32_t character : text) {
            append_utf8(character, utf8);
        }
        note_text(utf8);
    }
    void control(char c0) override { note("C0 " + std::to_string(c0)); }
    void escape_sequence(const ControlFunction& function) override { note("ESC " + head(function)); }
    void control_sequence(const ControlFunction& function) override { note("CSI " + head(function)); }
    void device_control(const ControlFunction& function, std::string_view data) override {
        note("DCS " + head(function) + ' ' + std::string(data));
    }
    void operating_system_command(std::string_view data) override { note("OSC " + std::string(data)); }

    [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }

  private:
    static std::string head(const ControlFunction& function) {
        std::string text;
        text += function.prefix != 0 ? std::string(1, function.prefix) : "";
        for (std::size_t i = 0; i < function.parameters.size(); ++i) {
            text += i == 0 ? "" : function.parameters.is_sub(i) ? ":" : ";";
            const int value = function.parameters.get(i, -1);
            text += value < 0 ? "" : std::to_string(value);
        }
        text.append(function.intermediates.data(), function.intermediate_count);
        return text + function.final;
    }
    void note_text(std::string_view text) {
        if (lines_.empty() || !in_text_) {
            note("");
        }
        in_text_ = true;
        lines_.back() += text;
    }
    void note(std::string line) {
        in_text_ = false;
        lines_.push_back(std::move(line));
    }

    std::vector<std::string> lines_;
    bool in_text_ = false;
};

struct Case {
    const char* name;
    std::string input;
    std::vector<std::string> read;
};

void PrintTo(const Case& row, std::ostream* out) { *out << row.name; }

class ParserTable : public testing::TestWithParam<Case> {};

TEST_P(ParserTable, ReadsWholeInput) {
    Notes notes;
    Parser(notes).feed(GetParam().input);
    EXPECT_EQ(notes.lines(), GetParam().read);
}

TEST_P(ParserTable, ReadsSingleBytes) {
    Notes notes;
    Parser parser(notes);
    for (const char byte : GetParam().input) {
        parser.feed({&byte, 1});
    }
    EXPECT_EQ(notes.lines(), GetParam().read);
}

const Case cases[] = {
    {"Text", "hello, world and more than eight", {"hello, world and more than eight"}},
    {"ControlsPartText", "a\r\nb", {"a", "C0 13", "C0 10", "b"}},
    {"DeleteIsNothing",
     "a\x7f"
     "b",
     {"ab"}},
    {"Escape",
     "\x1b"
     "7\x1b#8\x1b(B",
     {"ESC 7", "ESC #8", "ESC (B"}},
    {"Sequence", "\x1b[m\x1b[1;2H\x1b[?25l\x1b[>c", {"CSI m", "CSI 1;2H", "CSI ?25l", "CSI >c"}},
    {"MissingParameters", "\x1b[;5H\x1b[1;;3m", {"CSI ;5H", "CSI 1;;3m"}},
    {"SubParameters", "\x1b[4:3;38:2::1:2:3m", {"CSI 4:3;38:2::1:2:3m"}},
    {"Intermediates", "\x1b[2 q\x1b[?5$p", {"CSI 2 q", "CSI ?5$p"}},
    {"TooManyIntermediatesAreIgnored", "\x1b[ !\"pa\x1b !\"pb", {"ab"}},
    {"PrefixInTheWrongPlaceIsIgnored", "\x1b[1?ha\x1b[1$2pb", {"ab"}},
    {"ControlsActWithinSequences", "\x1b[1\n;2Hx", {"C0 10", "CSI 1;2H", "x"}},
    {"CancelEndsASequence", "\x1b[1\x18x\x1b]2;t\x1ay", {"C0 24", "x", "C0 26", "y"}},
    {"EscapeBeginsAnew", "\x1b[1\x1b[2mx", {"CSI 2m", "x"}},
    {"NonAsciiBreaksASequence", "\x1b[1é2", {"é2"}},
    {"OscEndsWithBellOrSt", "\x1b]0;a\x07\x1b]2;b\x1b\\", {"OSC 0;a", "OSC 2;b"}},
    {"OscEndsWithC1St",
     "\x1b]0;a\xc2\x9c"
     "b",
     {"OSC 0;a", "b"}},
    {"OscKeepsUtf8AndDropsControls",
     "\x1b]0;\xc3\xa4\n\x7f"
     "b\xff\x07",
     {"OSC 0;äb\xEF\xBF\xBD"}},
    {"OscBrokenOffIsIgnored", "\x1b]0;a\x1b[mb\x1b\\", {"CSI m", "b", "ESC \\"}},
    {"OscBrokenOffByAnotherString", "\x1b]0;a\x1bXb\x1b\\c", {"ESC \\", "c"}},
    {"Dcs", "\x1bP$qm\x1b\\\x1bP1;2+qab\x1b\\", {"DCS $q m", "DCS 1;2+q ab"}},
    {"DcsHoldsBell",
     "\x1bPqa\x07"
     "b\x1b\\",
     {"DCS q ab"}},
    {"IgnoredStrings", "\x1b_a\x07\x1b\\\x1b^b\x1b\\\x1bXc\x1b\\d", {"ESC \\", "ESC \\", "ESC \\", "d"}},
    {"C1AsUtf8",
     "\xc2\x9b"
     "1mx\xc2\x85\xc2\x9d"
     "0;t\x07",
     {"CSI 1m", "x", "ESC E", "OSC 0;t"}},
    {"RawC1BytesAreIllFormed",
     "\x9b"
     "1m",
     {"\xEF\xBF\xBD"
      "1m"}},
    {"Utf8", "aä漢😀", {"aä漢😀"}},
    // Unicode 15, table 3-8 and its neighbours: one replacement for each maximal subpart.
    {"Overlong",
     "\xC0\xAF\xE0\x80\xBF\xF0\x81\x82"
     "A",
     {"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA"}},
    {"Surrogates",
     "\xED\xA0\x80"
     "A",
     {"\uFFFD\uFFFD\uFFFDA"}},
    {"BeyondTheLast",
     "\xF4\x91\x92\x93\xFF"
     "A",
     {"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA"}},
    {"CutShort",
     "\xE1\x80\xE2\xF0\x91\x92\xF1\xBF"
     "A",
     {"\uFFFD\uFFFD\uFFFD\uFFFDA"}},
    {"CutShortByAControl", "\xE1\x80\n\xF0\x9F\x1b[m", {"\uFFFD", "C0 10", "\uFFFD", "CSI m"}},
    {"NulIsExecuted", "a\0b"s, {"a", "C0 0", "b"}},
};

std::string case_name(const testing::TestParamInfo<Case>& row) { return row.param.name; }

INSTANTIATE_TEST_SUITE_P(Parser, ParserTable, testing::ValuesIn(cases), case_name);

// The characters that are told apart without the library's tables must be told as it does.
TEST(Width, AgreesWithTheTables) {
    for (char32_t character = 0xA0; character < 0x20000; ++character) {
        const int width = utf8proc_charwidth(static_cast<utf8proc_int32_t>(character));
        const bool jamo = character >= 0x1160 && character <= 0x11FF;
        if (width > 0 && character != 0xAD && !jamo) {
            ASSERT_EQ(character_width(character), width) << std::hex << static_cast<unsigned>(character);
        }
    }
}

TEST(Width, JoinersAndMarksTakeNoCell) {
    for (const char32_t character : {U'\u0301', U'\u200b', U'\u200d', U'\ufe0f', U'\u20dd', U'\u1160'}) {
        EXPECT_EQ(character_width(character), 0) << std::hex << static_cast<unsigned>(character);
    }
    EXPECT_EQ(character_width(0xAD), 1);
    EXPECT_EQ(character_width(0xE000), 1);
    EXPECT_EQ(character_width(0x1F600), 2);
}

}  // namespace
}  // namespace terminal
