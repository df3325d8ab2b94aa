// SPDX-License-Identifier: MIT
#include "browsers/browser_work.h"
#include "browsers/listing.h"
#include "browsers/notify.h"
#include "tests/browsers/file_list_windows.h"
#include "tests/support/other_process.h"
#include "ui/clearcase_setup.h"
#include "ui/default_settings.h"
#include "ui/file_status.h"
#include "ui/generate_file_list.h"

#include <future>
#include <tuple>

#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

const std::string up = "../ (Go up 1 directory level)";
const Rows whole{up, "sub/", "Beta.c", "alpha", "notes.txt"};

TEST_F(FileListWindows, ListsWhatItsFieldAndButtonsName) {
    setenv("LISTED", directory().c_str(), 1);
    setenv("EMPTY", "", 1);
    fs::create_directory(home / "$LISTED");
    const std::string fifo = home / "fifo";
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    const std::tuple<std::string, std::string, std::string> typed_directories[] = {
        {"", "Directory not defined", ""},
        {"$EMPTY", "Illegal file name", "$EMPTY"},
        {"$LISTED", "", directory()},
        {fifo, "Can't open directory", fifo},
        {directory() + "/sub/..", "", directory() + "/sub/.."},
    };
    for (const auto& [text, footer, shown] : typed_directories) {
        name("old");
        EXPECT_EQ(list(text), footer) << text;
        EXPECT_EQ(browser().directory.text(), shown);
        EXPECT_EQ(browser().file_name.text(), footer.empty() ? "" : "old");
    }
    EXPECT_EQ(rows(), whole);
    EXPECT_EQ(browser().right_footer(), "Number of files displayed: 4");
    home_dir = "";
    for (const auto& [button, footer] : {std::pair{"home", "Home directory not specified"},
                                         {"config spec", "Config spec directory not specified"},
                                         {"current", "Current directory not specified"}}) {
        EXPECT_EQ(press(button), footer);
    }
    home_dir = fifo;
    clearcase_setup().config_spec_directory.set_text("$LISTED/sub");
    main_window().cwd.set_text(fifo);
    EXPECT_EQ(press("home"), "Can't set home directory");
    EXPECT_EQ(press("current"), "Can't set current directory");
    EXPECT_EQ(rows(), whole);
    EXPECT_EQ(press("config spec"), "");
    EXPECT_EQ(rows(), (Rows{up, "inner"}));
    EXPECT_EQ(choose_file("Get Directory"), "No selection made or selection too long");
    set_selection(fifo);
    EXPECT_EQ(choose_file("Get Directory"), "Can't set directory");
    set_selection("$LISTED");
    EXPECT_EQ(choose_file("Get Directory"), "");
    EXPECT_EQ(rows(), whole);
}

TEST_F(FileListWindows, FiltersAndShowsAllAgain) {
    FileListBrowser& window = browser();
    EXPECT_EQ(press("Filter"), "Directory not defined");
    EXPECT_EQ(press("Display All"), "Directory not defined");
    ASSERT_EQ(list(directory()), "");
    const std::tuple<unsigned, std::string, std::string, std::string, Rows, std::string> cases[] = {
        {1, "", "x", "Start string not defined", whole, "4"},
        {2, "x", "", "Text string not defined", whole, "4"},
        {3, "A", "PH", "", {up, "alpha"}, "1"},
        {0, "", "", "No filter set. All files will be displayed", whole, "6"},
        {1, "none", "", "No matching files found", {}, ""},
    };
    for (const auto& [mode, start, text, footer, expected, count] : cases) {
        window.display_files.set_value(mode);
        window.start_string.set_text(start);
        window.text_string.set_text(text);
        EXPECT_EQ(press("Filter"), footer) << mode << start;
        EXPECT_EQ(rows(), expected);
        EXPECT_EQ(window.right_footer(), count.empty() ? "" : "Number of files displayed: " + count);
    }
    window.start_string.set_text("n");
    EXPECT_EQ(press("Filter"), "");
    home.write("list/new", "");
    EXPECT_EQ(press_key(Qt::Key_F5), "");
    EXPECT_EQ(rows(), (Rows{up, "new", "notes.txt"}));
    EXPECT_EQ(press("Display All"), "");
    EXPECT_EQ(rows().size(), whole.size() + 1);
    for (int i = 0; i < 9994; ++i) {
        home.write("list/f" + std::to_string(i), "");
    }
    EXPECT_EQ(press("Display All"), "To many files");
    EXPECT_EQ(rows(), Rows{});
    EXPECT_EQ(window.right_footer(), "");
}

