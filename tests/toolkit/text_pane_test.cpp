// SPDX-License-Identifier: MIT
#include "toolkit/text_pane.h"

#include "toolkit/frame.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

TEST(TextPane, GivesEveryTextBackByteForByte) {
    CommandFrame frame("Frame");
    TextPane pane(frame.panel, "Text");
    const std::string texts[] = {
        "",
        "\n",
        "\n\nempty lines\n\n\n no line feed",
        "caf\xC3\xA9 \xE4\xBD\xA0 \xF0\x9F\x98\x80 no\xC2\xA0 break",
        "\xFF\x80 cut \xE4\xBD",
        "dos\r\nand\rmac\r",
        "\xEF\xBB\xBF byte order mark",
        "line\xE2\x80\xA8paragraph\xE2\x80\xA9 end",
        "\xEF\xB7\x90\xEF\xB7\x91\xEF\xBF\xBC\xEF\xBF\xBE",
        "\xF0\x90\x80\x8D pair",
        "\0\x01\t\v\f\x1B\x7F\xC2\x85"s,
    };
    for (const std::string& text : texts) {
        pane.set_text(text);
        EXPECT_EQ(pane.text(), text);
        textsw_reset(pane);
        textsw_insert(pane, text);
        EXPECT_EQ(pane.text(), text);
    }
}

}  // namespace
