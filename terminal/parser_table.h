// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace terminal {

// The states of a DEC terminal reading control functions. ECMA-48 says what the functions look like; what to
// do with broken ones follows the VT500 family: a sequence that makes no sense is read to its end and
// ignored.

enum class ParserState : std::uint8_t {
    ground,
    escape,
    escape_intermediate,
    csi_entry,
    csi_parameter,
    csi_intermediate,
    csi_ignore,
    dcs_entry,
    dcs_parameter,
    dcs_intermediate,
    vt52_escape,
    vt52_row,  ///< the two characters behind ESC Y
    vt52_column,
    dcs_passthrough,  ///< this and the following read strings
    dcs_ignore,
    osc_string,
    ignored_string,  ///< SOS, PM, APC
};
inline constexpr int parser_state_count = 17;

enum class ByteClass : std::uint8_t {
    control,  ///< C0 but the following
    bell,
    cancel,  ///< CAN, SUB
    escape,
    intermediate,  ///< 2/0 to 2/15
    digit,
    colon,
    semicolon,
    private_marker,  ///< 3/12 to 3/15
    final,           ///< 4/0 to 7/14 but the following, which introduce something behind an escape
    dcs,             ///< P
    csi,             ///< [
    osc,             ///< ]
    string,          ///< X, ^, _
    rubout,          ///< DEL
    other,           ///< from U+00A0 on
};
inline constexpr int byte_class_count = 16;

enum class ParserAction : std::uint8_t {
    none,
    print,
    execute,
    begin_escape,
    begin_sequence,  ///< forget parameters and intermediates
    collect,
    parameter,
    dispatch_escape,
    dispatch_csi,
    begin_osc,
    begin_dcs,
    put,
    end_osc,
    dispatch_vt52,
    vt52_argument,
};

struct Transition {
    ParserAction action = ParserAction::none;
    ParserState next = ParserState::ground;
};

extern const std::array<ByteClass, 128> byte_classes;
extern const std::array<std::array<Transition, byte_class_count>, parser_state_count> transitions;

/// The class of a character below U+0080.
inline ByteClass byte_class(char32_t character) { return byte_classes[character]; }

inline Transition transition(ParserState state, ByteClass byte_class) {
    return transitions[static_cast<std::size_t>(state)][static_cast<std::size_t>(byte_class)];
}

}  // namespace terminal
