// SPDX-License-Identifier: MIT
#include "commands/mail/letter.h"

#include "shell/quoting.h"

#include <algorithm>

#include <fmt/format.h>

namespace {

constexpr std::string_view separators = " ,\n";

/// What stands in backquotes is read once more: a backslash keeps the signs that mean something there.
std::string in_backquotes(std::string_view command) {
    std::string text;
    for (const char c : command) {
        if (c == '\\' || c == '`' || c == '$') {
            text += '\\';
        }
        text += c;
    }
    return fmt::format("`{}`\n", text);
}

std::string word(std::string_view name) { return script_word(name, ShellFamily::other); }

/// Whether `mail` may take an address for an option, a program, a folder or a file. What stands around it in
/// a header, as in "<|cat>", does not hide that.
bool is_no_address(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of("<(\""), text.size()));
    return text.empty() || std::string_view("-|/+").find(text.front()) != std::string_view::npos ||
           text.find('/') < text.find_first_of("@%!");
}

std::string address_fault(std::string_view text) {
    if (text.find('\'') != std::string_view::npos) {
        return "Address can not contain <'>";
    }
    for (const std::string& address : addresses_in(text)) {
        if (is_no_address(address) || has_control_characters(address)) {
            return fmt::format("Illegal email address: {}", address);
        }
    }
    return {};
}

}  // namespace

std::vector<std::string> addresses_in(std::string_view text) {
    std::vector<std::string> addresses;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(separators), text.size());
        if (end > 0) {
            addresses.emplace_back(text.substr(0, end));
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return addresses;
}

std::string letter_fault(const Letter& letter) {
    if (addresses_in(letter.to).empty()) {
        return "Email address not specified";
    }
    if (letter.subject.empty()) {
        return "Message subject not specified";
    }
    if (letter.subject.find('\'') != std::string::npos) {
        return "Message subject can not contain <'>";
    }
    if (has_control_characters(letter.subject)) {
        return "Message subject can not contain control characters";
    }
    const std::string fault = address_fault(letter.to);
    return fault.empty() ? address_fault(letter.cc) : fault;
}

std::string_view attachment_fault(const Attachment& attachment) {
    return has_control_characters(attachment.path) ? "Attachment name can not contain control characters"
                                                   : "";
}

std::string mail_script(const Letter& letter) {
    const std::string copies = addresses_in(letter.cc).empty() ? "" : fmt::format("-c '{}' ", letter.cc);
    std::string script = fmt::format("#! /bin/sh\nmail -s '{}' {}'{}' <<Mail_Include_Text\n", letter.subject,
                                     copies, letter.to);
    if (!letter.body_file.empty()) {
        script += in_backquotes("cat " + word(letter.body_file));
    }
    for (const Attachment& attachment : letter.attachments) {
        script += in_backquotes(fmt::format("uuencode {} {}", word(attachment.path), word(attachment.name)));
    }
    return script + "Mail_Include_Text\n";
}
