// SPDX-License-Identifier: MIT
// Starts the program, works with it as its user would, and takes pictures of what is seen.
// usage: tour PROGRAM FOLDER [OPTION]...
#include "tests/drive/program.h"
#include "tests/support/scratch_directory.h"
#include "tests/support/setup_text.h"
#include "tests/support/wait_until.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace {

namespace fs = std::filesystem;

constexpr const char* make_repository = R"(set -e
git init -q -b main src && cd src
git config user.name Dev && git config user.email dev@example.org && git config commit.gpgsign false
mkdir include docs && printf '# Greeter\n' >README.md && printf 'all:\n\tc++ -o greet greet.cpp\n' >Makefile
printf '#!/bin/sh\n' >build.sh && chmod +x build.sh && ln -s README.md docs/index.md
git add . && git commit -qm 'Begin'
printf '#include <iostream>\n\n// Greets whoever is named.\nint main(int argc, char** argv) {\n' >greet.cpp
printf '    const char* name = argc > 1 ? argv[1] : "world";\n    std::cout << "Hello, " << name << "\\n";\n}\n' >>greet.cpp
git add . && git commit -qm 'Greet the world'
git checkout -qb names && printf 'Names may be given.\n' >>README.md && git commit -qam 'Say that names may be given'
git checkout -q main && printf 'clean:\n\trm -f greet\n' >>Makefile && git commit -qam 'Clean up'
git merge -q --no-edit names && sed 's/Hello/Good day/' greet.cpp >welcome.cpp
)";

/// What a user might have saved, by the setup file's lines.
const std::map<int, std::string> settings{
    {8, "lp $PATH_NAME"},
    {9, "ls -aF"},
    {15, "1"},  // command line editing
    {19, "Status"},
    {20, "Log"},
    {21, "Diff"},
    {22, "Build"},
    {23, "Find"},
    {24, "Edit"},
    {25, "git status"},
    {26, "git log --oneline"},
    {27, "git diff"},
    {28, "make"},
    {29, "grep -rn '$$$' ."},
    {30, "vi '$$$'"},
    {31, "1"},  // the user buttons are shown
    {32, "$ORVIK_HOME/examples/commands"},
    {33, "1"},
    {34, "560"},
    {35, "3"},
    {37, "20"},
    {38, "1"},
    {43, "git pull"},
    {52, "$ORVIK_HOME/examples/orvik-bookmarks"},
    {50, "14"},  // host, process and user in the footer
    {55, "1"},
    {56, "$"},  // the prompt's last character
    {58, "notebook.txt"},
    {60, "messageboard.txt"},
    {54, "1"},  // the tree's letters: small
    {62, "6"},
    {63, "gvim"},
    {64, "500"},  // the most files that the tree shows of a directory
    {80, "lp"},
};

struct Stop {
    const char* menu;
    const char* item;
    const char* title;
    const char* picture;
};

constexpr std::array stops{
    Stop{"Help", "To Get Started", "Help", "help-to-get-started"},
    Stop{"Help", "User Guide", "Help", "help-user-guide"},
    Stop{"Help", "Buttons", "Help", "help-buttons"},
    Stop{"Help", "About", "About", "about"},
    Stop{"Setup", "Default Settings", "Default Settings", "default-settings"},
    Stop{"Setup", "Command History", "Command History Setup", "command-history-setup"},
    Stop{"Setup", "Environment", "Environment Setup Window", "environment"},
    Stop{"Setup", "Text Editor", "Text Editor Setup", "text-editor"},
    Stop{"Setup", "User Buttons", "User Buttons", "user-buttons"},
    Stop{"Setup", "Status Display", "Status Display", "status-display"},
    Stop{"Setup", "Bookmarks", "Bookmarks", "bookmarks"},
    Stop{"Setup", "Command List", "Command List Setup", "command-list-setup"},
    Stop{"Browse", "Command History", "Command History Manager", "command-history"},
    Stop{"Browse", "Message Board", "Message Board", "message-board"},
    Stop{"Browse", "Notebook", "Notebook", "notebook"},
};

[[noreturn]] void give_up(const std::string& what) {
    std::fprintf(stderr, "tour: %s\n", what.c_str());
    std::exit(1);
}

