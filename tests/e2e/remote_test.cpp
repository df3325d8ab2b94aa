// SPDX-License-Identifier: MIT
// What is selected in the tree goes to another host and comes back, into an archive, and off by mail.
#include "tests/e2e/loopback_sshd.h"
#include "tests/e2e/tree_window.h"

namespace {

namespace fs = std::filesystem;

class Remote : public Tree {
  protected:
    Remote() {
        fs::create_directory(there_);
        home_.write("project/" + name_, "first\n");
        setup_.environment["PATH"] = (home_ / "bin").string() + ":/usr/bin:/bin";
    }
    /// Selects the file and opens a window from "More".
    [[nodiscard]] Accessible open_for_file(std::string_view item) {
        display().click(node(name_).place());
        choose("More", item);
        const Accessible window = program_->window(item);
        EXPECT_TRUE(window) << item;
        return window;
    }
    static void fill(const Accessible& window, std::string_view label, std::string_view text) {
        EXPECT_TRUE(window.find({"text", label}).set_text(text)) << label;
    }
    static void press_in(const Accessible& window, std::string_view button) {
        EXPECT_TRUE(window.find({"push button", button}).press()) << button;
    }
    static void expect_file(const fs::path& file, const std::string& text) {
        expect_awaited([&] { return read_file(file); }, text);
    }

    const std::string name_ = "it's \"a\" $(touch harm) `x`;\\";
    const fs::path here_ = home_ / "project" / name_;
    const fs::path there_ = home_ / "far $(touch harm)";
};

TEST_F(Remote, CopiesToAHostAndBackAndLogsIn) {
    if (!fs::exists("/usr/sbin/sshd")) {
        GTEST_SKIP() << "no sshd is installed";
    }
    const LoopbackSshd server(home_.path(), environment_of(setup_));
    const std::string begin = "#!/bin/sh\nexec /usr/bin/";
    home_.write_script("bin/scp", begin + "scp " + server.options() + " \"$@\"\n");
    home_.write_script("bin/ssh", begin + "ssh " + server.options() + " \"$@\" 'echo far-$((6 * 7))'\n");
    show_project("PATH=" + (home_ / "bin").string() + ":$PATH\n");
    const Accessible transfer = open_for_file("Remote File Transfer");
    fill(transfer, "Host Name:", "loopback // the other one");
    fill(transfer, "Destination Directory:", there_.string());
    press_in(transfer, "Copy (to host)");
    expect_file(there_ / name_, "first\n");
    home_.write("far $(touch harm)/later", "second\n");
    fill(transfer, "Source File(s):", (there_ / "later").string());
    press_in(transfer, "Copy (from host)");
    expect_file(here_, "second\n");

    const Accessible hosts = open_window("Remote Hosts");
    fill(hosts, "Host 1:", "loopback");
    press_in(hosts, "Secure Shell (ssh)");
    expect_in_terminal("far-42");
    EXPECT_FALSE(fs::exists(home_ / "harm") || fs::exists(home_ / "project/harm"));
}

TEST_F(Remote, PacksAndSends) {
    home_.write_script("bin/mail", "#!/bin/sh\ncat >part\nmv part sent\n");
    show_project();
    display().click(node(name_).place(), 3);
    choose_in_open_menu("Pack/Unpack File(s)");
    const Accessible archive = program_->window("Pack / Unpack Using Tar");
    fill(archive, "Tar File:", "x:y.tar");
    fill(archive, "Destination Dir:", there_.string());
    press_in(archive, "Pack");
    const std::string unpack = "cd '" + there_.string() + "' && tar xf ./x:y.tar 2>/dev/null";
    EXPECT_TRUE(wait_until([&] { return std::system(unpack.c_str()) == 0; })) << terminal_.text();
    expect_file(there_ / name_, "first\n");

    const Accessible letter = open_for_file("Send Email");
    fill(letter, "To:", "a@b");
    fill(letter, "Subject:", "s");
    fill(letter, "Send Email text", "~!touch harm\n`touch harm`");
    press_in(letter, "Send");
    const auto yes = [this] { return program_->application().find({"push button", "Yes"}); };
    ASSERT_TRUE(wait_until([&] { return yes().showing(); }));
    EXPECT_TRUE(yes().press());
    ASSERT_TRUE(wait_until([this] { return fs::exists(home_ / "sent"); })) << letter.tree();
    EXPECT_TRUE(read_file(home_ / "sent").starts_with("~!touch harm\n`touch harm`\nbegin "));
    const std::string decode =
        "uudecode -o '" + (home_ / "decoded").string() + "' '" + (home_ / "sent").string() + "'";
    EXPECT_EQ(std::system(decode.c_str()), 0);
    EXPECT_EQ(read_file(home_ / "decoded"), "first\n");
    EXPECT_FALSE(fs::exists(home_ / "harm") || fs::exists(home_ / "project/harm"));
}

}  // namespace
