// SPDX-License-Identifier: MIT
#include "terminal/terminal.h"

#include <array>
#include <cassert>

// Which function a control, an escape sequence or a control sequence calls.

namespace terminal {

namespace {

constexpr std::size_t final_count = 0x80 - 0x30;  // final bytes lie from 3/0 on, those of CSI from 4/0 on

constexpr char bel = 0x07;
constexpr char bs = 0x08;
constexpr char ht = 0x09;
constexpr char lf = 0x0A;
constexpr char vt = 0x0B;
constexpr char ff = 0x0C;
constexpr char cr = 0x0D;
constexpr char so = 0x0E;
constexpr char si = 0x0F;

}  // namespace

/// A sequence by what stands before its final byte, the prefix or the intermediate or both in order.
struct Terminal::Entry {
    std::string_view lead;
    char final;
    Handler handler;
    int level = 1;  ///< of conformance (DECSCL) from which on it is there
};

struct Terminal::Tables {
    using Row = std::array<Handler, final_count>;

    static constexpr Entry escapes[] = {
        {"", '6', &Terminal::decbi},       {"", '7', &Terminal::decsc},     {"", '8', &Terminal::decrc},
        {"", '9', &Terminal::decfi},       {"", '=', &Terminal::deckpam},   {"", '>', &Terminal::deckpnm},
        {"", 'D', &Terminal::ind},         {"", 'E', &Terminal::nel},       {"", 'H', &Terminal::hts},
        {"", 'M', &Terminal::ri},          {"", 'N', &Terminal::ss2},       {"", 'O', &Terminal::ss3},
        {"", 'V', &Terminal::spa},         {"", 'W', &Terminal::epa},       {"", 'Z', &Terminal::decid},
        {"", 'c', &Terminal::ris},         {"", 'n', &Terminal::ls2},       {"", 'o', &Terminal::ls3},
        {"", '|', &Terminal::ls3r},        {"", '}', &Terminal::ls2r},      {"", '~', &Terminal::ls1r},
        {"#", '8', &Terminal::decaln},     {" ", 'F', &Terminal::s7c1t},    {" ", 'G', &Terminal::s8c1t, 2},
        {"%", '@', &Terminal::use_latin1}, {"%", 'G', &Terminal::use_utf8},
    };

    static constexpr Entry sequences[] = {
        {"", '@', &Terminal::ich},
        {"", 'A', &Terminal::cuu},
        {"", 'B', &Terminal::cud},
        {"", 'C', &Terminal::cuf},
        {"", 'D', &Terminal::cub},
        {"", 'E', &Terminal::cnl},
        {"", 'F', &Terminal::cpl},
        {"", 'G', &Terminal::cha},
        {"", 'H', &Terminal::cup},
        {"", 'I', &Terminal::cht},
        {"", 'J', &Terminal::ed},
        {"", 'K', &Terminal::el},
        {"", 'L', &Terminal::il},
        {"", 'M', &Terminal::dl},
        {"", 'P', &Terminal::dch},
        {"", 'S', &Terminal::su},
        {"", 'T', &Terminal::sd},
        {"", 'X', &Terminal::ech},
        {"", 'Z', &Terminal::cbt},
        {"", '^', &Terminal::sd},
        {"", '`', &Terminal::cha},  // HPA
        {"", 'a', &Terminal::hpr},
        {"", 'b', &Terminal::rep},
        {"", 'c', &Terminal::da1},
        {"", 'd', &Terminal::vpa},
        {"", 'e', &Terminal::vpr},
        {"", 'f', &Terminal::cup},  // HVP
        {"", 'g', &Terminal::tbc},
        {"", 'h', &Terminal::sm},
        {"", 'j', &Terminal::cub},  // HPB
        {"", 'k', &Terminal::cuu},  // VPB
        {"", 'l', &Terminal::rm},
        {"", 'm', &Terminal::sgr},
        {"", 'n', &Terminal::dsr},
        {"", 'r', &Terminal::decstbm},
        {"", 's', &Terminal::scosc_or_decslrm},
        {"", 't', &Terminal::xtwinops},
        {"", 'u', &Terminal::decrc},  // SCORC
        {"", 'x', &Terminal::decreqtparm},
        {"?", 'J', &Terminal::decsed, 2},
        {"?", 'K', &Terminal::decsel, 2},
        {"?", 'W', &Terminal::decst8c},
        {"?", 'h', &Terminal::decset},
        {"?", 'l', &Terminal::decrst},
        {"?", 'm', &Terminal::xtqmodkeys},
        {"?", 'n', &Terminal::decdsr},
        {"?", 'r', &Terminal::xtrestore},
        {"?", 's', &Terminal::xtsave},
        {">", 'T', &Terminal::xtrmtitle},
        {">", 'c', &Terminal::da2},
        {">", 'm', &Terminal::xtmodkeys},
        {">", 'n', &Terminal::xtunmodkeys},
        {">", 'q', &Terminal::xtversion},
        {">", 't', &Terminal::xtsmtitle},
        {"=", 'c', &Terminal::da3},
        {"!", 'p', &Terminal::decstr},
        {" ", '@', &Terminal::sl},
        {" ", 'A', &Terminal::sr},
        {" ", 'q', &Terminal::decscusr},
        {"\"", 'p', &Terminal::decscl},
        {"\"", 'q', &Terminal::decsca, 2},
        {"\"", 'v', &Terminal::decrqde, 3},
        {"#", 'p', &Terminal::xtpushsgr},
        {"#", 'q', &Terminal::xtpopsgr},
        {"#", 'y', &Terminal::xtchecksum},
        {"#", '{', &Terminal::xtpushsgr},
        {"#", '}', &Terminal::xtpopsgr},
        {"$", 'p', &Terminal::decrqm, 3},
        {"?$", 'p', &Terminal::decrqm, 3},
        {"$", 'r', &Terminal::deccara, 4},
        {"$", 't', &Terminal::decrara, 4},
        {"$", 'v', &Terminal::deccra, 4},
        {"$", 'w', &Terminal::decrqpsr, 3},
        {"$", 'x', &Terminal::decfra, 4},
        {"$", 'z', &Terminal::decera, 4},
        {"$", '{', &Terminal::decsera, 4},
        {"$", '|', &Terminal::decscpp},
        {"&", 'u', &Terminal::decrqupss, 3},
        {"*", 'x', &Terminal::decsace, 4},
        {"*", 'y', &Terminal::decrqcra},
        {"*", '|', &Terminal::decsnls, 4},
        {"'", '|', &Terminal::decrqlp},
        {"'", '}', &Terminal::decic, 4},
        {"'", '~', &Terminal::decdc, 4},
    };

