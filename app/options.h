// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

/// What the command line asks for, beside the toolkit's own options.
struct CommandLineOptions {
    bool work = false;    ///< -work: start in `workdir`
    bool closed = false;  ///< -closed: start as an icon
    bool ilabel = false;  ///< -ilabel, -l: the main window's label is `label`
    bool host = false;    ///< -host: log in to `hostname`
    std::string workdir;
    std::string label;
    std::string hostname;
};

/// What "--help" and "--version" ask for; empty where neither is given.
[[nodiscard]] std::string answer_to(std::span<const std::string> arguments);

/// Reads the arguments behind the program's name (the first one). Unknown ones are skipped; an option at the
/// end without its value has its flag set and an empty value. Returns 0, or 1 when a value begins with "-":
/// what was read so far is then in `options`, and the caller should use none of it.
[[nodiscard]] int process_commandline(std::span<const std::string> arguments, CommandLineOptions& options);
