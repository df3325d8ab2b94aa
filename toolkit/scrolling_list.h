// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/font.h"
#include "toolkit/list_row.h"
#include "toolkit/menu.h"
#include "toolkit/panel.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class ListModel;
class ListView;

enum class Duplicates : bool { refused, allowed };

/// How many rows may be selected at once. Several are chosen with Ctrl and Shift, and with Ctrl+A.
enum class Selectable : bool { one, several };

/// What replacing its rows leaves of a list's view.
enum class View : bool {
    from_first_row,
    kept,  ///< it shows the same place, and the keyboard goes on from there
};

/// Rows of text, one or several of which can be selected. Rows are drawn as they come into view, so that
/// thousands cost no more than those that are seen. What the program does itself notifies nobody.
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
    void set_rows(std::vector<ListRow> rows, View view = View::from_first_row);
    void delete_rows();

    /// The first row that is selected; nothing where none is.
    [[nodiscard]] std::optional<int> selected() const;
    /// All of them, from top to bottom.
    [[nodiscard]] std::vector<int> selected_rows() const;
    /// Selects a row alone and scrolls it into view. A row that is not there is ignored.
    void select(int row);
    void clear_selection();
    /// Scrolls a row into view, and the keyboard goes on from there; what is selected stays.
    void go_to(int row);
    /// Of several selected rows only the first stays so when one is the most.
    void set_selectable(Selectable selectable);

    void set_keys(std::initializer_list<ListKey> keys);
    /// The menu of the right mouse button and the Menu key, which open it at a row and select that.
    void set_context_menu(Menu menu);
    [[nodiscard]] Menu& context_menu() { return *context_menu_; }
    /// Replaces the columns, from left to right.
    void set_columns(std::vector<ListColumn> columns);

    void set_font(const Font& font);
    /// Asks for room for so many characters and rows.
    void set_display_size(int columns, int rows);
    /// The list stays so many pixels narrower than the room it has.
    void set_margin(int pixels);

  private:
    ListModel* model_;
    ListView* widget_;
    std::optional<Menu> context_menu_;
    Duplicates duplicates_ = Duplicates::allowed;
    int columns_ = 0;
    int rows_ = 0;
};