TEST_F(FileListWindows, OpensRowsByDoubleClickAndKeys) {
    browser().open();
    ASSERT_EQ(list(directory()), "");
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, place_of(3));
    EXPECT_EQ(browser().file_name.text(), "alpha");
    EXPECT_EQ(file_status().file_name.text(), directory() + "/alpha");
    EXPECT_EQ(board_after([] { EXPECT_EQ(double_click(2), ""); }),
              editor() + " " + directory() + "/Beta.c &\n");
    EXPECT_EQ(opened(), directory() + "/Beta.c|");
    EXPECT_EQ(press_key(Qt::Key_S), "");
    EXPECT_EQ(browser().file_name.text(), "sub/");
    EXPECT_EQ(press_key(Qt::Key_Return), "");
    EXPECT_EQ(browser().directory.text(), directory() + "/sub");
    EXPECT_EQ(double_click(0), "");
    EXPECT_EQ(browser().directory.text(), directory());
    EXPECT_EQ(press_key(Qt::Key_Backspace), "");
    EXPECT_EQ(browser().directory.text(), home.path().string());
    EXPECT_EQ(browser().list.selected(), std::nullopt);
    EXPECT_EQ(press_key(Qt::Key_Return), "");  // where it came from
    EXPECT_EQ(browser().directory.text(), directory());
    home.write("list/..notes", "");
    ASSERT_EQ(list(directory()), "");
    EXPECT_EQ(double_click(2), "");
    EXPECT_EQ(browser().directory.text(), home.path().string()) << "a name with two dots goes up";
    ASSERT_EQ(list("/usr"), "");
    EXPECT_EQ(double_click(0), "Can't open directory");
    EXPECT_EQ(browser().directory.text(), "");
    EXPECT_EQ(press_key(Qt::Key_Backspace), "Directory not defined");
    ASSERT_EQ(list("/usr"), "");
    EXPECT_EQ(press_key(Qt::Key_Backspace), "");
    EXPECT_EQ(browser().directory.text(), "/");
    text_editor_setup().user_editor.set_text("");
    name("kept");
    EXPECT_EQ(press_key(Qt::Key_Down), "User editor not specified");
    EXPECT_EQ(browser().file_name.text(), "kept");
    EXPECT_EQ(file_status().file_name.text(), "");
}

TEST_F(FileListWindows, FindsRows) {
    FileListBrowser& window = browser();
    EXPECT_EQ(press("Find"), "Search text not specified");
    window.text.set_text("a");
    EXPECT_EQ(press("Next"), "Directory empty");
    ASSERT_EQ(list(directory()), "");
    EXPECT_EQ(press("Next"), "No row selected. Select a start row or use Find button.");
    constexpr int beginning = 0;
    constexpr int anywhere = 1;
    constexpr int end = 2;
    const std::tuple<int, int, const char*, const char*, std::string, std::string> cases[] = {
        {anywhere, 0, "Find", "ETA", "beta.c", ""},
        {anywhere, 0, "Next", "T", "notes.txt", ""},
        {anywhere, 0, "Next", "T", "notes.txt", "End of list"},
        {anywhere, 1, "Find", "T", "", "Search unsuccessful"},
        {beginning, 1, "Find", "B", "Beta.c", ""},
        {end, 0, "Find", "SUB", "", "Search unsuccessful"},
        {end, 0, "Find", "sub/", "sub/", ""},
        {beginning, 0, "Find", "../ (GO", "../ (go up 1 directory level)", ""},
    };
    for (const auto& [at, with_case, button, text, found, footer] : cases) {
        window.search.set_value(at);
        window.case_find.set_value(with_case);
        window.text.set_text(text);
        EXPECT_EQ(press(button), footer) << text;
        EXPECT_EQ(window.file_name.text(), found) << text;
        EXPECT_EQ(window.right_footer(), "");
    }
    // What has been found in lower case is the row's file, unless there is one of that name.
    window.text.set_text("beta");
    EXPECT_EQ(press("Find"), "");
    EXPECT_EQ(choose_file("Select"), "");
    EXPECT_EQ(window.selected.text(), directory() + "/Beta.c");
    home.write("list/beta.c", "");
    EXPECT_EQ(choose_file("Select"), "");
    EXPECT_EQ(window.selected.text(), directory() + "/beta.c");
}

