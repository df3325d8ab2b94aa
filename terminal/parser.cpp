// SPDX-License-Identifier: MIT
#include "terminal/parser.h"

#include <bit>
#include <cstring>

namespace terminal {

namespace {

constexpr char32_t escape = 0x1B;

constexpr std::uint64_t each_byte(std::uint8_t value) { return 0x0101010101010101ULL * value; }

/// The length of the run of 2/0 to 7/14 that `bytes` begins with, eight bytes at a time.
std::size_t printable_run(std::string_view bytes) {
    const char* const begin = bytes.data();
    const char* const end = begin + bytes.size();
    const char* at = begin;
    for (; end - at >= 8; at += 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, at, sizeof word);
        // The high bit of a byte gets set when it is 128 or more, below 2/0, or 7/15. What borrows and
        // carries spoil lies in the more significant bytes: the least significant hit is one.
        const std::uint64_t below = word - each_byte(0x20);
        const std::uint64_t above = word + each_byte(0x01);
        const std::uint64_t hits = (word | below | above) & each_byte(0x80);
        if (hits != 0) {
            at += std::endian::native == std::endian::little ? std::countr_zero(hits) / 8 : 0;
            break;
        }
    }
    while (at < end && *at >= 0x20 && *at < 0x7F) {
        ++at;
    }
    return static_cast<std::size_t>(at - begin);
}

}  // namespace

std::size_t Parser::feed(std::string_view bytes) {
    const std::size_t size = bytes.size();
    stopped_ = false;
    while (!bytes.empty() && !stopped_) {
        if (decoder_.idle()) {
            if (state_ == ParserState::ground) {
                read_text(bytes);
            } else if (state_ >= ParserState::dcs_passthrough) {
                read_string(bytes);
            }
            if (bytes.empty() || stopped_) {
                break;
            }
        }
        const auto byte = static_cast<std::uint8_t>(bytes.front());
        bytes.remove_prefix(1);
        if (byte < 0x80 && decoder_.idle()) {
            accept_ascii(byte);
        } else {
            step(byte);
        }
    }
    return size - bytes.size();
}

void Parser::reset() {
    state_ = ParserState::ground;
    decoder_.reset();
    string_kind_ = StringKind::none;
}

/// Hands over plain text in runs, up to the first byte that needs the state machine.
void Parser::read_text(std::string_view& bytes) {
    std::array<char32_t, 256> characters;
    while (!bytes.empty() && !stopped_) {
        if (static_cast<std::uint8_t>(bytes.front()) < 0x80) {
            const std::size_t length = printable_run(bytes);
            if (length == 0) {
                if (!read_plain_sequence(bytes)) {
                    return;
                }
                continue;
            }
            handler_.print_ascii(bytes.substr(0, length));
            bytes.remove_prefix(length);
            continue;
        }
        const std::size_t count = encoding_ == Encoding::latin1 ? 0 : decode_run(bytes, characters);
        if (count == 0) {
            return;
        }
        handler_.print({characters.data(), count});
    }
}

inline void Parser::take_parameter(char32_t character) {
    if (character == ';') {
        function_.parameters.semicolon();
    } else if (character == ':') {
        function_.parameters.colon();
    } else {
        function_.parameters.digit(static_cast<int>(character - '0'));
    }
}

/// Takes a control sequence at once that is all there and has nothing but numbers before its final byte, as
/// nearly all have. Else false, and nothing is taken: the state machine knows what to do.
bool Parser::read_plain_sequence(std::string_view& bytes) {
    if (language_ != Language::ansi || !bytes.starts_with("\x1b[")) {
        return false;
    }
    function_.clear();
    for (std::size_t at = 2; at < bytes.size(); ++at) {
        const auto byte = static_cast<std::uint8_t>(bytes[at]);
        if (byte >= 0x30 && byte <= 0x3B) {
            take_parameter(byte);
        } else if (byte >= 0x40 && byte <= 0x7E) {
            bytes.remove_prefix(at + 1);
            string_kind_ = StringKind::none;
            dispatch_csi(static_cast<char>(byte));
            return true;
        } else {
            return false;
        }
    }
    return false;
}

/// Takes the ASCII text of a string at once.
void Parser::read_string(std::string_view& bytes) {
    const std::size_t length = printable_run(bytes);
    if (state_ == ParserState::osc_string || state_ == ParserState::dcs_passthrough) {
        put(bytes.substr(0, length));
    }
    bytes.remove_prefix(length);
}

void Parser::step(std::uint8_t byte) {
    if (encoding_ == Encoding::latin1) {
        decoder_.reset();
        return accept(byte);
    }
    switch (decoder_.push(byte)) {
        case Utf8Decoder::Step::incomplete:
            return;
        case Utf8Decoder::Step::character:
            return accept(decoder_.character());
        case Utf8Decoder::Step::invalid: {
            const bool control = byte < 0xA0 && encoding_ == Encoding::utf8_with_8bit_controls;
            return accept(control ? byte : replacement_character);
        }
        case Utf8Decoder::Step::invalid_before:
            accept(replacement_character);
            return step(byte);
    }
}

