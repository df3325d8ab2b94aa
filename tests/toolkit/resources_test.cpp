// SPDX-License-Identifier: MIT
#include "toolkit/resources.h"

#include "tests/support/scratch_directory.h"
#include "toolkit/resource_database.h"

#include <cstdlib>
#include <fstream>

#include <gtest/gtest.h>

namespace {

TEST(Resources, OptionsWinOverFilesAndFilesOverTheServer) {
    const ScratchDirectory home;
    const std::string file = home.path() / "resources";
    std::ofstream(file) << "Orvik.FontSize: medium\nOrvik.FontName: 6x13\n";
    setenv("XENVIRONMENT", file.c_str(), 1);
    load_resource_database("Orvik.FontSize: small\norvik.other: 1\n*unrelated: x\n",
                           {"Orvik.FontName: 10x20"});
    unsetenv("XENVIRONMENT");
    EXPECT_EQ(defaults_get_string("orvik.fontSize", "Orvik.FontSize", ""), "medium");
    EXPECT_EQ(defaults_get_string("orvik.fontName", "Orvik.FontName", ""), "10x20");
    EXPECT_EQ(defaults_get_string("orvik.other", "Orvik.Other", "notset"), "1");
    EXPECT_EQ(defaults_get_string("orvik.another", "Orvik.Another", "notset"), "notset");
}

TEST(Resources, WhatIsNoNumberLeavesTheDefault) {
    load_resource_database("a.n: 7\na.bad: 7x\na.empty:\n", {});
    EXPECT_EQ(defaults_get_integer("a.n", "A.N", 4), 7);
    for (const char* name : {"a.bad", "a.empty", "a.missing"}) {
        EXPECT_EQ(defaults_get_integer(name, "A.None", 4), 4) << name;
    }
}

}  // namespace
