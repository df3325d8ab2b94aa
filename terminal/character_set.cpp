// SPDX-License-Identifier: MIT
#include "terminal/character_set.h"

#include <algorithm>

namespace terminal {

namespace {

/// DEC Special Graphic from 5/15 on (VT220 manual, table 2-4).
constexpr std::array<char32_t, 32> special_graphics = {
    U' ', U'◆', U'▒', U'␉', U'␌', U'␍', U'␊', U'°', U'±', U'␤', U'␋', U'┘', U'┐', U'┌', U'└', U'┼',
    U'⎺', U'⎻', U'─', U'⎼', U'⎽', U'├', U'┤', U'┴', U'┬', U'│', U'≤', U'≥', U'π', U'≠', U'£', U'·',
};
constexpr char special_graphics_begin = 0x5F;

/// DEC Technical from 2/1 to 7/14 (VT330 manual). Unassigned codes, and the pieces of a large summation sign
/// that Unicode lacks, hold the replacement character.
constexpr std::u32string_view technical =
    U"⎷┌─⌠⌡│⎡⎣⎤⎦⎛⎝⎞⎠⎨⎬\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD≤≠≥∫"
    U"∴∝∞÷Δ∇ΦΓ∼≃Θ×Λ⇔⇒≡ΠΨ\uFFFDΣ\uFFFD\uFFFD√ΩΞΥ⊂⊃∩∪∧∨"
    U"¬αβχδεφγηιθκλ\uFFFDν∂πψρστ\uFFFDƒωξυζ←↑→↓";
static_assert(technical.size() == 94);

/// Where DEC Supplemental differs from ISO 8859-1 (VT220 manual, table 2-3).
struct Difference {
    char32_t latin1;
    char32_t supplemental;
};
constexpr std::array<Difference, 17> differences = {{
    {0xA4, U'\uFFFD'},
    {0xA6, U'\uFFFD'},
    {0xA8, U'¤'},
    {0xAC, U'\uFFFD'},
    {0xAD, U'\uFFFD'},
    {0xAE, U'\uFFFD'},
    {0xAF, U'\uFFFD'},
    {0xB4, U'\uFFFD'},
    {0xB8, U'\uFFFD'},
    {0xBE, U'\uFFFD'},
    {0xD0, U'\uFFFD'},
    {0xD7, U'Œ'},
    {0xDD, U'Ÿ'},
    {0xDE, U'\uFFFD'},
    {0xF0, U'\uFFFD'},
    {0xF7, U'œ'},
    {0xFD, U'ÿ'},
}};

/// The national sets replace these characters of ASCII (VT420 manual, table 2-5).
constexpr std::string_view replaced = "#@[\\]^_`{|}~";
struct NationalSet {
    CharacterSet set;
    std::u32string_view replacements;
};
constexpr NationalSet national_sets[] = {
    {CharacterSet::british, U"£@[\\]^_`{|}~"},        {CharacterSet::dutch, U"£¾ĳ½|^_`¨ƒ¼´"},
    {CharacterSet::finnish, U"#@ÄÖÅÜ_éäöåü"},         {CharacterSet::french, U"£à°ç§^_`éùè¨"},
    {CharacterSet::french_canadian, U"#àâçêî_ôéùèû"}, {CharacterSet::german, U"#§ÄÖÜ^_`äöüß"},
    {CharacterSet::italian, U"£§°çé^_ùàòèì"},         {CharacterSet::norwegian_danish, U"#ÄÆØÅÜ_äæøåü"},
    {CharacterSet::portuguese, U"#@ÃÇÕ^_`ãçõ~"},      {CharacterSet::spanish, U"£§¡Ñ¿^_`°ñç~"},
    {CharacterSet::swedish, U"#ÉÄÖÅÜ_éäöåü"},         {CharacterSet::swiss, U"ùàéçêîèôäöüû"},
};

struct Designation {
    std::string_view code;
    CharacterSet set;
    bool national = false;
};
constexpr Designation designations[] = {
    {"B", CharacterSet::ascii},
    {"1", CharacterSet::ascii},
    {"0", CharacterSet::line_drawing},
    {"2", CharacterSet::line_drawing},
    {"<", CharacterSet::supplemental},  // the user-preferred one, which is this
    {"%5", CharacterSet::supplemental},
    {">", CharacterSet::technical},
    {"A", CharacterSet::british},
    {"4", CharacterSet::dutch, true},
    {"5", CharacterSet::finnish, true},
    {"C", CharacterSet::finnish, true},
    {"R", CharacterSet::french, true},
    {"f", CharacterSet::french, true},
    {"9", CharacterSet::french_canadian, true},
    {"Q", CharacterSet::french_canadian, true},
    {"K", CharacterSet::german, true},
    {"Y", CharacterSet::italian, true},
    {"E", CharacterSet::norwegian_danish, true},
    {"6", CharacterSet::norwegian_danish, true},
    {"`", CharacterSet::norwegian_danish, true},
    {"%6", CharacterSet::portuguese, true},
    {"Z", CharacterSet::spanish, true},
    {"7", CharacterSet::swedish, true},
    {"H", CharacterSet::swedish, true},
    {"=", CharacterSet::swiss, true},
};

char32_t translate_national(CharacterSet set, char character) {
    const std::size_t index = replaced.find(character);
    const auto* const found = std::ranges::find(national_sets, set, &NationalSet::set);
    const bool is_replaced = index != std::string_view::npos && found != std::end(national_sets);
    return is_replaced ? found->replacements[index] : static_cast<char32_t>(character);
}

}  // namespace

std::optional<CharacterSet> character_set(std::string_view code, SetSize size, NationalSets national) {
    if (size == SetSize::of_96) {
        return code == "A" ? std::optional(CharacterSet::latin1) : std::nullopt;
    }
    const auto* const found = std::ranges::find(designations, code, &Designation::code);
    if (found == std::end(designations) || (found->national && national == NationalSets::hidden)) {
        return std::nullopt;
    }
    return found->set;
}

std::string_view designation(CharacterSet set) {
    const auto* const found = std::ranges::find(designations, set, &Designation::set);
    return found == std::end(designations) ? "A" : found->code;  // ISO Latin-1 is of the other size
}

void CharacterSets::designate(char where, std::string_view code, NationalSets national) {
    const SetSize size = where >= '-' ? SetSize::of_96 : SetSize::of_94;
    const auto index = static_cast<std::size_t>(where - (size == SetSize::of_96 ? ',' : '('));
    if (const auto set = character_set(code, size, national)) {
        designated[index] = *set;
    }
}

char32_t translate(CharacterSet set, char character) {
    const auto code = static_cast<char32_t>(character);
    switch (set) {
        case CharacterSet::ascii:
            return code;
        case CharacterSet::line_drawing:
            return character < special_graphics_begin
                       ? code
                       : special_graphics[static_cast<std::size_t>(character - special_graphics_begin)];
        case CharacterSet::technical:
            return code > 0x20 && code < 0x7F ? technical[code - 0x21] : code;
        case CharacterSet::latin1:
            return code | 0x80;
        case CharacterSet::supplemental: {
            const auto* const found = std::ranges::find(differences, code | 0x80, &Difference::latin1);
            const char32_t same = code == 0x20 || code == 0x7F ? code : code | 0x80;
            return found == differences.end() ? same : found->supplemental;
        }
        default:
            return translate_national(set, character);
    }
}

}  // namespace terminal