    /// The plain control sequences once more, by their final byte: nearly all that come are of these.
    static constexpr Row plain = [] {
        Row row{};
        for (const Entry& entry : sequences) {
            if (entry.lead.empty()) {
                row[static_cast<std::size_t>(entry.final) - 0x30] = entry.handler;
            }
        }
        return row;
    }();

    static Handler find(std::span<const Entry> entries, Function function, int level) {
        std::array<char, 1 + max_intermediates> lead{};
        std::size_t length = 0;
        if (function.prefix != 0) {
            lead[length++] = function.prefix;
        }
        for (std::size_t i = 0; i < function.intermediate_count; ++i) {
            lead[length++] = function.intermediates[i];
        }
        for (const Entry& entry : entries) {
            if (entry.final == function.final && entry.lead == std::string_view(lead.data(), length)) {
                return entry.level <= level ? entry.handler : nullptr;
            }
        }
        return nullptr;
    }
};

void Terminal::control(char c0) {
    switch (c0) {
        case bel:
            client_.bell();
            break;
        case bs:
            back(1);
            break;
        case ht:
            tab(1);
            break;
        case lf:
        case vt:
        case ff:
            line_feed();
            if (modes_.newline) {
                carriage_return();
            }
            break;
        case cr:
            carriage_return();
            break;
        case so:
            sets_.invoked = 1;
            break;
        case si:
            sets_.invoked = 0;
            break;
        default:
            break;
    }
    last_character_ = 0;
    assert(is_consistent());
}

void Terminal::escape_sequence(const ControlFunction& function) {
    const char lead = function.intermediates[0];
    if (function.intermediate_count > 0 && lead >= '(' && lead <= '/' && lead != ',') {
        scs(function);
    } else if (const Handler handler = Tables::find(Tables::escapes, function, level_)) {
        (this->*handler)(function);
    }
    last_character_ = 0;
    assert(is_consistent());
}

void Terminal::control_sequence(const ControlFunction& function) {
    const bool is_plain = function.prefix == 0 && function.intermediate_count == 0;
    const Handler handler = is_plain ? Tables::plain[static_cast<std::size_t>(function.final) - 0x30]
                                     : Tables::find(Tables::sequences, function, level_);
    // Sub-parameters are known of character attributes only; with them another function is ignored, as a
    // VT500 ignores it for its colon.
    const bool has_attributes = function.final == 'm' || (function.final == 'r' && !is_plain);
    if (handler != nullptr && (has_attributes || !function.parameters.has_subs())) {
        (this->*handler)(function);
    }
    last_character_ = 0;
    assert(is_consistent());
}

}  // namespace terminal
