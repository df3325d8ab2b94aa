// SPDX-License-Identifier: MIT
#include "fuzz/check.h"
#include "fuzz/input.h"
#include "terminal/input.h"
#include "terminal/utf8.h"

// A pasted text. Up to the first NUL the input is what the line discipline acts on.

using namespace terminal;

namespace {

/// Whether a text can do nothing but appear: no control characters but tab and CR, as UTF-8 or as 8-bit
/// bytes.
bool is_harmless(std::string_view text) {
    Utf8Decoder decoder;
    for (std::size_t i = 0; i < text.size();) {
        const auto byte = static_cast<std::uint8_t>(text[i]);
        const auto step = decoder.push(byte);
        const char32_t character = step == Utf8Decoder::Step::character ? decoder.character() : U'x';
        const bool stray_c1 = step == Utf8Decoder::Step::invalid && byte >= 0x80 && byte < 0xa0;
        const bool c1 = character >= 0x7f && character < 0xa0;
        const bool c0 = character < 0x20 && character != U'\t' && character != U'\r';
        if (stray_c1 || c1 || c0) {
            return false;
        }
        i += step == Utf8Decoder::Step::invalid_before ? 0 : 1;
    }
    return true;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view text = as_text(data, size);
    const std::string_view line_discipline = take_part(text);
    const std::string plain = encode_paste(text, line_discipline, {});
    require(is_harmless(plain), "a control character is pasted");
    require(plain.size() <= text.size(), "a paste has grown");
    for (const char c : line_discipline) {
        const bool replaced = c > ' ' && c < 0x7f;  // CR is typed for line ends
        require(!replaced || plain.find(c) == std::string::npos, "the line discipline acts on a paste");
    }
    require(encode_paste(plain, line_discipline, {}) == plain,
            "what was pasted cannot be pasted again as it is");
    require(
        encode_paste(text, line_discipline, {.bracketed_paste = true}) == "\033[200~" + plain + "\033[201~",
        "brackets change the paste");
    require(paste_needs_review(text) || !line_discipline.empty() || plain == text,
            "an unseen change of the text");
    return 0;
}
