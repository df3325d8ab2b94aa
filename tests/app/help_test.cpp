// SPDX-License-Identifier: MIT
#include "app/notify.h"
#include "shell/process.h"
#include "ui/help_window.h"
#include "ui/windows.h"

#include <utility>

#include <gtest/gtest.h>

namespace {

TEST(HelpMenu, ShowsAPageOrTellsThatItIsMissing) {
    create_windows();
    const std::pair<void (*)(), std::string> cases[] = {
        {To_get_started, "get_started.html"},
        {User_guide, "user_guide.html"},
        {HelpMenuButtons, "buttons.html"},
    };
    for (const auto& [procedure, page] : cases) {
        orvik_home = "/nowhere";
        procedure();
        EXPECT_EQ(help_window().left_footer(), "Help text not found: /nowhere/help/" + page);
        orvik_home = ORVIK_DATA;
        procedure();
        EXPECT_EQ(help_window().left_footer(), "");
        EXPECT_TRUE(help_window().shown());
    }
    destroy_windows();
}

}  // namespace
