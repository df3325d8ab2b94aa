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
    MenuButton(Container& parent, std::string_view label, Menu menu);

  private:
    Menu menu_;
    MenuPushButton* widget_ = nullptr;
};
