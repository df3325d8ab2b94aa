// SPDX-License-Identifier: MIT
#include "commands/mail/address_file.h"

#include "shell/quoting.h"

#include <algorithm>
#include <map>
#include <utility>

namespace {

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

/// The address on a line; empty where there is none, or none that could be sent to. A "#" within an address
/// is its own.
std::string_view address_on(std::string_view line) {
    line = trimmed(line);
    if (line.starts_with('#')) {
        return {};
    }
    line = trimmed(line.substr(0, std::min(line.find(" #"), line.find("\t#"))));
    return has_control_characters(line) ? std::string_view() : line;
}

/// Calls `action` with each line, without its line feed, and the address on it.
template <typename Action>
void for_each_line(std::string_view text, Action action) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        action(text.substr(0, end), address_on(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

}  // namespace

std::vector<std::string> listed_addresses(std::string_view text) {
    std::vector<std::string> addresses;
    for_each_line(text, [&](std::string_view /*line*/, std::string_view address) {
        if (!address.empty()) {
            addresses.emplace_back(address);
        }
    });
    return addresses;
}

std::string with_addresses(std::string_view text, const std::vector<std::string>& addresses) {
    std::map<std::string_view, std::string> lines_of;
    for (const std::string& address : addresses) {
        lines_of.emplace(address, "");
    }
    std::string above;
    for_each_line(text, [&](std::string_view line, std::string_view address) {
        const auto found = lines_of.find(address);
        if (address.empty()) {
            above.append(line) += '\n';
        } else if (found != lines_of.end() && found->second.empty()) {
            found->second = std::exchange(above, "").append(line) + '\n';
        }
    });
    std::string result;
    for (const std::string& address : addresses) {
        const std::string& lines = lines_of[address];
        result += lines.empty() ? address + '\n' : lines;
    }
    return result + above;
}
