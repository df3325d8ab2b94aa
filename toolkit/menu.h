// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class QAction;
class QMenu;

/// A line of a fixed menu. Without a procedure it cannot be chosen: a heading of the items below.
struct MenuItem {
    std::string_view label;
    Notify notify;
    std::string_view tool_tip = {};  ///< what the label does not say
};
/// A line between groups of items.
inline constexpr MenuItem menu_line{"--------------------"};

/// A line of a menu that is made at run time.
struct MenuEntry {
    std::string label;
    std::string value;            ///< what the menu's procedure is called with
    bool is_heading = false;      ///< stands right under the menu's title and cannot be chosen
    std::optional<bool> checked;  ///< with a mark that tells whether something is on
};

/// What a menu calls with the value of the chosen entry.
using MenuNotify = Procedure<const std::string&>;

/// A command menu: a title line that cannot be chosen, its fixed items, then entries made at run time. Owned
/// by the button or the item that carries it.
class Menu {
  public:
    /// An empty title makes no title line.
    explicit Menu(std::string_view title, std::span<const MenuItem> items = {});
    ~Menu();
    Menu(Menu&& other) noexcept;
    Menu& operator=(Menu&& other) noexcept;

    /// Replaces the entries. A long label is shown shortened; a value that says more is its tool tip.
    void set_entries(const std::vector<MenuEntry>& entries, MenuNotify chosen);
    /// Whether there are any, here or in a menu behind an item.
    [[nodiscard]] bool has_entries() const;
    /// Appends an item that opens another menu, behind everything that is there. `about_to_show` is called
    /// whenever that menu is about to be shown, and may set its entries.
    Menu& add_pull_right(std::string_view label, Menu menu, Notify about_to_show = nullptr);

    [[nodiscard]] QMenu* widget() const { return menu_.get(); }

  private:
    QAction* make_entry(const MenuEntry& entry, MenuNotify chosen);

    std::unique_ptr<QMenu> menu_;
    QAction* title_ = nullptr;
    std::vector<QAction*> entries_;
    std::vector<std::unique_ptr<Menu>> pull_rights_;
};
