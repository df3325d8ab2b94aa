// SPDX-License-Identifier: MIT
#include "commands/notify.h"
#include "tests/commands/operation_windows.h"
#include "ui/email_addresses.h"
#include "ui/message_board.h"
#include "ui/send_email.h"
#include "ui/text_editor_setup.h"

#include <regex>

#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

class Mail : public OperationWindows {
  protected:
    void SetUp() override {
        OperationWindows::SetUp();
        window().to.set_text("a@b");
        window().subject.set_text("s");
        for (const char* program : {"bin/mail", "bin/uuencode"}) {
            home.write_script(program, "#!/bin/sh\nexec cat >/dev/null\n");
        }
        setenv("PATH", (path("bin") + ":" + path_before_).c_str(), 1);
    }
    void TearDown() override {
        setenv("PATH", path_before_.c_str(), 1);
        OperationWindows::TearDown();
    }
    static SendEmail& window() { return send_email(); }
    static std::string send() { return after(SendFIleSendButton, window()); }
    static ScrollingList& list() { return email_addresses().list; }
    static mode_t mode(const std::string& file) {
        struct stat status {};
        return lstat(file.c_str(), &status) == 0 ? status.st_mode : 0;
    }
    [[nodiscard]] bool wrote_script() const { return fs::exists(path(".orvik-mail")); }

  private:
    const std::string path_before_ = std::getenv("PATH");
};

TEST_F(Mail, IsNotSentWithWhatCannotBe) {
    fs::remove(path("top/dangle"));
    home.write("top/sub/x.h", std::string(1'000'001, 'x'));
    Labels eleven;
    for (int number = 0; number < 11; ++number) {
        eleven.push_back("zip/" + std::to_string(number));
        home.write("top/" + eleven.back(), "");
    }
    home.write("top/zip/a\nb", "");
    open(node_at("zip"));
    const struct {
        Labels selection;
        std::string footer;
    } cases[] = {
        {{"a", "dangle"}, "Illegal file"},
        {{"a", "sub"}, "Not a regular file"},
        {{"a", "sub/x.h"}, "Attachment file too big"},
        {{"zip/a\nb"}, "Attachment name can not contain control characters"},
        {eleven, "Can't attach more than 10 files"},
    };
    for (const auto& row : cases) {
        select_at(row.selection);
        EXPECT_EQ(send(), row.footer);
    }
    window().subject.set_text("it's");
    EXPECT_EQ(send(), "Message subject can not contain <'>");
    EXPECT_FALSE(wrote_script());
    EXPECT_EQ(window().right_footer(), "");
}

TEST_F(Mail, IsSentWhenItsUserAgrees) {
    home.write("top/sub/x.h", std::string(1'000'000, 'x'));
    home.write("elsewhere", "kept");
    fs::create_symlink("elsewhere", path(".orvik-message"));
    window().to.set_text("a@b,c@d a@b");
    window().text.set_text("it's `x`\n");
    select_at({"sub/x.h", "b c"});
    answer("Cancel");
    EXPECT_EQ(send(), "");
    EXPECT_EQ(asked, "The following files will be attached to the email : x.h\nb c\n\nSend email ?|");
    EXPECT_FALSE(wrote_script());
    answer("Yes");
    EXPECT_EQ(send(), "");
    EXPECT_TRUE(std::regex_match(window().right_footer(),
                                 std::regex(R"(Message sent \d{4}-\d\d-\d\d \d\d:\d\d:\d\d)")))
        << window().right_footer();
    EXPECT_EQ(list().all_rows(), (Labels{"a@b", "c@d"}));
    EXPECT_EQ(mode(path(".orvik-mail")), S_IFREG | 0700U);
    EXPECT_EQ(mode(path(".orvik-message")), S_IFREG | 0600U) << "a link is replaced, not followed";
    EXPECT_EQ(read_file(path("elsewhere")) + "|" + read_file(path(".orvik-message")), "kept|it's `x`\n");
    EXPECT_EQ(message_board().text.text(), path(".orvik-mail &\n"));
    EXPECT_EQ(read_file(path(".orvik-mail")),
              "#! /bin/sh\nmail -s 's' 'a@b,c@d a@b' <<Mail_Include_Text\n`cat " + path(".orvik-message") +
                  "`\n`uuencode " + path("top/sub/x.h") + " x.h`\n`uuencode " + path("top/b\\\\ c") +
                  " b\\\\ c`\nMail_Include_Text\n");
}

