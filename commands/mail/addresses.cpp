// SPDX-License-Identifier: MIT
// "Email Addresses".
#include "commands/mail/address_file.h"
#include "commands/mail/letter.h"
#include "commands/notify.h"
#include "settings/load_file.h"
#include "shell/editor.h"
#include "shell/files.h"
#include "shell/process.h"
#include "toolkit/list_row.h"
#include "toolkit/notice.h"
#include "ui/email_addresses.h"
#include "ui/send_email.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fmt/format.h>

namespace {

constexpr std::size_t size_limit = 1U << 20U;  ///< bytes

std::string address_file() { return home_dir + "/.email-addresses"; }

/// The addresses in a file's text that are not in the list.
std::vector<std::string> unlisted(std::string_view text) {
    std::vector<std::string> addresses = listed_addresses(text);
    const std::vector<std::string>& rows = email_addresses().list.all_rows();
    std::erase_if(addresses, [&rows](const std::string& address) {
        return std::ranges::find(rows, address) != rows.end();
    });
    return addresses;
}

}  // namespace

Message EmailAddressesEdit() { return edit_file(address_file()); }

Message EmailAddressesLoad() {
    const LoadedFile file = load_file(address_file(), size_limit);
    if (!file.text) {
        return "Address file not found";
    }
    email_addresses().list.append(listed_addresses(*file.text));
    return {};
}

/// What the list has not got would be lost: it was never loaded, or has come into the file since.
Message EmailAddressesSave() {
    const FileContents old = read_file(address_file(), size_limit);
    if (old.error != 0 && old.error != ENOENT) {
        return fmt::format("Could not read {}: {}", address_file(), std::strerror(old.error));
    }
    const std::vector<std::string> dropped = unlisted(old.text);
    if (!dropped.empty() &&
        !agreed(email_addresses(), "These addresses are not in the list. Remove them from the file ?",
                dropped)) {
        return {};
    }
    const std::string text = with_addresses(old.text, email_addresses().list.all_rows());
    const int error = save_file(address_file(), text, {.new_mode = 0600});
    return error == 0 ? "Addresses saved"
                      : fmt::format("Could not write {}: {}", address_file(), std::strerror(error));
}

Message EmailAddressesSort() {
    ScrollingList& list = email_addresses().list;
    std::vector<std::string> rows = list.all_rows();
    std::ranges::sort(rows);  // by bytes
    list.set_rows(std::move(rows));
    return {};
}

Message EmailaAddressesList(const ListEvent& event) {
    if (event.kind == ListEvent::Kind::select) {
        return {};
    }
    TextField& field = email_addresses().add_to.value() == 0 ? send_email().to : send_email().cc;
    const std::string& address = email_addresses().list.row(event.row);
    const std::string before = field.text();
    const std::vector<std::string> there = addresses_in(before);
    if (std::ranges::find(there, address) == there.end()) {
        field.set_text(before.empty() ? address : before + " " + address);
    }
    return {};
}
