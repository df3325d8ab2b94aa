// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// What a shell can be told. By its path: "csh" (and tcsh), "bash" and "ksh", zsh, or any other.
enum class ShellFamily : std::uint8_t { csh, bash, zsh, other };
ShellFamily shell_family(std::string_view shell_name);

/// A file name as one word of a command line typed live into a shell. An ordinary name stays as it is; one
/// that the shell or its line editor would act on is quoted or, where quotes do not help (control characters,
/// history marks), written in octal as $'\ooo', which bash, ksh93, zsh and tcsh 6.24 read. A leading "-" gets
/// "./" in front. Nothing for a name that this shell cannot be given: one with control characters in other
/// shells, one that is no UTF-8 text in those and in csh.
std::optional<std::string> shell_word(std::string_view name, ShellFamily shell);

/// The same in double quotes, for commands that are given so; as `shell_word` where they would not keep the
/// shell from acting on the name.
std::optional<std::string> double_quoted_word(std::string_view name, ShellFamily shell);

/// The same with a backslash before every blank, for commands that are given so; as `shell_word` where the
/// shell would act on more than the blanks.
std::optional<std::string> escaped_word(std::string_view name, ShellFamily shell);

/// A file name as one word of a command for the system's shell (POSIX sh, as `system` starts it). Blanks get
/// a backslash; a name that the shell would act on is quoted. A leading "-" gets "./" in front. Any name can
/// be given so: nothing is typed, so control characters do no harm.
std::string system_word(std::string_view name);

/// Any text as one word, for every shell: as it is when it is harmless, else in single quotes.
std::string quoted_word(std::string_view text);

/// `text` as part of a longer text in single quotes: what closes them is written so that it does not.
std::string inside_single_quotes(std::string_view text);

/// Whether a host name, "user@host" included, is made of the characters that such names are made of and
/// cannot be taken for an option.
bool is_host_name(std::string_view name);

/// Whether a text holds a control character (C0, DEL): such a text is never typed.
bool has_control_characters(std::string_view text);
