// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"
#include "toolkit/panel.h"

#include <functional>
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
    /// What the choice is about, shown under the pointer.
    void set_tool_tip(std::string_view text);
    /// `action` is called after its user has chosen another item.
    void on_change(std::function<void()> action);
    [[nodiscard]] QWidget* widget() const;

  private:
    QButtonGroup* buttons_;
};

/// Where the items of check boxes are named for those who see them.
enum class ItemLabels : bool { beside, above };

/// Any of several items; the value is a bit mask, bit 0 for the first item.
class CheckBoxes {
  public:
    CheckBoxes(Container& parent, Label label, std::initializer_list<std::string_view> items,
               Notify notify = nullptr);
    /// Boxes that stand under `ColumnHeadings` of the same items.
    CheckBoxes(Container& parent, Label label, std::initializer_list<std::string_view> items,
               ItemLabels labels);
    [[nodiscard]] unsigned value() const;
    /// Bits without an item are ignored.
    void set_value(unsigned value);
    /// `action` is called after its user has changed a box.
    void on_change(std::function<void()> action);
    [[nodiscard]] QWidget* widget() const;

  private:
    QButtonGroup* buttons_;
};

/// The names of the columns of boxes below.
class ColumnHeadings {
  public:
    struct Heading {
        std::string_view text;
        int column;
    };
    /// In the order in which assistive programs read them.
    ColumnHeadings(Container& parent, std::initializer_list<Heading> headings);
};

/// A single box with its label behind it; off until it is set.
class CheckBox {
  public:
    CheckBox(Container& parent, Label label);
    [[nodiscard]] bool value() const;
    void set_value(bool value);
    /// `action` is called after every change, by whomever.
    void on_change(std::function<void()> action);
    [[nodiscard]] QWidget* widget() const;

  private:
    QCheckBox* widget_;
};
