// SPDX-License-Identifier: MIT
// The "Help" menu and the texts that it shows, as they are installed.
#include "app/notify.h"
#include "app/process.h"
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

std::vector<fs::path> pages() {
    std::vector<fs::path> found;
    for (const fs::directory_entry& entry : fs::directory_iterator(data_directory / "help")) {
        if (entry.path().extension() == ".html") {
            found.push_back(entry.path());
        }
    }
    return found;
}

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

TEST(HelpPages, LinkToPagesAndPlacesThatAreThere) {
    std::size_t links = 0;
    for (const fs::path& page : pages()) {
        for (const std::string& link : values_of("href", read_file(page))) {
            const std::size_t hash = link.find('#');
            const fs::path target = hash == 0 ? page : page.parent_path() / link.substr(0, hash);
            EXPECT_TRUE(fs::is_regular_file(target)) << page << " links to " << link;
            if (hash != std::string::npos) {
                const std::vector<std::string> places = values_of("name", read_file(target));
                EXPECT_EQ(std::ranges::count(places, link.substr(hash + 1)), 1)
                    << page << " links to " << link;
            }
            ++links;
        }
    }
    EXPECT_GT(links, pages().size());
}

TEST(HelpPages, ShowPicturesThatAreThere) {
    std::size_t pictures = 0;
    for (const fs::path& page : pages()) {
        for (const std::string& picture : values_of("src", read_file(page))) {
            EXPECT_TRUE(fs::is_regular_file(page.parent_path() / picture)) << page << " shows " << picture;
            ++pictures;
        }
    }
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
