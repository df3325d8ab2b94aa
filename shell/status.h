// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

inline constexpr int refresh_after_command = 500;  ///< milliseconds
inline constexpr int refresh_after_login = 999;

/// Makes the status file and names it in "Status File:"; where there can be none, the Message Board says why.
void begin_status_display();

/// Arms the one-shot refresh of the status display, in milliseconds (at most 999); a pending one is replaced.
/// Does nothing while "Display" of "Status Display" is Off.
void SetupTimer(int milliseconds);

/// The timer's procedure: reads the status file that the shell's prompt hook writes and shows the shell's
/// directory, prompt and the status line. Without a readable file nothing changes.
void DisplayStatusTimer();

/// While the screen is locked the right footer says so, whatever the shell reports.
void show_screen_lock(bool locked);

/// Ends the status machinery: the timer and the status file.
void end_status_display();

/// Says in "Cwd:" what there is to know while the shell reports no directory; empty for nothing.
void explain_missing_directory(std::string_view hint);

/// The terminal has been written to: with "Orvik.FollowShell" the directory of a shell that does not report
/// it is shown.
void follow_shell();
