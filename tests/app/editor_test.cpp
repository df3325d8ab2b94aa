// SPDX-License-Identifier: MIT
#include "app/editor.h"

#include "ui/text_editor_setup.h"
#include "ui/windows.h"

#include <array>
#include <vector>

#include <gtest/gtest.h>

namespace {

class EditorTest : public testing::Test {
  protected:
    void SetUp() override {
        create_windows();
        TextEditorSetup& setup = text_editor_setup();
        setup.x_coordinate.set_value(1);
        setup.y_coordinate.set_value(-2);
        setup.width_pixels.set_value(640);
        setup.height_pixels.set_value(480);
        setup.width_chars.set_value(80);
        setup.height_chars.set_value(24);
    }
    void TearDown() override { destroy_windows(); }
};

TEST_F(EditorTest, OptionsAreMadeOfTheSetup) {
    TextEditorSetup& setup = text_editor_setup();
    constexpr std::array sizes{"small", "medium", "large", "extra_large"};
    for (int size = 0; size < std::ssize(sizes); ++size) {
        setup.font_size.set_value(size);
        EXPECT_EQ(textedit_command(), std::string(" -Wp 1 -2 -Ws 640 480 -Wx ") +
                                          sizes[static_cast<std::size_t>(size)] + " -WT lucidasans-10");
    }
    for (const auto& [font, options] : std::vector<std::pair<std::string, std::string>>{
             {"", ""},
             {"9x15", " -font 9x15"},
             {"-misc-fixed-medium-r-normal--13", " -font -misc-fixed-medium-r-normal--13"},
             {"-*-courier-*", " -font '-*-courier-*'"},
         }) {
        setup.font_name.set_text(font);
        EXPECT_EQ(nedit_command(), " -geometry 640x480+1+-2" + options);
        EXPECT_EQ(gedit_command(), " -geometry 80x24+1+-2" + options);
    }
}

TEST_F(EditorTest, CommandFollowsTheChoice) {
    TextEditorSetup& setup = text_editor_setup();
    setup.font_name.set_text("fixed");
    setup.user_editor.set_text("emacsclient -n");
    const std::array commands{
        std::string("open -a /Applications/TextEdit.app a\\ b"),
        std::string("open -a /Applications/Smultron.app a\\ b"),
        "shelltool -c vi a\\ b" + textedit_command(),
        "nedit a\\ b" + nedit_command(),
        std::string("gedit a\\ b"),
        std::string("xemacs a\\ b"),
        std::string("emacsclient -n a\\ b"),
    };
    for (int choice = 0; choice < std::ssize(commands); ++choice) {
        setup.text_editor.set_value(choice);
        EXPECT_EQ(editor_command("a\\ b"), commands[static_cast<std::size_t>(choice)]);
    }
    setup.user_editor.set_text("");
    EXPECT_EQ(editor_command("a"), std::nullopt);
}

}  // namespace
