// SPDX-License-Identifier: MIT
// The "Help" menu and the texts that it shows, as they are installed.
#include "app/notify.h"
#include "shell/process.h"
#include "tests/support/scratch_directory.h"
#include "ui/help_window.h"
#include "ui/windows.h"

#include <algorithm>
#include <regex>
#include <vector>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

const fs::path data_directory = ORVIK_DATA;

/// The values that an attribute has in a page.
std::vector<std::string> values_of(const std::string& attribute, const std::string& page) {
    const std::regex pattern("\\b" + attribute + R"(\s*=\s*"([^"]*)\")");
    std::vector<std::string> values;
    for (auto match = std::sregex_iterator(page.begin(), page.end(), pattern);
         match != std::sregex_iterator(); ++match) {
        values.push_back((*match)[1]);
    }
    return values;
}

TEST(HelpPages, LinkToPagesPlacesAndPicturesThatAreThere) {
    std::size_t links = 0;
    std::size_t pictures = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(data_directory / "help")) {
        SCOPED_TRACE(entry.path());
        if (entry.path().extension() != ".html") {
            continue;
        }
        const std::string page = read_file(entry.path());
        for (const std::string& link : values_of("href", page)) {
            const std::size_t hash = link.find('#');
            const fs::path target =
                hash == 0 ? entry.path() : entry.path().parent_path() / link.substr(0, hash);
            EXPECT_TRUE(fs::is_regular_file(target)) << link;
            if (hash != std::string::npos) {
                const std::vector<std::string> places = values_of("name", read_file(target));
                EXPECT_EQ(std::ranges::count(places, link.substr(hash + 1)), 1) << link;
            }
            ++links;
        }
        for (const std::string& picture : values_of("src", page)) {
            EXPECT_TRUE(fs::is_regular_file(entry.path().parent_path() / picture)) << picture;
            ++pictures;
        }
    }
    EXPECT_GT(links, 3U);
    EXPECT_GT(pictures, 0U);
}

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
        orvik_home = data_directory;
        procedure();
        EXPECT_EQ(help_window().left_footer(), "");
        EXPECT_TRUE(help_window().shown());
    }
    destroy_windows();
}

}  // namespace
