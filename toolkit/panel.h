// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

class QGridLayout;
class QHBoxLayout;
class QWidget;

/// What a control is called: the text beside it or on it, and what assistive programs call it where that text
/// alone does not tell it from another control of its window.
struct Label {
    Label(const char* label) : text(label), accessible_name(label) {}
    Label(std::string_view label, std::string_view name) : text(label), accessible_name(name) {}

    std::string_view text;
    std::string_view accessible_name;
};

/// Where a control stands in a panel.
enum class Place : std::uint8_t {
    field,  ///< one of the fields of a line; without a label beside it, where the fields of a new line begin
    line,   ///< on a line of its own; without a label beside it, from the panel's left edge
};

/// Something that controls are put into, in creation order. Controls are owned by it through their widgets;
/// the control objects themselves are members of a window's struct and only borrow those widgets.
class Container {
  public:
    virtual ~Container() = default;
    /// Puts a control at the end, with its label beside it; an empty label takes no room.
    virtual void add(std::string_view label, QWidget* control, Place place) = 0;
    [[nodiscard]] virtual QWidget* widget() const = 0;

  protected:
    Container() = default;
    Container(const Container&) = default;
    Container& operator=(const Container&) = default;
};

/// Lines of controls: labels flush right in one column, controls flush left in the next. With more than one
/// field a line, the fields fill the lines from left to right.
class Panel : public Container {
  public:
    explicit Panel(Container& parent, int fields_per_line = 1);
    void add(std::string_view label, QWidget* control, Place place) override;
    [[nodiscard]] QWidget* widget() const override { return widget_; }

  private:
    QWidget* widget_;
    QGridLayout* layout_;
    int fields_per_line_;
    int line_ = 0;
    int field_ = 0;
};

/// Controls beside each other on one line of a panel or a frame. A control that can use width takes what is
/// left.
class Row : public Container {
  public:
    explicit Row(Container& parent, Place place = Place::line);
    /// With a label before the whole row.
    Row(Container& parent, std::string_view label);
    void add(std::string_view label, QWidget* control, Place place) override;
    /// The height in pixels that the highest of its controls wants.
    [[nodiscard]] int wanted_height() const;
    /// In pixels; controls for which that is too little are hidden.
    void set_height(int pixels);
    void set_shown(bool shown);
    [[nodiscard]] bool is_shown() const;
    [[nodiscard]] QWidget* widget() const override { return widget_; }

  private:
    Row(Container& parent, std::string_view label, Place place);
    friend class Stretch;
    QWidget* widget_;
    QHBoxLayout* layout_;
};

/// Small controls of one size in columns, close to each other, at the upper left of the room they have.
class ControlGrid : public Container {
  public:
    ControlGrid(Container& parent, int columns);
    void add(std::string_view label, QWidget* control, Place place) override;
    /// The next control begins a group of its own, on a new line.
    void begin_group();
    [[nodiscard]] QWidget* widget() const override { return widget_; }

  private:
    QWidget* widget_;
    QGridLayout* layout_;
    int columns_;
    int line_ = 0;
    int column_ = 0;
};

/// What is behind it in a grid is a group of its own.
struct NewGroup {
    explicit NewGroup(ControlGrid& grid) { grid.begin_group(); }
};

/// Free room in a row: what comes before it stands flush left, what comes after it flush right.
class Stretch {
  public:
    explicit Stretch(Row& row);
};
