// SPDX-License-Identifier: MIT
#include "tests/e2e/orvik_test.h"

#include <sys/stat.h>

namespace {

class DeadServer : public OrvikTest {
  protected:
    DeadServer() {
        mkfifo((home_ / "dead.server").c_str(), 0600);
        setup_.environment["LD_PRELOAD"] = DEAD_SERVER;
        setup_.environment["DEAD_PATH"] = home_ / "dead";
        setup_.environment["ASAN_OPTIONS"] = "verify_asan_link_order=0";
        setup_.options = {"-work", home_ / "dead"};
        home_.write("Orvik.setup", setup_text({{52, "~/bookmarks"}}));
        home_.write("bookmarks", "$ORVIK_BOOKMARKS\nDirectory:1\n$$DIRECTORY\nalive,~/alive\n");
        home_.write("alive/file", "");
    }
};

TEST_F(DeadServer, HoldsUpNothingButTheShell) {
    start();  // with its directory
    const Accessible browser = open_window("File List Browser");
    ASSERT_TRUE(wait_until([&] { return browser.active(); }));
    const auto left = [&] { return footer(browser, "left footer"); };
    display().press_key("Escape");
    expect_awaited([&] { return footer(browser, "right footer"); },
                   std::string("Stopping... (Escape: don't wait)"));
    display().press_key("Escape");
    expect_awaited(left, std::string("Not waited for any longer"));
    display().click(browser.find({"push button", "BM"}).place());
    const Accessible item = browser.find({"menu item", "alive"});
    ASSERT_TRUE(wait_until([&] { return item.showing(); })) << browser.tree();
    display().click(item.place());
    expect_awaited(left, std::string("Number of files displayed: 1"));
    EXPECT_EQ(field(browser, "Directory:"), home_ / "alive");
    // While the dead one is asked for again, the list answers keys.
    ASSERT_TRUE(browser.find({"text", "Directory:"}).set_text((home_ / "dead").string()));
    ASSERT_TRUE(focus(browser, "Directory:"));
    display().press_key("Return");
    display().click(browser.find({"list item", "file"}).place());
    expect_awaited([&] { return field(browser, "File Name:"); }, std::string("file"));
    display().press_key("Up");
    expect_awaited([&] { return field(browser, "File Name:"); }, std::string(".."));
    EXPECT_EQ(left(), "");
}  // the program ends in time

}  // namespace
