// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"
#include "toolkit/panel.h"

#include <string_view>

class QPushButton;

/// A push button with a label.
class Button {
  public:
    Button(Container& parent, std::string_view label, Notify notify);

  private:
    QPushButton* widget_;
};
