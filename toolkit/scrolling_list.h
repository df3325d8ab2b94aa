// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/font.h"
#include "toolkit/list_row.h"
#include "toolkit/panel.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

class ListModel;
class ListView;

enum class Duplicates : bool { refused, allowed };

/// Rows of text, one of which can be selected. Rows are drawn as they come into view, so that thousands cost
/// no more than those that are seen. What the program does itself notifies nobody.
class ScrollingList {
  public:
    ScrollingList(Container& parent, std::string_view accessible_name, ListNotify notify = nullptr);

    [[nodiscard]] int rows() const;
    [[nodiscard]] const std::string& row(int index) const;
    [[nodiscard]] const std::vector<std::string>& all_rows() const;
    /// Whether a row equal to one that is there may be added. What is there stays.
    void set_insert_duplicates(Duplicates duplicates);
    /// Adds rows at the end, but for those that are refused.
    void append(std::string row);
    void append(std::vector<std::string> rows);
    /// Replaces all rows, whether equal or not; none is selected then.
    void set_rows(std::vector<std::string> rows);
    /// The same with a glyph before each row.
    void set_rows(std::vector<ListRow> rows);
    void delete_rows();

    /// Nothing where no row is selected.
    [[nodiscard]] std::optional<int> selected() const;
    /// Selects a row and scrolls it into view. A row that is not there is ignored.
    void select(int row);
    void clear_selection();

    void set_font(const Font& font);
    /// Asks for room for so many characters and rows.
    void set_display_size(int columns, int rows);
    /// The list stays so many pixels narrower than the room it has.
    void set_margin(int pixels);

  private:
    ListModel* model_;
    ListView* widget_;
    Duplicates duplicates_ = Duplicates::allowed;
    int columns_ = 0;
    int rows_ = 0;
};
