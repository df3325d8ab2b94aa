// SPDX-License-Identifier: MIT
#pragma once

#include "settings/load_file.h"

#include <string>

// The setup file "Orvik.setup": the values of the settings' controls, one a line. There is no other record of
// them.

/// Writes the values of all its controls to a file: 1 when the file has been replaced, 0 when it has not (the
/// old one is whole then, and the Message Board has the reason).
int save_setup(const std::string& path);
/// Sets the controls from a file: 1 when it was loaded, 0 when it could not be read, -1 when its first line
/// is not a setup file's; no control has changed then. No notify procedure is called.
int load_setup(const std::string& path, WhenDoubtful when_doubtful = WhenDoubtful::warn);
/// Loads the start-up directory's file, unless somebody else may have written it, or, if that gives no setup,
/// the home directory's. What went wrong with the last of them goes to the Message Board.
int load_setup_at_startup();
/// The file that was loaded last; empty when none was.
std::string loaded_setup_file();
