// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/menu.h"
#include "toolkit/panel.h"

#include <string_view>

class MenuPushButton;

/// A button that opens a menu when it is pressed, or by Space, Return or Down. The event loop goes on while
/// the menu is open, so that assistive programs can choose from it.
class MenuButton {
  public:
    /// `about_to_open` is called before the menu opens, and may set its entries. An empty menu does not open.
    MenuButton(Container& parent, Label label, Menu menu, Notify about_to_open = nullptr);
    /// A button with a picture (a file's name as for an `ImageButton`) and a menu without fixed items.
    MenuButton(Container& parent, std::string_view accessible_name, std::string_view picture,
               Notify about_to_open);

    [[nodiscard]] Menu& menu() { return menu_; }
    /// Replaces the menu whole.
    void set_menu(Menu menu);
    /// Another label, which is the accessible name too; a long one is shown shortened.
    void set_label(std::string_view label);
    void set_tool_tip(std::string_view text);

  private:
    Menu menu_;
    MenuPushButton* widget_ = nullptr;
};

/// An item of a button's menu that opens another menu, made anew by `about_to_show` whenever it is shown.
class PullRight {
  public:
    PullRight(MenuButton& button, std::string_view label, Notify about_to_show)
        : menu_(button.menu().add_pull_right(label, Menu({}), about_to_show)) {}
    [[nodiscard]] Menu& menu() { return menu_; }

  private:
    Menu& menu_;
};