class Tour {
  public:
    Tour(Program& program, fs::path folder) : program_(program), folder_(std::move(folder)) {}

    void wait_for_text(const std::string& text) {
        constexpr int screenful = 8000;
        const Accessible pane = program_.terminal();
        if (!wait_until([&] { return pane.last_text(screenful).find(text) != std::string::npos; })) {
            give_up("the terminal does not show \"" + text + "\"");
        }
    }
    void type(const std::string& text) {
        if (!program_.focus_terminal(display_)) {
            give_up("the terminal does not take the keyboard");
        }
        display_.type(text);
    }
    void wait_for_cwd(const std::string& directory) {
        const Accessible field = program_.main_window().find({"text", "Cwd:"});
        if (!wait_until([&] { return field.text() == directory; })) {
            give_up("\"Cwd:\" does not follow to " + directory);
        }
    }
    void show_popup(const Stop& stop) {
        if (!program_.open(display_, stop.menu, stop.item, stop.title)) {
            give_up(std::string("\"") + stop.title + "\" does not open");
        }
        take_window(stop.title, stop.picture);
        display_.press_key("Escape");
        if (!wait_until([&] { return !program_.shows(stop.title); })) {
            give_up(std::string("Escape does not close \"") + stop.title + "\"");
        }
    }
    /// A command line of the tool's waits for the editor, and is dropped.
    void show_waiting_lines() {
        const Accessible main = program_.main_window();
        const auto strip = [&] { return main.find({"panel", "waiting lines"}); };
        if (!main.find({"push button", "Status"}).press() || !wait_until([&] { return strip().showing(); })) {
            give_up("no command line waits for the editor");
        }
        take_main_window("waiting-lines");
        if (!strip().find({"push button", "Drop"}).press() ||
            !wait_until([&] { return !strip().showing(); })) {
            give_up("the command line is not dropped");
        }
    }
    /// Opens a window with a button of the main window, and leaves it open.
    void show_by_button(const std::string& button, const std::string& title, const std::string& picture) {
        if (!program_.main_window().find({"push button", button}).press() || !program_.window(title)) {
            give_up("\"" + title + "\" does not open");
        }
        take_window(title, picture);
    }
    /// A directory with size and time, and the menu at one of its rows.
    void show_file_list(const fs::path& directory, const std::string& row) {
        const std::string title = "File List Browser";
        const Accessible window = program_.open(display_, "Browse", "File List", title);
        const Accessible field = window.find({"text", "Directory:"});
        if (!field.set_text(directory.string()) || !field.take_focus()) {
            give_up("\"" + title + "\" takes no directory");
        }
        display_.press_key("Return");
        if (!wait_until([&] { return static_cast<bool>(window.find({"list item", row})); })) {
            give_up("\"" + title + "\" does not list " + row);
        }
        display_.click(window.find({"list item", row}).place());
        if (!wait_until([&] { return window.find({"text", "File Name:"}).text() == row; })) {
            give_up("\"" + title + "\" does not take " + row);
        }
        for (const auto& keys : {std::array{"Menu", "Up", "Right", "Return", ""},
                                 std::array{"Menu", "Up", "Right", "Down", "Return"}}) {
            press_keys(keys);
        }
        take_window(title, "file-list");
        press_keys(std::array{"Menu", "Up", "Right"});
        take_desktop("file-list-menu");
        press_keys(std::array{"Escape", "Escape", "Escape"});
    }
    /// The node with a label, with the keyboard at it.
    Accessible go_to_node(const std::string& label) {
        const Accessible canvas =
            program_.window("File Tree Browser").find({"tree", "File Tree Browser tree"});
        Accessible node;
        if (!wait_until([&] { return static_cast<bool>(node = canvas.find({"table cell", label})); })) {
            give_up("the tree does not show " + label);
        }
        if (!node.take_focus() || !wait_until([&] { return node.focused(); })) {
            give_up("the keyboard does not come to " + label);
        }
        return node;
    }
    /// Clicks on an item of a menu of the tree that is open.
    void choose_in_tree(const char* item) {
        const Accessible browser = program_.window("File Tree Browser");
        Accessible entry;
        if (!wait_until([&] { return (entry = browser.find({"menu item", item})).showing(); })) {
            give_up(std::string("the tree has no item \"") + item + "\"");
        }
        display_.click(entry.place());
    }
    /// Selects two files, opens the menu of what can be done with them, packs and compares them.
    void show_operations(const std::string& first, const std::string& second) {
        (void)go_to_node(first);
        display_.press_key("space");
        const Rectangle node = go_to_node(second).place();
        display_.press_key("space", "Control_L");
        display_.click(node, 3);
        take_desktop("tree-menu");
        choose_in_tree("Pack/Unpack File(s)");
        if (!program_.window("Pack / Unpack Using Tar")) {
            give_up("the window for packing does not open");
        }
        take_window("Pack / Unpack Using Tar", "pack");
        press_escape();
        display_.click(program_.window("File Tree Browser").find({"push button", "More"}).place());
        choose_in_tree("Compare (diff)");
        wait_for_text("! ");
        raise_main_window();
        take_main_window("compare");
    }
    void clear_tree() {
        if (!program_.window("File Tree Browser").find({"push button", "Clear All"}).press()) {
            give_up("the tree has no button \"Clear All\"");
        }
    }
    /// Draws a directory as a tree, opens directories in it one after the other, and selects what is named
    /// last.
    void show_tree(const std::string& root, const std::vector<std::string>& labels,
                   const std::string& picture) {
        const std::string title = "File Tree Browser";
        const Accessible browser = program_.open(display_, "Browse", "File Tree", title);
        if (!browser.find({"text", "Root Directory:"}).set_text(root) ||
            !browser.find({"push button", "Set Root (root directory)"}).press()) {
            give_up("\"Root Directory:\" does not take a root");
        }
        for (const std::string& label : labels) {
            (void)go_to_node(label);
            display_.press_key(label == labels.back() ? "space" : "Return");
        }
        std::this_thread::sleep_for(std::chrono::milliseconds{600});  // then the view is centred
        take_window(title, picture);
    }
    /// Plots the tree that is shown as PDF, and makes a picture of the page too.
    void plot_tree(const std::string& paper, const std::string& scale, const std::string& name) {
        const std::string title = "Plot Setup Window";
        if (!program_.window("File Tree Browser").find({"push button", "Plot"}).press()) {
            give_up("the tree has no button \"Plot\"");
        }
        const Accessible window = program_.window(title);
        const fs::path file = fs::absolute(folder_) / (name + ".pdf");
        fs::remove(file);
        if (!window.find({"radio button", "File"}).press() || !window.find({"radio button", paper}).press() ||
            !window.find({"radio button", scale}).press() ||
            !window.find({"text", "File Name:"}).set_text(file.string()) ||
            !window.find({"push button", "Plot"}).press() || !wait_until([&] { return fs::exists(file); })) {
            give_up("the tree is not plotted: " + window.tree());
        }
        take_window(title, "plot-setup");
        press_escape();
        run("pdftoppm -png -singlefile -r 96 '" + file.string() + "' '" +
            fs::path(file).replace_extension().string() + "'");
    }
    /// Opens menus, item by item, and leaves them open for the picture.
    void show_menu(const char* menu, const char* item, const std::string& picture) {
        if (!program_.choose(display_, menu, {item})) {
            give_up(std::string("no item \"") + item + "\"");
        }
        take_main_window(picture);
        display_.press_key("Escape");
        display_.press_key("Escape");
    }
    void choose(const char* menu, const char* item) {
        if (!program_.choose(display_, menu, item)) {
            give_up(std::string("no item \"") + item + "\"");
        }
    }
    void press_escape() { display_.press_key("Escape"); }
    void take_window(const std::string& title, const std::string& picture) {
        const Rectangle place = place_with_frame(title);
        take(picture, "-crop " + std::to_string(place.width) + "x" + std::to_string(place.height) + "+" +
                          std::to_string(place.x) + "+" + std::to_string(place.y) + " +repage ");
    }
    /// Clicks on the title.
    void raise_main_window() {
        const Rectangle frame = place_with_frame(program_.main_window().name());
        const Rectangle content = program_.main_window().place();
        display_.click({frame.x, frame.y, content.width / 2, content.y - frame.y});
    }
    void take_main_window(const std::string& picture) { take_window(program_.main_window().name(), picture); }
    void take_desktop(const std::string& picture) { take(picture, ""); }