TEST_F(FileListWindows, ActsOnItsFile) {
    home.write("list/a 'b';$(c)", "1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n");
    ASSERT_EQ(mkfifo((home / "list/fifo").c_str(), 0600), 0);
    setenv("OPENPDF", "viewer", 1);
    unsetenv("OPENHTML");
    setenv("OPENFRAME", "true", 1);
    const std::string path = directory() + "/a 'b';$(c)";
    const std::string quoted = "'" + directory() + "/a '\\''b'\\'';$(c)'";
    default_settings().print_command.set_text("true $FILE_NAME $PATH_NAME $PATH_NAME");
    const struct {
        const char* action;
        std::string file;
        std::string footer;
        std::string typed;
        std::string board;
    } cases[] = {
        {"Execute", "", "File name not defined"},
        {"Execute", path, "", quoted + "\n"},
        {"edit", "", "File name not defined"},
        {"document", "alpha", "", "", "$OPENFRAME " + directory() + "/alpha &\n"},
        {"print", "alpha", "", "", "true alpha " + directory() + "/alpha $PATH_NAME&\n"},
        {"copy to working", path, "", "cp " + quoted + " .\n"},
        {"copy to working", "sub", "Not a file"},
        {"copy to working", "none", "Illegal file"},
        {"cd", "sub/", "", "cd " + directory() + "/sub/\n"},
        {"cd", "alpha", "Not a directory"},
        {"cd", "none", "Illegal directory"},
        {"head", "none", "Illegal file"},
        {"head", "fifo", "Not a regular file"},
        {"head", path, "", "", " \n\n" + path + " \n\n1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n"},
        {"permissions", "", "File name not defined"},
        {"bookmark", "fifo", "Illegal file"},
        {"bookmark", "alpha", ""},
        {"Set Directory", "", "", "cd " + directory() + "\n"},
        {"Open PDF", path, "", "$OPENPDF " + quoted + "\n"},
        {"Open HTML", path, "Environment variable OPENHTML is not set"},
        {"Copy Remote", "", "Destination file name not defined"},
        {"Copy Remote", "alpha", ""},
    };
    const auto act = [](const std::string& action) {
        for (const std::string& item : lines(browser().file_menu.menu())) {
            if (item == action) {
                return choose_file(action.c_str());
            }
        }
        return press(action.c_str());
    };
    for (const auto& row : cases) {
        const std::string shown = row.file.substr(row.file == path ? directory().size() + 1 : 0);
        browser().directory.set_text("");
        name(shown);
        EXPECT_NE(act(row.action).find("irectory"), std::string::npos) << row.action;
        browser().directory.set_text(directory());
        EXPECT_EQ(board_after([&] { EXPECT_EQ(act(row.action), row.footer) << row.action << shown; }),
                  row.board)
            << row.action;
        EXPECT_EQ(typed(), row.typed) << row.action << shown;
    }
}

