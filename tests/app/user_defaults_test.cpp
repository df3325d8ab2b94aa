// SPDX-License-Identifier: MIT
#include "app/user_defaults.h"

#include "shell/print.h"
#include "shell/text.h"

#include <tuple>
#include <utility>

#include <gtest/gtest.h>

namespace {

TEST(UserDefaults, PreferAnEditorWithAWindowOfItsOwn) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"", "", "xdg-open"},
        {"vi", "nano -w", "$EDITOR"},
        {"vi", "", "$VISUAL"},
        {"gvim -f", "kate", "gvim -f"},
        {"vi", "/usr/bin/gedit", "/usr/bin/gedit"},
        {"/opt/gedit/vi", "gedit2", "$EDITOR"},
        {"emacs -nw", "emacs -f x", "emacs -f x"},
        {"emacs -t", "xemacs --no-window-system", "$EDITOR"},
        {"emacs --tty=/dev/tty", "emacs -title x", "emacs -title x"},
    };
    for (const auto& [visual, editor, expected] : cases) {
        EXPECT_EQ(usual_editor(visual, editor, ShellFamily::bash), expected) << visual << ", " << editor;
    }
    EXPECT_EQ(usual_editor("", "vi", ShellFamily::zsh), "$EDITOR");
    EXPECT_EQ(usual_editor("", "nano -w", ShellFamily::zsh), "$=EDITOR") << "zsh splits no variable";
}

TEST(UserDefaults, KnowWhatThePromptOfAShellEndsIn) {
    const std::pair<const char*, const char*> cases[] = {
        {"/bin/bash", "$"}, {"ksh", "$"}, {"/bin/csh", "%"}, {"/usr/bin/tcsh", ">"}, {"zsh", "%"}, {"", "$"},
    };
    for (const auto& [shell, expected] : cases) {
        EXPECT_EQ(usual_prompt_delimiter(shell, false), expected) << shell;
        EXPECT_EQ(usual_prompt_delimiter(shell, true), "#") << shell;
    }
}

TEST(Print, PutsPathAndNameIntoTheUsersCommandOnceEach) {
    const std::tuple<const char*, const char*, std::optional<std::string>> cases[] = {
        {"", "/t/n.txt", "mp -s n.txt /t/n.txt | lp -c"},
        {"", "/t/a;b", "mp -s 'a;b' '/t/a;b' | lp -c"},
        {"$PATH_NAME $PATH_NAME $FILE_NAME $FILE_NAME", "/t/n.txt", "/t/n.txt $PATH_NAME n.txt $FILE_NAME"},
        {"lp -t $FILE_NAME $PATH_NAME", "/t/$PATH_NAME", "lp -t '$PATH_NAME' '/t/$PATH_NAME'"},
        {"lp \"$PATH_NAME\"", "/t/a b", "lp \"/t/a b\""},
        {"lp \"$PATH_NAME\"", "/t/$(a)", "lp \"\"'/t/$(a)'\"\""},
        {"eval lp $PATH_NAME", "/t/$(a)", std::nullopt},
        {"lp", "/t/n.txt", "lp"},
    };
    for (const auto& [command, path, expected] : cases) {
        EXPECT_EQ(print_command(command, path, getfilename(path)), expected) << command << path;
    }
}

}  // namespace