  private:
    [[nodiscard]] Rectangle place_with_frame(const std::string& title) const {
        const auto window = display_.window(program_.process().pid(), title);
        if (!window) {
            give_up("no window is titled \"" + title + "\"");
        }
        return display_.place_with_frame(*window);
    }
    template <typename Keys>
    void press_keys(const Keys& keys) {
        for (const std::string_view key : keys) {
            if (!key.empty()) {
                display_.press_key(key);
            }
        }
    }
    static void run(const std::string& command) {
        if (std::system(command.c_str()) != 0) {
            give_up("no picture could be made: " + command);
        }
    }
    void take(const std::string& picture, const std::string& crop) {
        std::this_thread::sleep_for(std::chrono::milliseconds{300});  // painting is not announced
        const fs::path file = folder_ / (picture + ".png");
        run("import -window root " + crop + "'" + file.string() + "'");
        std::printf("tour: %s\n", file.c_str());
    }

    Program& program_;
    fs::path folder_;
    XDisplay display_;
};

void play(Tour& tour, const fs::path& home) {
    tour.wait_for_text("~ $");
    tour.type("clear; cd src\n");
    tour.wait_for_cwd(home / "src");
    tour.type("ls -l --color\n");
    tour.wait_for_text("greet.cpp");
    tour.type("git --no-pager log --graph --oneline --color\n");
    tour.wait_for_text("Begin");
    tour.take_main_window("main-window");
    tour.type("vi greet.cpp\n");
    tour.wait_for_text("Greets whoever");
    tour.take_main_window("editor");
    tour.show_waiting_lines();
    tour.type(":q\n");
    tour.wait_for_text("Begin");
    for (const Stop& stop : stops) {
        tour.show_popup(stop);
    }
    tour.show_file_list(home / "src", "build.sh");
    tour.show_tree(home / "src", {"include"}, "small-tree");
    tour.show_operations("greet.cpp", "welcome.cpp");
    tour.clear_tree();
    tour.show_tree(home / "orvik", {"browsers", "tree", "file_tree.cpp"}, "file-tree");
    tour.plot_tree("A2", "50%", "plot");
    tour.press_escape();
    tour.choose("My Tools", "Biggest files");
    tour.show_menu("Edit", "Current", "edit-menu");
    tour.show_menu("BM", "Scripts", "bookmark-menu");
    tour.choose("Command", "files");
    tour.show_by_button("command list", "Command List Manager", "command-list");
    tour.press_escape();
    tour.show_by_button("add bookmark", "Bookmark Definition", "bookmark-definition");
    tour.press_escape();
    tour.show_by_button("floating command line", "Command Window", "command-window");
    tour.take_desktop("desktop");
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        give_up("usage: tour PROGRAM FOLDER [OPTION]...");
    }
    const ScratchDirectory home;
    home.write(".bash_profile", "PS1='\\[\\e[1;34m\\]\\w\\[\\e[0m\\] $ '\n");
    home.write("Orvik.setup", setup_text(settings));
    fs::copy_file(ORVIK_DATA "/examples/orvik-menu", home / ".orvik-menu");
    home.write("make-repository", make_repository);
    if (std::system(
            ("cd '" + home.path().string() + "' && sh make-repository && rm make-repository").c_str()) != 0) {
        give_up("the example repository could not be made");
    }
    fs::create_directory_symlink(ORVIK_DATA "/..", home / "orvik");
    fs::create_directories(argv[2]);
    Program program({.program = argv[1],
                     .data = ORVIK_DATA,
                     .home = home.path(),
                     .options = std::vector<std::string>(argv + 3, argv + argc)});
    if (!program.main_window()) {
        give_up("the program does not start: " + program.output());
    }
    Tour tour(program, argv[2]);
    play(tour, home.path());
    if (program.stop() != 0) {
        give_up("the program does not end as it should: " + program.output());
    }
    return 0;
}
