// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

#include <string>
#include <string_view>

// The primary selection, fit to be typed.

/// The selection's first line, tabs as blanks; or why there is none that may be typed.
struct SelectedText {
    std::string text;
    Message refusal;

    explicit operator bool() const { return refusal.empty(); }
};

/// What a selection is refused with that is not there, and one that is too long.
struct SelectionMessages {
    std::string_view none = "No selection made";
    std::string_view too_long = "Selection too long";
};
/// For most buttons: one message for both.
inline constexpr SelectionMessages selection_for_button{"No selection made or selection too long",
                                                        "Selection too long"};

SelectedText selected_text(const SelectionMessages& messages = {});

/// The same for an action that takes the selection as the name of one file: "~" and "~user" are written out,
/// and a tab, which a blank would turn into another name, is refused.
SelectedText selected_name(const SelectionMessages& messages = {});
