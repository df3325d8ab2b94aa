// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/font.h"
#include "toolkit/panel.h"

#include <cstdint>
#include <string>
#include <string_view>

class QPlainTextEdit;

/// Several lines of plain text.
class TextPane {
  public:
    enum class Access : std::uint8_t { edit, read_only };

    TextPane(Container& parent, std::string_view accessible_name, Access access = Access::edit);
    /// The text, byte for byte as it was set or inserted.
    [[nodiscard]] std::string text() const;
    /// Replaces everything; the new text counts as unmodified.
    void set_text(std::string_view text);
    /// Whether the text has been changed since it was last set, reset or called unmodified.
    [[nodiscard]] bool modified() const;
    void set_unmodified();
    /// Keeps the last so many lines, and one that is not ended. What is edited cannot be undone then.
    void set_line_limit(int lines);
    void set_font(const Font& font);
    /// Asks for room for so many characters and lines.
    void set_display_size(int columns, int lines);

    [[nodiscard]] QPlainTextEdit* widget() const { return widget_; }

  private:
    QPlainTextEdit* widget_;
    int columns_ = 0;
    int lines_ = 0;
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
