// SPDX-License-Identifier: MIT
#pragma once

#include "shell/shell_family.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// What may be put behind the beginning of a command line, so that the shell takes it for itself.
enum class Allowed : std::uint8_t {
    nothing,   ///< the shell would take its first characters for something else
    ordinary,  ///< what stands for itself everywhere: the text is, or may be, read a second time
    any,       ///< any text, quoted as the open quote asks
};

/// The beginning of a command line, read as a shell does. What it cannot follow, it says so little of: where
/// in doubt, only ordinary text is allowed.
class LineHead {
  public:
    LineHead(std::string_view text, ShellFamily family);

    [[nodiscard]] Allowed allowed() const;
    /// The quote that is open behind it, 0 for none.
    [[nodiscard]] char open_quote() const { return quote_; }
    /// Whether what follows is the beginning of a word.
    [[nodiscard]] bool begins_word() const { return begins_word_; }

  private:
    /// A "$" takes what follows for a variable's name, a "~" for a user's.
    enum class Name : std::uint8_t { none, dollar, name };
    /// ">&" and the word behind it, which bash expands twice.
    enum class Redirection : std::uint8_t { none, sign, word };

    void read(char c);
    void read_unquoted(char c);
    void read_quoted(char c);
    void read_in_double_quotes(char c);
    void read_quote(char c);
    void read_bracket(char c);
    void read_separator(char c);
    void read_name(char c);
    void read_token(char c);
    void end_token();
    [[nodiscard]] bool is_read_again() const;

    ShellFamily family_;
    char last_ = 0;
    char quote_ = 0;
    bool ansi_ = false;           ///< it is that of $'...', where a backslash escapes
    bool is_direct_ = false;      ///< nothing but a path stands behind it
    bool escaped_ = false;        ///< a backslash takes the next character
    bool closed_single_ = false;  ///< the last character closed a single quote
    bool begins_word_ = true;
    bool is_lost_ = false;  ///< what follows nests or escapes in ways that are not followed
    char bracket_ = 0;      ///< "}" or "]" that is missing
    bool bracket_begins_word_ = false;
    int parentheses_ = 0;
    Name name_ = Name::none;
    Redirection redirection_ = Redirection::none;

    std::string word_;                         ///< with its quotes
    std::string token_;                        ///< the letters of a word, wherever they stand
    bool evaluated_ = false;                   ///< a command of this line reads its operands as commands
    std::vector<std::string_view> unsettled_;  ///< it does so behind one of these
};
