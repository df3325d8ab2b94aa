// SPDX-License-Identifier: MIT
#include "commands/clearcase/notify.h"
#include "commands/notify.h"
#include "tests/browsers/tree/tree_windows.h"
#include "ui/add_new_directory.h"
#include "ui/add_rename_save.h"
#include "ui/clearcase_setup.h"
#include "ui/copy_files_to_clearcase_vob.h"
#include "ui/create_and_attach_label.h"
#include "ui/default_settings.h"
#include "ui/file_list_browser.h"
#include "ui/message_board.h"

#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

/// The windows with files of ordinary and hostile names; paths in expected texts begin with "@/".
class ClearCaseTest : public TreeWindows {
  protected:
    void SetUp() override {
        TreeWindows::SetUp();
        user_name = "me";
        home.write("top/a$(id)'", "");
        top_ = root(path("top"));
        open(child(top_, "sub"));
        set_tool("");
    }
    static void set_tool(const std::string& alias) { clearcase_setup().cleartool_alias.set_text(alias); }
    /// With "top" for the root itself, and "sub/" before what is in that directory.
    void select_below_top(const Labels& labels) const {
        std::vector<TreeNode*> nodes;
        for (const std::string& label : labels) {
            const bool is_deep = label.starts_with("sub/");
            TreeNode* const above = is_deep ? child(top_, "sub") : top_;
            nodes.push_back(label == "top" ? top_ : child(above, is_deep ? label.substr(4) : label));
        }
        select(nodes);
    }
    [[nodiscard]] std::string in_place(std::string text) const {
        for (std::size_t at = text.find("@/"); at != std::string::npos; at = text.find("@/")) {
            text.replace(at, 2, path("top/"));
        }
        return text;
    }
    /// What a control's procedure leaves in a window's footer, with what it has typed behind a bar.
    std::string outcome(Message (*procedure)(), Frame& window = file_tree_browser()) {
        const std::string footer = footer_after(procedure, window);
        return footer + "|" + typed();
    }

    TreeNode* top_ = nullptr;
};

TEST_F(ClearCaseTest, TypesALineForEachSelectedNode) {
    const std::string none = "No file(s) selected|";
    const std::string wrong = "Wrong file type|";
    const struct {
        Message (*procedure)();
        Labels selection;
        std::string outcome;
    } cases[] = {
        {ClearCaseMenuCheckInNoCom, {}, none},
        {ClearCaseMenuCheckInNoCom, {"a"}, "|\ncleartool checkin -nc @/a\n"},
        {ClearCaseMenuCheckInNoCom,
         {"sub", "b c"},
         "|\ncleartool checkin -nc @/sub\n\ncleartool checkin -nc '@/b c'\n"},
        {ClearCaseMenuCheckOut, {"a$(id)'"}, "|\ncleartool checkout -nc '@/a$(id)'\\'''\n"},
        {ClearCaseMenuUncheckout, {"a"}, "|\ncleartool uncheckout -rm @/a\n"},
        {ClearCaseMenuhistory, {"sub"}, "|\ncleartool lshistory @/sub\n"},
        {ClearCaseMenuMakeElement, {"a"}, "|\ncleartool mkelem @/a\n"},
        {ClearCaseMenuMakeElement, {"sub"}, wrong},
        {ClearCaseMenuMakeElement, {"a", "b c"}, "Select one file only|"},
        {ClearCaseMenuMakeElement, {"a", "sub"}, wrong},
        {ClearcaseMenuMakeElementNc,
         {"a", "sub/x.h"},
         "|\ncleartool mkelem -nc @/a\n\ncleartool mkelem -nc @/sub/x.h\n"},
        {ClearcaseMenuMakeElementNc, {"a", "sub"}, wrong},
        {FileTreeClearCaseMenuRemovElem, {"sub"}, "|\ncleartool rmelem @/sub\n"},
        {FileTreeClearCaseMenuRemovElem, {"a", "b c"}, "Select one file only|"},
        {ClearCaseMenuListFiles, {"sub"}, "|\ncleartool ls @/sub\n"},
        {ClearCaseMenuListFiles, {"a"}, wrong},
        {ClearCaseMenuListAllFiles, {"zip"}, "|\ncleartool ls -recurse @/zip\n"},
        {ClearcaseMenuListPrivate, {"sub"}, "|\ncleartool ls -r -vie @/sub\n"},
        {ClearCaseMenuListCo, {"sub"}, "|\ncleartool lscheckout -recurse @/sub\n"},
        {ClearcaseMenuListCheckoutMine, {}, none},
        {ClearcaseMenuListCheckoutMine,
         {"sub", "a", "zip"},
         "Wrong file type|\ncleartool lscheckout -recurse @/sub | grep me\n"},
        {ClearcaseMenuSetConfigSpec, {"a"}, "|\ncleartool setcs @/a\n"},
        {ClearcaseMenuSetConfigSpec, {"sub"}, wrong},
        {ClearCasemenuDisplayConfigSpec, {}, "|cleartool catcs\n"},
        {ClearCaseMenuSetConfigSpecDefault, {}, "|cleartool setcs -default\n"},
    };
    for (const auto& row : cases) {
        select_below_top(row.selection);
        EXPECT_EQ(outcome(row.procedure), in_place(row.outcome));
    }
    EXPECT_EQ(default_settings().last_command.text(), in_place("cleartool setcs @/a"));
    select_below_top({"sub", "a"});
    fs::remove(path("top/a"));
    EXPECT_EQ(outcome(ClearCaseMenuCheckOut), "File not found|");
    EXPECT_EQ(outcome(ClearcaseMenuListCheckoutMine),
              in_place("File not found|\ncleartool lscheckout -recurse @/sub | grep me\n"));
}

