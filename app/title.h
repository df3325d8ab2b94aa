// SPDX-License-Identifier: MIT
#pragma once

/// Labels the main window with "Label:" of "Define Label", or with the program's title when that is empty.
void show_title();
