// SPDX-License-Identifier: MIT
#include "settings/user_menu_format.h"

#include "settings/command_list_format.h"
#include "shell/fill_template.h"

#include <gtest/gtest.h>

namespace {

TEST(UserMenuFormat, ReadsItemsTitlesAndTheButtonsLabel) {
    const struct {
        std::string text;
        int result;
        std::optional<std::string> button;
        std::vector<UserMenuItem> items;
    } cases[] = {
        {"", -1, {}, {}},
        {"MENU\nls,ls\n", -1, {}, {}},
        {"# my _MENU file\n# a,b\nls -l\nBuild,make all,install\n",
         1,
         {},
         {{"ls -l", ""}, {"Build", "make all,install"}}},
        {"_MENU\na,b\n,c\nd,\ne\nf,\n", 1, {}, {{"a", "b"}, {"a", "c"}, {"d", "c"}, {"e", ""}, {"f", ""}}},
        {"_MENU\n$BUTTON_NAME,My Tools\n$MENU_TITLE,Every day\n\nlast,x y",
         1,
         "My Tools",
         {{"Every day", "", true}, {"", ""}, {"last", "x y"}}},
        {"_MENU\na,b\n$BUTTON_NAME\nc,d\n", 2, {}, {{"a", "b"}}},
        {"_MENU\n$MENU_TITLE,\n", 2, {}, {}},
    };
    for (const auto& row : cases) {
        const UserMenu menu = parse_user_menu(row.text);
        EXPECT_EQ(menu.result, row.result) << row.text;
        EXPECT_EQ(menu.button_label, row.button) << row.text;
        EXPECT_EQ(menu.items, row.items) << row.text;
    }
}

TEST(CommandListFormat, ReadsRowsAndTakesTheirCommentsAway) {
    EXPECT_EQ(parse_commands("# _COMMANDS\nls\n\nmake /* all */"),
              (std::vector<std::string>{"ls", "", "make /* all */"}));
    EXPECT_EQ(parse_commands("ls\n"), std::nullopt);
    EXPECT_EQ(without_comment("make /* all */ x /* more"), "make           x");
}

TEST(CommandListFormat, FillsTheFirstTwoOfEachPlaceholder) {
    const auto answer = [](const char* text) {
        return [text](std::string_view) { return std::optional<std::string>(text); };
    };
    const Placeholder placeholders[] = {
        {"$$$", answer("%%%")},
        {"%%%", answer("T")},
        {"!!!", [](std::string_view before) { return std::string(before); }},
        {"none", [](std::string_view) { return std::nullopt; }},
    };
    const std::pair<std::string, std::optional<std::string>> cases[] = {
        {"ls", "ls"},
        {"a $$$ $$$ $$$ $$$", "a %%% %%% $$$ $$$"},
        {"$$$$ %%%%%%%%%", "%%%$ TT%%%"},
        {"x!!!", "xx"},
        {"none", std::nullopt},
    };
    for (const auto& [row, command] : cases) {
        EXPECT_EQ(fill_template(row, placeholders, 2), command) << row;
    }
}

}  // namespace