TEST_F(ClearCaseTest, TheToolIsTheUsersOwnCommand) {
    set_tool("/opt/atria/bin/ct -v");
    select_below_top({"b c"});
    EXPECT_EQ(outcome(ClearCaseMenuhistory), in_place("|\n/opt/atria/bin/ct -v lshistory '@/b c'\n"));
    const std::string refused = in_place("Name can't be typed into the shell: @/b c|");
    for (const char* alias : {"ssh viewhost cleartool", "eval cleartool", "cleartool '"}) {
        set_tool(alias);
        EXPECT_EQ(outcome(ClearCaseMenuhistory), refused) << alias;
    }
    set_tool("ssh viewhost cleartool");
    select_below_top({"sub"});
    EXPECT_EQ(outcome(ClearCaseMenuhistory), in_place("|\nssh viewhost cleartool lshistory @/sub\n"));
}

TEST_F(ClearCaseTest, TypesALineForTheFileOfTheList) {
    FileListBrowser& list = file_list_browser();
    list.directory.set_text("");
    EXPECT_EQ(ClearCaseMenu2Checkin(), "Directory name not specified");
    list.directory.set_text("/vob/x y");
    list.file_name.set_text("");
    EXPECT_EQ(ClearCaseMenu2Checkin(), "File name not specified");
    list.file_name.set_text("it's");
    std::string lines;
    for (Message (*procedure)() :
         {FileListLoadConfigSpec, ClearCaseMenu2Checkin, ClearCaseMenu2Checkout, ClearCaseMenu2Uncheckout,
          ClearCaseMenu2History, ClearCaseMenu2ListFIles, ClearCaseMenu2MakeElem, ClearCaseMenu2RemoveElem}) {
        EXPECT_EQ(procedure(), "");
    }
    for (const char* command :
         {"setcs", "checkin -nc", "checkout -nc", "uncheckout", "lshistory", "ls", "mkelem", "rmelem"}) {
        lines += std::string("cleartool ") + command + R"( '/vob/x y/it'\''s')" + "\n";
    }
    EXPECT_EQ(typed(), lines);
}

