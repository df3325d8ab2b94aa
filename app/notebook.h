// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Where "Print" of "Notebook" writes the text for the print command.
inline std::string notebook_print_file = "/tmp/notebook.txt";
