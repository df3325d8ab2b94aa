// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/font.h"
#include "toolkit/panel.h"

#include <string_view>

class QListView;

/// Rows of text, one of which can be selected. Rows are drawn as they come into view, so that thousands cost
/// no more than those that are seen.
class ScrollingList {
  public:
    ScrollingList(Container& parent, std::string_view accessible_name);
    void set_font(const Font& font);
    /// Asks for room for so many characters and rows.
    void set_display_size(int columns, int rows);
    /// The list stays so many pixels narrower than the room it has.
    void set_margin(int pixels);
    void clear_selection();

  private:
    QListView* widget_;
    int columns_ = 0;
    int rows_ = 0;
};