TEST_F(ClearCaseTest, MovesRenamesAndMakesWhereNothingStands) {
    const std::string seen = "Double click to see file|";
    const struct {
        Message (*procedure)();
        std::string name;
        Labels selection;
        std::string outcome;
    } cases[] = {
        {ClearCaseMoveFile, "", {}, "No files selected|"},
        {ClearCaseMoveFile, "", {"a"}, "Specify one destination directory|"},
        {ClearCaseMoveFile, "", {"sub"}, "No files to move|"},
        {ClearCaseMoveFile,
         "",
         {"zip", "a", "sub/x.h"},
         seen + "cleartool mv @/a @/zip/a\ncleartool mv @/sub/x.h @/zip/x.h\n"},
        {ClearCaseMoveFile,
         "",
         {"b c", "sub", "sub/x.h", "a"},
         "File already exists|cleartool mv '@/b c' '@/sub/b c'\n"},
        {ClearCaseRename, "", {"a"}, "New name not defined|"},
        {ClearCaseRename, "../x", {"a"}, "A name can't hold a \"/\"|"},
        {ClearCaseRename, "x", {}, "No file selected|"},
        {ClearCaseRename, "x", {"a", "sub"}, "Select one file or directory|"},
        {ClearCaseRename, "b c", {"a"}, "File or directory already exists|"},
        {ClearCaseRename, "x;y", {"a"}, seen + "cleartool mv @/a '@/x;y'\n"},
        {ClearCaseRename, "x", {"sub"}, seen + "cleartool mv @/sub @/x\n"},
        {AddClearCaseDir, "", {"sub"}, "Directory name not defined|"},
        {AddClearCaseDir, "x", {}, "No directory selected|"},
        {AddClearCaseDir, "x", {"sub", "zip"}, "Select one parent directory|"},
        {AddClearCaseDir, "deep", {"sub"}, "Directory already exists|"},
        {AddClearCaseDir,
         "-x y",
         {"sub"},
         "Double-click to see new directory|cleartool mkdir -nc '@/sub/-x y'\n"},
    };
    for (const auto& row : cases) {
        add_rename_save().new_name.set_text(row.name);
        add_new_directory().directory_name.set_text(row.name);
        select_below_top(row.selection);
        Frame& window = row.procedure == ClearCaseRename   ? static_cast<Frame&>(add_rename_save())
                        : row.procedure == AddClearCaseDir ? static_cast<Frame&>(add_new_directory())
                                                           : file_tree_browser();
        const std::string told = row.outcome.substr(0, row.outcome.find('|'));
        EXPECT_EQ(outcome(row.procedure, window), in_place(row.outcome));
        EXPECT_TRUE(row.procedure == ClearCaseMoveFile || file_tree_browser().left_footer() == told) << told;
    }
    select_below_top({"sub"});
    EXPECT_EQ(footer_after(ClearCaseMenuRenameFile), "Select one file to rename");
    EXPECT_FALSE(add_rename_save().shown());
    select_below_top({"a"});
    EXPECT_EQ(footer_after(ClearCaseMenuRenameFile), "");
    EXPECT_TRUE(add_rename_save().shown());
    EXPECT_EQ(FileTreeClearCaseMenuMakeDir(), "");
    EXPECT_TRUE(add_new_directory().shown());
}

TEST_F(ClearCaseTest, MakesAndAttachesLabels) {
    CreateAndAttachLabel& window = create_and_attach_label();
    for (Message (*procedure)() :
         {CreateAndSetLabelFind, CreateAndSetCreate, CreateSetLabelAttach, CreateAndAttachRemove}) {
        EXPECT_EQ(outcome(procedure, window), "Label name not specified|");
    }
    EXPECT_EQ(outcome(CreateAndSetLabelDisplay, window), "|cleartool lstype -kind lbtype -short\n");
    window.label.set_text("REL1");
    EXPECT_EQ(outcome(CreateAndSetLabelFind, window),
              "|cleartool find -all -version \"lbtype(REL1)\" -print\n");
    file_tree().clear_selection();
    EXPECT_EQ(outcome(CreateAndSetCreate, window), "|cleartool mklbtype REL1\n");
    EXPECT_EQ(outcome(CreateSetLabelAttach, window), "No file(s) selected|");
    select_below_top({"a", "sub"});
    EXPECT_EQ(outcome(CreateSetLabelAttach, window),
              in_place("|\ncleartool mklabel REL1 @/a\n\ncleartool mklabel REL1 @/sub\n"));
    EXPECT_EQ(outcome(CreateAndAttachRemove, window),
              in_place("|\ncleartool rmlabel REL1 @/a\n\ncleartool rmlabel REL1 @/sub\n"));
    window.recursive.set_value(true);
    window.replace.set_value(true);
    window.version.set_text("/main/1 \"$x\"");
    window.label.set_text("R`id`");
    select_below_top({"a"});
    EXPECT_EQ(outcome(CreateSetLabelAttach, window),
              in_place("|\ncleartool mklabel -replace -recurse -version '/main/1 \"$x\"' 'R`id`' @/a\n"));
    EXPECT_EQ(outcome(CreateAndSetLabelFind, window),
              "|cleartool find -all -version 'lbtype(R`id`)' -print\n");
}

