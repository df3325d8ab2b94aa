// SPDX-License-Identifier: MIT
#include "app/kept_keys.h"

#include <gtest/gtest.h>

namespace {

using terminal::Key;

KeyEvent control(char letter) { return {.modifiers = {.control = true}, .text = std::string(1, letter)}; }

TEST(KeptKeys, AreReadFromAListOfNames) {
    const KeptKeys kept(" ^R\t^l F1 Up  ^1 ^ f2 Home ^O");
    EXPECT_EQ(kept.unknown(), "^1 ^ f2 Home");
    const std::pair<KeyEvent, bool> cases[] = {
        {control('r'), true},         {control('l'), true},        {control('o'), true},
        {control('x'), false},        {{.key = Key::f1}, true},    {{.key = Key::f2}, false},
        {{.key = Key::up}, true},     {{.key = Key::down}, false}, {{.text = "r"}, false},
        {{.key = Key::enter}, false},
    };
    for (const auto& [event, expected] : cases) {
        EXPECT_EQ(kept.holds(event), expected) << &event - &cases[0].first;
    }
    EXPECT_FALSE(KeptKeys().holds(control('r')));
}

}  // namespace
