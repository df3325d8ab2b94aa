// SPDX-License-Identifier: MIT
// "Send Email".
#include "browsers/tree/walk.h"
#include "commands/absolute_path.h"
#include "commands/mail/letter.h"
#include "commands/missing_program.h"
#include "commands/notify.h"
#include "commands/script.h"
#include "shell/background.h"
#include "shell/messages.h"
#include "shell/process.h"
#include "shell/text.h"
#include "toolkit/notice.h"
#include "ui/email_addresses.h"
#include "ui/send_email.h"

#include <array>
#include <ctime>

#include <fmt/format.h>
#include <sys/stat.h>

namespace {

constexpr off_t largest_attachment = 1'000'000;  ///< bytes
constexpr std::size_t most_attachments = 10;

/// A letter as its window holds it when "Send" is pressed.
struct Outgoing {
    Letter letter;
    std::string body;
    std::string time;
};

std::string time_now() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    std::array<char, 64> text{};
    localtime_r(&now, &local);
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &local)};
}

/// A program that the script needs and nothing has found: it would fail where nobody looks, or send less.
std::string missing_for(const Letter& letter) {
    std::string missing = missing_program("mail");
    if (missing.empty() && !letter.attachments.empty()) {
        missing = missing_program("uuencode");
    }
    return missing;
}

/// Writes the files and starts the script.
Message deliver(const Outgoing& outgoing) {
    SendEmail& window = send_email();
    const std::string script = home_dir + "/.orvik-mail";
    if (!outgoing.body.empty() && !save_script(outgoing.letter.body_file, outgoing.body, 0600)) {
        return "Could not save .orvik-message file";
    }
    if (!save_script(script, mail_script(outgoing.letter), 0700)) {
        return "Can't open .orvik-mail file";
    }
    if (const std::string missing = missing_for(outgoing.letter); !missing.empty()) {
        report(missing + "\n");
        return "Message not sent: " + missing;
    }
    run_in_background(CommandLine().path(script));
    window.set_right_footer(fmt::format("Message sent {}", outgoing.time));
    email_addresses().list.append(addresses_in(outgoing.letter.to));
    return {};
}

/// Why a selected file cannot be attached; empty when it can.
std::string_view refusal_of(const WalkedNode& node, const Attachment& attachment) {
    if (!S_ISREG(node.glance.mode)) {
        return "Not a regular file";
    }
    return node.glance.size > largest_attachment ? "Attachment file too big" : attachment_fault(attachment);
}

Message attach_and_deliver(Outgoing outgoing, const std::vector<WalkedNode>& nodes) {
    std::string question = "The following files will be attached to the email : ";
    std::vector<Attachment>& attachments = outgoing.letter.attachments;
    for (const WalkedNode& node : nodes) {
        attachments.push_back({.path = absolute_path(node.path), .name = getfilename(node.path)});
        if (const std::string_view refusal = refusal_of(node, attachments.back()); !refusal.empty()) {
            return Message(refusal);
        }
        question += attachments.back().name + "\n";
    }
    if (attachments.size() > most_attachments) {
        return "Can't attach more than 10 files";
    }
    return agreed(send_email(), question + "\nSend email ?") ? deliver(outgoing) : Message();
}

}  // namespace

Message send_file() {
    SendEmail& window = send_email();
    window.set_left_footer("");
    window.open();
    window.to.set_focus();
    return {};
}

Message SendMailClear() {
    SendEmail& window = send_email();
    for (TextField* field : {&window.to, &window.cc, &window.subject}) {
        field->set_text("");
    }
    textsw_reset(window.text);
    window.set_right_footer("");
    return {};
}

Message SendFIleAddresses() {
    email_addresses().open();
    return {};
}

Message SendFIleSendButton() {
    SendEmail& window = send_email();
    window.set_right_footer("");
    Outgoing outgoing{
        .letter = {.to = window.to.text(), .cc = window.cc.text(), .subject = window.subject.text()},
        .body = window.text.text(),
        .time = time_now()};
    if (!outgoing.body.empty()) {
        outgoing.letter.body_file = home_dir + "/.orvik-message";
    }
    Message fault = letter_fault(outgoing.letter);
    if (!fault.empty()) {
        return fault;
    }
    std::vector<WalkedNode> nodes = selected_nodes();
    if (nodes.empty()) {
        return deliver(outgoing);
    }
    return walk(
        window, {.none = {}, .illegal = "Illegal file", .checks = {}}, std::move(nodes),
        [outgoing](const std::vector<WalkedNode>& walked) { return attach_and_deliver(outgoing, walked); });
}
