// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"
#include "toolkit/panel.h"

#include <initializer_list>
#include <string_view>

class QButtonGroup;

/// Exactly one of several items; the value is the item's index.
class Choice {
  public:
    /// `notify` is called when the user chooses, after the value has changed.
    Choice(Container& parent, std::string_view label, std::initializer_list<std::string_view> items,
           Notify notify = nullptr);
    [[nodiscard]] int value() const;
    /// An index beyond the items is ignored.
    void set_value(int value);

  private:
    QButtonGroup* buttons_;
};

/// Any of several items; the value is a bit mask, bit 0 for the first item.
class CheckBoxes {
  public:
    CheckBoxes(Container& parent, std::string_view label, std::initializer_list<std::string_view> items,
               Notify notify = nullptr);
    [[nodiscard]] unsigned value() const;
    /// Bits without an item are ignored.
    void set_value(unsigned value);

  private:
    QButtonGroup* buttons_;
};
