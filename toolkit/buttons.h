// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/menu.h"
#include "toolkit/notify.h"
#include "toolkit/panel.h"

#include <span>
#include <string_view>

class QPushButton;

/// A push button with a label.
class Button {
  public:
    Button(Container& parent, std::string_view label, Notify notify);

  private:
    QPushButton* widget_;
};

/// A button that shows a menu while it is pressed, or by Space or Down.
class MenuButton {
  public:
    MenuButton(Container& parent, std::string_view label, Menu menu);

  private:
    QPushButton* widget_;
    Menu menu_;
};
