// SPDX-License-Identifier: MIT
#pragma once

#include "settings/notify.h"
#include "shell/messages.h"
#include "tests/support/recorded_windows.h"
#include "toolkit/mnemonics.h"
#include "ui/message_board.h"
#include "ui/text_editor_setup.h"

#include <QMenu>

#include <vector>

using Rows = std::vector<std::string>;

/// The windows, with an editor that records what it is given, and what their menus hold.
class MenuWindows : public RecordedWindows {
  protected:
    void SetUp() override {
        RecordedWindows::SetUp();
        editor_ = home.write_script("editor", "#!/bin/sh\nprintf '%s|' \"$@\" >'" + (home / "part").string() +
                                                  "' && mv '" + (home / "part").string() + "' '" +
                                                  (home / "opened").string() + "'\n");
        constexpr int user_defined = 6;
        text_editor_setup().text_editor.set_value(user_defined);
        text_editor_setup().user_editor.set_text(editor_);
    }

    /// A menu's lines, but for its title.
    static Rows lines(const Menu& menu) {
        Rows all;
        for (const QAction* action : menu.widget()->actions()) {
            if (!action->isSeparator()) {
                all.push_back(from_qstring(shown_label(action->text())));
            }
        }
        return all;
    }
    static void choose(const Menu& menu, const std::string& line) {
        for (QAction* action : menu.widget()->actions()) {
            if (from_qstring(shown_label(action->text())) == line) {
                action->trigger();
                return;
            }
        }
        ADD_FAILURE() << "no " << line;
    }
    /// What a procedure answers, or a step leaves in the main window's footer.
    template <typename Step>
    static std::string footer_after(Step step) {
        if constexpr (std::is_void_v<std::invoke_result_t<Step>>) {
            main_window().set_left_footer("old");
            step();
            return main_window().left_footer();
        } else {
            return step();
        }
    }
    /// What a step leaves on the Message Board.
    template <typename Step>
    static std::string board_after(Step step) {
        clear_window(message_board().text);
        step();
        return message_board().text.text();
    }
    /// The arguments that the recording editor has been started with, each with a "|" behind it.
    std::string opened() {
        EXPECT_TRUE(wait([this] { return std::filesystem::exists(home / "opened"); }));
        std::string arguments = read_file(home / "opened");
        std::filesystem::remove(home / "opened");
        return arguments;
    }
    [[nodiscard]] std::string editor() const { return editor_; }

  private:
    std::string editor_;
};
