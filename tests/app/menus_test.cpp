// SPDX-License-Identifier: MIT
// The fixed menus: their items, and that none is dead.
#include "tests/support/notice_answerer.h"
#include "tests/support/recorded_windows.h"
#include "ui/file_list_browser.h"
#include "ui/file_tree_browser.h"
#include "ui/message_board.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>

namespace {

using Labels = std::vector<std::string>;

const std::string line(20, '-');

struct Case {
    const char* name;
    Menu& (*menu)();
    std::string title;
    Labels labels;  ///< headings end in ":"
};

std::ostream& operator<<(std::ostream& out, const Case& row) { return out << row.name; }

const std::vector<Case> cases{
    {"Help",
     []() -> Menu& { return main_window().help_menu.menu(); },
     "Help",
     {"To Get Started", "About", "User Guide", "Buttons"}},
    {"Setup",
     []() -> Menu& { return main_window().setup_menu.menu(); },
     "Setup",
     {"Save Setup", "Bookmarks", "ClearCase", "Command List", "Command History", "Default Settings",
      "Environment", "Label", "Process", "Remote Hosts", "Status Display", "Text Editor", "User Buttons"}},
    {"Browse",
     []() -> Menu& { return main_window().browse_menu.menu(); },
     "Browse",
     {"File Tree", "File Tree Full Size", "File List", "Command History", "Message Board", "Notebook"}},
    {"Edit",
     []() -> Menu& { return main_window().edit_menu.menu(); },
     "Edit",
     {"Setup", "Current", "Home", "Startup"}},
    {"User",
     []() -> Menu& { return main_window().user_menu.menu(); },
     "User Definitions",
     {"Edit", "Update"}},
    {"FileOperations",
     []() -> Menu& { return file_list_browser().file_menu.menu(); },
     "File Operations",
     {"Set Directory", "Get Directory", "Generate File List", "Remove", "Select", "Copy Remote", "Copy",
      "Rename", "Open PDF", "Open HTML"}},
    {"Load", []() -> Menu& { return file_list_browser().load_menu.menu(); }, "Load", {"Command", "Setup"}},
    {"ListClearCase",
     []() -> Menu& { return file_list_browser().clearcase_menu.menu(); },
     "",
     {"Set Config Spec", "Checkin", "Checkout", "History", "List FIles", "Make Element", "Remove Element",
      "Uncheckout"}},
    {"SelectRoot",
     []() -> Menu& { return file_tree_browser().select_menu.menu(); },
     "Select Root",
     {"Current", "Parent", "Selected", "Home"}},
    {"ClearCase",
     []() -> Menu& { return file_tree_browser().clearcase_menu.menu(); },
     "ClearCase",
     {"Display Config Spec",
      "Set Config Spec",
      "Set Default Config Spec",
      "Checkin",
      "Checkout",
      "Copy Files to Vob",
      "History",
      "List Files",
      "List All Files",
      "List Checkout (All)",
      "List Checkout (Mine)",
      "List Private",
      "Make Directory",
      "Make Element",
      "Make Element (No comment)",
      "Move File",
      "Remove Element",
      "Rename File",
      "Set Label",
      "Uncheckout"}},
    {"Subversion",
     []() -> Menu& { return file_tree_browser().subversion_menu.menu(); },
     "",
     {"Add", "Branch/Tag", "Checkout", "Commit", "Copy", "Delete", "Diff", "Log", "Move", "Revert",
      "Status (Changes)", "Status (All)", "Update"}},
    {"Options",
     []() -> Menu& { return file_tree_browser().canvas.menu(); },
     "Options",
     {"File Operations :",
      "Compare",
      "Concatenate",
      "Copy",
      "Copy Remote",
      "Copy and Rename",
      "Copy from File List",
      "Copy to Selected",
      "Copy to Working",
      "Header",
      "Link (Symbolic)",
      "List",
      "Move",
      "Move to working",
      "New",
      "Open HTML File",
      "Open JPG File",
      "Open PDF File",
      "Open in Open Office",
      "Print",
      "Rename",
      "Remove",
      "Replace",
      "Run Mac Program",
      "Run Linux Program",
      "Execute Unix Command",
      line,
      "Directory Operations :",
      "Copy to Working",
      "Move to Working",
      "New",
      "Rename",
      "Remove",
      line,
      "Auxiliary Operations :",
      "Bookmark",
      "Clear Branch",
      "File Status",
      "Pack/Unpack File(s)",
      "Select Files",
      "Set New Root"}},
    {"More",
     []() -> Menu& { return file_tree_browser().more_menu.menu(); },
     "More",
     {"Edit", "Page", "Compare (diff)", "Link (Hard)", "Open FrameMaker File", "Open SGML File",
      "Open in Zebra", "Set Directory", "Set Parent Root", "Terminal Here", line, "Send Email",
      "Remote File Transfer", "Copy to Public", "USB Memory", "Browser Setup"}},
};

/// Without the mark of its mnemonic.
std::string label_of(const QAction* action) {
    QString text = action->text();
    return from_qstring(text.remove(u'&'));
}

class Menus : public RecordedWindows, protected NoticeAnswerer, public testing::WithParamInterface<Case> {
  protected:
    /// All that its user may see of the windows.
    static std::string looks() {
        std::string all = message_board().text.text();
        for (const Frame* window : all_windows()) {
            all += window->shown() ? "shown\n" : "\n";
            for (const QLabel* text : window->widget()->findChildren<QLabel*>()) {
                all += from_qstring(text->text()) + '\n';
            }
            for (const QLineEdit* text : window->widget()->findChildren<QLineEdit*>()) {
                all += from_qstring(text->text()) + '\n';
            }
        }
        return all;
    }
    static void put_away() {
        for (Frame* window : all_windows()) {
            window->set_left_footer("");
            if (window != &Frame::base()) {
                window->hide();
            }
        }
    }
};

TEST_P(Menus, HaveTheirItems) {
    QList<QAction*> actions = GetParam().menu().widget()->actions();
    if (!GetParam().title.empty()) {
        EXPECT_EQ(label_of(actions.takeFirst()), GetParam().title);
    }
    Labels labels;
    for (const QAction* action : actions) {
        labels.push_back(label_of(action));
        const bool is_heading = labels.back() == line || labels.back().ends_with(':');
        EXPECT_EQ(action->isSeparator(), is_heading) << labels.back();
    }
    EXPECT_EQ(labels, GetParam().labels);
}

TEST_P(Menus, HaveNoDeadItem) {
    for (QAction* action : GetParam().menu().widget()->actions()) {
        if (action->isSeparator() || action->menu() != nullptr) {
            continue;
        }
        put_away();
        answer("Cancel");
        const std::string before = looks();
        action->trigger();
        const bool shows = looks() != before;
        const bool types = !typed().empty();  // asked each time, or it would be taken for the next item's
        EXPECT_TRUE(asked || shows || types) << label_of(action);
    }
}

INSTANTIATE_TEST_SUITE_P(All, Menus, testing::ValuesIn(cases),
                         [](const testing::TestParamInfo<Case>& row) { return std::string(row.param.name); });

}  // namespace