class VobScriptTest : public ClearCaseTest {
  protected:
    void SetUp() override {
        ClearCaseTest::SetUp();
        fs::remove_all(path("top"));
        for (const char* file : {"src/deep/it's\n!", "src/lost+found/x", "src/~core"}) {
            home.write(file, "");
        }
        window().source_directory.set_text(path("src/"));
        window().destination_directory.set_text(path("vob"));
        window().script_file.set_text(script_);
    }
    static CopyFilesToClearcaseVob& window() { return copy_files_to_clearcase_vob(); }
    std::string run(unsigned mode) {
        window().script.set_value(mode);
        return outcome(ClearcaseMenuCopyFIlesToVobRun, window());
    }

    const std::string script_ = path("script file");
    const unsigned generate_ = CopyFilesToClearcaseVob::generate;
    const unsigned execute_ = CopyFilesToClearcaseVob::execute;
};

TEST_F(VobScriptTest, MakesEverythingAndThenChecksItIn) {
    set_tool("ct");
    window().skip_2.set_text("core");
    EXPECT_EQ(run(generate_ | execute_), "File tree walk 2 successful|'" + script_ + "'\n");
    const std::string src = path("src");
    const std::string vob = path("vob");
    const std::string name = "/deep/it'\\''s\n!'";
    EXPECT_EQ(read_file(script_), "ct mkdir -nc " + vob + "\nct mkdir -nc " + vob + "/deep\ncp '" + src +
                                      name + " '" + vob + name + "\nct mkelem -nc '" + src + name +
                                      "\nct checkin -nc " + vob + "\nct checkin -nc " + vob +
                                      "/deep\nct checkin -nc '" + src + name + "\n");
    struct stat status {};
    ASSERT_EQ(stat(script_.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode, S_IFREG | 0755U);
    fs::permissions(script_, fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(run(execute_), "|'" + script_ + "'\n");
    ASSERT_EQ(stat(script_.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode, S_IFREG | 0755U);
}

TEST_F(VobScriptTest, SaysWhatIsWrongAndWritesNothing) {
    EXPECT_EQ(run(0), "Run mode not defined|");
    EXPECT_EQ(run(execute_), "Couldn't open script file|");
    window().script_file.set_text(path("src"));
    EXPECT_EQ(run(generate_), "Couldn't open script file|");
    EXPECT_EQ(run(execute_), "Couldn't open script file|");
    window().script_file.set_text(script_);
    set_tool("ssh viewhost cleartool");
    EXPECT_EQ(run(generate_), "Name can't be typed into the shell: " + path("src/~core") + "|");
    set_tool("");
    fs::create_directory(path("vob"));
    EXPECT_EQ(run(generate_), "Destination directory already exists|");
    window().destination_directory.set_text("");
    EXPECT_EQ(run(generate_), "Destination directory not specified|");
    window().destination_directory.set_text(path("new"));
    for (const char* source : {"none", "src/~core"}) {
        window().source_directory.set_text(path(source));
        EXPECT_EQ(run(generate_), "Illegal file|") << source;
    }
    window().source_directory.set_text("");
    EXPECT_EQ(run(generate_), "Source directory not specified|");
    window().script_file.set_text("");
    EXPECT_EQ(CopyFilesToClearcaseVobEdit(), "Script file not specified");
    EXPECT_FALSE(fs::exists(script_));
}

TEST_F(VobScriptTest, TakesDirectoriesFromTheTree) {
    window().source_directory.set_text("");
    top_ = root(path("src"));
    file_tree().clear_selection();
    EXPECT_EQ(footer_after(ClearcaseMenuCopyFilesToVobGet, window()), "Select one directory");
    EXPECT_EQ(footer_after(ClearcaseMenuCopyFilesToVob), "No directory selected");
    select_below_top({"~core"});
    EXPECT_EQ(footer_after(ClearcaseMenuCopyFilesToVob), "Select one directory to copy");
    EXPECT_FALSE(window().shown());
    for (const char* label : {"deep", "lost+found"}) {
        select_below_top({label});
        EXPECT_EQ(footer_after(ClearcaseMenuCopyFilesToVob), "");
    }
    EXPECT_TRUE(window().shown());
    EXPECT_EQ(footer_after(ClearcaseMenuCopyFilesToVobGet, window()), "");
    EXPECT_EQ(window().source_directory.text(), path("src/deep"));
    EXPECT_EQ(window().destination_directory.text(), path("src/lost+found"));
}

}  // namespace
