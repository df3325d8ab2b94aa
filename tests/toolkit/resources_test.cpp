// SPDX-License-Identifier: MIT
#include "toolkit/resources.h"

#include "tests/support/scratch_directory.h"
#include "toolkit/resource_database.h"

#include <cstdlib>
#include <fstream>

#include <gtest/gtest.h>

namespace {

TEST(Resources, AreFoundByNameAndByClass) {
    load_resource_database("orvik.fontName: 9x15\nOrvik.FontSize: large\n*unrelated: x\n", {});
    EXPECT_EQ(defaults_get_string("orvik.fontName", "Orvik.FontName", "fixed"), "9x15");
    EXPECT_EQ(defaults_get_string("orvik.fontSize", "Orvik.FontSize", "notset"), "large");
    EXPECT_EQ(defaults_get_string("orvik.other", "Orvik.Other", "notset"), "notset");
}

TEST(Resources, OptionsWinOverTheServersAndFiles) {
    const ScratchDirectory home;
    const std::string file = home.path() / "resources";
    std::ofstream(file) << "Orvik.FontSize: medium\nOrvik.FontName: 6x13\n";
    setenv("XENVIRONMENT", file.c_str(), 1);
    load_resource_database("Orvik.FontSize: small\n", {"Orvik.FontName: 10x20"});
    unsetenv("XENVIRONMENT");
    EXPECT_EQ(defaults_get_string("orvik.fontSize", "Orvik.FontSize", ""), "medium");
    EXPECT_EQ(defaults_get_string("orvik.fontName", "Orvik.FontName", ""), "10x20");
}

TEST(Resources, WhatIsNoNumberLeavesTheDefault) {
    load_resource_database("a.n: 7\na.bad: 7x\na.empty:\n", {});
    EXPECT_EQ(defaults_get_integer("a.n", "A.N", 4), 7);
    EXPECT_EQ(defaults_get_integer("a.bad", "A.Bad", 4), 4);
    EXPECT_EQ(defaults_get_integer("a.empty", "A.Empty", 4), 4);
    EXPECT_EQ(defaults_get_integer("a.missing", "A.Missing", 4), 4);
}

}  // namespace
