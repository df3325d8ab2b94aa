// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/menu.h"
#include "toolkit/panel.h"

#include <string>
#include <string_view>
#include <vector>

class MenuPushButton;

/// What a menu that is made at run time calls with the text of the chosen item.
using MenuNotify = void (*)(const std::string& item);

/// A button that opens a menu when it is pressed, or by Space, Return or Down. The event loop goes on while
/// the menu is open, so that assistive programs can choose from it.
class MenuButton {
  public:
    MenuButton(Container& parent, Label label, Menu menu);
    /// A button with a picture (a file's name as for an `ImageButton`) whose menu `about_to_open` makes each
    /// time. Without items nothing opens.
    MenuButton(Container& parent, std::string_view accessible_name, std::string_view picture,
               Notify about_to_open);
    /// Replaces the menu's items. A long one is shown shortened.
    void set_items(const std::vector<std::string>& items, MenuNotify chosen);

  private:
    Menu menu_;
    MenuPushButton* widget_ = nullptr;
};
