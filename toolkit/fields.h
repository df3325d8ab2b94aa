// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"
#include "toolkit/panel.h"

#include <functional>
#include <string>
#include <string_view>

class LineEdit;
class QSpinBox;

/// What keys besides Return do in a field; where there is nothing, they do the usual.
struct FieldKeys {
    Notify up;
    Notify down;
    Notify escape;
};

/// One line of text with a label. Line feeds cannot be entered; bytes that are not UTF-8 are kept.
class TextField {
  public:
    /// `notify` is called on Return. Unless it is a procedure that answers, Return then presses the window's
    /// default button or, where there is none, goes to the next control.
    TextField(Container& parent, Label label, Notify notify = nullptr, Place place = Place::field);
    [[nodiscard]] std::string text() const;
    /// Sets the text; `notify` is not called. An equal text leaves cursor and selection as they are.
    void set_text(std::string_view text);
    /// Sets the name of a file, control characters shown as their pictures. `text` is that very name until
    /// its user changes what is shown.
    void set_name(std::string_view name);
    /// Its user has changed what was set, and is still in the field.
    [[nodiscard]] bool is_being_edited() const;
    /// Takes back what its user has written since it was set.
    void restore();
    /// `action` is called after every change of the text, by whomever. For showing it elsewhere.
    void on_change(std::function<void()> action);
    void set_keys(const FieldKeys& keys);
    /// For a command: what is pasted becomes one line, with blanks for tabs.
    void take_pasted_commands();
    void set_focus();
    void select_all();
    /// Scrolls to the first character: a text that does not fit shows its end otherwise.
    void show_beginning();
    /// For fields of known content: asks for room for so many characters.
    void set_display_length(int characters);
    /// What the field is for, shown under the pointer.
    void set_tool_tip(std::string_view text);
    [[nodiscard]] QWidget* widget() const;
    /// Shown in grey while the field is empty.
    void set_hint(std::string_view text);

  private:
    LineEdit* widget_;
};

/// A whole number, entered or stepped through.
class NumberField {
  public:
    /// `notify` is called on Return and when the number is stepped.
    NumberField(Container& parent, Label label, int initial = 0, Notify notify = nullptr);
    [[nodiscard]] int value() const;
    void set_value(int value);
    /// `action` is called after every change of the number, by whomever.
    void on_change(std::function<void()> action);
    [[nodiscard]] QWidget* widget() const;
    /// For a number that is only shown.
    void set_read_only();

  private:
    QSpinBox* widget_;
};
