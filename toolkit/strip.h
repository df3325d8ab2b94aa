// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"
#include "toolkit/panel.h"

#include <string_view>

class Frame;
class QVBoxLayout;
class StripWidget;

/// Lines of controls between the areas of a window that show only while they have something to say: a group
/// to assistive programs. Coming up, it leaves the keyboard where it is.
class Strip : public Container {
  public:
    /// `leave` is called for Escape, and when the strip goes while the keyboard is in it.
    Strip(Frame& parent, std::string_view accessible_name, void (*leave)());
    void add(std::string_view label, QWidget* control, Place place) override;
    void set_shown(bool shown);
    [[nodiscard]] QWidget* widget() const override;

  private:
    StripWidget* widget_;
    QVBoxLayout* lines_;
};
