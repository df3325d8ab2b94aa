// SPDX-License-Identifier: MIT
#include "toolkit/font_name.h"

#include "toolkit/font.h"

#include <QFont>
#include <QFontInfo>
#include <QFontMetrics>

#include <gtest/gtest.h>

namespace {

TEST(FontName, FormsOfXProgramsAreRead) {
    const std::pair<const char*, FontDescription> cases[] = {
        {"fixed", {}},
        {"9x15", {.cell_pixels = 15}},
        {"6x13bold", {.cell_pixels = 13, .bold = true}},
        {"DejaVu Sans Mono-14", {.family = "DejaVu Sans Mono", .points = 14}},
        {"Mono:size=11.5:bold", {.family = "Mono", .points = 11.5, .bold = true}},
        {"Mono:pixelsize=14:style=italic", {.family = "Mono", .pixels = 14, .italic = true}},
        {"Semi-Mono", {.family = "Semi-Mono"}},
        {"-misc-fixed-medium-r-normal--15-140-75-75-c-90-iso8859-1", {.pixels = 15}},
        {"-b&h-lucidatypewriter-bold-o-*-*-*-120-*-*-*-*-*-*",
         {.family = "lucidatypewriter", .points = 12, .bold = true, .italic = true}},
        {"-x", {.family = ""}},
        {"Mono-100000", {.family = "Mono-100000"}},
        {"0x0", {.family = "0x0"}},
    };
    for (const auto& [name, expected] : cases) {
        EXPECT_EQ(parse_font_name(name), expected) << name;
    }
}

TEST(FontName, AFontIsAlwaysOfFixedWidth) {
    for (const char* name : {"fixed", "DejaVu Sans", "No Such Family", "9x15", "-x"}) {
        const QFont font = xv_find(name).qt();
        const QFontMetrics metrics(font);
        EXPECT_EQ(metrics.horizontalAdvance(u'i'), metrics.horizontalAdvance(u'W')) << name;
    }
    EXPECT_LE(QFontMetrics(xv_find("9x15").qt()).height(), 15) << "a cell's name sets the height of a line";
}

}  // namespace
