// SPDX-License-Identifier: MIT
// The help texts lead to pages, places and pictures that are there.
#include "tests/support/scratch_directory.h"

#include <algorithm>
#include <filesystem>
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

/// The values that an attribute has in a page.
std::vector<std::string> values_of(const std::string& attribute, const std::string& page) {
    const std::regex pattern("\\b" + attribute + R"(\s*=\s*"([^"]*)\")");
    return {std::sregex_token_iterator(page.begin(), page.end(), pattern, 1), std::sregex_token_iterator()};
}

/// Whether a link of a page leads to a page, and to one place in it.
bool leads_somewhere(const fs::path& page, const std::string& link) {
    const std::size_t hash = link.find('#');
    const fs::path target = hash == 0 ? page : page.parent_path() / link.substr(0, hash);
    const auto places = values_of("name", read_file(target));
    return fs::is_regular_file(target) &&
           (hash == std::string::npos || std::ranges::count(places, link.substr(hash + 1)) == 1);
}

TEST(HelpPages, LinkToPagesPlacesAndPicturesThatAreThere) {
    std::size_t links = 0;
    std::size_t pictures = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(ORVIK_SOURCE_DIR "/data/help")) {
        const std::string page = entry.path().extension() == ".html" ? read_file(entry.path()) : "";
        for (const std::string& link : values_of("href", page)) {
            EXPECT_TRUE(leads_somewhere(entry.path(), link)) << entry.path() << ": " << link;
            ++links;
        }
        for (const std::string& picture : values_of("src", page)) {
            EXPECT_TRUE(fs::is_regular_file(entry.path().parent_path() / picture))
                << entry.path() << ": " << picture;
            ++pictures;
        }
    }
    EXPECT_GT(links, 3U);
    EXPECT_GT(pictures, 0U);
}

}  // namespace
