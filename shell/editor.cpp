// SPDX-License-Identifier: MIT
#include "shell/editor.h"

#include "shell/background.h"
#include "shell/quoting.h"
#include "ui/text_editor_setup.h"

#include <array>

#include <fmt/format.h>
#include <fmt/printf.h>

namespace {

/// How a file is opened: the prefix, the file's name, the options.
struct Editor {
    std::string_view prefix;
    std::string (*options)() = nullptr;
};

/// In the order of "Text Editor"; "user def" follows.
constexpr std::array<Editor, TextEditorSetup::user_defined> editors{{
    {"open -a /Applications/TextEdit.app "},
    {"open -a /Applications/Smultron.app "},
    {"shelltool -c vi ", textedit_command},
    {"nedit ", nedit_command},
    {"gedit "},
    {"xemacs "},
}};

/// In the order of "Font Size:".
constexpr std::array<std::string_view, 4> font_sizes{"small", "medium", "large", "extra_large"};

std::string geometry_options(int width, int height) {
    const TextEditorSetup& setup = text_editor_setup();
    std::string options = fmt::sprintf(" -geometry %dx%d+%d+%d", width, height, setup.x_coordinate.value(),
                                       setup.y_coordinate.value());
    const std::string font = setup.font_name.text();
    return font.empty() ? options : options + " -font " + script_text(font, ShellFamily::other);
}

}  // namespace

std::string textedit_command() {
    const TextEditorSetup& setup = text_editor_setup();
    return fmt::sprintf(" -Wp %d %d -Ws %d %d -Wx %s -WT lucidasans-10", setup.x_coordinate.value(),
                        setup.y_coordinate.value(), setup.width_pixels.value(), setup.height_pixels.value(),
                        font_sizes[static_cast<std::size_t>(setup.font_size.value())]);
}

std::string nedit_command() {
    return geometry_options(text_editor_setup().width_pixels.value(),
                            text_editor_setup().height_pixels.value());
}

std::string gedit_command() {
    return geometry_options(text_editor_setup().width_chars.value(),
                            text_editor_setup().height_chars.value());
}

std::optional<std::string> editor_command(std::string_view word) {
    const TextEditorSetup& setup = text_editor_setup();
    const int choice = setup.text_editor.value();
    if (choice != TextEditorSetup::user_defined) {
        const Editor& editor = editors[static_cast<std::size_t>(choice)];
        return fmt::format("{}{}{}", editor.prefix, word, editor.options == nullptr ? "" : editor.options());
    }
    const std::string users = setup.user_editor.text();
    return users.empty() ? std::nullopt : std::optional(fmt::format("{} {}", users, word));
}

void edit_file(Frame& frame, const std::string& path) {
    if (const std::optional<std::string> command = editor_command(script_word(path, ShellFamily::other))) {
        run_in_background(*command);
    } else {
        frame.set_left_footer("User editor not specified");
    }
}

void edit_file_silently(const std::string& path) {
    if (const std::optional<std::string> command = editor_command(script_word(path, ShellFamily::other))) {
        start_in_background(*command);
    }
}
