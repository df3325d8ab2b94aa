// SPDX-License-Identifier: MIT
#include "terminal/terminal.h"
#include "terminal/text_codes.h"
#include "terminal/utf8.h"

#include <algorithm>
#include <cassert>

// Operating system commands: titles, colours and links. All others are read and ignored: nothing written to
// the terminal gets at the directory shown, notices or files, nor, unless the user permits it, the clipboard.

namespace terminal {

void Terminal::operating_system_command(std::string_view data) {
    const std::string_view text = take_field(data);
    const int number = parse_number(text);
    last_character_ = 0;
    switch (number) {
        case 0:
        case 1:
        case 2:
            title_changed(titles_.set(number, data));
            break;
        case 8:
            set_link(data);
            break;
        case 52:
            osc_selection(data);
            break;
        default:
            osc_colours(text, data);
            break;
    }
    assert(is_consistent());
}

/// `8 ; parameters ; address`. Addresses are in printable ASCII; with anything else, or when there are too
/// many, the text that follows is no link.
void Terminal::set_link(std::string_view data) {
    std::string_view parameters = take_field(data);
    pen_.set_link(0);
    const bool printable =
        data.find_first_not_of(
            "!\"#$%&'()*+,-./"
            "0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`abcdefghijklmnopqrstuvwxyz{|}~") ==
        std::string_view::npos;
    if (data.empty() || data.size() > max_link || !printable) {
        return;
    }
    Link link{{}, std::string(data)};
    const std::size_t id = parameters.find("id=");
    if (id != std::string_view::npos) {
        parameters.remove_prefix(id + 3);
        link.id = cut_utf8(parameters.substr(0, parameters.find(':')), max_link);
    }
    pen_.set_link(tables_.intern(link));
}

void Terminal::palette_changed() { epoch_ = ++clock_; }

/// Answers end with ST always, whatever ended the question: a reply holds no BEL.
void Terminal::osc_colours(std::string_view number, std::string_view data) {
    const Colours::Outcome outcome = colours_.command(number, data);
    if (outcome.changed) {
        palette_changed();
    }
    for (const std::string& answer : outcome.answers) {
        reply("\x1b]" + answer + "\x1b\\");
    }
}

/// `selections ; text in base 64`. Never read; written where the user permits it.
void Terminal::osc_selection(std::string_view data) {
    const std::string_view which = take_field(data);
    const std::string text = from_base64(data);
    const bool is_text = text.find('\0') == std::string::npos;
    if (!permissions_.clipboard || data == "?" || text.empty() || !is_text) {
        return;
    }
    const bool clipboard = which.find('c') != std::string_view::npos;
    client_.selection_written(clipboard ? Client::Selection::clipboard : Client::Selection::primary, text);
}

}  // namespace terminal
