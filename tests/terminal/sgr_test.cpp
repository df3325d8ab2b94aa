// SPDX-License-Identifier: MIT
#include "tests/terminal/screen_fixture.h"

#include <gtest/gtest.h>

namespace terminal {
namespace {

struct Case {
    const char* name;
    const char* parameters;
    Style style;
};

Style style_after(const std::string& parameters) {
    Screened at;
    at.terminal.write("\033[" + parameters + "mx");
    return at.style(0, 0);
}

const Case cases[] = {
    {"Nothing", "1;", {}},
    {"Attributes",
     "1;2;3;4;5;7;8;9;53",
     {.underline = Underline::single,
      .bold = true,
      .faint = true,
      .italic = true,
      .blink = true,
      .reverse = true,
      .invisible = true,
      .struck = true,
      .overlined = true}},
    {"AttributesOff", "1;2;3;4;5;7;8;9;53;22;23;24;25;27;28;29;55", {}},
    {"BoldAndFaintGoTogether", "1;2;3;22", {.italic = true}},
    {"BasicColours", "31;42", {.foreground = Colour::indexed(1), .background = Colour::indexed(2)}},
    {"BrightColours", "97;100", {.foreground = Colour::indexed(15), .background = Colour::indexed(8)}},
    {"StandardColours", "31;42;58;5;3;39;49;59", {}},
    {"IndexedColours",
     "38;5;200;48:5:7;1",
     {.foreground = Colour::indexed(200), .background = Colour::indexed(7), .bold = true}},
    {"DirectColours",
     "38;2;1;2;3;48;2;4;5;6;3",
     {.foreground = Colour::direct(1, 2, 3), .background = Colour::direct(4, 5, 6), .italic = true}},
    {"DirectColourWithColourSpace", "38:2::1:2:3;1", {.foreground = Colour::direct(1, 2, 3), .bold = true}},
    {"DirectColourWithoutColourSpace", "38:2:1:2:3", {.foreground = Colour::direct(1, 2, 3)}},
    {"UnderlineColour",
     "4;58:2::9:8:7",
     {.underline_colour = Colour::direct(9, 8, 7), .underline = Underline::single}},
    {"TwofoldUnderline", "21", {.underline = Underline::twofold}},
    {"DashedUnderline", "4:5", {.underline = Underline::dashed}},
    {"UnderlineNone", "4;4:0", {}},
    {"IncompleteColourIsIgnored", "1;38;5", {.bold = true}},
    {"IncompleteSubParametersAreIgnored", "38:2:1;1", {.bold = true}},
    {"UnknownAreIgnored", "1;77;1000;65535;4:9", {.underline = Underline::dashed, .bold = true}},
    {"ComponentsAreLimited", "38;2;300;999;65535", {.foreground = Colour::direct(255, 255, 255)}},
};

TEST(Sgr, MakesStyle) {
    for (const Case& row : cases) {
        EXPECT_EQ(style_after(row.parameters), row.style) << row.name;
        // What is answered to DECRQSS makes the same style again.
        EXPECT_EQ(style_after(sgr_text(row.style)), row.style) << row.name;
    }
}

}  // namespace
}  // namespace terminal
