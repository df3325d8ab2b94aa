// SPDX-License-Identifier: MIT
#include "toolkit/pane/typed_line.h"

namespace {

/// No terminal takes a longer line.
constexpr std::size_t longest_line = 4096;

constexpr char control(char letter) { return static_cast<char>(letter & 0x1F); }

bool ends_line(char byte) { return byte == '\r' || byte == '\n' || byte == control('C'); }

/// Takes the last character (UTF-8) off.
void erase_character(std::string& text) {
    const auto goes_on = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; };
    while (!text.empty() && goes_on(text.back())) {
        text.pop_back();
    }
    if (!text.empty()) {
        text.pop_back();
    }
}

}  // namespace

void TypedLine::type(std::string_view bytes) {
    for (const char byte : bytes) {
        type(byte);
    }
}

void TypedLine::type(char byte) {
    constexpr char delete_key = 0x7F;
    const bool ends_input = byte == control('D') && text_ == std::string();
    begun_ = !ends_line(byte) && !ends_input;
    const bool is_text = static_cast<unsigned char>(byte) >= ' ' && byte != delete_key;
    if (ends_line(byte)) {
        text_ = std::string();
    } else if (text_ && is_text && text_->size() < longest_line) {
        *text_ += byte;
    } else if (text_ && (byte == delete_key || byte == control('H'))) {
        erase_character(*text_);
    } else if (text_ && byte == control('U')) {
        text_->clear();
    } else {
        text_.reset();
    }
}
