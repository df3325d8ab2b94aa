// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

/// How a shell reads a command line: csh and tcsh; bash; the Korn shells; zsh; sh without more than POSIX
/// asks for; any other, of which nothing is known.
enum class ShellFamily : std::uint8_t { csh, bash, ksh, zsh, other, unknown };

/// The family by the base name of a shell's path: "csh", "bash", "ksh" and "zsh" anywhere in it, the names of
/// plain shells only as the whole name.
ShellFamily shell_family(std::string_view path);

/// What a running shell makes of the bytes it is typed: that depends on the locale it was started in too.
struct Shell {
    ShellFamily family = ShellFamily::unknown;
    bool utf8 = false;
    bool operator==(const Shell&) const = default;
};

/// Whether this process's environment gives its children a locale in UTF-8. One that is not installed does
/// not count: they get the C locale instead.
bool environment_is_utf8();
