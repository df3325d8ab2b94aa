// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"
#include "toolkit/panel.h"

class QPushButton;

/// A push button with a label.
class Button {
  public:
    Button(Container& parent, Label label, Notify notify);
    /// Makes it the window's default button, drawn as such: Return in a field that does not act on it itself
    /// presses it.
    void set_default();

  private:
    QPushButton* widget_;
};
