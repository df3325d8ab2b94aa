// SPDX-License-Identifier: MIT
#include "commands/notify.h"
#include "tests/commands/operation_windows.h"
#include "tests/support/other_process.h"
#include "ui/copy_to_public_window.h"
#include "ui/default_settings.h"
#include "ui/file_list_browser.h"
#include "ui/message_board.h"
#include "ui/pack_unpack_tar.h"
#include "ui/remote_copy.h"
#include "ui/remote_file_transfer_window.h"
#include "ui/remote_hosts.h"

#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

using Steps = Message (*)();

class Remote : public OperationWindows {
  protected:
    [[nodiscard]] std::string below(const std::string& name) const { return path("top/" + name); }
    static RemoteHosts& hosts() { return remote_hosts(); }
    static RemoteFileTransfer& transfer() { return remote_file_transfer_window(); }
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
        Steps procedure;
        std::string footer;
        std::string typed;
    } cases[] = {
        {0, RemoteHostsRlogin, "", "rlogin one\n"},
        {1, RemoteHostsRlogin, "", "rlogin -l jo two.org\n"},
        {1, RemoteHostsSsh, "", "ssh -l jo two.org\n"},
        {1, RemoteHostsSetDisplay, "", "DISPLAY=two.org:0.0; export DISPLAY\n"},
        {2, RemoteHostsSsh, "Illegal host name", ""},
        {2, RemoteHostsSetDisplay, "Illegal host name", ""},
        {3, RemoteHostsRlogin, "Illegal user name", ""},
        {4, RemoteHostsSsh, "Host name not specified", ""},
        {5, RemoteHostsRlogin, "", "rlogin mine\n"},
    };
    for (const auto& row : cases) {
        hosts().select_host.set_value(row.row);
        EXPECT_EQ(row.procedure(), row.footer) << row.row;
        EXPECT_EQ(typed(), row.typed);
    }
    user_shell.family = ShellFamily::csh;
    EXPECT_EQ(RemoteHostsSetDisplay(), "");
    EXPECT_EQ(typed(), "setenv DISPLAY mine:0.0\n");
}

