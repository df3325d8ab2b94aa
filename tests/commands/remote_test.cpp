// SPDX-License-Identifier: MIT
#include "commands/notify.h"
#include "tests/commands/operation_windows.h"
#include "ui/copy_to_public_window.h"
#include "ui/default_settings.h"
#include "ui/file_list_browser.h"
#include "ui/message_board.h"
#include "ui/pack_unpack_tar.h"
#include "ui/remote_copy.h"
#include "ui/remote_file_transfer_window.h"
#include "ui/remote_hosts.h"

namespace {

namespace fs = std::filesystem;

using Step = Message (*)();

class Remote : public OperationWindows {
  protected:
    /// What a procedure has said, and what has been typed.
    std::string result_of(Step procedure, Frame& window) {
        const std::string said = after(procedure, window);
        return said + typed();
    }
    static RemoteHosts& hosts() { return remote_hosts(); }
    static RemoteFileTransfer& transfer() { return remote_file_transfer_window(); }

    const std::string a_ = path("top/a");
    const std::string b_c_ = "'" + path("top/b c") + "'";
    const std::string sub_ = path("top/sub");
};

TEST_F(Remote, LogsInToTheChosenHost) {
    hosts().host_1.set_text("one");
    hosts().host_2.set_text("  two.org /* slow */ // far  ");
    hosts().user_id_2.set_text("jo ");
    hosts().host_3.set_text("-oProxyCommand=x");
    hosts().host_4.set_text("four");
    hosts().user_id_4.set_text("-x");
    hosts().my_host.set_text("mine");
    const struct {
        int row;
        Step procedure;
        std::string result;
    } cases[] = {
        {0, RemoteHostsRlogin, "rlogin one\n"},
        {1, RemoteHostsRlogin, "rlogin -l jo two.org\n"},
        {1, RemoteHostsSsh, "ssh -l jo two.org\n"},
        {1, RemoteHostsSetDisplay, "DISPLAY=two.org:0.0; export DISPLAY\n"},
        {2, RemoteHostsSsh, "Illegal host name"},
        {2, RemoteHostsSetDisplay, "Illegal host name"},
        {3, RemoteHostsRlogin, "Illegal user name"},
        {4, RemoteHostsSsh, "Host name not specified"},
        {5, RemoteHostsRlogin, "rlogin mine\n"},
    };
    for (const auto& row : cases) {
        hosts().select_host.set_value(row.row);
        EXPECT_EQ(result_of(row.procedure, hosts()), row.result) << row.row;
    }
    user_shell.family = ShellFamily::csh;
    EXPECT_EQ(result_of(RemoteHostsSetDisplay, hosts()), "setenv DISPLAY mine:0.0\n");
}

TEST_F(Remote, TransfersTheSelection) {
    constexpr Step to = RemoteFIleTransferCopyToHost;
    constexpr Step from = RemoteFIleTransferCopyfromHost;
    enum Program { rcp, scp };
    const struct {
        std::string host, user;
        std::string remote;  ///< the path there
        int directories;
        Program program;
        Labels selection;
        Step procedure;
        std::string result;  ///< what is said, or typed
    } cases[] = {
        {"", "u", "", 0, scp, {}, to, "Host name not specified"},
        {"//", "u", "", 0, scp, {}, from, "Host name not specified"},
        {"h;x", "u", "/d", 0, scp, {"a"}, to, "Illegal host name"},
        {"h", "a:b", "/d", 0, scp, {"a"}, to, "Illegal user name"},
        {"h", "u", "", 0, scp, {"a"}, to, "Destination directory name not specified"},
        {"h", "u", "", 0, scp, {"a"}, from, "Source file name not specified"},
        {"h", "u", "/d", 0, scp, {}, to, "No files selected"},
        {"h", "u", "/d", 0, scp, {"dangle"}, to, "Illegal file"},
        {"h ", "", "/d", 0, scp, {"a", "b c"}, to, "scp " + a_ + " h:/d\nscp " + b_c_ + " h:/d\n"},
        {"h", "u", "$(x) y", 1, rcp, {"sub"}, to, "rcp -r " + sub_ + " 'u@h:$(x) y'\n"},
        {"fe80::1%e", "u", "*.c", 0, scp, {"a"}, from, "scp 'u@[fe80::1%e]:*.c' " + a_ + "\n"},
        {"h", "", "s", 1, scp, {"sub"}, from, "scp -r h:s " + sub_ + "\n"},
    };
    fs::remove(path("top/dangle"));
    for (const auto& row : cases) {
        transfer().host_name.set_text(row.host);
        transfer().user_name.set_text(row.user);
        transfer().destination_directory.set_text(row.procedure == to ? row.remote : "other");
        transfer().source_files.set_text(row.procedure == from ? row.remote : "other");
        transfer().copy_mode.set_value(row.directories);
        transfer().copy_command.set_value(row.program);
        select_at(row.selection);
        EXPECT_EQ(result_of(row.procedure, transfer()), row.result);
    }
    EXPECT_EQ(default_settings().last_command.text(), "scp -r h:s " + sub_);
}

TEST_F(Remote, TheHostChoiceFillsTheFields) {
    hosts().host_1.set_text("one");
    hosts().host_3.set_text(" three // c");
    hosts().user_id_3.set_text("jo /* x */");
    remote_file_transfer();
    EXPECT_EQ(transfer().host_name.text(), "one");
    transfer().host.set_value(2);
    RemoteFileTransferHost();
    EXPECT_EQ(transfer().host_name.text() + "|" + transfer().user_name.text(), "three|jo");
    transfer().host.set_value(0);
    remote_file_transfer();
    EXPECT_EQ(transfer().host_name.text(), "three") << "what is written stays";
}

TEST_F(Remote, CopiesTheListedFileOrTheSelection) {
    RemoteCopy& window = remote_copy();
    select_at({});
    EXPECT_EQ(after(copy_file_remote), "No files selected");
    select_at({"a", "b c"});
    EXPECT_EQ(after(copy_file_remote), "Specify one file to copy");
    EXPECT_FALSE(window.shown());
    select_at({"a"});
    EXPECT_EQ(after(copy_file_remote), "");
    EXPECT_TRUE(window.shown());

    fs::remove(path("top/dangle"));
    file_list_browser().directory.set_text(path("top"));
    constexpr auto tree = RemoteCopy::Side::tree_selection;
    constexpr auto list = RemoteCopy::Side::listed_file;
    constexpr Step to = Copy_to_remote_button;
    constexpr Step from = Copy_from_remote_button;
    const struct {
        RemoteCopy::Side side;
        std::string remote, user, host;
        std::string chosen;  ///< in the tree or the list
        Step procedure;
        std::string result;
    } cases[] = {
        {tree, "", "", "", "", to, "Remote directory not specified"},
        {tree, "", "", "", "", from, "Remote source not specified"},
        {tree, "d", "", "/* h */", "", to, "Remote host not specified"},
        {tree, "d", "", "h", "", to, "Remote user not specified"},
        {tree, "d", "u", "-h", "a", to, "Illegal host name"},
        {tree, "d", "u v", "h", "a", to, "Illegal user name"},
        {tree, "d", "u", "h", "", to, "No source file specified"},
        {tree, "s", "u", "h", "", from, "No destination file specified"},
        {tree, "s", "u", "h", "dangle", from, "Illegal file"},
        {tree, "d e", "u", "h", "a", to, "scp -r " + a_ + " 'u@h:d e'\n"},
        {tree, "s", "u", "h", "sub", from, "scp -r u@h:s " + sub_ + "\n"},
        {list, "d", "u", "h", "", to, "No source file specified"},
        {list, "s", "u", "h", "", from, "No destination file specified"},
        {list, "s", "u", "h", "none", from, "Illegal destination file"},
        {list, "d", "u", "h", "a:", to, "scp -r " + a_ + ": u@h:d\n"},
        {list, "s", "u", "h", "b c", from, "scp -r u@h:s " + b_c_ + "\n"},
    };
    for (const auto& row : cases) {
        window.side = row.side;
        window.remote_source.set_text(row.procedure == from ? row.remote : "other");
        window.remote_destination.set_text(row.procedure == to ? row.remote : "other");
        window.remote_user.set_text(row.user);
        window.remote_host.set_text(row.host);
        file_list_browser().file_name.set_text(row.chosen);
        select_at(row.side == tree && !row.chosen.empty() ? Labels{row.chosen} : Labels());
        message_board().text.set_text("");
        EXPECT_EQ(result_of(row.procedure, window), row.result);
        EXPECT_EQ(message_board().text.text(), row.result.ends_with('\n') ? row.result : "");
    }
}

TEST_F(Remote, CopiesToAPublicDirectory) {
    user_name = "me";
    const fs::perms private_mode = fs::perms::owner_read | fs::perms::owner_write;
    const struct {
        std::string user;
        Labels selection;
        std::string result;
        fs::perms mode;
    } cases[] = {
        {"", {}, "No file selected", private_mode},
        {"$(x)", {"a"}, "Illegal user name", private_mode},
        {"..", {"a"}, "Illegal user name", private_mode},
        {"jo", {"sub", "a"}, "Not a regular file", private_mode},
        {"", {"a"}, "cp " + a_ + " /home/me/public/.\n", private_mode},
        {"jo", {"a"}, "cp " + a_ + " /home/jo/public/.\n", fs::perms(0666)},
    };
    for (const auto& row : cases) {
        fs::permissions(a_, private_mode);
        copy_to_public_window().userid.set_text(row.user);
        select_at(row.selection);
        EXPECT_EQ(result_of(CopyToPublicCopy, copy_to_public_window()), row.result);
        EXPECT_EQ(fs::status(a_).permissions(), row.mode) << row.result;
    }
    EXPECT_EQ(default_settings().last_command.text(), "cp " + a_ + " /home/jo/public/.");
    user_shell.family = ShellFamily::unknown;
    fs::permissions(path("top/b c"), private_mode);
    select_at({"b c"});
    EXPECT_NE(after(CopyToPublicCopy, copy_to_public_window()), "") << "the shell cannot be given the name";
    EXPECT_EQ(fs::status(path("top/b c")).permissions(), private_mode);
}

TEST_F(Remote, PacksAndUnpacks) {
    PackUnpackTar& window = pack_unpack_tar();
    setenv("ORVIK_TEST", sub_.c_str(), 1);
    fs::remove(path("top/dangle"));
    const std::string top_dir = path("top");
    const std::string script = path(".orvik-script\n");
    const std::string pack_head = script + "# Orvik pack files using tar\n\n";
    const std::string unpack_head = script + "# Orvik unpack file\n\n";
    constexpr Step pack = MakeTarFileRun;
    constexpr Step unpack = PackUnpackUsingTarUnpack;
    const struct {
        std::string tar_file, directory;
        int absolute;
        Labels selection;
        Step procedure;
        std::string result;  ///< with the script behind
    } cases[] = {
        {"", "", 0, {"a"}, pack, "Tar file name not specified"},
        {"x", "", 0, {}, pack, "No file selected"},
        {"x", "", 0, {"a", "dangle"}, pack, "Illegal file"},
        {"x", "/none/here", 0, {"a"}, pack, "Destination directory not found"},
        {"x", "", 0, {"a"}, pack, pack_head + "tar cfv x \\\n-C " + top_dir + " a\n"},
        {"x", "$ORVIK_TEST", 1, {"sub"}, pack, pack_head + "cd " + sub_ + "\ntar cfv x \\\n" + sub_ + "\n"},
        {"", "", 0, {}, unpack, "No file selected"},
        {"", "", 0, {"a", "sub"}, unpack, "Select one tar file to unpack"},
        {"", "", 0, {"a", "b c"}, unpack, "Select one tar file to unpack"},
        {"", top_dir, 0, {"a"}, unpack, unpack_head + "cd " + top_dir + "\ntar xfv " + a_ + "\n"},
        {"x", "", 0, {}, PackUnpackGzip, "Destination directory name not specified"},
        {"", "/tmp", 0, {}, PackUnpackGzip, "Tar file name not specified"},
        {"x y", "/tmp", 0, {}, PackUnpackGzip, "gzip '/tmp/x y'\n"},
        {"/x.tar", "/tmp", 0, {}, PackUnpackGzip, "gzip /x.tar\n"},
        {"", "", 0, {}, PackUnpackGunzip, "Select one zipped file to unzip"},
        {"", "", 0, {"sub"}, PackUnpackGunzip, "Select one zipped file to unzip"},
        {"", "", 0, {"b c"}, PackUnpackGunzip, "gunzip " + b_c_ + "\n"},
        {"", "old", 0, {"a", "sub"}, PackUnpackGetDestDir, "Select one destination directory"},
        {"", "old", 0, {}, PackUnpackGetDestDir, "Select one destination directory"},
    };
    for (const auto& row : cases) {
        fs::remove(path(".orvik-script"));
        window.tar_file.set_text(row.tar_file);
        window.destination_dir.set_text(row.directory);
        window.file_names.set_value(row.absolute);
        select_at(row.selection);
        const std::string result = result_of(row.procedure, window);
        EXPECT_EQ(result + read_file(path(".orvik-script")), row.result);
    }
    EXPECT_EQ(default_settings().last_command.text(), "gunzip " + b_c_);
    select_at({"sub"});
    EXPECT_EQ(after(PackUnpackGetDestDir, window), "");
    EXPECT_EQ(window.destination_dir.text(), sub_);
    make_tar_file();
    EXPECT_EQ(window.right_footer(), "Tar command executes in terminal window");
}

TEST_F(Remote, WhatIsMissingIsSaid) {
    const std::string path_before = std::getenv("PATH");
    setenv("PATH", home.path().c_str(), 1);
    hosts().host_1.set_text("one");
    EXPECT_EQ(RemoteHostsSsh(), "");
    EXPECT_EQ(message_board().text.text(),
              "ssh not found in PATH: the Debian package openssh-client has it\n");
    setenv("PATH", path_before.c_str(), 1);
}

}  // namespace
