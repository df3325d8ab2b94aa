// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The line that is being typed to a program, as far as the bytes typed tell: characters and such as were
/// taken back. Other keys leave what the line is to the program.
class TypedLine {
  public:
    void type(std::string_view bytes);
    /// The line since the last Return; nothing where only the program knows.
    [[nodiscard]] const std::optional<std::string>& text() const { return text_; }
    /// Whether anything has been typed since the last Return, ^C, or ^D in an empty line.
    [[nodiscard]] bool is_begun() const { return begun_; }

  private:
    void type(char byte);
    std::optional<std::string> text_ = std::string();
    bool begun_ = false;
};
