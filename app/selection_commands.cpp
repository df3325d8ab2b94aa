// SPDX-License-Identifier: MIT
// What the function keys and the main window's buttons do with the primary selection.
#include "app/selection_commands.h"

#include "app/notify.h"
#include "shell/editor.h"
#include "shell/messages.h"
#include "shell/selected_text.h"
#include "shell/send.h"
#include "shell/status.h"
#include "ui/main_window.h"
#include "ui/notebook.h"

#include <fmt/format.h>

namespace {

CommandLine users_line(const SelectedText& selected) { return CommandLine::of_user(selected.text); }

Message send_directory_change(const CommandLine& change) {
    Message refusal = send(change);
    return refusal.empty() ? send(CommandLine("ls -aF")) : refusal;
}

}  // namespace

Message insert_selection() {
    const SelectedText selected = selected_text();
    return selected ? type(users_line(selected)) : selected.refusal;
}

Message run_selection() {
    const SelectedText selected = selected_text();
    return selected ? send(users_line(selected)) : selected.refusal;
}

Message run_selection_in_background() {
    const SelectedText selected = selected_text();
    return selected ? send(users_line(selected).in_background()) : selected.refusal;
}

Message edit_selected_file() {
    const SelectedText name = selected_name();
    if (!name) {
        return name.refusal;
    }
    const std::optional<CommandLine> line = editor_line(name.text);
    if (!line) {
        return no_editor;
    }
    return send(editor_needs_terminal() ? *line : CommandLine(*line).in_background());
}

Message go_directory_up() { return send_directory_change(CommandLine("cd ..")); }

Message go_to_selected_directory() {
    const SelectedText name = selected_name();
    return name ? send_directory_change(CommandLine("cd").path(name.text)) : name.refusal;
}

Message type_selection() {
    Message refusal = insert_selection();
    SetupTimer(refresh_after_command);
    return refusal;
}

Message recall_by_selection() {
    const SelectedText selected = selected_text({.none = "No selection"});
    return selected ? send(CommandLine::of_user(fmt::format("!{}", selected.text))) : selected.refusal;
}

Message Directory_up_button() { return go_directory_up(); }

Message Directory_down_button() {
    const SelectedText name = selected_name(selection_for_button);
    return name ? send_directory_change(CommandLine("cd").double_quoted(name.text)) : name.refusal;
}

Message Execute_FG_button() {
    const SelectedText name = selected_name(selection_for_button);
    return name ? send(CommandLine().double_quoted(name.text)) : name.refusal;
}

Message Execute_BG_button() {
    const SelectedText name = selected_name(selection_for_button);
    return name ? send(CommandLine().double_quoted(name.text).in_background()) : name.refusal;
}

Message OrvikWindowCopyButton() {
    const SelectedText selected = selected_text(selection_for_button);
    if (!selected) {
        return selected.refusal;
    }
    main_window().termpane.set_focus();
    return type(users_line(selected));
}

Message CopyToMessageBoard() {
    const SelectedText selected = selected_text(selection_for_button);
    if (selected) {
        display_message(notebook().text, selected.text + "\n\n");
    }
    return selected.refusal;
}
