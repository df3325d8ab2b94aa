// SPDX-License-Identifier: MIT
#pragma once

#include "shell/shell_family.h"

#include <string>
#include <string_view>

// Settings that suit the user before any setup file says otherwise.

/// The first of the editors that opens a window of its own (the values of VISUAL and EDITOR, as they stand).
/// Else the variable that names one, as the shell is to read it: such an editor needs the terminal. The
/// desktop's opener where none is named.
std::string usual_editor(std::string_view visual, std::string_view editor, ShellFamily shell);

/// What the prompt of a user's shell usually ends in.
std::string usual_prompt_delimiter(std::string_view shell, bool superuser);
