// SPDX-License-Identifier: MIT
#include "toolkit/xsettings.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

TEST(XSettings, AreReadInEitherByteOrderAndAsFarAsTheyAreWhole) {
    const std::string least_first =
        "\0\0\0\0\x07\0\0\0\x03\0\0\0"
        "\1\0\5\0Theme\0\0\0\1\0\0\0\4\0\0\0Dark"
        "\2\0\1\0c\0\0\0\1\0\0\0\1\2\3\4\5\6\7\x08"
        "\0\0\2\0No\0\0\1\0\0\0\xFE\xFF\xFF\xFF"s;
    const std::string most_first =
        "\1\0\0\0\0\0\0\x07\0\0\0\1"
        "\1\0\0\4Font\0\0\0\1\0\0\0\6Sans 9\0\0"s;
    EXPECT_EQ(parse_xsettings(least_first), (XSettings{{"No", "-2"}, {"Theme", "Dark"}}));
    EXPECT_EQ(parse_xsettings(most_first), (XSettings{{"Font", "Sans 9"}}));
    for (std::size_t length = 0; length < least_first.size(); ++length) {
        const XSettings part = parse_xsettings(std::string_view(least_first).substr(0, length));
        EXPECT_EQ(part, length < 36 ? XSettings() : (XSettings{{"Theme", "Dark"}})) << length;
    }
    EXPECT_EQ(parse_xsettings("\0\0\0\0\0\0\0\0\1\0\0\0\1\0\1\0a\0\0\0\0\0\0\0\xFF\xFF\xFF\xFFx"s),
              XSettings());
    EXPECT_EQ(parse_xsettings("\0\0\0\0\0\0\0\0\1\0\0\0\3\0\1\0a\0\0\0\0\0\0\0\0\0\0\0"s), XSettings())
        << "no such type";
}

}  // namespace