TEST_F(Mail, WithoutBodyAndFilesAsksNothing) {
    select_at({});
    EXPECT_EQ(send(), "");
    EXPECT_EQ(read_file(path(".orvik-mail")),
              "#! /bin/sh\nmail -s 's' 'a@b' <<Mail_Include_Text\nMail_Include_Text\n");
    EXPECT_FALSE(fs::exists(path(".orvik-message")));
    EXPECT_EQ(SendMailClear(), "");
    EXPECT_EQ(window().to.text() + window().subject.text() + window().right_footer(), "");
}

TEST_F(Mail, WhatIsMissingIsSaid) {
    setenv("PATH", path("bin").c_str(), 1);
    fs::remove(path("bin/uuencode"));
    select_at({"a"});
    answer("Yes");
    const std::string missing = "uuencode not found in PATH: the Debian package sharutils has it";
    EXPECT_EQ(send(), "Message not sent: " + missing);
    EXPECT_EQ(message_board().text.text(), missing + "\n");
    EXPECT_EQ(window().right_footer(), "");
    fs::remove_all(path(".orvik-mail"));
    fs::create_directory(path(".orvik-mail"));
    select_at({});
    EXPECT_EQ(send(), "Can't open .orvik-mail file");
    fs::create_directory(path(".orvik-message"));
    window().text.set_text("x");
    EXPECT_EQ(send(), "Could not save .orvik-message file");
}

TEST_F(Mail, AddressesAreKeptInAFile) {
    const std::string file = path(".email-addresses");
    list().append("z@z");
    EXPECT_EQ(EmailAddressesLoad(), "Address file not found");
    EXPECT_EQ(list().all_rows(), Labels{"z@z"}) << "the list is kept";
    home.write(".email-addresses", "# mine\nb@b # boss\nz@z\na@a\n");
    answer("Cancel");
    EXPECT_EQ(EmailAddressesSave(), "");
    EXPECT_EQ(asked, "These addresses are not in the list. Remove them from the file ?|b@b\na@a");
    EXPECT_EQ(EmailAddressesLoad(), "");
    EXPECT_EQ(EmailAddressesLoad(), "");
    EXPECT_EQ(list().all_rows(), (Labels{"z@z", "b@b", "a@a"}));
    EXPECT_EQ(EmailAddressesSort(), "");
    EXPECT_EQ(EmailAddressesSave(), "Addresses saved");
    EXPECT_EQ(read_file(file), "a@a\n# mine\nb@b # boss\nz@z\n");
    fs::remove(file);
    fs::create_directory(file);
    EXPECT_EQ(EmailAddressesSave(), "Could not read " + file + ": Is a directory");

    const auto choose = [](int row, ListEvent::Kind kind, int to) {
        email_addresses().add_to.set_value(to);
        EXPECT_EQ(EmailaAddressesList({.kind = kind, .row = row}), "");
    };
    window().to.set_text("");
    choose(0, ListEvent::Kind::press, 0);
    choose(0, ListEvent::Kind::press, 0);
    choose(2, ListEvent::Kind::activate, 0);
    choose(1, ListEvent::Kind::select, 0);
    choose(1, ListEvent::Kind::press, 1);
    EXPECT_EQ(window().to.text() + "|" + window().cc.text(), "a@a z@z|b@b");

    text_editor_setup().text_editor.set_value(TextEditorSetup::user_defined);
    text_editor_setup().user_editor.set_text("");
    EXPECT_EQ(EmailAddressesEdit(), "User editor not specified");
    text_editor_setup().user_editor.set_text("true");
    EXPECT_EQ(EmailAddressesEdit(), "");
    EXPECT_EQ(message_board().text.text(), "true " + file + " &\n");
}

}  // namespace
