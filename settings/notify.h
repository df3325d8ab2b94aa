// SPDX-License-Identifier: MIT
#pragma once

// The notify procedures of settings/, bound to controls by the windows and menus in ui/.

// "Setup" menu.
void Save_current_setup();

// "File List Browser", "Load" menu.
void FileListLoadSetup();
