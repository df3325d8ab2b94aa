// SPDX-License-Identifier: MIT
#include "terminal/input.h"

#include <algorithm>
#include <vector>

#include <utf8proc.h>

namespace terminal {
namespace {

constexpr std::string_view paste_begin = "\x1b[200~";
constexpr std::string_view paste_end = "\x1b[201~";
constexpr std::string_view paste_end_tail = "201~";
constexpr char escape = '\x1b';
constexpr char replacement = ' ';  // as xterm's disallowedPasteControls
constexpr char32_t csi = 0x9b;     // ECMA-48's one-character form of ESC [

/// One character of a text that is UTF-8 but for strays: a byte that belongs to no valid sequence stands for
/// itself, as a terminal in an 8-bit mode would take it.
struct Character {
    char32_t code;
    std::size_t size;  ///< in bytes
    bool stray;
};

bool is_continuation(std::string_view text, std::size_t at) {
    return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xc0) == 0x80;
}

Character character_at(std::string_view text, std::size_t at) {
    const auto first = static_cast<unsigned char>(text[at]);
    if (first < 0x80) {
        return {first, 1, false};
    }
    const std::size_t size = first >= 0xf0 ? 4 : first >= 0xe0 ? 3 : 2;
    if (first < 0xc2 || first > 0xf4) {
        return {first, 1, true};
    }
    char32_t code = first & (0xffU >> (size + 1));
    for (std::size_t i = 1; i < size; ++i) {
        if (!is_continuation(text, at + i)) {
            return {first, 1, true};
        }
        code = code << 6 | (static_cast<unsigned char>(text[at + i]) & 0x3fU);
    }
    const bool overlong = (size == 3 && code < 0x800) || (size == 4 && code < 0x10000);
    const bool outside = code > 0x10ffff || (code >= 0xd800 && code <= 0xdfff);
    return overlong || outside ? Character{first, 1, true} : Character{code, size, false};
}

bool is_control(char32_t code) { return code < 0x20 || (code >= 0x7f && code < 0xa0); }

/// Copies a text character by character, leaving out what must not be pasted.
class PasteFilter {
  public:
    explicit PasteFilter(std::string_view line_discipline) : line_discipline_(line_discipline) {}

    void add(Character character, std::string_view bytes) {
        if (character.code == csi) {
            introducers_.push_back(out_.size());
            out_ += replacement;
        } else if (character.code == escape) {
            out_ += escape;  // kept till the end markers are found
        } else if (is_harmful(character)) {
            out_ += replacement;
        } else {
            out_.append(bytes);
        }
        if (character.code == '~') {
            drop_end_marker();
        }
    }

    void add_line_end() { out_ += '\r'; }

    std::string take() {
        std::replace(out_.begin(), out_.end(), escape, replacement);
        return std::move(out_);
    }

  private:
    [[nodiscard]] bool is_harmful(Character character) const {
        if (is_control(character.code) && character.code != '\t') {
            return true;
        }
        return character.size == 1 &&
               line_discipline_.find(static_cast<char>(character.code)) != std::string_view::npos;
    }

    /// Done at every "~", so that a marker that appears where another was taken out goes as well.
    void drop_end_marker() {
        if (out_.ends_with(paste_end)) {
            out_.resize(out_.size() - paste_end.size());
        } else if (out_.ends_with(paste_end_tail) && !introducers_.empty() &&
                   introducers_.back() == out_.size() - paste_end_tail.size() - 1) {
            out_.resize(introducers_.back());
            introducers_.pop_back();
        }
    }

    std::string_view line_discipline_;
    std::string out_;
    std::vector<std::size_t> introducers_;  ///< where a one-character CSI stood
};

}  // namespace

std::string encode_paste(std::string_view text, std::string_view line_discipline, const Modes& modes) {
    PasteFilter filter(line_discipline);
    for (std::size_t at = 0; at < text.size();) {
        const Character character = character_at(text, at);
        const bool return_and_feed = text.substr(at, 2) == "\r\n";
        if (character.code == '\r' || character.code == '\n') {
            filter.add_line_end();
        } else {
            filter.add(character, text.substr(at, character.size));
        }
        at += return_and_feed ? 2 : character.size;
    }
    std::string filtered = filter.take();
    if (!modes.bracketed_paste) {
        return filtered;
    }
    return std::string(paste_begin).append(filtered).append(paste_end);
}

bool is_unseen(char32_t code) {
    const utf8proc_category_t category = utf8proc_category(static_cast<utf8proc_int32_t>(code));
    return category == UTF8PROC_CATEGORY_CF || category == UTF8PROC_CATEGORY_ZL ||
           category == UTF8PROC_CATEGORY_ZP;
}

bool paste_needs_review(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const Character character = character_at(text, at);
        if (is_control(character.code) || is_unseen(character.code)) {
            return true;
        }
        at += character.size;
    }
    return false;
}

}  // namespace terminal
