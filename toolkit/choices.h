// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"
#include "toolkit/panel.h"

#include <initializer_list>
#include <string_view>

class QButtonGroup;
class QCheckBox;

/// Exactly one of several items; the value is the item's index.
class Choice {
  public:
    /// `notify` is called when the user chooses, after the value has changed.
    Choice(Container& parent, Label label, std::initializer_list<std::string_view> items,
           Notify notify = nullptr);
    [[nodiscard]] int value() const;
    /// An index without an item stands for the first item.
    void set_value(int value);

  private:
    QButtonGroup* buttons_;
};

/// Any of several items; the value is a bit mask, bit 0 for the first item.
class CheckBoxes {
  public:
    CheckBoxes(Container& parent, Label label, std::initializer_list<std::string_view> items,
               Notify notify = nullptr);
    [[nodiscard]] unsigned value() const;
    /// Bits without an item are ignored.
    void set_value(unsigned value);

  private:
    QButtonGroup* buttons_;
};

/// A single box with its label behind it; off until it is set.
class CheckBox {
  public:
    CheckBox(Container& parent, Label label);
    [[nodiscard]] bool value() const;
    void set_value(bool value);

  private:
    QCheckBox* widget_;
};
