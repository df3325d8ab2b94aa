// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/limits.h"
#include "terminal/parameters.h"
#include "terminal/parser_table.h"
#include "terminal/utf8.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace terminal {

/// A control function as it was read: `ESC I... F`, `CSI prefix P... I... F` or the head of a DCS.
struct ControlFunction {
    char prefix = 0;                                    ///< one of < = > ?, or 0
    std::array<char, max_intermediates> intermediates;  ///< the unused ones hold 0
    std::uint8_t intermediate_count = 0;                ///< may count more than are kept
    char final = 0;
    Parameters parameters;

    void clear() {
        prefix = 0;
        intermediates.fill(0);
        intermediate_count = 0;
        final = 0;
        parameters.clear();
    }
};

/// What a parser reads, in order.
class ParserHandler {
  public:
    virtual ~ParserHandler() = default;
    virtual void print_ascii(std::string_view text) = 0;  ///< 2/0 to 7/14 only, never empty
    virtual void print(std::span<const char32_t> text) = 0;
    virtual void control(char c0) = 0;
    virtual void escape_sequence(const ControlFunction& function) = 0;
    virtual void control_sequence(const ControlFunction& function) = 0;
    virtual void device_control(const ControlFunction& function, std::string_view data) = 0;
    virtual void operating_system_command(std::string_view data) = 0;
    /// Of a VT52. The arguments are those of `Y`: characters from 2/0 on.
    virtual void vt52_sequence(char final, std::array<char, max_intermediates> arguments) = 0;
};

/// Reads a program's output as text and control functions (ECMA-48), in UTF-8. Input may be cut anywhere.
/// C1 controls come as ESC Fe or as U+0080 to U+009F; strings end with ST, an OSC also with BEL. A string
/// that is cancelled, broken off or too long is ignored.
class Parser {
  public:
    explicit Parser(ParserHandler& handler) : handler_(handler) {}
    /// Reads `bytes`, up to where the handler stops it; returns how many were read.
    std::size_t feed(std::string_view bytes);
    /// For the handler: nothing is read behind the function that it is being told of.
    void stop() { stopped_ = true; }
    /// Forgets what has been begun.
    void reset();

    /// How bytes from 8/0 on are read. In UTF-8 bytes that stand alone are ill-formed; a program that asked
    /// for 8-bit controls may send them so. In ISO 8859-1 each is a character or a control.
    enum class Encoding : std::uint8_t { utf8, utf8_with_8bit_controls, latin1 };
    void set_encoding(Encoding encoding) { encoding_ = encoding; }
    /// Escape sequences are those of a VT52: `ESC F`, and `ESC Y` with a row and a column.
    enum class Language : std::uint8_t { ansi, vt52 };
    void set_language(Language language) { language_ = language; }

  private:
    enum class StringKind : std::uint8_t { none, osc, dcs };

    void read_text(std::string_view& bytes);
    bool read_plain_sequence(std::string_view& bytes);
    void read_string(std::string_view& bytes);
    void step(std::uint8_t byte);
    void accept(char32_t character);
    void accept_ascii(char32_t character);
    void apply(ParserAction action, char32_t character);
    void begin_escape();
    void collect(char character);
    void take_parameter(char32_t character);
    void put(std::string_view text);
    void begin_string(StringKind kind);
    void end_string();
    void dispatch_escape(char final);
    void dispatch_csi(char final);
    void take_vt52_argument(char character);

    ParserHandler& handler_;
    ParserState state_ = ParserState::ground;
    Utf8Decoder decoder_;
    Encoding encoding_ = Encoding::utf8;
    Language language_ = Language::ansi;
    ControlFunction function_;
    std::string string_;
    StringKind string_kind_ = StringKind::none;  // the string begun and not yet ended by ST
    bool string_overflow_ = false;
    bool stopped_ = false;
};

}  // namespace terminal
