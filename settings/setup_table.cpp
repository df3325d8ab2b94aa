// SPDX-License-Identifier: MIT
#include "settings/setup_table.h"

#include "ui/bookmarks.h"
#include "ui/checkout_from_repository.h"
#include "ui/clearcase_setup.h"
#include "ui/command_history_setup.h"
#include "ui/command_list_setup.h"
#include "ui/copy_files_to_clearcase_vob.h"
#include "ui/default_settings.h"
#include "ui/define_label.h"
#include "ui/edit_menu_setup.h"
#include "ui/environment_setup.h"
#include "ui/file_tree_browser.h"
#include "ui/function_keys.h"
#include "ui/generate_file_list.h"
#include "ui/message_board.h"
#include "ui/notebook.h"
#include "ui/plot_setup.h"
#include "ui/remote_copy.h"
#include "ui/remote_file_transfer_window.h"
#include "ui/remote_hosts.h"
#include "ui/status_display.h"
#include "ui/text_editor_setup.h"
#include "ui/usb_memory.h"
#include "ui/user_buttons.h"

#include <fmt/format.h>

namespace {

struct ValueOf {
    std::string operator()(const TextField* field) const { return field->text(); }
    std::string operator()(const NumberField* field) const { return fmt::to_string(field->value()); }
    std::string operator()(const Choice* choice) const { return fmt::to_string(choice->value()); }
    std::string operator()(const CheckBoxes* boxes) const { return fmt::to_string(boxes->value()); }
    std::string operator()(const CheckBox* box) const { return box->value() ? "1" : "0"; }
    std::string operator()(const UnusedLine& unused) const { return std::string(unused.text); }
};

struct SetFrom {
    const std::string& line;

    void operator()(TextField* field) const { field->set_text(line); }
    void operator()(NumberField* field) const { field->set_value(parse_number(line)); }
    void operator()(Choice* choice) const { choice->set_value(parse_number(line)); }
    void operator()(CheckBoxes* boxes) const { boxes->set_value(static_cast<unsigned>(parse_number(line))); }
    void operator()(CheckBox* box) const { box->set_value(parse_number(line) != 0); }
    void operator()(const UnusedLine& /*unused*/) const {}
};

}  // namespace

SetupTable setup_table() {
    return {{
        {2, &environment_setup().working_directory_1},
        {3, &environment_setup().working_directory_2},
        {4, &environment_setup().working_directory_3},
        {5, &environment_setup().working_directory_4},
        {6, &environment_setup().environment_setup_file},
        {7, &file_tree_browser().root_directory},
        {8, &default_settings().print_command},
        {9, &default_settings().list_directory_command},
        {10, &text_editor_setup().x_coordinate},
        {11, &text_editor_setup().y_coordinate},
        {12, &text_editor_setup().width_pixels},
        {13, &text_editor_setup().height_pixels},
        {14, &text_editor_setup().font_size},
        {15, &default_settings().command_line_editing},
        {16, &define_label().label},
        {17, UnusedLine{""}},
        {18, &edit_menu_setup().hide},
        {19, &user_buttons().label_1},
        {20, &user_buttons().label_2},
        {21, &user_buttons().label_3},
        {22, &user_buttons().label_4},
        {23, &user_buttons().label_5},
        {24, &user_buttons().label_6},
        {25, &user_buttons().command_1},
        {26, &user_buttons().command_2},
        {27, &user_buttons().command_3},
        {28, &user_buttons().command_4},
        {29, &user_buttons().command_5},
        {30, &user_buttons().command_6},
        {31, &user_buttons().button_window},
        {32, &command_list_setup().commands_directory},
        {33, &command_list_setup().follow_window_size},
        {34, &command_list_setup().window_width},
        {35, &command_history_setup().store_commands_longer_than},
        {36, &command_history_setup().insert_duplicates},
        {37, &command_history_setup().number_of_entries},
        {38, &command_history_setup().menu_action},
        {39, &command_history_setup().save_to_history_file},
        {40, &command_history_setup().history_file_stored},
        {41, &text_editor_setup().width_chars},
        {42, &text_editor_setup().height_chars},
        {43, &function_keys().function_key_7_command},
        {44, &function_keys().function_key_8_command},
        {45, &function_keys().function_key_9_command},
        {46, &clearcase_setup().cleartool_alias},
        {47, &clearcase_setup().config_spec_directory},
        {48, &command_history_setup().history_list},
        {49, &status_display().display},
        {50, &status_display().enable},
        {51, &edit_menu_setup().update_directory},
        {52, &bookmarks().bookmark_file},
        {53, UnusedLine{"0"}},
        {54, &file_tree_browser().font_size},
        {55, &default_settings().look_for_ending_delimiter},
        {56, &default_settings().prompt_ending_delimiter},
        {57, &environment_setup().notebook_directory},
        {58, &notebook().file_name},
        {59, &environment_setup().messageboard_directory},
        {60, &message_board().file_name},
        {61, &file_tree_browser().show_dot_files},
        {62, &text_editor_setup().text_editor},
        {63, &text_editor_setup().user_editor},
        {64, &file_tree_browser().max_files},
        {65, &remote_hosts().host_1},
        {66, &remote_hosts().host_2},
        {67, &remote_hosts().host_3},
        {68, &remote_file_transfer_window().destination_directory},
        {69, &remote_file_transfer_window().source_files},
        {70, &remote_file_transfer_window().user_name},
        {71, &remote_hosts().host_4},
        {72, &remote_hosts().host_5},
        {73, &remote_hosts().user_id_1},
        {74, &remote_hosts().user_id_2},
        {75, &remote_hosts().user_id_3},
        {76, &remote_hosts().user_id_4},
        {77, &remote_hosts().user_id_5},
        {78, &generate_file_list().file_name},
        {79, &default_settings().open_long_command_window},
        {80, &plot_setup().plot_command},
        {81, &usb_memory().name},
        {82, &copy_files_to_clearcase_vob().script_file},
        {83, &default_settings().clear_command_line},
        {84, &clearcase_setup().enable_clearcase_usage},
        {85, &checkout_from_repository().repository_1_url},
        {86, &remote_copy().remote_destination},
        {87, &remote_copy().remote_user},
        {88, &remote_copy().remote_host},
        {89, &checkout_from_repository().repository_2_url},
        {90, &checkout_from_repository().repository_3_url},
    }};
}

std::array<std::string, setup_lines - 1> setup_values() {
    std::array<std::string, setup_lines - 1> values;
    for (const SetupEntry& entry : setup_table()) {
        values[entry.line - 2] = std::visit(ValueOf{}, entry.control);
    }
    return values;
}

void set_setup_values(const SetupLines& lines) {
    for (const SetupEntry& entry : setup_table()) {
        std::visit(SetFrom{lines[entry.line - 1]}, entry.control);
    }
}
