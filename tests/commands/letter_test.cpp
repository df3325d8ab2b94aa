// SPDX-License-Identifier: MIT
#include "commands/mail/letter.h"

#include "commands/mail/address_file.h"
#include "commands/missing_program.h"
#include "tests/support/hostile_names.h"
#include "tests/support/scratch_directory.h"

#include <cstdlib>

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace {

using Addresses = std::vector<std::string>;

TEST(Letter, FaultsAreToldInTheirOrder) {
    const std::string apostrophe = "Address can not contain <'>";
    const struct {
        std::string to;
        std::string cc;
        std::string subject;
        std::string fault;
    } cases[] = {
        {"", "", "", "Email address not specified"},
        {" , ", "", "s", "Email address not specified"},
        {"-x", "'", "", "Message subject not specified"},
        {"'", "", "it's", "Message subject can not contain <'>"},
        {"a@b", "", "s\r", "Message subject can not contain control characters"},
        {"a@b, c@d e/f@g <h@i> +j@k", "", "s", "Illegal email address: e/f@g"},
        {"a@b x'y@z", "", "s", apostrophe},
        {"a@b", "c@d '", "s", apostrophe},
        {"a@b,-c@d", "", "s", "Illegal email address: -c@d"},
        {"a@b", "c@d |cat", "s", "Illegal email address: |cat"},
        {"a@b <|cat>", "", "s", "Illegal email address: <|cat>"},
        {"\"|cat\"", "", "s", "Illegal email address: \"|cat\""},
        {"/tmp/x", "", "s", "Illegal email address: /tmp/x"},
        {"a@b", "+folder", "s", "Illegal email address: +folder"},
        {"a@b\tc@d", "", "s", "Illegal email address: a@b\tc@d"},
        {"Joe <a@b>, c@d", "\"K\" <e+f@g/h>", "-s", ""},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(letter_fault({.to = row.to, .cc = row.cc, .subject = row.subject}), row.fault) << row.to;
    }
    EXPECT_EQ(addresses_in(" a@b,c@d\n\n e@f "), (Addresses{"a@b", "c@d", "e@f"}));
}

TEST(Letter, IsAScriptOfThisForm) {
    Letter letter{.to = "a@b c@d", .subject = "$(x) `y` \\"};
    EXPECT_EQ(mail_script(letter),
              "#! /bin/sh\nmail -s '$(x) `y` \\' 'a@b c@d' <<Mail_Include_Text\nMail_Include_Text\n");
    letter.subject = "s";
    letter.cc = "e@f";
    letter.body_file = "/home/me/.orvik-message";
    letter.attachments = {{"/d/a.c", "a.c"}, {"/it's $x/-b c", "-b c"}};
    EXPECT_EQ(mail_script(letter),
              "#! /bin/sh\nmail -s 's' -c 'e@f' 'a@b c@d' <<Mail_Include_Text\n"
              "`cat /home/me/.orvik-message`\n"
              "`uuencode /d/a.c a.c`\n"
              "`uuencode '/it'\\\\''s \\$x/-b c' ./-b\\\\ c`\n"
              "Mail_Include_Text\n");
}

/// Files of every name that can be attached, and a `mail` that records what it is given.
class SentLetter : public testing::Test {
  protected:
    SentLetter() {
        for (const HostileName& row : hostile_names) {
            const Attachment attachment{directory_ / row.name, row.name};
            const bool is_name = row.name.find('/') == std::string::npos;
            if (is_name && (row.holds & HostileName::control) != 0) {
                EXPECT_NE(attachment_fault(attachment), "") << row.what;
            } else if (is_name) {
                EXPECT_EQ(attachment_fault(attachment), "") << row.what;
                home_.write(directory_.filename().string() + "/" + row.name, "text\n");
                letter_.attachments.push_back(attachment);
            }
        }
        home_.write_script("bin/mail", "#!/bin/sh\nprintf '%s|' \"$@\" >arguments; cat >sent\n");
        home_.write("body", body);
    }
    [[nodiscard]] bool run(const std::string& command) const {
        return std::system(fmt::format("cd '{0}' && PATH='{0}/bin':$PATH {1}", home_.path().string(), command)
                               .c_str()) == 0;
    }

    static constexpr const char* body =
        "Mail_Include_Text\n~!touch pwned\n`touch pwned`\n$(touch pwned) ${HOME}\n"
        "it's \\ \\\\ \"x\"\n.\n\n  end";
    const ScratchDirectory home_;
    const std::filesystem::path directory_ = home_ / "it's `touch pwned` \\$(touch pwned)\\`";
    Letter letter_{.to = "a@b, c@d", .cc = "e@f", .subject = "$(touch pwned)\"", .body_file = home_ / "body"};
};

TEST_F(SentLetter, ArrivesAsItIs) {
    ASSERT_TRUE(run("sh -c 'command -v uuencode uudecode' >/dev/null")) << "sharutils is not installed";
    ASSERT_TRUE(run("uuencode */plain.txt x >encoded && uudecode -o decoded encoded"));
    EXPECT_EQ(read_file(home_ / "decoded"), "text\n");
    const std::string encoded = read_file(home_ / "encoded");
    const std::size_t name_at = encoded.find("x\n");
    std::string expected = std::string(body) + "\n";
    for (const Attachment& attachment : letter_.attachments) {
        const bool like_an_option = attachment.name.find_first_of("-+") == 0;
        expected += encoded.substr(0, name_at) + (like_an_option ? "./" : "") + attachment.name +
                    encoded.substr(name_at + 1);
    }
    home_.write("script", mail_script(letter_));
    for (const char* shell : {"dash", "bash", "bash --posix", "ksh93", "zsh", "busybox sh"}) {
        std::filesystem::remove(home_ / "sent");
        EXPECT_TRUE(run(std::string(shell) + " script")) << shell;
        EXPECT_EQ(read_file(home_ / "arguments"), "-s|$(touch pwned)\"|-c|e@f|a@b, c@d|") << shell;
        EXPECT_EQ(read_file(home_ / "sent"), expected) << shell;
        EXPECT_FALSE(std::filesystem::exists(home_ / "pwned")) << shell;
    }
}

TEST(AddressFile, KeepsItsComments) {
    const std::string text = "# mine\nz@z  # boss\n\n#off@x\r\na@a\r\nbad\x01@x\nz@z\na#b@c";
    EXPECT_EQ(listed_addresses(text), (Addresses{"z@z", "a@a", "z@z", "a#b@c"}));
    const struct {
        Addresses addresses;
        std::string text;
    } cases[] = {
        {{"z@z", "a@a", "a#b@c"}, "# mine\nz@z  # boss\n\n#off@x\r\na@a\r\nbad\x01@x\na#b@c\n"},
        {{"a#b@c", "n@n", "z@z"}, "\n#off@x\r\nbad\x01@x\na#b@c\nn@n\n# mine\nz@z  # boss\n"},
        {{}, "# mine\n\n#off@x\r\nbad\x01@x\n"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(with_addresses(text, row.addresses), row.text);
    }
    EXPECT_EQ(with_addresses("", {"a@a", "b@b"}), "a@a\nb@b\n");
}

TEST(MissingProgram, IsToldWithItsPackage) {
    const ScratchDirectory home;
    const std::string path = std::getenv("PATH");
    home.write("bin/mail", "not executable");
    home.write_script("other/rcp", "");
    setenv("PATH", fmt::format("{0}/bin::{0}/other", home.path().string()).c_str(), 1);
    EXPECT_EQ(missing_program("rcp"), "");
    EXPECT_EQ(missing_program("mail"), "mail not found in PATH: the Debian package bsd-mailx has it");
    EXPECT_EQ(missing_program("none"), "none not found in PATH");
    setenv("PATH", path.c_str(), 1);
}

}  // namespace
