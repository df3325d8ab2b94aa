// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

// What is known of a letter without its window: its faults, and the script that gives it to `mail`.

struct Attachment {
    std::string path;  ///< absolute
    std::string name;  ///< what its reader gets
};

struct Letter {
    std::string to;
    std::string cc;
    std::string subject;
    std::string body_file;  ///< its path; empty for no body
    std::vector<Attachment> attachments;
};

/// The addresses in a text: what stands between blanks, commas and line feeds.
std::vector<std::string> addresses_in(std::string_view text);

/// Why a letter cannot be sent; empty when it can. An address that `mail` would take for an option, a file or
/// a program is refused, and what would end the quotes around it in the script.
std::string letter_fault(const Letter& letter);

/// Why a file cannot be attached: a line feed in its path would be a line of the script's own, and one in its
/// name a line of the letter.
std::string_view attachment_fault(const Attachment& attachment);

/// The script. The shell reads the here-document before it runs what stands in backquotes there, so that
/// neither the body nor a file can end it or is searched for commands.
std::string mail_script(const Letter& letter);
