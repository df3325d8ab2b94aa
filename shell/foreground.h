// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

/// What a program does with lines that are typed to it, as its name tells.
enum class ProgramKind : std::uint8_t {
    other,
    shell,        ///< runs them as commands
    far_shell,    ///< passes them on to a shell that cannot be looked at: on another machine, another user's
    full_screen,  ///< takes every key for itself, be it on the main screen
};

[[nodiscard]] ProgramKind kind_of_program(std::string_view name);

/// The name of the program that a process group runs: its leader's, else that of the member started last;
/// empty where there is none. As proc(5) tells it: at most 15 bytes, of any value.
[[nodiscard]] std::string program_name(pid_t group);

/// Whether a program works in the background of the terminal that a process group stands in front of: a look
/// at every process.
[[nodiscard]] bool works_in_background(pid_t front_group, std::string_view program);

/// The names of the programs that a shell, the leader of a session, has started there: one for each of its
/// jobs, in the order of their process groups.
[[nodiscard]] std::vector<std::string> programs_in_session(pid_t shell);

/// The current directory of a process, as the kernel knows it; empty where it may not be looked at.
[[nodiscard]] std::string directory_of(pid_t process);