TEST_F(Remote, TransfersTheSelection) {
    enum Mode { file, directory };
    enum Program { rcp, scp };
    const struct {
        std::string host, user, directory, source;
        Mode mode;
        Program program;
        Labels selection;
        Steps procedure;
        std::string footer;
        std::string typed;
    } cases[] = {
        {"", "u", "", "", file, scp, {}, RemoteFIleTransferCopyToHost, "Host name not specified", ""},
        {"//", "u", "", "", file, scp, {}, RemoteFIleTransferCopyfromHost, "Host name not specified", ""},
        {"h;x", "u", "/d", "", file, scp, {"a"}, RemoteFIleTransferCopyToHost, "Illegal host name", ""},
        {"h", "a:b", "/d", "", file, scp, {"a"}, RemoteFIleTransferCopyToHost, "Illegal user name", ""},
        {"h",
         "u",
         "",
         "s",
         file,
         scp,
         {"a"},
         RemoteFIleTransferCopyToHost,
         "Destination directory name not specified",
         ""},
        {"h",
         "u",
         "/d",
         "",
         file,
         scp,
         {"a"},
         RemoteFIleTransferCopyfromHost,
         "Source file name not specified",
         ""},
        {"h", "u", "/d", "s", file, scp, {}, RemoteFIleTransferCopyToHost, "No files selected", ""},
        {"h", "u", "/d", "s", file, scp, {"dangle"}, RemoteFIleTransferCopyToHost, "Illegal file", ""},
        {"h ",
         "",
         "/d",
         "",
         file,
         scp,
         {"a", "b c"},
         RemoteFIleTransferCopyToHost,
         "",
         "scp " + below("a") + " h:/d\nscp '" + below("b c") + "' h:/d\n"},
        {"h",
         "u",
         "$(x) y",
         "",
         directory,
         rcp,
         {"sub"},
         RemoteFIleTransferCopyToHost,
         "",
         "rcp -r " + below("sub") + " 'u@h:$(x) y'\n"},
        {"fe80::1%eth0",
         "u",
         "",
         "*.c",
         file,
         scp,
         {"a"},
         RemoteFIleTransferCopyfromHost,
         "",
         "scp 'u@[fe80::1%eth0]:*.c' " + below("a") + "\n"},
        {"h",
         "",
         "",
         "s",
         directory,
         scp,
         {"sub"},
         RemoteFIleTransferCopyfromHost,
         "",
         "scp -r h:s " + below("sub") + "\n"},
    };
    fs::remove(path("top/dangle"));
    for (const auto& row : cases) {
        transfer().host_name.set_text(row.host);
        transfer().user_name.set_text(row.user);
        transfer().destination_directory.set_text(row.directory);
        transfer().source_files.set_text(row.source);
        transfer().copy_mode.set_value(row.mode);
        transfer().copy_command.set_value(row.program);
        select_at(row.selection);
        EXPECT_EQ(after(row.procedure, transfer()), row.footer) << row.typed;
        EXPECT_EQ(typed(), row.typed);
    }
    EXPECT_EQ(default_settings().last_command.text(), "scp -r h:s " + below("sub"));
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
    const auto tree = RemoteCopy::Side::tree_selection;
    const auto list = RemoteCopy::Side::listed_file;
    const struct {
        RemoteCopy::Side side;
        std::string source, destination, user, host;
        std::string chosen;  ///< in the tree or the list
        Steps procedure;
        std::string footer;
        std::string typed;
    } cases[] = {
        {tree, "", "", "", "", "", Copy_to_remote_button, "Remote directory not specified", ""},
        {tree, "", "d", "", "", "", Copy_from_remote_button, "Remote source not specified", ""},
        {tree, "", "d", "", "/* h */", "", Copy_to_remote_button, "Remote host not specified", ""},
        {tree, "", "d", "", "h", "", Copy_to_remote_button, "Remote user not specified", ""},
        {tree, "", "d", "u", "-h", "a", Copy_to_remote_button, "Illegal host name", ""},
        {tree, "", "d", "u v", "h", "a", Copy_to_remote_button, "Illegal user name", ""},
        {tree, "", "d", "u", "h", "", Copy_to_remote_button, "No source file specified", ""},
        {tree, "s", "", "u", "h", "", Copy_from_remote_button, "No destination file specified", ""},
        {tree, "s", "", "u", "h", "dangle", Copy_from_remote_button, "Illegal file", ""},
        {tree, "", "d e", "u", "h", "a", Copy_to_remote_button, "", "scp -r " + below("a") + " 'u@h:d e'\n"},
        {tree, "s", "", "u", "h", "sub", Copy_from_remote_button, "", "scp -r u@h:s " + below("sub") + "\n"},
        {list, "", "d", "u", "h", "", Copy_to_remote_button, "No source file specified", ""},
        {list, "s", "", "u", "h", "", Copy_from_remote_button, "No destination file specified", ""},
        {list, "s", "", "u", "h", "none", Copy_from_remote_button, "Illegal destination file", ""},
        {list, "", "d", "u", "h", "none:", Copy_to_remote_button, "",
         "scp -r " + below("none:") + " u@h:d\n"},
        {list, "s", "", "u", "h", "b c", Copy_from_remote_button, "",
         "scp -r u@h:s '" + below("b c") + "'\n"},
    };
    for (const auto& row : cases) {
        window.side = row.side;
        window.remote_source.set_text(row.source);
        window.remote_destination.set_text(row.destination);
        window.remote_user.set_text(row.user);
        window.remote_host.set_text(row.host);
        file_list_browser().file_name.set_text(row.chosen);
        select_at(row.side == tree && !row.chosen.empty() ? Labels{row.chosen} : Labels());
        message_board().text.set_text("");
        EXPECT_EQ(after(row.procedure, window), row.footer) << row.typed;
        EXPECT_EQ(typed(), row.typed);
        EXPECT_EQ(message_board().text.text(), row.typed);
    }
}

TEST_F(Remote, CopiesToAPublicDirectory) {
    user_name = "me";
    const std::string file = below("a");
    const auto mode = [&file] { return fs::status(file).permissions(); };
    const fs::perms private_mode = fs::perms::owner_read | fs::perms::owner_write;
    const struct {
        std::string user;
        Labels selection;
        std::string footer;
        std::string typed;
        bool opened = false;  ///< to everybody
    } cases[] = {
        {"", {}, "No file selected", ""},
        {"$(x)", {"a"}, "Illegal user name", ""},
        {"..", {"a"}, "Illegal user name", ""},
        {"jo", {"sub", "a"}, "Not a regular file", ""},
        {"",
         {"a", "b c"},
         "",
         "cp " + file + " /home/me/public/.\ncp '" + below("b c") + "' /home/me/public/.\n"},
        {"jo", {"a"}, "", "cp " + file + " /home/jo/public/.\n", true},
    };
    for (const auto& row : cases) {
        fs::permissions(file, private_mode);
        copy_to_public_window().userid.set_text(row.user);
        select_at(row.selection);
        EXPECT_EQ(after(CopyToPublicCopy, copy_to_public_window()), row.footer);
        EXPECT_EQ(typed(), row.typed);
        EXPECT_EQ(mode(), row.opened ? fs::perms(0666) : private_mode) << row.footer;
    }
    EXPECT_EQ(default_settings().last_command.text(), "cp " + file + " /home/jo/public/.");
    // A name that the shell cannot be given.
    fs::permissions(file, private_mode);
    user_shell.family = ShellFamily::unknown;
    fs::rename(file, below("a$"));
    top = root(path("top"));
    select_at({"a$"});
    EXPECT_NE(after(CopyToPublicCopy, copy_to_public_window()), "");
    EXPECT_EQ(fs::status(below("a$")).permissions(), private_mode);
}

