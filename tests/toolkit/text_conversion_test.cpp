// SPDX-License-Identifier: MIT
#include "toolkit/text_conversion.h"

#include <gtest/gtest.h>

namespace {

TEST(TextConversion, GivesEveryByteBack) {
    std::string all_bytes;
    for (int byte = 0; byte < 256; ++byte) {
        all_bytes += static_cast<char>(byte);
    }
    const std::string texts[] = {
        "",
        "plain",
        "caf\xC3\xA9 \xE4\xBD\xA0 \xF0\x9F\x98\x80",
        "\xFF\xFE",
        "cut \xE4\xBD",
        "\xEF\xBB\xBF\xFF\xEF\xBB\xBF byte order marks",
        "\xC0\xAF overlong",
        "\xED\xB2\x80 surrogate",
        "\xF4\x90\x80\x80 too high",
        "\xF0\x9F\x98\x80\x80",
        std::string("a\0b", 3),
        all_bytes,
    };
    for (const std::string& text : texts) {
        EXPECT_EQ(from_qstring(to_qstring(text)), text);
    }
    EXPECT_EQ(to_qstring("\xC3\xA9\xF0\x9F\x98\x80"), u"\u00e9\U0001F600");
}

TEST(TextConversion, MakesControlCharactersVisible) {
    EXPECT_EQ(visible_text("a\nb\x1b\x7f"), u"a\u240Ab\u241B\u2421");
    EXPECT_EQ(visible_text("\xC2\x9B\xFF"), u"\uFFFD\uFFFD");
    EXPECT_EQ(visible_text("\xF0\x9F\x98\x80"), u"\U0001F600");
}

TEST(TextConversion, ToolTipsAndLabelsShowMarkupAsItIs) {
    EXPECT_EQ(plain_tool_tip("cmp <b>a</b>  & b"),
              u"<p style=\"white-space:pre-wrap\">cmp &lt;b&gt;a&lt;/b&gt;  &amp; b</p>");
    EXPECT_EQ(plain_tool_tip(""), u"");
    EXPECT_EQ(without_mnemonic("a&b"), u"a&&b");
}

}  // namespace
