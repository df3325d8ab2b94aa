// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/font.h"
#include "toolkit/panel.h"

#include <string>
#include <string_view>

class QPlainTextEdit;

/// Several lines of plain text that the user can edit.
class TextPane {
  public:
    TextPane(Container& parent, std::string_view accessible_name);
    [[nodiscard]] std::string text() const;
    void set_font(const Font& font);
    /// Asks for room for so many characters and lines.
    void set_display_size(int columns, int lines);

    [[nodiscard]] QPlainTextEdit* widget() const { return widget_; }

  private:
    QPlainTextEdit* widget_;
};

/// The insertion point behind the last character.
inline constexpr int textsw_infinity = 0x77777777;

/// Moves the insertion point to a character position; beyond the end, to the end.
void textsw_set_insertion_point(TextPane& pane, int position);
/// Inserts text at the insertion point, which stands behind it afterwards.
void textsw_insert(TextPane& pane, std::string_view text);
/// Scrolls the insertion point into view.
void textsw_possibly_normalize(TextPane& pane);
/// Empties the pane; what was edited is discarded.
void textsw_reset(TextPane& pane);