TEST_F(Remote, PacksAndUnpacks) {
    PackUnpackTar& window = pack_unpack_tar();
    setenv("ORVIK_TEST", below("sub").c_str(), 1);
    fs::remove(path("top/dangle"));
    const std::string script = path(".orvik-script\n");
    const std::string pack_head = "# Orvik pack files using tar\n\n";
    const std::string unpack_head = "# Orvik unpack file\n\n";
    enum Names { relative, absolute };
    const struct {
        std::string tar_file, directory;
        Names names;
        Labels selection;
        Steps procedure;
        std::string footer;
        std::string typed;
        std::string script;
    } cases[] = {
        {"", "", relative, {"a"}, MakeTarFileRun, "Tar file name not specified", "", ""},
        {"x.tar", "", relative, {}, MakeTarFileRun, "No file selected", "", ""},
        {"x.tar", "", relative, {"a", "dangle"}, MakeTarFileRun, "Illegal file", "", ""},
        {"x.tar", "/none/here", relative, {"a"}, MakeTarFileRun, "Destination directory not found", "", ""},
        {"x.tar",
         "",
         relative,
         {"sub", "a"},
         MakeTarFileRun,
         "",
         script,
         pack_head + "tar cfv x.tar \\\n-C " + below("sub") + " . \\\n-C " + path("top") + " a\n"},
        {"x.tar",
         "$ORVIK_TEST",
         absolute,
         {"sub", "a"},
         MakeTarFileRun,
         "",
         script,
         pack_head + "cd " + below("sub") + "\ntar cfv x.tar \\\n" + below("sub") + " \\\n" + below("a") +
             "\n"},
        {"", "", relative, {}, PackUnpackUsingTarUnpack, "No file selected", "", ""},
        {"", "", relative, {"a", "sub"}, PackUnpackUsingTarUnpack, "Select one tar file to unpack", "", ""},
        {"", "", relative, {"a", "b c"}, PackUnpackUsingTarUnpack, "Select one tar file to unpack", "", ""},
        {"",
         path("top"),
         relative,
         {"b c"},
         PackUnpackUsingTarUnpack,
         "",
         script,
         unpack_head + "cd " + path("top") + "\ntar xfv " + path("top/b\\ c") + "\n"},
        {"x", "", relative, {}, PackUnpackGzip, "Destination directory name not specified", "", ""},
        {"", "/tmp", relative, {}, PackUnpackGzip, "Tar file name not specified", "", ""},
        {"x y", "/tmp", relative, {}, PackUnpackGzip, "", "gzip '/tmp/x y'\n", ""},
        {"/x.tar", "/tmp", relative, {}, PackUnpackGzip, "", "gzip /x.tar\n", ""},
        {"", "", relative, {}, PackUnpackGunzip, "Select one zipped file to unzip", "", ""},
        {"", "", relative, {"sub"}, PackUnpackGunzip, "Select one zipped file to unzip", "", ""},
        {"", "", relative, {"b c"}, PackUnpackGunzip, "", "gunzip '" + below("b c") + "'\n", ""},
        {"", "old", relative, {"a", "sub"}, PackUnpackGetDestDir, "Select one destination directory", "", ""},
        {"", "old", relative, {}, PackUnpackGetDestDir, "Select one destination directory", "", ""},
    };
    for (const auto& row : cases) {
        fs::remove(path(".orvik-script"));
        window.tar_file.set_text(row.tar_file);
        window.destination_dir.set_text(row.directory);
        window.file_names.set_value(row.names);
        select_at(row.selection);
        EXPECT_EQ(after(row.procedure, window), row.footer) << row.typed;
        EXPECT_EQ(typed(), row.typed);
        EXPECT_EQ(read_file(path(".orvik-script")), row.script);
    }
    EXPECT_EQ(default_settings().last_command.text(), "gunzip '" + below("b c") + "'");
    select_at({"sub"});
    EXPECT_EQ(after(PackUnpackGetDestDir, window), "");
    EXPECT_EQ(window.destination_dir.text(), below("sub"));
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
