// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

class QGridLayout;
class QHBoxLayout;
class QWidget;

/// Something that controls are put into, in creation order. Controls are owned by it through their widgets;
/// the control objects themselves are members of a window's struct and only borrow those widgets.
class Container {
  public:
    virtual ~Container() = default;
    /// Puts a control at the end, with its label beside it; an empty label takes no room.
    virtual void add(std::string_view label, QWidget* control) = 0;
    [[nodiscard]] virtual QWidget* widget() const = 0;

  protected:
    Container() = default;
    Container(const Container&) = default;
    Container& operator=(const Container&) = default;
};

/// A column of controls: labels flush right in one column, controls flush left in the next.
class Panel : public Container {
  public:
    explicit Panel(Container& parent);
    void add(std::string_view label, QWidget* control) override;
    [[nodiscard]] QWidget* widget() const override { return widget_; }

  private:
    QWidget* widget_;
    QGridLayout* layout_;
};

/// Controls beside each other on one line of a panel. A control that can use width takes what is left.
class Row : public Container {
  public:
    explicit Row(Container& parent, std::string_view label = {});
    void add(std::string_view label, QWidget* control) override;
    /// Free room here: what is added later stands flush right.
    void add_stretch();
    [[nodiscard]] QWidget* widget() const override { return widget_; }

  private:
    QWidget* widget_;
    QHBoxLayout* layout_;
};
