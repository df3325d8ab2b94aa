// SPDX-License-Identifier: MIT
#pragma once

#include "shell/quoting.h"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

/// Text of the program itself. Only a literal becomes one, so no data can pass for it.
class Words {
  public:
    template <std::size_t size>
    consteval Words(const char (&literal)[size]) : text_(literal, size - 1) {}
    [[nodiscard]] constexpr std::string_view text() const { return text_; }

  private:
    std::string_view text_;
};

/// What a line has become for the shell that is to read it; or why that shell cannot be given it.
struct ComposedLine {
    std::string text;
    std::string refusal;
};

/// A command line for a shell: the program's own words and operands, with a blank between them. It becomes a
/// text only for a given shell, and each operand then what that shell takes for exactly that operand: an
/// ordinary name stands as it is, another is quoted or encoded, and what cannot be encoded refuses the line.
class CommandLine {
  public:
    CommandLine() = default;
    explicit CommandLine(Words words) { word(words); }
    /// A line of the user's own, as it stands.
    static CommandLine of_user(std::string_view text) { return std::move(CommandLine().raw(text)); }

    CommandLine& word(Words words);
    /// Words with numbers in them.
    template <std::integral... Numbers>
    CommandLine& numbers(fmt::format_string<Numbers...> format, Numbers... values) {
        return add(Kind::words, fmt::vformat(format, fmt::make_format_args(values...)));
    }
    /// The user's own words: a command, a list of names, options. Nothing in them is quoted.
    CommandLine& raw(std::string_view text);

    /// A file, as one word. A leading "-" gets "./" in front.
    CommandLine& path(std::string_view name);
    /// The same for commands that are given in double quotes; where those would not do, as `path`.
    CommandLine& double_quoted(std::string_view name);
    /// The same for commands that are given with a backslash before each blank.
    CommandLine& escaped(std::string_view name);
    /// A file for Subversion, which takes what follows an "@" for a revision: behind a last, empty "@" the
    /// others are part of the name (Version Control with Subversion, "Peg and Operative Revisions").
    CommandLine& peg(std::string_view name);
    CommandLine& double_quoted_peg(std::string_view name);
    /// Any text as one word: a font's name, a message.
    CommandLine& text(std::string_view value);
    CommandLine& double_quoted_text(std::string_view value);
    /// A host, or "user@host". The line is refused when it could be anything else.
    CommandLine& host(std::string_view name);

    /// The shell shall not wait for the command: " &" ends the line.
    CommandLine& in_background();
    /// It is typed only when such a program has ended in the shell's background.
    CommandLine& behind(Words program);
    [[nodiscard]] const std::string& is_behind() const { return behind_; }
    /// An empty line is typed before it.
    CommandLine& behind_line_feed();
    [[nodiscard]] bool is_behind_line_feed() const { return behind_line_feed_; }

    /// For an interactive shell, whose line editor reads what is typed.
    [[nodiscard]] ComposedLine typed_into(const Shell& shell) const;
    /// For a shell that reads it as a file or an argument.
    [[nodiscard]] ComposedLine read_by(ShellFamily shell) const;

  private:
    enum class Kind : std::uint8_t { words, path, double_quoted, escaped, text, double_quoted_text, host };
    struct Piece {
        Kind kind;
        std::string text;
    };

    CommandLine& add(Kind kind, std::string text);
    template <typename Write>
    [[nodiscard]] ComposedLine compose(Write write) const;

    std::vector<Piece> pieces_;
    std::string behind_;
    bool in_background_ = false;
    bool behind_line_feed_ = false;
};
