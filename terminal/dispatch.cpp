// SPDX-License-Identifier: MIT
#include "terminal/engine.h"

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
struct Engine::Entry {
    std::string_view lead;
    char final;
    Handler handler;
    int level = 1;  ///< of conformance (DECSCL) from which on it is there
};

struct Engine::Tables {
    using Row = std::array<Handler, final_count>;

    static constexpr Entry escapes[] = {
        {"", '6', &Engine::decbi},       {"", '7', &Engine::decsc},     {"", '8', &Engine::decrc},
        {"", '9', &Engine::decfi},       {"", '=', &Engine::deckpam},   {"", '>', &Engine::deckpnm},
        {"", 'D', &Engine::ind},         {"", 'E', &Engine::nel},       {"", 'H', &Engine::hts},
        {"", 'M', &Engine::ri},          {"", 'N', &Engine::ss2},       {"", 'O', &Engine::ss3},
        {"", 'V', &Engine::spa},         {"", 'W', &Engine::epa},       {"", 'Z', &Engine::decid},
        {"", 'c', &Engine::ris},         {"", 'n', &Engine::ls2},       {"", 'o', &Engine::ls3},
        {"", '|', &Engine::ls3r},        {"", '}', &Engine::ls2r},      {"", '~', &Engine::ls1r},
        {"#", '8', &Engine::decaln},     {" ", 'F', &Engine::s7c1t},    {" ", 'G', &Engine::s8c1t, 2},
        {"%", '@', &Engine::use_latin1}, {"%", 'G', &Engine::use_utf8},
    };

    static constexpr Entry sequences[] = {
        {"", '@', &Engine::ich},
        {"", 'A', &Engine::cuu},
        {"", 'B', &Engine::cud},
        {"", 'C', &Engine::cuf},
        {"", 'D', &Engine::cub},
        {"", 'E', &Engine::cnl},
        {"", 'F', &Engine::cpl},
        {"", 'G', &Engine::cha},
        {"", 'H', &Engine::cup},
        {"", 'I', &Engine::cht},
        {"", 'J', &Engine::ed},
        {"", 'K', &Engine::el},
        {"", 'L', &Engine::il},
        {"", 'M', &Engine::dl},
        {"", 'P', &Engine::dch},
        {"", 'S', &Engine::su},
        {"", 'T', &Engine::sd},
        {"", 'X', &Engine::ech},
        {"", 'Z', &Engine::cbt},
        {"", '^', &Engine::sd},
        {"", '`', &Engine::cha},  // HPA
        {"", 'a', &Engine::hpr},
        {"", 'b', &Engine::rep},
        {"", 'c', &Engine::da1},
        {"", 'd', &Engine::vpa},
        {"", 'e', &Engine::vpr},
        {"", 'f', &Engine::cup},  // HVP
        {"", 'g', &Engine::tbc},
        {"", 'h', &Engine::sm},
        {"", 'j', &Engine::cub},  // HPB
        {"", 'k', &Engine::cuu},  // VPB
        {"", 'l', &Engine::rm},
        {"", 'm', &Engine::sgr},
        {"", 'n', &Engine::dsr},
        {"", 'r', &Engine::decstbm},
        {"", 's', &Engine::scosc_or_decslrm},
        {"", 't', &Engine::xtwinops},
        {"", 'u', &Engine::decrc},  // SCORC
        {"", 'x', &Engine::decreqtparm},
        {"?", 'J', &Engine::decsed, 2},
        {"?", 'K', &Engine::decsel, 2},
        {"?", 'W', &Engine::decst8c},
        {"?", 'h', &Engine::decset},
        {"?", 'l', &Engine::decrst},
        {"?", 'm', &Engine::xtqmodkeys},
        {"?", 'n', &Engine::decdsr},
        {"?", 'r', &Engine::xtrestore},
        {"?", 's', &Engine::xtsave},
        {">", 'T', &Engine::xtrmtitle},
        {">", 'c', &Engine::da2},
        {">", 'm', &Engine::xtmodkeys},
        {">", 'n', &Engine::xtunmodkeys},
        {">", 'q', &Engine::xtversion},
        {">", 't', &Engine::xtsmtitle},
        {"=", 'c', &Engine::da3},
        {"!", 'p', &Engine::decstr},
        {" ", '@', &Engine::sl},
        {" ", 'A', &Engine::sr},
        {" ", 'q', &Engine::decscusr},
        {"\"", 'p', &Engine::decscl},
        {"\"", 'q', &Engine::decsca, 2},
        {"\"", 'v', &Engine::decrqde, 3},
        {"#", 'p', &Engine::xtpushsgr},
        {"#", 'q', &Engine::xtpopsgr},
        {"#", 'y', &Engine::xtchecksum},
        {"#", '{', &Engine::xtpushsgr},
        {"#", '}', &Engine::xtpopsgr},
        {"$", 'p', &Engine::decrqm, 3},
        {"?$", 'p', &Engine::decrqm, 3},
        {"$", 'r', &Engine::deccara, 4},
        {"$", 't', &Engine::decrara, 4},
        {"$", 'v', &Engine::deccra, 4},
        {"$", 'w', &Engine::decrqpsr, 3},
        {"$", 'x', &Engine::decfra, 4},
        {"$", 'z', &Engine::decera, 4},
        {"$", '{', &Engine::decsera, 4},
        {"$", '|', &Engine::decscpp},
        {"&", 'u', &Engine::decrqupss, 3},
        {"*", 'x', &Engine::decsace, 4},
        {"*", 'y', &Engine::decrqcra},
        {"*", '|', &Engine::decsnls, 4},
        {"'", '|', &Engine::decrqlp},
        {"'", '}', &Engine::decic, 4},
        {"'", '~', &Engine::decdc, 4},
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

void Engine::control(char c0) {
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

void Engine::escape_sequence(const ControlFunction& function) {
    const char lead = function.intermediates[0];
    if (function.intermediate_count > 0 && lead >= '(' && lead <= '/' && lead != ',') {
        scs(function);
    } else if (const Handler handler = Tables::find(Tables::escapes, function, level_)) {
        (this->*handler)(function);
    }
    last_character_ = 0;
    assert(is_consistent());
}

void Engine::control_sequence(const ControlFunction& function) {
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
