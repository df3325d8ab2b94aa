// SPDX-License-Identifier: MIT
#include "settings/setup_format.h"

#include <climits>
#include <vector>

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

const std::string header = "$ORVIK_SETUP\n";

using Lines = std::vector<std::string>;

std::string xs(std::size_t count) { return std::string(count, 'x'); }

TEST(SetupFormat, IsParsed) {
    const struct {
        const char* name;
        std::string contents;
        std::optional<Lines> expected;  ///< the lines behind the header; the others are empty
    } cases[] = {
        {"header without dollar", "ORVIK_SETUP\na\n", Lines{"a"}},
        {"header between other text", "# my ORVIK_SETUP file\na\n", Lines{"a"}},
        {"header with hyphen", "$ORVIK-SETUP\na\n", std::nullopt},
        {"header on the second line", "\n" + header, std::nullopt},
        {"header behind a nul", "\0ORVIK_SETUP\n"s, std::nullopt},
        {"header at the end of the first read", std::string(1012, ' ') + "ORVIK_SETUPa\n", Lines{"a"}},
        {"header behind the first read", std::string(1013, ' ') + "ORVIK_SETUP\n", std::nullopt},
        {"empty file", "", std::nullopt},
        {"no final line feed", header + "a\nb", Lines{"a", "b"}},
        {"other bytes stay", header + "a\r\n\n \xff\t\n", Lines{"a\r", "", " \xff\t"}},
        {"nul ends a value", header + "a\0b\nc\n"s, Lines{"a", "c"}},
        {"1022 bytes fit", header + xs(1022) + "\na\n", Lines{xs(1022), "a"}},
        {"1023 bytes leave their line feed", header + xs(1023) + "\na\n", Lines{xs(1023), "", "a"}},
        {"5000 bytes are five lines", header + xs(5000) + "\na\n",
         Lines{xs(1023), xs(1023), xs(1023), xs(1023), xs(908), "a"}},
    };
    for (const auto& [name, contents, expected] : cases) {
        SCOPED_TRACE(name);
        const std::optional<SetupLines> lines = parse_setup(contents);
        ASSERT_EQ(lines.has_value(), expected.has_value());
        if (lines) {
            Lines all = *expected;
            all.resize(setup_lines - 1);
            EXPECT_EQ(Lines(lines->begin() + 1, lines->end()), all);
        }
    }
}

/// 90 lines, each different from its neighbours, with every byte and length that a value may have.
SetupLines all_kinds_of_lines() {
    SetupLines lines{"$ORVIK_SETUP", "", xs(1022), "\r", " ", "-1", "\xff\xfe\x01\x7f"};
    for (std::size_t i = 7; i < setup_lines; ++i) {
        lines[i] = "value of line " + std::to_string(i + 1);
    }
    return lines;
}

TEST(SetupFormat, ComesBackAsItWasWritten) {
    const SetupLines lines = all_kinds_of_lines();
    std::string contents;
    for (const std::string& line : lines) {
        contents += line + "\n";
    }
    const SetupValues values = std::span(lines).subspan<1>();
    EXPECT_EQ(unwritable_setup_line(values), std::nullopt);
    EXPECT_EQ(format_setup(values), contents);
    EXPECT_EQ(parse_setup(contents + "ignored\n"), lines);
}

TEST(SetupFormat, TellsTheFirstValueThatWouldNotComeBack) {
    for (const std::string& value : {"a\nb"s, "\n"s, "a\0b"s, xs(1023)}) {
        for (const std::size_t line : {2U, 47U, 90U}) {
            SetupLines lines = all_kinds_of_lines();
            lines[line - 1] = lines.back() = value;
            EXPECT_EQ(unwritable_setup_line(std::span(lines).subspan<1>()), line);
        }
    }
}

TEST(SetupFormat, TakesNumbersAsScanfDoes) {
    const std::vector<std::pair<int, std::vector<std::string>>> cases{
        {0, {"", "   ", "0", "+-7", "-+7", "- 7", "--7", "+", "0x10", "a7"}},
        {7, {"7", "+7", "007", " \t\n\v\f\r7 8", "7\r", "7ab", "7.5"}},
        {-7, {"-7", " -7"}},
        {INT_MAX, {"2147483647", "2147483648", "+99999999999999999999x"}},
        {INT_MIN, {"-2147483648", "-2147483649", "-99999999999999999999"}},
    };
    for (const auto& [number, texts] : cases) {
        for (const std::string& text : texts) {
            EXPECT_EQ(parse_number(text), number) << '"' << text << '"';
        }
    }
}

}  // namespace
