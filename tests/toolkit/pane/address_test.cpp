// SPDX-License-Identifier: MIT
#include "toolkit/pane/address.h"

#include "terminal/text.h"

#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace {

struct Silent : terminal::Client {
    void reply(std::string_view /*bytes*/) override {}
    void bell() override {}
    void title_changed(std::string_view /*title*/) override {}
};

TEST(PlainAddress, IsWhatIsWrittenWithoutWhatStandsRoundIt) {
    const std::pair<const char*, const char*> cases[] = {
        {"https://a.org/x", "https://a.org/x"},
        {"see http://a.org.", "http://a.org"},
        {"(https://a.org/b_(c))!", "https://a.org/b_(c)"},
        {"[x](https://a.org/y),", "https://a.org/y"},
        {"\"https://a.org/?q=1&r='\"", "https://a.org/?q=1&r="},
        {"<https://a.org/#z>", "https://a.org/#z"},
        {"url=https://a.org:8080/~u/%20", "https://a.org:8080/~u/%20"},
        {"https://a.org/http://b.org/", "http://b.org/"},  // the one pointed at
        {"https://", ""},
        {"https://...", ""},
        {"ftp://a.org/ file:///x mailto:a@b", ""},
        {"https//a.org", ""},
    };
    for (const auto& [text, expected] : cases) {
        Silent client;
        terminal::Terminal screen({.size = {40, 4}}, client);
        screen.write(text);
        std::string found;
        terminal::Range range;
        for (int column = 0; column < 40; ++column) {
            const PlainAddress address = address_at(screen, {screen.screen_top(), column});
            if (!address.text.empty()) {
                found = address.text;
                range = address.range;
            }
        }
        EXPECT_EQ(found, expected) << text;
        EXPECT_EQ(terminal::text_between(screen, range), found) << text;
    }
}

TEST(PlainAddress, GoesOnWhereItsLineWraps) {
    Silent client;
    terminal::Terminal screen({.size = {10, 4}}, client);
    screen.write("xx https://example.org/ab\r\ncd");
    const terminal::RowId top = screen.screen_top();
    for (const terminal::Position place : {terminal::Position{top, 3}, {top + 1, 5}, {top + 2, 4}}) {
        EXPECT_EQ(address_at(screen, place).text, "https://example.org/ab");
    }
    EXPECT_EQ(address_at(screen, {top + 2, 4}).range, (terminal::Range{{top, 3}, {top + 2, 5}}));
    EXPECT_EQ(address_at(screen, {top, 1}).text, "");
    EXPECT_EQ(address_at(screen, {top + 3, 0}).text, "") << "another line";
    EXPECT_EQ(address_at(screen, {top + 9, 0}).text, "");
}

}  // namespace
