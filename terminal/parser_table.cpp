// SPDX-License-Identifier: MIT
#include "terminal/parser_table.h"

namespace terminal {

namespace {

using Action = ParserAction;
using State = ParserState;
using Class = ByteClass;

constexpr std::array<Class, 128> make_classes() {
    std::array<Class, 128> classes{};
    const auto fill = [&classes](std::size_t from, std::size_t to, Class value) {
        for (std::size_t i = from; i <= to; ++i) {
            classes[i] = value;
        }
    };
    fill(0x00, 0x1F, Class::control);
    fill(0x20, 0x2F, Class::intermediate);
    fill(0x30, 0x39, Class::digit);
    fill(0x3C, 0x3F, Class::private_marker);
    fill(0x40, 0x7E, Class::final);
    classes[0x07] = Class::bell;
    classes[0x18] = classes[0x1A] = Class::cancel;
    classes[0x1B] = Class::escape;
    classes[0x3A] = Class::colon;
    classes[0x3B] = Class::semicolon;
    classes[0x50] = Class::dcs;
    classes[0x5B] = Class::csi;
    classes[0x5D] = Class::osc;
    classes[0x58] = classes[0x5E] = classes[0x5F] = Class::string;
    classes[0x7F] = Class::rubout;
    return classes;
}

/// In `state`, characters of the classes from `first` to `last` do this. Later rules override earlier ones.
struct Rule {
    State state;
    Class first;
    Class last;
    Action action;
    State next;
};

constexpr auto final_first = Class::final;
constexpr auto final_last = Class::string;

constexpr Rule rules[] = {
    {State::ground, Class::control, Class::bell, Action::execute, State::ground},
    {State::ground, Class::intermediate, final_last, Action::print, State::ground},

    {State::escape, Class::control, Class::bell, Action::execute, State::escape},
    {State::escape, Class::intermediate, Class::intermediate, Action::collect, State::escape_intermediate},
    {State::escape, Class::digit, final_last, Action::dispatch_escape, State::ground},
    {State::escape, Class::dcs, Class::dcs, Action::begin_sequence, State::dcs_entry},
    {State::escape, Class::csi, Class::csi, Action::begin_sequence, State::csi_entry},
    {State::escape, Class::osc, Class::osc, Action::begin_osc, State::osc_string},
    {State::escape, Class::string, Class::string, Action::begin_sequence, State::ignored_string},
    {State::escape, Class::rubout, Class::rubout, Action::none, State::escape},

    {State::escape_intermediate, Class::control, Class::bell, Action::execute, State::escape_intermediate},
    {State::escape_intermediate, Class::intermediate, Class::intermediate, Action::collect,
     State::escape_intermediate},
    {State::escape_intermediate, Class::digit, final_last, Action::dispatch_escape, State::ground},
    {State::escape_intermediate, Class::rubout, Class::rubout, Action::none, State::escape_intermediate},

    {State::csi_entry, Class::control, Class::bell, Action::execute, State::csi_entry},
    {State::csi_entry, Class::intermediate, Class::intermediate, Action::collect, State::csi_intermediate},
    {State::csi_entry, Class::digit, Class::semicolon, Action::parameter, State::csi_parameter},
    {State::csi_entry, Class::private_marker, Class::private_marker, Action::collect, State::csi_parameter},
    {State::csi_entry, final_first, final_last, Action::dispatch_csi, State::ground},
    {State::csi_entry, Class::rubout, Class::rubout, Action::none, State::csi_entry},

    {State::csi_parameter, Class::control, Class::bell, Action::execute, State::csi_parameter},
    {State::csi_parameter, Class::intermediate, Class::intermediate, Action::collect,
     State::csi_intermediate},
    {State::csi_parameter, Class::digit, Class::semicolon, Action::parameter, State::csi_parameter},
    {State::csi_parameter, Class::private_marker, Class::private_marker, Action::none, State::csi_ignore},
    {State::csi_parameter, final_first, final_last, Action::dispatch_csi, State::ground},
    {State::csi_parameter, Class::rubout, Class::rubout, Action::none, State::csi_parameter},

    {State::csi_intermediate, Class::control, Class::bell, Action::execute, State::csi_intermediate},
    {State::csi_intermediate, Class::intermediate, Class::intermediate, Action::collect,
     State::csi_intermediate},
    {State::csi_intermediate, Class::digit, Class::private_marker, Action::none, State::csi_ignore},
    {State::csi_intermediate, final_first, final_last, Action::dispatch_csi, State::ground},
    {State::csi_intermediate, Class::rubout, Class::rubout, Action::none, State::csi_intermediate},

    {State::csi_ignore, Class::control, Class::bell, Action::execute, State::csi_ignore},
    {State::csi_ignore, Class::intermediate, Class::private_marker, Action::none, State::csi_ignore},
    {State::csi_ignore, final_first, final_last, Action::none, State::ground},
    {State::csi_ignore, Class::rubout, Class::rubout, Action::none, State::csi_ignore},

    {State::dcs_entry, Class::control, Class::bell, Action::none, State::dcs_entry},
    {State::dcs_entry, Class::intermediate, Class::intermediate, Action::collect, State::dcs_intermediate},
    {State::dcs_entry, Class::digit, Class::semicolon, Action::parameter, State::dcs_parameter},
    {State::dcs_entry, Class::private_marker, Class::private_marker, Action::collect, State::dcs_parameter},
    {State::dcs_entry, final_first, final_last, Action::begin_dcs, State::dcs_passthrough},
    {State::dcs_entry, Class::rubout, Class::rubout, Action::none, State::dcs_entry},
    {State::dcs_entry, Class::other, Class::other, Action::none, State::dcs_ignore},

    {State::dcs_parameter, Class::control, Class::bell, Action::none, State::dcs_parameter},
    {State::dcs_parameter, Class::intermediate, Class::intermediate, Action::collect,
     State::dcs_intermediate},
    {State::dcs_parameter, Class::digit, Class::semicolon, Action::parameter, State::dcs_parameter},
    {State::dcs_parameter, Class::private_marker, Class::private_marker, Action::none, State::dcs_ignore},
    {State::dcs_parameter, final_first, final_last, Action::begin_dcs, State::dcs_passthrough},
    {State::dcs_parameter, Class::rubout, Class::rubout, Action::none, State::dcs_parameter},
    {State::dcs_parameter, Class::other, Class::other, Action::none, State::dcs_ignore},

    {State::dcs_intermediate, Class::control, Class::bell, Action::none, State::dcs_intermediate},
    {State::dcs_intermediate, Class::intermediate, Class::intermediate, Action::collect,
     State::dcs_intermediate},
    {State::dcs_intermediate, Class::digit, Class::private_marker, Action::none, State::dcs_ignore},
    {State::dcs_intermediate, final_first, final_last, Action::begin_dcs, State::dcs_passthrough},
    {State::dcs_intermediate, Class::rubout, Class::rubout, Action::none, State::dcs_intermediate},
    {State::dcs_intermediate, Class::other, Class::other, Action::none, State::dcs_ignore},

    {State::vt52_escape, Class::control, Class::bell, Action::execute, State::vt52_escape},
    {State::vt52_escape, Class::intermediate, final_last, Action::dispatch_vt52, State::ground},
    {State::vt52_row, Class::intermediate, final_last, Action::vt52_argument, State::vt52_column},
    {State::vt52_column, Class::intermediate, final_last, Action::vt52_argument, State::ground},

    {State::dcs_passthrough, Class::control, Class::bell, Action::none, State::dcs_passthrough},
    {State::dcs_passthrough, Class::intermediate, final_last, Action::put, State::dcs_passthrough},
    {State::dcs_passthrough, Class::rubout, Class::rubout, Action::none, State::dcs_passthrough},
    {State::dcs_passthrough, Class::other, Class::other, Action::put, State::dcs_passthrough},

    {State::dcs_ignore, Class::control, Class::other, Action::none, State::dcs_ignore},

    {State::osc_string, Class::control, Class::control, Action::none, State::osc_string},
    {State::osc_string, Class::bell, Class::bell, Action::end_osc, State::ground},
    {State::osc_string, Class::intermediate, final_last, Action::put, State::osc_string},
    {State::osc_string, Class::rubout, Class::rubout, Action::none, State::osc_string},
    {State::osc_string, Class::other, Class::other, Action::put, State::osc_string},

    {State::ignored_string, Class::control, Class::other, Action::none, State::ignored_string},
};

using Table = std::array<std::array<Transition, byte_class_count>, parser_state_count>;

constexpr Table make_table() {
    Table table{};
    for (auto& row : table) {
        // A character that no sequence can hold breaks it off, and is shown.
        row[static_cast<std::size_t>(Class::other)] = {Action::print, State::ground};
    }
    for (const Rule& rule : rules) {
        auto& row = table[static_cast<std::size_t>(rule.state)];
        for (auto i = static_cast<std::size_t>(rule.first); i <= static_cast<std::size_t>(rule.last); ++i) {
            row[i] = {rule.action, rule.next};
        }
    }
    for (auto& row : table) {  // these mean the same in every state
        row[static_cast<std::size_t>(Class::cancel)] = {Action::execute, State::ground};
        row[static_cast<std::size_t>(Class::escape)] = {Action::begin_escape, State::escape};
    }
    return table;
}

}  // namespace

constexpr std::array<Class, 128> byte_classes = make_classes();
constexpr Table transitions = make_table();

}  // namespace terminal
