// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// Settings that suit the user before any setup file says otherwise.

/// The first of the editors that opens a window of its own (the values of VISUAL and EDITOR, as they stand),
/// else "xdg-open": an editor that needs a terminal would start without one.
std::string windowed_editor(std::string_view visual, std::string_view editor);

/// What the prompt of a user's shell usually ends in.
std::string usual_prompt_delimiter(std::string_view shell, bool superuser);
