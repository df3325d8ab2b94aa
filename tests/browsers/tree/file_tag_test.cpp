// SPDX-License-Identifier: MIT
#include "browsers/tree/file_tag.h"

#include "browsers/tree/centring.h"
#include "browsers/tree/trace.h"

#include <cerrno>
#include <cstdlib>
#include <ctime>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using Lines = std::vector<std::string>;

/// Stands for a node: only its address counts.
TreeNode* node_number(std::uintptr_t number) { return reinterpret_cast<TreeNode*>(number); }

TEST(FileTag, KnowsItsPathByTheNodeAbove) {
    FileTag root("src", "/home/src", nullptr, {});
    root.group = 7;
    FileTag child("a.c", "", &root, {});
    const FileTag grandchild("x", "", &child, {});
    const FileTag elsewhere("b", "/tmp/b", &root, {});
    EXPECT_EQ(grandchild.path(), "/home/src/a.c/x");
    EXPECT_EQ(elsewhere.path(), "/tmp/b");
    EXPECT_EQ(FileTag("usr", "", std::make_unique<FileTag>("/", "/", nullptr, FileGlance{}).get(), {}).path(),
              "/usr");
    EXPECT_EQ(child.group, 7);
}

TEST(FileTag, TellsWhatWasSeen) {
    setenv("TZ", "UTC", 1);
    tzset();
    const FileTag file("a", "/a", nullptr, {.mode = S_IFREG, .size = 12, .link_target = "b"});
    EXPECT_EQ(file.tool_tip(), (Lines{"/a", "-> b", "Regular, 12 bytes, 1970-01-01  00:00:00"}));
    const FileTag directory("d", "/d", nullptr, {.mode = S_IFDIR, .size = 1, .read_error = EACCES});
    EXPECT_EQ(directory.tool_tip(),
              (Lines{"/d", "Directory, 1 bytes, 1970-01-01  00:00:00", "Cannot be read: Permission denied"}));
}

TEST(Trace, KeepsTheWayBackOfAHundredSteps) {
    std::vector<std::unique_ptr<FileTag>> tags;
    const auto reference = [&tags](std::uintptr_t number) {
        tags.push_back(std::make_unique<FileTag>("n", "/n", nullptr, FileGlance{}));
        return NodeReference(*tags.back(), node_number(number));
    };
    Trace trace;
    EXPECT_TRUE(trace.at_end());
    trace.begin(reference(1));
    for (std::uintptr_t step = 2; step <= 101; ++step) {
        EXPECT_TRUE(trace.step_back(reference(step))) << step;
    }
    EXPECT_FALSE(trace.step_back(reference(102)));
    EXPECT_EQ(trace.next().node(), node_number(100));
    trace.step_forward();
    EXPECT_EQ(trace.next().node(), node_number(99));
    tags.clear();  // with the nodes
    EXPECT_EQ(trace.next().node(), nullptr);
    trace.begin({});
    EXPECT_TRUE(trace.at_end());
}

TEST(Centring, KeepsToWhatThereIs) {
    // A bar of 100 units, of which 20 are seen.
    const TreeCanvas::Scrolling bar{
        .pixels_per_unit = 10, .view_start = 5, .view_length = 20, .object_length = 100};
    EXPECT_EQ(centred_start(500, bar, 10), 40);
    EXPECT_EQ(centred_start(50, bar, 10), 0);
    EXPECT_EQ(centred_start(995, bar, 10), 89);  // the upper limit is one of pixels: the bar's own is 80
    EXPECT_EQ(centred_start(95, {.view_start = 0, .view_length = 20, .object_length = 100}, 1), 80);
    EXPECT_EQ(stepped_start(bar, 40), 45);
    EXPECT_EQ(stepped_start(bar, 400), 80);
    EXPECT_EQ(stepped_start(bar, -400), 0);
}

}  // namespace
