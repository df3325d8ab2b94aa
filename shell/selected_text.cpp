// SPDX-License-Identifier: MIT
#include "shell/selected_text.h"

#include "shell/operands.h"
#include "shell/quoting.h"
#include "shell/text.h"
#include "toolkit/selection.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t longest_selection = 999;
constexpr std::size_t longest_answered_selection = 1000;  ///< a longer one is called too long

constexpr std::string_view holds_control_characters = "Selection holds control characters";
constexpr std::string_view did_not_answer = "Selection did not answer";

/// The first line as it is.
SelectedText first_line(const SelectionMessages& messages) {
    const SelectionAnswer answer = selection_ask(longest_answered_selection);
    if (answer.kind == SelectionAnswer::Kind::silent) {
        return {.refusal = Message(did_not_answer)};
    }
    if (answer.kind == SelectionAnswer::Kind::too_long) {
        return {.refusal = Message(messages.too_long)};
    }
    SelectedText selected{.text = answer.text.size() <= longest_selection ? remove_nl(answer.text)
                                                                          : std::string()};
    selected.refusal = selected.text.empty() ? messages.none : "";
    return selected;
}

/// A line that may not be typed is refused.
SelectedText checked(SelectedText selected) {
    if (selected && has_control_characters(selected.text)) {
        selected.refusal = holds_control_characters;
    }
    return selected;
}

}  // namespace

SelectedText selected_text(const SelectionMessages& messages) {
    SelectedText selected = first_line(messages);
    std::ranges::replace(selected.text, '\t', ' ');
    return checked(std::move(selected));
}

SelectedText selected_name(const SelectionMessages& messages) {
    SelectedText selected = checked(first_line(messages));
    selected.text = with_home_directory(selected.text);
    return selected;
}
