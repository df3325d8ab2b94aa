// SPDX-License-Identifier: MIT
#include "shell/expand_path.h"

#include <cstdlib>

#include <gtest/gtest.h>

namespace {

TEST(ExpandPath, ExpandsVariablesAndHomes) {
    setenv("HOME", "/home/u", 1);
    setenv("X_1", "value", 1);
    unsetenv("NOSUCHVAR");
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {" \t\n", ""},
        {"/a/b", "/a/b"},
        {"  ~/src\n", "/home/u/src"},
        {"~", "/home/u"},
        {"~/", "/home/u"},
        {"\\~x", "~x"},
        {"a~", "a~"},
        {"~root/x", "/root/x"},
        {"~no-such-user/x", "~no-such-user/x"},
        {"$HOME/x", "/home/u/x"},
        {"${HOME}x", "/home/ux"},
        {"$X_1.c", "value.c"},
        {"$NOSUCHVAR/a", "$NOSUCHVAR/a"},
        {"${NOSUCHVAR}/a", "${NOSUCHVAR}/a"},
        {"${HOME", "${HOME"},
        {"a$", "a$"},
        {"\\$HOME", "$HOME"},
        {"a\\ b", "a b"},
        {"a\\", "a"},
        {"$(id)", "$(id)"},
    };
    for (const auto& [input, expected] : cases) {
        EXPECT_EQ(expand_path(input), expected) << input;
    }
}

TEST(ExpandPath, LeavesTheTildeWithoutAHome) {
    unsetenv("HOME");
    EXPECT_EQ(expand_path("~/x"), "~/x");
}

}  // namespace
