// SPDX-License-Identifier: MIT
#include "app/user_defaults.h"

#include "shell/text.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array windowed_editors{
    std::string_view("bluefish"),     std::string_view("code"),
    std::string_view("codium"),       std::string_view("emacs"),
    std::string_view("featherpad"),   std::string_view("geany"),
    std::string_view("gedit"),        std::string_view("gnome-text-editor"),
    std::string_view("gvim"),         std::string_view("jedit"),
    std::string_view("kate"),         std::string_view("kwrite"),
    std::string_view("l3afpad"),      std::string_view("leafpad"),
    std::string_view("mousepad"),     std::string_view("nedit"),
    std::string_view("neovide"),      std::string_view("nvim-qt"),
    std::string_view("pluma"),        std::string_view("scite"),
    std::string_view("sublime_text"), std::string_view("subl"),
    std::string_view("xed"),          std::string_view("xedit"),
    std::string_view("xemacs"),       std::string_view("zed"),
};

/// Options that make such an editor use the terminal after all.
constexpr std::array terminal_options{std::string_view(" -nw"), std::string_view(" --no-window-system"),
                                      std::string_view(" -t "), std::string_view(" --tty")};

bool opens_a_window(std::string_view command) {
    const std::string program = getfilename(command.substr(0, command.find(' ')));
    const auto asks_for_terminal = [&](std::string_view option) {
        return (std::string(command) + " ").find(option) != std::string::npos;
    };
    return std::ranges::find(windowed_editors, program) != windowed_editors.end() &&
           std::ranges::none_of(terminal_options, asks_for_terminal);
}

}  // namespace

std::string usual_editor(std::string_view visual, std::string_view editor, ShellFamily shell) {
    for (const std::string_view command : {visual, editor}) {
        if (opens_a_window(command)) {
            return std::string(command);
        }
    }
    if (visual.empty() && editor.empty()) {
        return "xdg-open";
    }
    const bool is_split =
        shell != ShellFamily::zsh || (editor.empty() ? visual : editor).find(' ') == std::string_view::npos;
    return std::string(is_split ? "$" : "$=") + (editor.empty() ? "VISUAL" : "EDITOR");
}

std::string usual_prompt_delimiter(std::string_view shell, bool superuser) {
    const std::string name = getfilename(shell);
    if (superuser) {
        return "#";
    }
    if (name == "tcsh") {
        return ">";
    }
    return name == "csh" || name == "zsh" ? "%" : "$";
}
