// SPDX-License-Identifier: MIT
#pragma once

#include "shell/send.h"

#include <string>
#include <string_view>

/// The ClearCase tool's name, as "ClearTool Alias:" has it at the time of the call.
std::string clearcase_tool();

/// A command line of the ClearCase tool. The tool's name is the user's own words: where those read what
/// stands behind them a second time, as "ssh host cleartool" does, only ordinary operands are typed.
class ToolLine {
  public:
    explicit ToolLine(Words words);

    ToolLine& word(Words words);
    /// A file.
    ToolLine& path(std::string_view name);
    /// Any text as one word.
    ToolLine& text(std::string_view value);
    /// The same in double quotes.
    ToolLine& double_quoted_text(std::string_view value);
    /// An empty line is typed before it.
    ToolLine& behind_line_feed();

    /// Types it; returns an empty message, or why it was not typed.
    [[nodiscard]] Message type(Remember remember = Remember::nothing) const;

  private:
    void check(std::string_view operand);

    std::string tool_;
    CommandLine line_;
    Message refusal_;
};