void Parser::accept(char32_t character) {
    if (character < 0x80) {
        accept_ascii(character);
    } else if (character < 0xA0) {  // a C1 control is the same as ESC Fe
        accept_ascii(escape);
        accept_ascii(character - 0x40);
    } else {
        const Transition next = transition(state_, ByteClass::other);
        state_ = next.next;
        apply(next.action, character);
    }
}

inline void Parser::accept_ascii(char32_t character) {
    const Transition next = transition(state_, byte_class(character));
    state_ = next.next;
    if (next.action == ParserAction::parameter) {
        take_parameter(character);
    } else {
        apply(next.action, character);
    }
}

void Parser::apply(ParserAction action, char32_t character) {
    const char byte = static_cast<char>(character);
    switch (action) {
        case ParserAction::none:
            break;
        case ParserAction::print:
            string_kind_ = StringKind::none;
            handler_.print({&character, 1});
            break;
        case ParserAction::execute:
            if (state_ == ParserState::ground) {
                string_kind_ = StringKind::none;
            }
            handler_.control(byte);
            break;
        case ParserAction::begin_escape:
            begin_escape();
            break;
        case ParserAction::begin_sequence:
            string_kind_ = StringKind::none;
            function_.clear();
            break;
        case ParserAction::collect:
            collect(byte);
            break;
        case ParserAction::parameter:
            take_parameter(character);
            break;
        case ParserAction::dispatch_escape:
            dispatch_escape(byte);
            break;
        case ParserAction::dispatch_csi:
            dispatch_csi(byte);
            break;
        case ParserAction::begin_osc:
            begin_string(StringKind::osc);
            break;
        case ParserAction::begin_dcs:
            function_.final = byte;
            begin_string(StringKind::dcs);
            break;
        case ParserAction::put: {
            std::string text;
            append_utf8(character, text);
            put(text);
            break;
        }
        case ParserAction::end_osc:
            end_string();
            break;
        case ParserAction::dispatch_vt52:
            if (byte == 'Y') {
                state_ = ParserState::vt52_row;
            } else {
                handler_.vt52_sequence(byte, {});
            }
            break;
        case ParserAction::vt52_argument:
            take_vt52_argument(byte);
            break;
    }
}

/// A string that was being read stays until it is known whether this is the escape of its ST; so does the
/// head of a DCS.
void Parser::begin_escape() {
    if (string_kind_ == StringKind::none) {
        function_.clear();
    }
    if (language_ == Language::vt52) {
        state_ = ParserState::vt52_escape;
    }
}

void Parser::collect(char character) {
    if (character >= 0x3C) {
        function_.prefix = character;
        return;
    }
    if (string_kind_ != StringKind::none) {
        string_kind_ = StringKind::none;
        function_.clear();
    }
    if (function_.intermediate_count < max_intermediates) {
        function_.intermediates[function_.intermediate_count] = character;
    }
    if (function_.intermediate_count <= max_intermediates) {
        ++function_.intermediate_count;
    }
}

void Parser::put(std::string_view text) {
    if (text.size() > max_string - string_.size()) {
        string_overflow_ = true;
    }
    if (!string_overflow_) {
        string_ += text;
    }
}

void Parser::begin_string(StringKind kind) {
    string_kind_ = kind;
    string_.clear();
    string_overflow_ = false;
}

void Parser::end_string() {
    const StringKind kind = string_kind_;
    string_kind_ = StringKind::none;
    if (string_overflow_) {
        return;
    }
    if (kind == StringKind::osc) {
        handler_.operating_system_command(string_);
    } else if (kind == StringKind::dcs && function_.intermediate_count <= max_intermediates) {
        handler_.device_control(function_, string_);
    }
}

void Parser::dispatch_escape(char final) {
    if (string_kind_ != StringKind::none) {
        if (final == '\\') {
            return end_string();
        }
        string_kind_ = StringKind::none;
        function_.clear();
    }
    function_.final = final;
    if (function_.intermediate_count <= max_intermediates) {
        handler_.escape_sequence(function_);
    }
}

/// The arguments of `ESC Y` are kept as intermediates.
void Parser::take_vt52_argument(char character) {
    function_.intermediates[function_.intermediate_count++] = character;
    if (function_.intermediate_count == 2) {
        handler_.vt52_sequence('Y', function_.intermediates);
    }
}

void Parser::dispatch_csi(char final) {
    function_.final = final;
    if (function_.intermediate_count <= max_intermediates) {
        handler_.control_sequence(function_);
    }
}

}  // namespace terminal
