// SPDX-License-Identifier: MIT
#pragma once

#include "shell/shell_family.h"

#include <string>

#include <sys/types.h>

// Values of the whole process. Set once, by `read_process_values` and the start-up, and only read afterwards.

inline constexpr double version = 9.9;  ///< shown with two decimals

inline std::string host_own;     ///< this host's name, at most 79 bytes
inline std::string home_dir;     ///< HOME
inline std::string startup_dir;  ///< the directory the tool was started in, at most 1023 bytes
inline std::string user_name;    ///< LOGNAME
inline std::string shell_name;   ///< SHELL: path of the user's shell
inline Shell user_shell;         ///< what `shell_name` and the locale make of it
inline std::string orvik_home;   ///< ORVIK_HOME: the installation directory
inline pid_t pid = 0;

inline int multiclick_timeout = 0;  ///< longest time between the clicks of a double click, in microseconds
inline int drag_threshold = 0;      ///< how far the pointer may move within a click, in pixels

/// Sets the values above that come from the system and the environment. The first that is missing is reported
/// with `perror` and ends the process with exit status 1.
void read_process_values();
