// SPDX-License-Identifier: MIT
#include "browsers/file_status.h"

#include "browsers/notify.h"
#include "tests/support/recorded_windows.h"
#include "ui/file_list_browser.h"
#include "ui/file_status.h"

#include <QLabel>

#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

class FileStatusTest : public RecordedWindows {
  protected:
    static PermissionBoxes boxes() {
        const FileStatus& window = file_status();
        return {window.owner.value(), window.group.value(), window.world.value()};
    }
    static void set_boxes(const PermissionBoxes& boxes) {
        file_status().owner.set_value(boxes.owner);
        file_status().group.set_value(boxes.group);
        file_status().world.set_value(boxes.world);
    }
    /// What a message line shows.
    static std::string line(const char* label) {
        for (const QLabel* text : file_status().widget()->findChildren<QLabel*>()) {
            if (text->accessibleDescription() == QLatin1String(label)) {
                return from_qstring(text->text());
            }
        }
        return "none";
    }
    mode_t mode(const char* name) const {
        struct stat status {};
        EXPECT_EQ(stat((home / name).c_str(), &status), 0);
        return status.st_mode & 07777;
    }
};

TEST_F(FileStatusTest, IsShownAndClearedAndLeftAsItIs) {
    const std::string path = home.write("a\nb", "12");
    chmod(path.c_str(), 0754);
    show_file_status(file_list_browser(), path, "a\nb");
    EXPECT_TRUE(wait([] { return boxes() == PermissionBoxes{7, 5, 1}; }));
    EXPECT_EQ(file_status().file_name.text(), path);
    EXPECT_EQ(line("File Name"), "File name       : a\u240ab");
    EXPECT_EQ(line("File Size"), "File size         : 2");
    show_file_status(file_list_browser(), home / "none", "none");
    EXPECT_TRUE(wait([] { return file_list_browser().left_footer() == "Illegal file"; }));
    EXPECT_EQ(boxes(), (PermissionBoxes{7, 5, 1}));
    EXPECT_EQ(line("File Size"), "File size         : 2");
    ClearFileStatus();
    EXPECT_EQ(boxes(), PermissionBoxes{});
    EXPECT_EQ(line("Status Changed"), "Status changed : ");
}

TEST_F(FileStatusTest, PermissionsAreSetOrRefused) {
    home.write("file", "");
    EXPECT_EQ(Set_permissions(), "No file selected");
    const struct {
        std::string path;
        PermissionBoxes boxes;
        std::string footer;
        PermissionBoxes boxes_then;
    } cases[] = {
        {home / "file", {3, 1, 0}, "Permissions changed", {3, 1, 0}},
        {home / "none", {7, 7, 7}, "Couldn't change permissions", {7, 7, 7}},
        {"/proc/self/stat", {7, 7, 7}, "Couldn't change permissions", {1, 1, 1}},
    };
    for (const auto& row : cases) {
        file_status().file_name.set_text(row.path);
        set_boxes(row.boxes);
        (void)Set_permissions();
        EXPECT_TRUE(wait([&] { return file_status().left_footer() == row.footer; })) << row.path;
        EXPECT_EQ(boxes(), row.boxes_then) << row.path;
    }
    EXPECT_EQ(mode("file"), 0640U);
}

TEST_F(FileStatusTest, PermissionsInVersionControlAreTyped) {
    file_status().file_system.set_value(FileStatus::clearcase_vob);
    set_boxes({7, 5, 1});
    file_status().file_name.set_text("/v/a b");
    EXPECT_EQ(Set_permissions(), "");
    EXPECT_EQ(typed(), "cleartool protect -chmod 754 '/v/a b'\n");
}

}  // namespace