TEST_F(FileListWindows, CopiesRenamesAndRemoves) {
    FileListBrowser& window = browser();
    window.open();
    ASSERT_EQ(list(directory()), "");
    fs::create_directory_symlink("sub", home / "list/link");
    fs::create_symlink("nowhere", home / "list/dangling");
    const std::string odd = "odd\n\xff";
    home.write("list/" + odd, "odd");
    name("new");
    EXPECT_EQ(choose_file("Copy"), "Source file name not defined");
    EXPECT_EQ(choose_file("Rename"), "Source file name not defined");
    const struct {
        const char* item;
        std::string source;
        std::string file;
        const char* answer;
        std::string footer;
        std::string question;
    } cases[] = {
        {"Copy", "alpha", "copy", nullptr, "", ""},
        {"Copy", "alpha", "Beta.c", "Cancel", "", "File exists. Overwrite it ?"},
        {"Copy", "alpha", "Beta.c", "Yes", "", "File exists. Overwrite it ?"},
        {"Copy", "alpha", "sub", nullptr, "File not copied", ""},
        {"Copy", "sub", "new", nullptr, "File not copied", ""},
        {"Copy", "alpha", "alpha", "Yes", "File not copied", "File exists. Overwrite it ?"},
        {"Rename", "alpha", "Beta.c", nullptr, "File already exists.", ""},
        {"Rename", "alpha", "dangling", nullptr, "File already exists.", ""},
        {"Rename", "none", "new", nullptr, "File not renamed", ""},
        {"Rename", "alpha", "new", nullptr, "", ""},
        {"Remove", "", "copy", "Cancel", "", "Remove file ?"},
        {"Remove", "", "copy", "Yes", "", "Remove file ?"},
        {"Remove", "", "sub/", "Yes", "File not deleted", "Remove file ?"},
        {"Remove", "", "..", "Yes", "File not deleted", "Remove file ?"},
        {"Remove", "", "link/", "Yes", "", "Remove file ?"},
    };
    for (const auto& row : cases) {
        window.selected.set_text(directory() + "/" + row.source);
        name(row.file);
        if (row.answer != nullptr) {
            answer(row.answer);
        }
        EXPECT_EQ(choose_file(row.item), row.footer) << row.item << row.file;
        EXPECT_EQ(asked.value_or(""),
                  row.question.empty() ? "" : row.question + "|" + directory() + "/" + row.file);
        asked.reset();
    }
    EXPECT_EQ(rows(), (Rows{up, "sub/", "Beta.c", "new", "notes.txt", odd}));
    EXPECT_EQ(read_file(home / "list/Beta.c"), "list/alpha\n");
    EXPECT_EQ(read_file(home / "list/sub/inner"), "list/sub/inner\n");
    // A name of any bytes, by keys: F2 takes it over for "Rename", Delete removes it.
    QTest::keyClick(&view(), Qt::Key_Home);
    QTest::keyClick(&view(), Qt::Key_End);
    EXPECT_EQ(window.file_name.text(), odd);
    EXPECT_EQ(control<QLineEdit>(window, "File Name:").text().left(4), QString::fromUtf8("odd\u240a"));
    EXPECT_EQ(press_key(Qt::Key_F2), "");
    EXPECT_EQ(window.selected.text(), directory() + "/" + odd);
    name("even");
    EXPECT_EQ(choose_file("Rename"), "");
    EXPECT_EQ(rows(), (Rows{up, "sub/", "Beta.c", "even", "new", "notes.txt"}));
    window.list.select(3);
    name("even");
    fs::rename(home / "list/even", home / "list/gone");
    answer("Yes");
    EXPECT_EQ(press_key(Qt::Key_Delete), "File not deleted");
    EXPECT_TRUE(fs::exists(home / "list/gone"));
}

