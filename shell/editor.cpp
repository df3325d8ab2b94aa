// SPDX-License-Identifier: MIT
#include "shell/editor.h"

#include "shell/background.h"
#include "shell/send.h"
#include "ui/text_editor_setup.h"

#include <array>

namespace {

/// How a file is opened: the words before its name, and the options behind it.
struct Editor {
    Words words;
    void (*options)(CommandLine& line) = nullptr;
};

/// In the order of "Text Editor"; "user def" follows.
constexpr std::array<Editor, TextEditorSetup::user_defined> editors{{
    {"open -a /Applications/TextEdit.app"},
    {"open -a /Applications/Smultron.app"},
    {"shelltool -c vi", textedit_command},
    {"nedit", nedit_command},
    {"gedit"},
    {"xemacs"},
}};

/// In the order of "Font Size:".
constexpr std::array<Words, 4> font_sizes{"small", "medium", "large", "extra_large"};

void geometry_options(CommandLine& line, int width, int height) {
    const TextEditorSetup& setup = text_editor_setup();
    line.numbers("-geometry {}x{}+{}+{}", width, height, setup.x_coordinate.value(),
                 setup.y_coordinate.value());
    if (const std::string font = setup.font_name.text(); !font.empty()) {
        line.word("-font").text(font);
    }
}

}  // namespace

void textedit_command(CommandLine& line) {
    const TextEditorSetup& setup = text_editor_setup();
    line.numbers("-Wp {} {} -Ws {} {}", setup.x_coordinate.value(), setup.y_coordinate.value(),
                 setup.width_pixels.value(), setup.height_pixels.value())
        .word("-Wx")
        .word(font_sizes[static_cast<std::size_t>(setup.font_size.value())])
        .word("-WT lucidasans-10");
}

void nedit_command(CommandLine& line) {
    geometry_options(line, text_editor_setup().width_pixels.value(),
                     text_editor_setup().height_pixels.value());
}

void gedit_command(CommandLine& line) {
    geometry_options(line, text_editor_setup().width_chars.value(), text_editor_setup().height_chars.value());
}

bool editor_needs_terminal() {
    const TextEditorSetup& setup = text_editor_setup();
    return setup.text_editor.value() == TextEditorSetup::user_defined &&
           setup.user_editor.text().starts_with('$');
}

bool has_editor() {
    const TextEditorSetup& setup = text_editor_setup();
    return setup.text_editor.value() != TextEditorSetup::user_defined || !setup.user_editor.text().empty();
}

std::optional<CommandLine> editor_line(std::string_view path, EditorAsker asker) {
    if (!has_editor()) {
        return std::nullopt;
    }
    const TextEditorSetup& setup = text_editor_setup();
    const int choice = setup.text_editor.value();
    if (choice == TextEditorSetup::user_defined) {
        return CommandLine::of_user(setup.user_editor.text()).escaped(path);
    }
    const Editor& editor = editors[static_cast<std::size_t>(choice)];
    const bool another_blank = asker == EditorAsker::file_tree && choice == 0;
    CommandLine line(another_blank ? Words("open -a /Applications/TextEdit.app ") : editor.words);
    line.escaped(path);
    if (editor.options != nullptr) {
        editor.options(line);
    }
    return line;
}

Message edit_file(const std::string& path, EditorAsker asker) {
    const std::optional<CommandLine> line = editor_line(path, asker);
    if (!line) {
        return no_editor;
    }
    if (editor_needs_terminal()) {
        return send(*line, Remember::last_command);
    }
    run_in_background(*line);
    return {};
}

void edit_file_silently(const std::string& path) {
    if (editor_needs_terminal()) {
        (void)edit_file(path);
    } else if (const std::optional<CommandLine> line = editor_line(path)) {
        start_in_background(*line);
    }
}
