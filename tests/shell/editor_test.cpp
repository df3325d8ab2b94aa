// SPDX-License-Identifier: MIT
#include "shell/editor.h"

#include "ui/text_editor_setup.h"
#include "ui/windows.h"

#include <gtest/gtest.h>

namespace {

TEST(Editor, CommandIsMadeOfTheSetup) {
    create_windows();
    TextEditorSetup& setup = text_editor_setup();
    setup.x_coordinate.set_value(1);
    setup.y_coordinate.set_value(-2);
    setup.width_pixels.set_value(640);
    setup.height_pixels.set_value(480);
    setup.width_chars.set_value(80);
    setup.height_chars.set_value(24);
    const struct {
        int editor;
        int font_size;
        std::string text;  ///< of the font's name, or of the user's own editor
        std::optional<std::string> command;
    } cases[] = {
        {0, 0, "", "open -a /Applications/TextEdit.app a\\ b"},
        {1, 0, "", "open -a /Applications/Smultron.app a\\ b"},
        {2, 0, "", "shelltool -c vi a\\ b -Wp 1 -2 -Ws 640 480 -Wx small -WT lucidasans-10"},
        {2, 1, "", "shelltool -c vi a\\ b -Wp 1 -2 -Ws 640 480 -Wx medium -WT lucidasans-10"},
        {2, 2, "", "shelltool -c vi a\\ b -Wp 1 -2 -Ws 640 480 -Wx large -WT lucidasans-10"},
        {2, 3, "", "shelltool -c vi a\\ b -Wp 1 -2 -Ws 640 480 -Wx extra_large -WT lucidasans-10"},
        {3, 0, "", "nedit a\\ b -geometry 640x480+1+-2"},
        {3, 0, "-misc-r--13", "nedit a\\ b -geometry 640x480+1+-2 -font -misc-r--13"},
        {3, 0, "-*-courier-*", "nedit a\\ b -geometry 640x480+1+-2 -font '-*-courier-*'"},
        {4, 0, "9x15", "gedit a\\ b"},
        {5, 0, "", "xemacs a\\ b"},
        {TextEditorSetup::user_defined, 0, "emacsclient -n", "emacsclient -n a\\ b"},
        {TextEditorSetup::user_defined, 0, "", std::nullopt},
    };
    for (const auto& [editor, font_size, text, command] : cases) {
        setup.text_editor.set_value(editor);
        setup.font_size.set_value(font_size);
        setup.font_name.set_text(text);
        setup.user_editor.set_text(text);
        const std::optional<CommandLine> line = editor_line("a b");
        EXPECT_EQ(line ? std::optional(line->read_by(ShellFamily::other).text) : std::nullopt, command);
    }
    setup.text_editor.set_value(0);
    EXPECT_EQ(editor_line("a b", EditorAsker::file_tree)->read_by(ShellFamily::other).text,
              "open -a /Applications/TextEdit.app  a\\ b");
    setup.font_name.set_text("9x15");
    CommandLine options;
    gedit_command(options);
    EXPECT_EQ(options.read_by(ShellFamily::other).text, "-geometry 80x24+1+-2 -font 9x15");
    destroy_windows();
}

}  // namespace
