// SPDX-License-Identifier: MIT
#pragma once

#include "shell/shell_family.h"

#include <optional>
#include <string>
#include <string_view>

// Text as one word of a command line that is typed live into the user's shell: the shell gets exactly that
// text, or there is no word.

/// A text as it is when it is harmless; one that the shell would act on in single quotes; what its line
/// editor would act on there, and bytes that are no plain text, in octal as $'\ooo'. Nothing for a text that
/// this shell cannot be given.
std::optional<std::string> shell_text(std::string_view text, const Shell& shell);

/// The same for the name of a file: see `as_operand`. Nothing for an empty one.
std::optional<std::string> shell_word(std::string_view name, const Shell& shell);

/// A file name in double quotes, for commands that are given so; as `shell_word` where they would not keep
/// the shell from acting on the name.
std::optional<std::string> double_quoted_word(std::string_view name, const Shell& shell);

/// Any text in double quotes, for commands that are given so; as `shell_text` where those would not do.
std::optional<std::string> double_quoted_text(std::string_view text, const Shell& shell);

/// A file name with a backslash before every blank, for commands that are given so; as `shell_word` where the
/// shell would act on more than the blanks.
std::optional<std::string> escaped_word(std::string_view name, const Shell& shell);

/// Any text as one word of a command that a shell reads from a file or gets as an argument: nothing is typed,
/// so control characters do no harm and any text can be given so. A csh is given it for csh, every other
/// shell for sh.
std::string script_text(std::string_view text, ShellFamily shell);

/// The same for the name of a file: "./" as above where it is needed, and a backslash before blanks where
/// that is enough.
std::string script_word(std::string_view name, ShellFamily shell);

/// The same in double quotes where they keep the shell from acting on the name.
std::string script_double_quoted(std::string_view name, ShellFamily shell);

/// A file name as an operand: one that begins like an option, with "-" or "+", gets "./" in front.
std::string as_operand(std::string_view name);

/// Whether a text stands for itself in every place of a command line, unquoted.
bool is_ordinary(std::string_view text, const Shell& shell);

/// `text` as part of a longer text in single quotes: what closes them is written so that it does not.
std::string inside_single_quotes(std::string_view text);

/// Whether a host name, "user@host" included, is made of the characters that such names are made of and
/// cannot be taken for an option.
bool is_host_name(std::string_view name);

/// Whether a text holds a control character (C0, DEL): such a text is never typed.
bool has_control_characters(std::string_view text);