TEST_F(FileListWindows, WritesFileLists) {
    GenerateFileList& window = generate_file_list();
    choose_file("Generate File List");
    EXPECT_TRUE(window.shown());
    const auto run = [&](const char* button) {
        control<QAbstractButton>(window, button).click();
        EXPECT_TRUE(wait([&] { return window.widget()->findChild<QObject*>("long work") == nullptr; }));
        return window.left_footer();
    };
    window.file_name.set_text("");
    EXPECT_EQ(run("Run"), "File name not specified");
    window.file_name.set_text("$HOME/out");
    setenv("HOME", home.path().c_str(), 1);
    EXPECT_EQ(run("Run"), "Directory name not specified");
    browser().open();
    ASSERT_EQ(list(directory()), "");
    fs::remove(home / "list/alpha");
    constexpr int all = 0;
    constexpr int regular = 1;
    constexpr int directories = 2;
    const std::string d = directory() + "/";
    for (const auto& [kinds, text] : {std::pair{all, d + "sub/\n" + d + "Beta.c\n" + d + "notes.txt\n"},
                                      {regular, d + "Beta.c\n" + d + "notes.txt\n"},
                                      {directories, d + "sub/\n"}}) {
        window.select.set_value(kinds);
        EXPECT_EQ(run("Run"), "");
        EXPECT_EQ(read_file(home / "out"), text);
    }
    window.select.set_value(all);
    view().setFocus();
    control<QAbstractButton>(window, "Selected").click();
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, place_of(0));
    QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::ControlModifier, place_of(4));
    QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::ControlModifier, place_of(1));
    EXPECT_EQ(run("Run"), "");
    EXPECT_EQ(read_file(home / "out"), d + "sub/\n" + d + "notes.txt\n");
    QTest::keyClick(&view(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(browser().list.selected_rows().size(), whole.size());
    control<QAbstractButton>(window, "Full List").click();
    EXPECT_EQ(browser().list.selected(), std::nullopt);
    home.write("list/two\nlines", "");
    ASSERT_EQ(list(directory()), "");
    EXPECT_EQ(run("Run"), "Left out, since their names hold line feeds: 1");
    EXPECT_EQ(run("Edit"), "");
    EXPECT_EQ(opened(), (home / "out").string() + "|");
    window.file_name.set_text(directory());
    EXPECT_EQ(run("Run"), "Couldn't open output file");
}

TEST_F(FileListWindows, NothingTakesThePlaceOfACopy) {
    ASSERT_EQ(list(directory()), "");
    std::promise<void> disk;
    const std::shared_future<void> answer = disk.get_future().share();
    start_work(
        browser(), copied_bytes,
        [=](Progress& /*progress*/) {
            answer.wait();
            return true;
        },
        [](bool) { browser().set_left_footer("copied"); });
    QTest::keyClick(&view(), Qt::Key_F5);
    EXPECT_EQ(browser().left_footer(), "A file is being copied. Escape stops it.");
    EXPECT_EQ(after([&] { disk.set_value(); }), "copied");
}

TEST_F(FileListWindows, ShowsColumnsAndItsMenuAtTheRow) {
    browser().open();
    ASSERT_EQ(list(directory()), "");
    QMenu* menu = browser().list.context_menu().widget();
    QTest::mouseClick(view().viewport(), Qt::RightButton, {}, place_of(3));
    QContextMenuEvent event(QContextMenuEvent::Mouse, place_of(3),
                            view().viewport()->mapToGlobal(place_of(3)));
    QApplication::sendEvent(view().viewport(), &event);
    EXPECT_TRUE(menu->isVisible());
    EXPECT_EQ(browser().file_name.text(), "alpha");
    EXPECT_EQ(lines(browser().list.context_menu()).back(), "Columns");
    menu->close();
    const auto dark_at_right = [] {
        const QImage image = view().viewport()->grab().toImage();
        const QRect row = view().visualRect(view().model()->index(2, 0));
        int dark = 0;
        for (int x = image.width() - 150; x < image.width(); ++x) {
            for (int y = row.top(); y < row.bottom(); ++y) {
                dark += image.pixelColor(x, y).lightness() < 128 ? 1 : 0;
            }
        }
        return dark;
    };
    EXPECT_EQ(dark_at_right(), 0);
    FileListColumn("Time");
    EXPECT_GT(dark_at_right(), 0);
    FileListColumnMenu();
    EXPECT_TRUE(browser().columns->widget()->actions().back()->isChecked());
    EXPECT_EQ(view().model()->index(2, 0).data(Qt::AccessibleTextRole).toString(), "Beta.c");
    FileListColumn("Time");
    EXPECT_EQ(dark_at_right(), 0);
}

}  // namespace
