// SPDX-License-Identifier: MIT
#include "fuzz/check.h"
#include "fuzz/input.h"
#include "terminal/parser.h"

#include <algorithm>
#include <array>

// What the parser hands on is the same however its input is cut, and is within the limits; in each encoding
// and language, which the first byte chooses.

using namespace terminal;

namespace {

bool is_control(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7f; }

/// Writes down what was read; characters in a row are one text, however they come.
class Record : public ParserHandler {
  public:
    std::string text;

    void print_ascii(std::string_view printed) override {
        require(
            !printed.empty() && std::ranges::all_of(printed, [](char c) { return c >= 0x20 && c < 0x7f; }),
            "no plain ASCII text");
        text += printed;
    }
    void print(std::span<const char32_t> printed) override {
        require(!printed.empty(), "an empty text");
        for (const char32_t character : printed) {
            require(character >= 0x20 && character <= 0x10ffff && (character < 0x7f || character > 0x9f),
                    "no character to be shown");
            append_utf8(character, text);
        }
    }
    void control(char c0) override { note("control", {}, {&c0, 1}); }
    void escape_sequence(const ControlFunction& function) override { note("escape", function, {}); }
    void control_sequence(const ControlFunction& function) override { note("sequence", function, {}); }
    void device_control(const ControlFunction& function, std::string_view data) override {
        note("device control", function, data);
        check(data);
    }
    void operating_system_command(std::string_view data) override {
        note("system command", {}, data);
        check(data);
    }
    void vt52_sequence(char final, std::array<char, max_intermediates> /*arguments*/) override {
        note("vt52", {}, {&final, 1});
    }

  private:
    static void check(std::string_view data) {
        require(data.size() <= max_string, "a string is too long");
        require(std::ranges::none_of(data, is_control), "a control character in a string");
    }
    void note(std::string_view kind, const ControlFunction& function, std::string_view data) {
        const Parameters& parameters = function.parameters;
        require(parameters.size() <= max_parameters, "too many parameters");
        text.append("\n").append(kind) += ' ';
        text += {function.prefix, function.intermediates[0], function.intermediates[1], function.final};
        for (std::size_t i = 0; i < parameters.size(); ++i) {
            const int value = parameters.get(i, -1);
            require(value >= -1 && value <= max_parameter_value, "a parameter is out of its range");
            text += (parameters.is_sub(i) ? ':' : ';') + std::to_string(value);
        }
        text.append(data) += '\n';
    }
};

/// Below these numbers the first byte is no text.
constexpr unsigned choices = 6;

void choose(Parser& parser, unsigned choice) {
    using enum Parser::Encoding;
    constexpr std::array encodings{utf8, utf8_with_8bit_controls, latin1};
    if (choice < choices) {
        parser.set_encoding(encodings[choice % encodings.size()]);
        parser.set_language(choice < encodings.size() ? Parser::Language::ansi : Parser::Language::vt52);
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view bytes = as_text(data, size);
    const unsigned choice = bytes.empty() ? choices : static_cast<std::uint8_t>(bytes.front());
    bytes.remove_prefix(choice < choices ? 1 : 0);
    Record whole;
    Parser whole_parser(whole);
    choose(whole_parser, choice);
    require(whole_parser.feed(bytes) == bytes.size(), "the parser stops by itself");
    Record single;
    Parser parser(single);
    choose(parser, choice);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        parser.feed(bytes.substr(i, 1));
    }
    require(whole.text == single.text, "what is read depends on how the bytes were cut");
    return 0;
}
